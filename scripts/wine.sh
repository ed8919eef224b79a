#!/bin/bash
# Runs a Windows program under Wine, without a display, in a prefix of our own below build/.
# usage: scripts/wine.sh PROGRAM.exe [ARGUMENTS...]     exit code: the program's
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Debian keeps the launchers outside PATH.
PATH=/usr/lib/wine:$PATH
wine=$(command -v wine64 || command -v wine) || { echo "$0: no Wine here" >&2; exit 127; }

export WINEPREFIX=$root/build/wine WINEDEBUG=-all
export WINEDLLOVERRIDES='mscoree=;mshtml=' # else a new prefix asks to download Mono and Gecko
unset DISPLAY WAYLAND_DISPLAY
mkdir -p "$WINEPREFIX"

exec "$wine" "$@"
