#!/usr/bin/env bash
# Proves that a fresh clone needs nothing but a bare Debian 12: makes one in a folder (by debootstrap, from the
# mirror that this machine's apt uses), clones the committed state into it, and runs there what is given as
# arguments, or ./test and ./demo --screenshot. Must be root. The folder is kept when a command fails.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
release=bookworm
commands=("$@")
if [ ${#commands[@]} = 0 ]; then commands=(./test './demo --screenshot build/demo.png'); fi

mirror() {
    apt-get indextargets --format '$(CODENAME) $(COMPONENT) $(REPO_URI)' 'Created-By: Packages' |
        sed -n "s/^$release main //p" | head -n 1
}

# With its own mounts and processes, which end with the command.
run_inside() {
    unshare --mount --pid --fork --kill-child bash -euc '
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        exec chroot "$1" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root CI=true \
            bash -c "cd /clone && $2" </dev/null
    ' run_inside "$1" "$2"
}

machine=$(mktemp -d /var/tmp/bare.XXXXXX)
chmod 755 "$machine"
echo "== a bare Debian ($release) in $machine"
debootstrap --variant=minbase "$release" "$machine" "$(mirror)" >"$machine.log"
git clone --quiet --no-hardlinks "$here" "$machine/clone"
for command in "${commands[@]}"; do
    echo "== $command"
    run_inside "$machine" "$command"
done
mkdir -p "$here/build"
if [ -f "$machine/clone/build/demo.png" ]; then
    cp "$machine/clone/build/demo.png" "$here/build/bare-demo.png"
    echo "== the demo's picture: build/bare-demo.png"
fi
rm -rf --one-file-system "$machine" "$machine.log"
