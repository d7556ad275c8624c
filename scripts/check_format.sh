#!/usr/bin/env bash
# Names the source files that are not laid out as .clang-format says. With --fix, lays them out.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

each_source() {
    find . -path ./build -prune -o \( -name '*.h' -o -name '*.cpp' \) -print0 |
        xargs -0 -r -n 1 -P "$(nproc)" "$@"
}

if [ "${1:-}" = --fix ]; then
    each_source clang-format --style=file -i
else
    each_source sh -c 'clang-format --style=file --dry-run -Werror "$0" 2>/dev/null || { echo "$0"; exit 1; }' || {
        echo 'not laid out as .clang-format says: scripts/check_format.sh --fix lays them out'
        exit 1
    }
fi
