#!/bin/bash
# Runs a Windows program under Wine in a prefix of our own below build/: without a display, or, with
# --screen as the first argument, on the one of $DISPLAY or else on a virtual one.
# usage: scripts/wine.sh [--screen] PROGRAM.exe [ARGUMENTS...]     exit code: the program's
#        scripts/wine.sh --screen --wait     waits until everything in that prefix has ended
#        scripts/wine.sh --screen --kill     ends everything in that prefix
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Debian keeps the launchers outside PATH.
PATH=/usr/lib/wine:$PATH
wine=$(command -v wine64 || command -v wine) || { echo "$0: no Wine here" >&2; exit 127; }

export WINEDLLOVERRIDES='mscoree=;mshtml=' # else a new prefix asks to download Mono and Gecko
# Wine hands variables of Qt on under these names only. Without a console Qt writes to a debugger.
export WINEQT_FORCE_STDERR_LOGGING=1
export WINEDEBUG=-all
# A Wine server that was started without a screen opens no windows: each way has its own prefix.
if [[ ${1:-} == --screen ]]; then
  if [[ -z ${DISPLAY:-} ]]; then exec xvfb-run -a -s "-screen 0 1600x1200x24" "$0" "$@"; fi
  shift
  export WINEPREFIX=${TARNWICK_WINEPREFIX:-$root/build/wine-screen}
else
  unset DISPLAY WAYLAND_DISPLAY
  export WINEPREFIX=$root/build/wine
fi

# make_prefix: a new one says that it is Windows 7, and lacks the fonts that Windows has. The windows
# under test are not managed, since Wine waits two seconds a window for a manager that is not there.
make_prefix() {
  mkdir -p "$WINEPREFIX"
  "$wine" wineboot -i
  "$wine" winecfg -v win10
  "$wine" regedit /S "$root/scripts/wine.reg"
  wineserver -w
  touch "$WINEPREFIX/.ready"
}

# First, since the making of the prefix may be what hangs.
if [[ ${1:-} == --kill ]]; then
  wineserver -k || true # there may be none
  exit
fi

if [[ ! -e $WINEPREFIX/.ready ]]; then
  mkdir -p "$(dirname "$WINEPREFIX")"
  (
    flock 9
    [[ -e $WINEPREFIX/.ready ]] || make_prefix >&2
  ) 9>"$WINEPREFIX.lock"
fi

if [[ ${1:-} == --wait ]]; then exec wineserver -w; fi
if [[ -z ${DISPLAY:-} ]]; then exec "$wine" "$@"; fi
# The server must not outlive the screen.
code=0
"$wine" "$@" || code=$?
wineserver -w
exit "$code"
