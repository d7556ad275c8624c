#!/usr/bin/env bash
# Runs a Windows program in the private prefix under a time limit (QZ_WINE_TIMEOUT seconds, 900 by default).
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"
exec timeout --kill-after=10 "${QZ_WINE_TIMEOUT:-900}" wine64 "$@"
