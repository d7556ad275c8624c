#!/usr/bin/env bash
# The failure sweeps complete: each single call of each step that they walk fails or is interrupted once, where ./test
# takes a sample of the calls. Takes some minutes more than ./test gives them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export QZ_COMPLETE_SWEEPS=1 QZ_WINE_TIMEOUT=${QZ_WINE_TIMEOUT:-3600}
cmake --preset mingw-debug --log-level=WARNING >/dev/null
cmake --build --preset mingw-debug --target component_tests
scripts/with_wine.sh scripts/run_in_wine.sh build/mingw-debug/bin/component_tests.exe \
    --gtest_filter='*AnyOneCall*:*FailMidway*:*HostFails*:*EveryCallMayFail:PageOperations.*'
