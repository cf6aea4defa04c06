#!/usr/bin/env bash
# Installs the library, moves the installed tree, and builds programs outside the project with it: with CMake, with
# pkg-config, and the first program of the README, taken from the page.
set -euo pipefail

source_dir=$1 build_dir=$2 work_dir=$3 compiler=$4 generator=$5 qt=$6 type=$7 sanitizers=$8
flags=()
if [ -n "$sanitizers" ]; then
    flags=("-fsanitize=$sanitizers")
fi
# shellcheck source=tests/install/outside.sh
. "$source_dir/tests/install/outside.sh"

rm -rf "$work_dir"
mkdir -p "$work_dir"
cmake --install "$build_dir" --prefix "$work_dir/staged" >"$work_dir/install.log"
mv "$work_dir/staged" "$work_dir/prefix" # installed files must not depend on the prefix
prefix=$work_dir/prefix
pkgconfig_file=$(find "$prefix" -name "$name.pc")
library_dir=$(dirname "$(dirname "$pkgconfig_file")")

# Libraries for both Qts can be installed under one prefix: the names of all files depend on the Qt.
expect "the folders of the headers" "$include_folder/arvxml" \
    "$(cd "$prefix" && find include -name '*.h' -printf '%h\n' | sort -u)"
expect "every other file is named after its Qt" "" \
    "$(cd "$prefix" && find . -type f -not -path './include/*' -not -path "*/cmake/$package/$package*.cmake" \
        -not -name "lib$name.so.1.0.0" -not -name "lib$name.a" -not -name "$name.pc")"

if [ "$type" = STATIC_LIBRARY ]; then
    expect "the library" "lib$name.a" "$(cd "$library_dir" && find . -maxdepth 1 -name 'lib*' -printf '%f\n')"
else
    expect_libraries "$library_dir"
fi
expect_cmake -DCMAKE_PREFIX_PATH="$prefix"
export PKG_CONFIG_PATH=${pkgconfig_file%/*} LD_LIBRARY_PATH=$library_dir
expect_pkgconfig
expect_readme
