#!/usr/bin/env bash
# The shared library shows its element classes; the machinery behind them is hidden.
set -euo pipefail

symbols=$(nm -D --defined-only --demangle "$1" | sed 's/^[0-9a-f]* . //')

hidden='ElementForm|ElementReader|EnumerationTexts|EnumerationRules|QuantityRules|Content|Row|InnerEnd'
if grep -E "^ArvXml::($hidden)(::|$)" <<<"$symbols"; then
    echo "FAILED: machinery is visible" >&2
    exit 1
fi
if grep -vE '^((typeinfo( name)?|vtable) for |non-virtual thunk to )?ArvXml::' <<<"$symbols"; then
    echo "FAILED: something outside the namespace is visible" >&2
    exit 1
fi
for class in XmlFreqType XmlCmdRoot XmlRespRoot; do
    grep -q "^ArvXml::$class::$class()" <<<"$symbols" || {
        echo "FAILED: $class is not visible" >&2
        exit 1
    }
done
echo "ok: only the interface is visible"
