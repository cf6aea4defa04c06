#!/usr/bin/env bash
# The library's sources in the build of another project, by add_subdirectory and by FetchContent: it can be used, and
# nothing of that project changes by it.
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
    # Configured anew, but what was built is kept, so that only what has changed is built again.
    rm -rf "$build_dir"/{CMakeCache.txt,prefix}
    configure subproject "$build_dir" -DHOW="$how" -DFIND_QT="$2" -DARVXML_SOURCES="$source_dir" -DQT="$qt" \
        -DCMAKE_UNITY_BUILD=ON
    echo "ok: $how changes nothing"
    expect "$how brings no tests" "Total Tests: 1" "$(ctest --test-dir "$build_dir" -N | grep Total)"
    cmake --install "$build_dir" --prefix "$build_dir/prefix" >>"$build_dir.log"
    expect "$how brings nothing to be installed" "./share/parent/main.cpp" "$(cd "$build_dir/prefix" && find . -type f)"
}
check add_subdirectory ON
check FetchContent ON
check add_subdirectory OFF
check FetchContent OFF

# The library is the same whichever way, and only one is built.
cmake --build "$build_dir" --parallel "$(nproc)" >>"$build_dir.log" 2>&1 ||
    {
        tail -n 40 "$build_dir.log" >&2
        fail "the project cannot be built"
    }
expect "a program with everything switched off runs" "$frequency
valid" "$("$build_dir/parent")"
expect "with the Qt that the project has chosen" "libQt${qt}Core.so.$qt" \
    "$(objdump -p "$build_dir/parent" | awk '$1 == "NEEDED" && /Qt/ { print $2 }')"
