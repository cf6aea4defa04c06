# shellcheck shell=bash
# To be sourced: the packages that a script needs, on Debian and its relatives.

# need_packages PACKAGE...: installs those that are missing. Where all are there, nothing is touched
# and no rights are needed.
need_packages() {
    local package missing=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is no Debian machine; going on as if these were installed: $*"
        return 0
    fi
    for package in "$@"; do
        # The status is asked for, since a removed package may still be known.
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
            echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq || return 1
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" || return 1
}
