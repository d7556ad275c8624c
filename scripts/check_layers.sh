#!/usr/bin/env bash
# Checks that a folder includes only headers of its own and of the folders above it in this list, that the
# subfolders of the larger ones keep to an order of their own, and that the smart pointer comes by our own header.
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

# Of its own folder a subfolder includes itself and the subfolders named after it; every subfolder has a line.
subfolders=(
    'panes/common'
    'panes/bookmarks common'
    'panes/layers common'
    'panes/status common'
    'panes/thumbnails common'
    'properties/model'
    'properties/editors model'
    'properties/inspector model editors'
    'properties/dialog model editors inspector'
    'dialogs/common'
    'dialogs/document common'
    'dialogs/docx common'
    'dialogs/grid common'
    'dialogs/nup common'
    'dialogs/dispatcher common document docx grid nup'
    'sample/document'
    'sample/host document'
    'sample/container'
    'sample/importer'
)
for line in "${subfolders[@]}"; do
    read -r subfolder others <<<"$line"
    folder=${subfolder%/*}
    allowed="${subfolder#*/}${others:+|${others// /|}}"
    if includes_of "$subfolder" | grep -E "#include \"$folder/" | grep -vE "#include \"$folder/($allowed)/"; then
        echo "(not for $subfolder/)"
        bad=1
    fi
done
for subfolder in {panes,properties,dialogs,sample}/*/; do
    if ! printf '%s\n' "${subfolders[@]}" | grep -qE "^${subfolder%/}( |$)"; then
        echo "${subfolder%/}   (has no line in this script)"
        bad=1
    fi
done
if grep -rnE '#include <wrl/' --include='*.h' --include='*.cpp' "${layers[@]}" | grep -v '^com/com_ptr.h:'; then
    echo "(com/com_ptr.h is to be included instead)"
    bad=1
fi
exit $bad
