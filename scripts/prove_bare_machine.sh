#!/usr/bin/env bash
# Proves that a fresh clone needs nothing but a bare Debian 12: makes one in a folder (by debootstrap, from the
# mirror that this machine's apt uses), clones the committed state into it, and runs there what is given as
# arguments, or ./test and ./demo --screenshot. Must be root. The folder is kept when a command fails.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
source "$here/scripts/machine.sh"
release=bookworm
commands=("$@")
if [ ${#commands[@]} = 0 ]; then commands=(./test './demo --screenshot build/demo.png'); fi

machine=$(mktemp -d /var/tmp/bare.XXXXXX)
chmod 755 "$machine"
echo "== a bare Debian ($release) in $machine"
make_machine "$machine" "$release"
git clone --quiet --no-hardlinks "$here" "$machine/clone"
for command in "${commands[@]}"; do
    echo "== $command"
    run_inside "$machine" "cd /clone && $command"
done
mkdir -p "$here/build"
if [ -f "$machine/clone/build/demo.png" ]; then
    cp "$machine/clone/build/demo.png" "$here/build/bare-demo.png"
    echo "== the demo's picture: build/bare-demo.png"
fi
remove_machine "$machine"
