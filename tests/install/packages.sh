#!/usr/bin/env bash
# Builds the Debian packages of the library, checks their control data and content, unpacks them into a folder, and
# builds programs outside the project with that. Nothing is installed; `scripts/check packages` does that.
set -euo pipefail

source_dir=$1 work_dir=$2 compiler=$3 generator=$4 qt=$5
flags=()
# shellcheck source=tests/install/outside.sh
. "$source_dir/tests/install/outside.sh"
# shellcheck source=scripts/lib/debs.sh
. "$source_dir/scripts/lib/debs.sh"

if ! command -v dpkg-deb >/dev/null; then
    echo "SKIPPED: dpkg is not available to build packages"
    exit 0
fi
command -v dpkg-shlibdeps >/dev/null || fail "dpkg-shlibdeps is missing; install dpkg-dev"
command -v file >/dev/null || fail "file is missing; install the package of the same name"

# The build of the library is kept, so that only changes are rebuilt.
mkdir -p "$work_dir"
cd "$source_dir"
make_debs "$qt" "$work_dir/build" -G "$generator" -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_UNITY_BUILD=ON \
    >"$work_dir/build.log" 2>&1 ||
    {
        tail -n 40 "$work_dir/build.log" >&2
        fail "the packages cannot be built"
    }

if [ "$qt" = 5 ]; then
    runtime=libarvxml1.0 qt_package=qtbase5-dev qt_version=5.15
else
    runtime=libarvxml-qt6-1.0 qt_package=qt6-base-dev qt_version=6.4
fi
development=lib$name-dev
architecture=$(dpkg --print-architecture)
library_dir=usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)
runtime_deb=$work_dir/build/packages/${runtime}_1.0.0_$architecture.deb
development_deb=$work_dir/build/packages/${development}_1.0.0_$architecture.deb
expect "there are two packages" "$(printf '%s\n' "$runtime_deb" "$development_deb" | LC_ALL=C sort)" \
    "$(find "$work_dir/build/packages" -type f | LC_ALL=C sort)"

# Control data

field() {
    dpkg-deb -f "$1" "$2"
}
for deb in "$runtime_deb" "$development_deb"; do
    expect "the version" "1.0.0" "$(field "$deb" Version)"
    expect "the architecture" "$architecture" "$(field "$deb" Architecture)"
    expect "the maintainer" "ArvXml maintainers <maintainers@arvxml.invalid>" "$(field "$deb" Maintainer)"
    expect "no homepage" "" "$(field "$deb" Homepage)"
done
expect "the name" "$runtime" "$(field "$runtime_deb" Package)"
expect "the section" "libs" "$(field "$runtime_deb" Section)"
expect "the synopsis" "Objects for the XML documents of the planning protocol (Qt $qt)" \
    "$(field "$runtime_deb" Description | head -n 1)"
expect "it depends on the libraries that it is linked with" \
    "libc6 libgcc-s1 libqt${qt}core$qt libqt${qt}network$qt libstdc++6" \
    "$(field "$runtime_deb" Depends | tr ',' '\n' | awk '{ print $1 }' | sed 's/t64$//; s/core5a$/core5/' | LC_ALL=C sort | xargs)"
expect "the name" "$development" "$(field "$development_deb" Package)"
expect "the section" "libdevel" "$(field "$development_deb" Section)"
expect "the synopsis" "Objects for the XML documents of the planning protocol (Qt $qt, development)" \
    "$(field "$development_deb" Description | head -n 1)"
expect "it depends on the library of the same version and on Qt" "$runtime (= 1.0.0), $qt_package (>= $qt_version)" \
    "$(field "$development_deb" Depends)"
expect "the dependency of other packages" "lib$name 1.0 $runtime (>= 1.0.0)" "$(dpkg-deb -I "$runtime_deb" shlibs)"
expect "the library cache is updated" "activate-noawait ldconfig" \
    "$(dpkg-deb -I "$runtime_deb" triggers)"
control_files() {
    dpkg-deb --ctrl-tarfile "$1" | tar -t | sed 's|^\./||' | grep -v '^$' | LC_ALL=C sort | xargs
}
expect "the control files of the runtime package" "control md5sums postinst postrm shlibs triggers" \
    "$(control_files "$runtime_deb")"
expect "the control files of the development package" "control md5sums" "$(control_files "$development_deb")"

for script in postinst postrm; do # written by CPack, for systems without the trigger
    expect "$script updates the cache and does nothing else" "ldconfig" \
        "$(dpkg-deb -I "$runtime_deb" $script | sed 's|^[[:space:]]*||' | grep -vE '^(#.*|set -e|if .*|fi)?$')"
done

# Content. The names of all files depend on the Qt, so that the packages for both can be installed.

# content DEB: prints the paths of all files and links, without folders.
content() {
    dpkg-deb --fsys-tarfile "$1" | tar -t | sed 's|^\./||' | grep -v '/$' | LC_ALL=C sort
}
expect "the runtime package contains the library" "$library_dir/lib$name.so.1.0 $library_dir/lib$name.so.1.0.0" \
    "$(content "$runtime_deb" | xargs)"
expect "the development package contains these files and the headers" \
    "$library_dir/cmake/$package/${package}Config.cmake
$library_dir/cmake/$package/${package}ConfigVersion.cmake
$library_dir/cmake/$package/${package}Targets-release.cmake
$library_dir/cmake/$package/${package}Targets.cmake
$library_dir/lib$name.so
$library_dir/pkgconfig/$name.pc" \
    "$(content "$development_deb" | grep -v "^usr/$include_folder/arvxml/")"
headers=$(content "$development_deb" | sed -n "s|^usr/$include_folder/arvxml/||p")
expect "all headers are there" "$(cd include/arvxml && find . -name '*.h' -printf '%f\n' | LC_ALL=C sort)" \
    "$(grep '\.h$' <<<"$headers")"
expect "the headers of all classes are there" \
    "$(sed -n 's/^class ARVXML_EXPORT \([A-Za-z0-9_]*\).*/\1/p' include/arvxml/*.h | LC_ALL=C sort)" \
    "$(grep -v '\.h$' <<<"$headers")"
expect "everything belongs to root, and is not writable by others" "" \
    "$(for deb in "$runtime_deb" "$development_deb"; do
        dpkg-deb -c "$deb" | grep -v -e '^drwxr-xr-x root/root ' -e '^-rw-r--r-- root/root ' -e '^lrwxrwxrwx root/root '
    done)"

# Programs built with the unpacked packages

root=$work_dir/root
rm -rf "$root"
dpkg-deb -x "$runtime_deb" "$root"
dpkg-deb -x "$development_deb" "$root"
expect_libraries "$root/$library_dir"
expect "the library has no run path" "" \
    "$(objdump -p "$root/$library_dir/lib$name.so" | grep -E 'RPATH|RUNPATH' || true)"
expect_cmake -DCMAKE_PREFIX_PATH="$root/usr"
export PKG_CONFIG_PATH=$root/$library_dir/pkgconfig LD_LIBRARY_PATH=$root/$library_dir
expect_pkgconfig
expect_readme
expect "pkg-config finds the headers in a system root" "$root/usr/$include_folder" \
    "$(realpath "$(PKG_CONFIG_SYSROOT_DIR=$root pkg-config --cflags-only-I "$name" | awk '{ print substr($1, 3) }')")"
