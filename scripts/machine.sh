# Sourced, by root: another Debian in a folder with its own root.

# Makes a bare one, by debootstrap from the mirror that this machine's apt uses. The log lies beside the folder.
make_machine() {  # FOLDER RELEASE
    local mirror
    command -v debootstrap >/dev/null || apt-get -qq -y --no-install-recommends install debootstrap >/dev/null
    mirror=$(source /etc/os-release
             apt-get indextargets --format '$(CODENAME) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
                 sed -n "s/^$VERSION_CODENAME main //p" | head -n 1)
    debootstrap --variant=minbase --include=ca-certificates "$2" "$1" "$mirror" >"$1.log"
}

# Runs a command with mounts and processes of its own, which end with it. A folder of this machine that is to be
# seen there at the same place may be named.
run_inside() {  # FOLDER COMMAND [SHARED]
    unshare --mount --pid --fork --kill-child bash -euc '
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        if [ -n "$3" ]; then mkdir -p "$1$3"; mount --bind "$3" "$1$3"; fi
        exec chroot "$1" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root CI=true \
            DEBIAN_FRONTEND=noninteractive bash -euc "$2" </dev/null
    ' run_inside "$1" "$2" "${3:-}"
}

remove_machine() {  # FOLDER
    rm -rf --one-file-system "$1" "$1.log"
}
