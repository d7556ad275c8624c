#!/usr/bin/env bash
# Release check: runs the tests of the cross build under the Wine of the next Debian, at the resolutions given (96
# and 192 dots an inch). Needs some minutes and 800 MB. Must be root. QZ_MACHINE names a folder in which that Debian
# is kept for the next time.
#     scripts/prove_newer_wine.sh [RESOLUTION...]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
source "$here/scripts/machine.sh"
release=trixie
packages='wine64 libwine xvfb fonts-wine fonts-liberation fonts-ipafont-gothic cmake'
resolutions=("$@")
if [ ${#resolutions[@]} = 0 ]; then resolutions=(96 192); fi

# What runs there; the build folder must be seen at the place for which it was made.
tests_at() {  # RESOLUTION
    echo "cd '$here'
          export LC_ALL=C.UTF-8 QZ_WINEPREFIX=/var/tmp/prefix$1
          (source scripts/wine.sh; start_display; make_prefix $1) >/var/tmp/prefix.log 2>&1
          echo \"== \$(scripts/run_in_wine.sh --version), $1 dots an inch\"
          scripts/with_wine.sh ctest --test-dir build/mingw-debug --output-on-failure"
}

cd "$here"
scripts/setup.sh
cmake --preset mingw-debug --log-level=WARNING >/dev/null
cmake --build --preset mingw-debug
machine=${QZ_MACHINE:-$(mktemp -d /var/tmp/newer.XXXXXX)}
if [ ! -e "$machine/made" ]; then
    echo "== a bare Debian ($release) in $machine"
    mkdir -p "$machine"
    chmod 755 "$machine"
    make_machine "$machine" "$release"
    run_inside "$machine" "{ apt-get -qq update
        apt-get -qq -y -o Dpkg::Use-Pty=0 --no-install-recommends install $packages; } >/var/log/packages.log 2>&1"
    touch "$machine/made"
fi
failed=0
for resolution in "${resolutions[@]}"; do
    run_inside "$machine" "$(tests_at "$resolution")" "$here" || failed=1
done
if [ -z "${QZ_MACHINE:-}" ]; then remove_machine "$machine"; fi
exit $failed
