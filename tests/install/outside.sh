# shellcheck shell=bash disable=SC2034,SC2154
# To be sourced: programs outside the project are built against the library, and what they print is compared. Wants
#
#   qt          the Qt of the library
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

# expect_libraries LIBRARY_DIR: the library that stands there has the right name and needs of Qt what it should.
expect_libraries() {
    local soname needed
    soname=$(objdump -p "$1/lib$name.so" | awk '$1 == "SONAME" { print $2 }')
    expect "the library has a soname" "lib$name.so.1.0" "$soname"
    [ -e "$1/$soname" ] || fail "$soname is not installed"
    needed=$(objdump -p "$1/lib$name.so" | awk '$1 == "NEEDED" && /Qt/ { print $2 }' | sort | tr '\n' ' ')
    expect "Qt Core and Network are all of Qt it needs" "libQt${qt}Core.so.$qt libQt${qt}Network.so.$qt " "$needed"
}

frequency='<Frequency version="1.0" unit="kHz">2400.000000</Frequency>'

# configure FOLDER BUILD_DIR CMAKE_ARGUMENT...: configures the project in that folder beside this file; BUILD_DIR.log
# has what CMake says.
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

# expect_cmake CMAKE_ARGUMENT...: CMake finds the library, in the versions that it may be taken for, and links it.
expect_cmake() {
    configure versions "$work_dir/versions" -DARVXML_PACKAGE="$package" "$@"
    echo "ok: CMake finds versions 1 and 1.0 and refuses others"
    configure cmake "$work_dir/cmake" -DARVXML_PACKAGE="$package" "$@"
    cmake --build "$work_dir/cmake" >>"$work_dir/cmake.log" || fail "it cannot be built: see $work_dir/cmake.log"
    expect "a CMake project finds and links it" "$frequency" "$("$work_dir/cmake/outside")"
}

# build_with_pkgconfig SOURCE PROGRAM: a program is compiled with what pkg-config says, and nothing else.
build_with_pkgconfig() {
    local arguments
    eval "arguments=($(pkg-config --cflags --libs "$name"))" # it quotes for the shell: a path may have blanks
    "$compiler" -std=c++17 -fPIC "${flags[@]}" "$1" -o "$2" "${arguments[@]}"
}

# expect_pkgconfig: pkg-config finds the library, and programs are built so.
expect_pkgconfig() {
    expect "pkg-config knows the version" "1.0.0" "$(pkg-config --modversion "$name")"
    build_with_pkgconfig "$outside_dir/cmake/main.cpp" "$work_dir/outside"
    expect "a program built with pkg-config runs" "$frequency" "$("$work_dir/outside")"
}

# The README shows the program in its first C++ block and what it prints in the block after it.
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
