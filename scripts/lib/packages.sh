# shellcheck shell=bash
# To be sourced: installs the packages that a script needs, on Debian and its derivatives.

# need_packages PACKAGE...: installs those that are missing. If there are none, it changes nothing and needs no
# privileges.
need_packages() {
    local package missing=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is not Debian; assuming that these packages are installed: $*"
        return 0
    fi
    for package in "$@"; do
        # Check the status, since a removed package may still be known.
        if [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) != installed ]]; then
            missing+=("$package")
        fi
    done
    if [[ ${#missing[@]} -eq 0 ]]; then
        return 0
    fi

    local as_root=()
    if [[ $(id -u) -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and sudo is not available to install them: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq || return 1
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" || return 1
}
