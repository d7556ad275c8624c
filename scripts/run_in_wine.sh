#!/usr/bin/env bash
# Runs a Windows program in the private prefix under a time limit (QZ_WINE_TIMEOUT seconds, 600 by default).
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"
exec timeout --kill-after=10 "${QZ_WINE_TIMEOUT:-600}" wine64 "$@"
