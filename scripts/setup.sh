#!/usr/bin/env bash
# Prepares this machine: installs the Debian packages that are missing and creates the private Wine prefix in the
# build folder. Quick when there is nothing to do. Touches nothing else.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packages=(
    cmake ninja-build g++                                       # native build
    g++-mingw-w64-x86-64-posix mingw-w64-tools libwine-dev      # cross build; libwine-dev has the IDL files
    nlohmann-json3-dev
    googletest clang-format clang-tidy                          # tests and lints
    wine64 xvfb imagemagick                                     # running and looking at it
    fonts-wine fonts-liberation fonts-ipafont-gothic
    python3 python3-pikepdf qpdf poppler-utils                  # PDF importer
)

as_root() {
    if [ "$(id -u)" = 0 ]; then "$@"; else sudo "$@"; fi
}

missing_packages() {
    local installed
    installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${packages[@]}" 2>/dev/null |
                sed -n 's/^installed //p') || true
    printf '%s\n' "${packages[@]}" | grep -vxF "$installed" || true
}

install_packages() {
    local missing
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "setup: installing ${missing[*]}"
    if ! command -v apt-get >/dev/null; then
        echo "setup: this is no Debian system; install what corresponds to these packages" >&2
        return 1
    fi
    mkdir -p build
    if ! { as_root apt-get -qq update && as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y \
           -o Dpkg::Use-Pty=0 --no-install-recommends install "${missing[@]}"; } >build/packages.log 2>&1; then
        tail -n 20 build/packages.log >&2
        echo "setup: the packages could not be installed (build/packages.log)" >&2
        return 1
    fi
}

# What the prefix is made from: when this changes, it is made anew.
prefix_recipe() {
    { cat scripts/setup.sh scripts/wine.sh scripts/wine_prefix.reg; dpkg-query -W wine64 libwine; } | sha256sum
}

create_prefix() {
    local recipe
    recipe=$(prefix_recipe)
    [ "$(cat "$WINEPREFIX/recipe" 2>/dev/null)" != "$recipe" ] || return 0
    echo "setup: creating the Wine prefix"
    make_prefix
    echo "$recipe" >"$WINEPREFIX/recipe"
}

install_packages
source scripts/wine.sh
mkdir -p build
exec {lock}>build/setup.lock
flock "$lock"
create_prefix {lock}>&-
