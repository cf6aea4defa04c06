# shellcheck shell=bash disable=SC2034,SC2154
# To be sourced: builds programs outside the project with the library, and compares what they print. Expects
#
#   qt          the Qt version of the library
#   source_dir  the sources of the project
#   work_dir    a folder to work in
#   compiler, generator, flags (an array)
outside_dir=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

# The names that depend on the Qt.
if [ "$qt" = 5 ]; then
    package=ArvXml name=arvxml include_folder=include
else
    package=ArvXmlQt$qt name=arvxml-qt$qt include_folder=include/arvxml-qt$qt
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

# expect_libraries LIBRARY_DIR: the library there has the right soname, and needs the right libraries of Qt.
expect_libraries() {
    local soname needed
    soname=$(objdump -p "$1/lib$name.so" | awk '$1 == "SONAME" { print $2 }')
    expect "the soname of the library" "lib$name.so.1.0" "$soname"
    [ -e "$1/$soname" ] || fail "$soname is not installed"
    needed=$(objdump -p "$1/lib$name.so" | awk '$1 == "NEEDED" && /Qt/ { print $2 }' | sort | tr '\n' ' ')
    expect "of Qt, the library needs Core and Network" "libQt${qt}Core.so.$qt libQt${qt}Network.so.$qt " "$needed"
}

frequency='<Frequency version="1.0" unit="kHz">2400.000000</Frequency>'

# configure FOLDER BUILD_DIR CMAKE_ARGUMENT...: configures the project in that folder next to this file; the output of
# CMake goes to BUILD_DIR.log.
configure() {
    local folder=$1 build_dir=$2
    shift 2
    cmake -S "$outside_dir/$folder" -B "$build_dir" -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" \
        -DCMAKE_CXX_FLAGS="${flags[*]-}" "$@" >"$build_dir.log" 2>&1 ||
        {
            cat "$build_dir.log" >&2
            fail "$folder cannot be configured"
        }
}

# expect_cmake CMAKE_ARGUMENT...: CMake finds the library, for compatible versions only, and links it.
expect_cmake() {
    configure versions "$work_dir/versions" -DARVXML_PACKAGE="$package" "$@"
    echo "ok: CMake finds versions 1 and 1.0 and rejects others"
    configure cmake "$work_dir/cmake" -DARVXML_PACKAGE="$package" "$@"
    cmake --build "$work_dir/cmake" >>"$work_dir/cmake.log" || fail "it cannot be built: see $work_dir/cmake.log"
    expect "a CMake project finds and links it" "$frequency" "$("$work_dir/cmake/outside")"
}

# build_with_pkgconfig SOURCE PROGRAM: compiles a program with the flags of pkg-config, and nothing else.
build_with_pkgconfig() {
    local arguments
    # Its output is quoted for the shell, since paths may contain blanks.
    eval "arguments=($(pkg-config --cflags --libs "$name"))"
    "$compiler" -std=c++17 -fPIC "${flags[@]}" "$1" -o "$2" "${arguments[@]}"
}

# expect_pkgconfig: pkg-config finds the library, and programs can be built with it.
expect_pkgconfig() {
    expect "pkg-config knows the version" "1.0.0" "$(pkg-config --modversion "$name")"
    build_with_pkgconfig "$outside_dir/cmake/main.cpp" "$work_dir/outside"
    expect "a program built with pkg-config runs" "$frequency" "$("$work_dir/outside")"
}

# The first C++ block of the README is the program, the first text block is its output.
readme_block() {
    awk -v fence="\`\`\`$1" '$0 == fence && !done { inside = 1; next }
                              inside && /^```/ { inside = 0; done = 1 }
                              inside { print }' "$source_dir/README.md"
}
expect_readme() {
    readme_block cpp >"$work_dir/readme.cpp"
    [ -s "$work_dir/readme.cpp" ] || fail "the README shows no program"
    build_with_pkgconfig "$work_dir/readme.cpp" "$work_dir/readme"
    expect "the README's first program prints what the README says" "$(readme_block text)" "$("$work_dir/readme")"
}
