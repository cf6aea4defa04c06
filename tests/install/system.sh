#!/usr/bin/env bash
# With the library installed on this machine for both Qts: builds programs outside the project as users do, with CMake
# and with pkg-config, without specifying where the library is.
set -euo pipefail

source_dir=$1 system_work_dir=$2
compiler=g++ generator=Ninja flags=()

rm -rf "$system_work_dir"
for qt in 5 6; do
    echo "== Qt $qt"
    work_dir=$system_work_dir/qt$qt
    mkdir -p "$work_dir"
    # shellcheck source=tests/install/outside.sh
    . "$source_dir/tests/install/outside.sh"
    expect_libraries "$(pkg-config --variable=libdir $name)"
    expect_cmake
    expect_pkgconfig
    expect_readme
    expect "the library is in the system cache" "lib$name.so.1.0" \
        "$(ldconfig -p | awk -v "library=lib$name.so.1.0" '$1 == library { print $1 }')"
done

echo "== Both in one project"
configure both "$system_work_dir/both"
cmake --build "$system_work_dir/both" >>"$system_work_dir/both.log"
for qt in 5 6; do
    expect "the program for Qt $qt" "$frequency" "$("$system_work_dir/both/with-qt$qt")"
    expect "it is linked with that Qt only" "libQt${qt}Core.so.$qt" \
        "$(objdump -p "$system_work_dir/both/with-qt$qt" | awk '$1 == "NEEDED" && /Qt/ { print $2 }')"
done
