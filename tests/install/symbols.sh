#!/usr/bin/env bash
# The shared library shows its element classes, all those that it showed before, and nothing of the machinery behind
# them. The list has what it shows, and how large the classes are; programs linked with an earlier build need every line
# of it. SIZES is the program that prints the sizes.
#
#   tests/install/symbols.sh LIBRARY SIZES LIST            compares the library with the list
#   tests/install/symbols.sh LIBRARY SIZES LIST --update   writes the list anew
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
    fail "machinery is visible"
fi
if grep -vE '^((typeinfo( name)?|vtable) for |non-virtual thunk to )?ArvXml::' <<<"$symbols"; then
    fail "something outside the namespace is visible"
fi
for class in XmlFreqType XmlCmdRoot XmlRespRoot; do
    grep -q "^ArvXml::$class::$class()" <<<"$symbols" || fail "$class is not visible"
done
echo "ok: only the interface is visible"

# Elements are used to the last moment of a program: there must be nothing that would be gone by then. (Where coverage
# is counted, the counting has something to do at the end.)
if ! grep -q __llvm_profile_ <<<"$(nm "$library")" &&
    nm -D --undefined-only "$library" | grep -E '__cxa_(thread_)?atexit'; then
    fail "the library destroys something at the end of the program or of a thread"
fi
echo "ok: nothing is destroyed at the end"

# Left out are weak functions (W): inline functions and templates, which a program has in itself, and which compilers
# put into the library or not as they please. Tables of virtual functions and type information (V) are weak too, but every
# program needs them. Constructors and destructors have several symbols under one name and are listed once: of an
# abstract class, some compilers leave out the symbol that nobody can use.
current=$(
    {
        nm -D --defined-only --demangle "$library" | awk '$2 != "W"' | sed 's/^[0-9a-f]* . //'
        "$sizes"
    } | LC_ALL=C sort -u
)
if [ "$mode" = --update ]; then
    printf '%s\n' "$current" >"$list"
    echo "written: $list"
    exit
fi
[ -z "$mode" ] || fail "unknown: $mode"
listed=$(cat "$list")
if ! grep -q '^size of ' <<<"$current"; then
    listed=$(grep -v '^size of ' <<<"$listed") # not on this machine
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
        echo "If that is meant, write the list anew, with both Qts, and commit it:"
        echo "    $0 $library $sizes $list --update"
        echo "Programs linked before need what is lost, and know the old sizes: raise the minor version, and so the soname."
    } >&2
    fail "the binary interface has changed"
fi
echo "ok: the binary interface is that of the list"
