# shellcheck shell=bash
# To be sourced: how the Debian packages are made.

# make_debs QT BUILD_DIR CMAKE_ARGUMENT...: builds the library on that Qt for the prefix /usr and makes its packages in
# BUILD_DIR/packages, which holds nothing else afterwards. To be called in the root of the sources.
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
