#!/usr/bin/env bash
# Runs a command with the Wine server and a private display up, for example
#     scripts/with_wine.sh ctest --test-dir build/mingw-debug
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"
start_display
start_wine
"$@"
