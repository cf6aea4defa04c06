#!/usr/bin/env bash
# Installs the library, moves the installed tree, and builds programs outside the project against it:
# with CMake, with pkg-config, and the first program of the README, copied from the page.
set -euo pipefail

source_dir=$1 build_dir=$2 work_dir=$3 compiler=$4 generator=$5 sanitizers=$6
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
flags=()
if [ -n "$sanitizers" ]; then
    flags=("-fsanitize=$sanitizers")
fi

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# expect WHAT EXPECTED ACTUAL
expect() {
    [ "$2" = "$3" ] || fail "$1: expected '$2', got '$3'"
    echo "ok: $1"
}

rm -rf "$work_dir"
mkdir -p "$work_dir"
cmake --install "$build_dir" --prefix "$work_dir/staged" >"$work_dir/install.log"
mv "$work_dir/staged" "$work_dir/prefix" # nothing installed may know where it was installed to
prefix=$work_dir/prefix
pkgconfig_file=$(find "$prefix" -name arvxml.pc)
library_dir=$(dirname "$(dirname "$pkgconfig_file")")

soname=$(objdump -p "$library_dir/libarvxml.so" | awk '$1 == "SONAME" { print $2 }')
expect "the library has a soname" "libarvxml.so.0" "$soname"
[ -e "$library_dir/$soname" ] || fail "$soname is not installed"
needed=$(objdump -p "$library_dir/libarvxml.so" | awk '$1 == "NEEDED" && /Qt/ { print $2 }' | sort | tr '\n' ' ')
expect "Qt Core and Network are all of Qt it needs" "libQt5Core.so.5 libQt5Network.so.5 " "$needed"

frequency='<Frequency version="1.0" unit="kHz">2400.000000</Frequency>'

cmake -S "$here/cmake" -B "$work_dir/cmake-build" -G "$generator" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_CXX_FLAGS="${flags[*]-}" >"$work_dir/cmake.log"
cmake --build "$work_dir/cmake-build" >>"$work_dir/cmake.log"
expect "a CMake project finds and links it" "$frequency" "$("$work_dir/cmake-build/outside")"

# A program is compiled with what pkg-config says, and nothing else.
export PKG_CONFIG_PATH=${pkgconfig_file%/*} LD_LIBRARY_PATH=$library_dir
build_with_pkgconfig() {
    # shellcheck disable=SC2046 # one argument for each word is what pkg-config means
    "$compiler" -std=c++17 -fPIC "${flags[@]}" "$1" -o "$2" $(pkg-config --cflags --libs arvxml)
}
build_with_pkgconfig "$here/cmake/main.cpp" "$work_dir/outside-pkgconfig"
expect "a program built with pkg-config runs" "$frequency" "$("$work_dir/outside-pkgconfig")"
expect "pkg-config knows the version" "0.1.0" "$(pkg-config --modversion arvxml)"

# The README shows the program in its first C++ block and what it prints in the block after it.
block() {
    awk -v fence="\`\`\`$1" '$0 == fence && !done { inside = 1; next }
                              inside && /^```/ { inside = 0; done = 1 }
                              inside { print }' "$source_dir/README.md"
}
block cpp >"$work_dir/readme.cpp"
[ -s "$work_dir/readme.cpp" ] || fail "the README shows no program"
build_with_pkgconfig "$work_dir/readme.cpp" "$work_dir/readme"
expect "the README's first program prints what the README says" "$(block text)" "$("$work_dir/readme")"
