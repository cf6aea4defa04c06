#!/usr/bin/env bash
# Uses the library as a subproject, by add_subdirectory and by FetchContent. It must be usable, and must not change the
# other project.
set -euo pipefail

source_dir=$1 work_dir=$2 compiler=$3 generator=$4 qt=$5
flags=()
# shellcheck source=tests/install/outside.sh
. "$source_dir/tests/install/outside.sh"

mkdir -p "$work_dir"
# check HOW FIND_QT
check() {
    local how=$1
    build_dir=$work_dir/$1-$2
    # Configured anew, but the build is kept, so that only changes are rebuilt.
    rm -rf "$build_dir"/{CMakeCache.txt,prefix}
    configure subproject "$build_dir" -DHOW="$how" -DFIND_QT="$2" -DARVXML_SOURCES="$source_dir" -DQT="$qt" \
        -DCMAKE_UNITY_BUILD=ON
    echo "ok: $how changes nothing"
    expect "$how adds no tests" "Total Tests: 1" "$(ctest --test-dir "$build_dir" -N | grep Total)"
    cmake --install "$build_dir" --prefix "$build_dir/prefix" >>"$build_dir.log"
    expect "$how adds nothing to be installed" "./share/parent/main.cpp" "$(cd "$build_dir/prefix" && find . -type f)"
}
check add_subdirectory ON
check FetchContent ON
check add_subdirectory OFF
check FetchContent OFF

# The library is the same in all cases, so only one is built.
cmake --build "$build_dir" --parallel "$(nproc)" >>"$build_dir.log" 2>&1 ||
    {
        tail -n 40 "$build_dir.log" >&2
        fail "the project cannot be built"
    }
expect "a program with everything disabled runs" "$frequency
valid" "$("$build_dir/parent")"
expect "it uses the Qt chosen by the project" "libQt${qt}Core.so.$qt" \
    "$(objdump -p "$build_dir/parent" | awk '$1 == "NEEDED" && /Qt/ { print $2 }')"
