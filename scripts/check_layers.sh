#!/usr/bin/env bash
# Checks that a folder includes only headers of its own and of the folders above it in this list, and the smart
# pointer by our own header.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

layers=(com res host format settings ui panes properties dialogs module sample tests benchmarks)

includes_of() {
    [ -d "$1" ] || return 0
    grep -rnE '^#include "[a-z_]+/' --include='*.h' --include='*.cpp' "$1" || true
}

bad=0
allowed='generated'
for layer in "${layers[@]}"; do
    allowed="$allowed|$layer"
    while IFS= read -r line; do
        [ -n "$line" ] || continue
        echo "$line   (not above $layer/)"
        bad=1
    done < <(includes_of "$layer" | grep -vE "#include \"($allowed)/" || true)
done
# The panes stand side by side, on what they have in common.
for pane in panes/*/; do
    if includes_of "${pane%/}" | grep -E '#include "panes/' | grep -vE "#include \"($pane|panes/common/)"; then
        bad=1
    fi
done
if grep -rnE '#include <wrl/' --include='*.h' --include='*.cpp' "${layers[@]}" | grep -v '^com/com_ptr.h:'; then
    echo "(com/com_ptr.h is to be included instead)"
    bad=1
fi
exit $bad
