#!/usr/bin/env bash
# Checks the binary interface of the shared library: it exports the element classes, everything that it exported before,
# and none of its internals. The list has the symbols, and the sizes of the classes; programs linked with an earlier
# build depend on every line. SIZES is the program that prints the sizes.
#
#   tests/install/symbols.sh LIBRARY SIZES LIST            compares the library with the list
#   tests/install/symbols.sh LIBRARY SIZES LIST --update   updates the list
set -euo pipefail

library=$1 sizes=$2 list=$3 mode=${4:-}

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

symbols=$(nm -D --defined-only --demangle "$library" | sed 's/^[0-9a-f]* . //')

hidden='ContentModel|ElementReader|EnumerationTexts|EnumerationRules|QuantityRules|TextRules|ParameterTable|Binding|Row'
hidden+='|Particle|WrapperEnd|NeverDestroyed'
if grep -E "^ArvXml::($hidden)(::|$)" <<<"$symbols"; then
    fail "internals are exported"
fi
if grep -vE '^((typeinfo( name)?|vtable) for |non-virtual thunk to )?ArvXml::' <<<"$symbols"; then
    fail "something outside the namespace is exported"
fi
for class in XmlFreqType XmlCmdRoot XmlRespRoot; do
    grep -q "^ArvXml::$class::$class()" <<<"$symbols" || fail "$class is not exported"
done
echo "ok: only the interface is exported"

# Elements can be used until the very end of a program, so nothing may be destroyed there. (Coverage builds do register
# an exit handler.)
if ! grep -q __llvm_profile_ <<<"$(nm "$library")" &&
    nm -D --undefined-only "$library" | grep -E '__cxa_(thread_)?atexit'; then
    fail "the library destroys something at the end of the program or of a thread"
fi
echo "ok: nothing is destroyed at the end"

# Weak functions (W) are left out: inline functions and templates, which programs contain themselves, and which are in
# the library or not depending on the compiler. Virtual tables and type information (V) are weak too, but programs need
# them. Constructors and destructors have several symbols with the same name, and are listed once: some compilers leave
# out the unusable symbol of an abstract class.
current=$(
    {
        nm -D --defined-only --demangle "$library" | awk '$2 != "W"' | sed 's/^[0-9a-f]* . //'
        "$sizes"
    } | LC_ALL=C sort -u
)
if [ "$mode" = --update ]; then
    printf '%s\n' "$current" >"$list"
    echo "updated: $list"
    exit
fi
[ -z "$mode" ] || fail "unknown option: $mode"
listed=$(cat "$list")
if ! grep -q '^size of ' <<<"$current"; then
    listed=$(grep -v '^size of ' <<<"$listed") # not printed on this machine
fi
lost=$(LC_ALL=C comm -13 <(printf '%s\n' "$current") <(printf '%s\n' "$listed"))
added=$(LC_ALL=C comm -23 <(printf '%s\n' "$current") <(printf '%s\n' "$listed"))
show() {
    [ -z "$2" ] || printf '%s:\n%s\n' "$1" "$(sed 's/^/    /' <<<"$2")"
}
if [ -n "$lost$added" ]; then
    {
        show "Lost" "$lost"
        show "Added" "$added"
        echo "If this is intended, update the lists for both Qts, and commit them:"
        echo "    $0 $library $sizes $list --update"
        echo "Programs linked before need what is lost, and the old sizes: raise the minor version, and so the soname."
    } >&2
    fail "the binary interface has changed"
fi
echo "ok: the binary interface is as listed"
