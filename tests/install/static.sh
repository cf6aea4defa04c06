#!/usr/bin/env bash
# Builds a static library from a single source, and programs outside the project with it. All paths contain blanks and
# letters beyond ASCII.
set -euo pipefail

source_dir=$1 work_dir=$2 compiler=$3 generator=$4 qt=$5

work_dir="$work_dir/für Pläne"
mkdir -p "$work_dir"
ln -sfn "$source_dir" "$work_dir/the sources"
source_dir="$work_dir/the sources"
{
    cmake -S "$source_dir" -B "$work_dir/build" -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" -DARVXML_QT="$qt" \
        -DBUILD_SHARED_LIBS=OFF -DCMAKE_UNITY_BUILD=ON -DARVXML_WARNINGS_AS_ERRORS=ON \
        -DARVXML_BUILD_TESTS=OFF -DARVXML_BUILD_EXAMPLES=OFF
    cmake --build "$work_dir/build" --parallel "$(nproc)"
} >"$work_dir/build.log" 2>&1 ||
    {
        tail -n 40 "$work_dir/build.log" >&2
        exit 1
    }
"$source_dir/tests/install/check.sh" "$source_dir" "$work_dir/build" "$work_dir/install" "$compiler" "$generator" "$qt" \
    STATIC_LIBRARY ""
