#!/usr/bin/env bash
# Presses random keys in every dialog: scripts/monkey.sh [keys for each] [seed], 100,000 and 1 by default. A dialog
# that does not get on any more ends the run with a backtrace. The same numbers press the same keys.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export QZ_MONKEY_KEYS=${1:-100000} QZ_MONKEY_SEED=${2:-1} QZ_WINE_TIMEOUT=${QZ_WINE_TIMEOUT:-36000}
cmake --preset mingw-debug --log-level=WARNING >/dev/null
cmake --build --preset mingw-debug --target component_tests
scripts/with_wine.sh scripts/run_in_wine.sh build/mingw-debug/bin/component_tests.exe \
    --gtest_filter="${QZ_MONKEY_TESTS:-*Monkey.*}"
