# shellcheck shell=bash
# To be sourced: runs commands in another Debian, installed in a folder.

# in_debian SUITE ARCHITECTURE COMMAND: runs the command in a copy of the sources, in a tree with that Debian. The tree is
# created if necessary, and kept with everything built in it, so that only changes are rebuilt.
in_debian() {
    local suite=$1 architecture=$2 command=$3 as_root=() tree
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    need_packages debootstrap
    tree=${ARVXML_TREES:-$PWD/build/trees}/$suite-$architecture
    if [ ! -e "$tree/ready" ]; then
        mkdir -p "$tree"
        "${as_root[@]}" debootstrap --variant=minbase --arch="$architecture" "$suite" "$tree"
        "${as_root[@]}" touch "$tree/ready"
    fi
    "${as_root[@]}" mkdir -p "$tree/arvxml"
    git ls-files -z --cached --others --exclude-standard | tar --null --files-from=- --create --ignore-failed-read |
        "${as_root[@]}" tar --extract --directory="$tree/arvxml"
    # The build tools need these two file systems.
    "${as_root[@]}" env TREE="$tree" COMMAND="cd /arvxml && $command" unshare --mount bash -euc '
        mount -t proc proc "$TREE/proc"
        mount --bind /dev "$TREE/dev"
        exec chroot "$TREE" bash -euc "$COMMAND"'
}
