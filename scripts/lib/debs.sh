# shellcheck shell=bash
# To be sourced: builds the Debian packages.

# make_debs QT BUILD_DIR CMAKE_ARGUMENT...: builds the library with that Qt for the prefix /usr, and its packages in
# BUILD_DIR/packages, which then contains nothing else. Call it in the root of the sources.
make_debs() {
    local qt=$1 build_dir=$2
    shift 2
    cmake -S . -B "$build_dir" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DARVXML_QT="$qt" \
        -DARVXML_BUILD_TESTS=OFF -DARVXML_BUILD_EXAMPLES=OFF "$@"
    cmake --build "$build_dir" --parallel "$(nproc)"
    rm -rf "$build_dir/packages"
    cpack --config "$build_dir/CPackConfig.cmake" -B "$build_dir/packages"
    rm -rf "$build_dir/packages/_CPack_Packages"
}
