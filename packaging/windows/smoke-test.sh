#!/bin/bash
# Installs the packaged program under Wine, uses it with real keys as a user would, finds its state
# again, and uninstalls it. Leaves a picture of the program in build/windows-screen.png.
# usage: packaging/windows/smoke-test.sh      after ./package.sh windows
set -euo pipefail
export LC_ALL=C.UTF-8 # for names that are not ASCII
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

export TARNWICK_WINEPREFIX=$PWD/build/wine-smoke
setup=$PWD/build/packages/tarnwick-18.0-setup.exe
seconds_to_appear=120

if [[ ${1:-} != --on-screen ]]; then
  scripts/packages.sh windows drive
  rm -rf "$TARNWICK_WINEPREFIX"
  exec timeout --kill-after=10 600 xvfb-run -a -s "-screen 0 1280x900x24" "$0" --on-screen
fi

fail() {
  echo "$0: $1" >&2
  exit 1
}

expect_file() { [[ -e $1 ]] || fail "there is no $1"; }
expect_no_file() { [[ ! -e $1 ]] || fail "there is still $1"; }

wine() { scripts/wine.sh --screen "$@"; }

# start_program: in the background, until its window is there and has the focus.
start_program() {
  wine "$program" &
  running=$!
  window=$(timeout "$seconds_to_appear" xdotool search --sync --onlyvisible --name '^Tarnwick 18.0$' |
    head -n 1) || fail "the window does not appear"
  xdotool windowactivate --sync "$window"
  sleep 2
}

await_end() {
  timeout 60 tail --pid="$running" -f /dev/null || fail "the program does not end"
}

# quit_program: by its mnemonic.
quit_program() {
  xdotool key alt+q
  await_end
  wait "$running" || fail "the program ends with exit code $?"
}

openbox 2>/dev/null &
trap 'kill %1 2>/dev/null; scripts/wine.sh --screen --wait' EXIT
sleep 1

users=$TARNWICK_WINEPREFIX/drive_c/users/$(id -un)/AppData
folder=$users/Local/Programs/Tarnwick
program=$folder/tarnwick.exe
shortcut="$users/Roaming/Microsoft/Windows/Start Menu/Programs/Tarnwick.lnk"
state="$users/Roaming/Ostrel Systems/tnwk.usr"

wine "$setup" /S
expect_file "$program"
expect_file "$folder/assets/moon_pics/day1.gif"
expect_file "$folder/assets/coastlines.csv"
expect_file "$folder/assets/places.csv"
expect_file "$shortcut"
expect_no_file "$state"

start_program
xdotool type --delay 50 '1999-08-11 CE 11:03'
xdotool key Return
sleep 2
import -window root build/windows-screen.png
quit_program
expect_file "$state"
[[ $(head -n 1 "$state") == 2451401.96*$'\r' ]] || fail "the moment typed is not in the state"
cp "$state" build/first.usr

start_program
quit_program
cmp "$state" build/first.usr || fail "the state did not come back as it was"

# The end of the session of Windows comes without Quit.
start_program
xdotool type --delay 50 '1999-08-12 CE 11:03'
xdotool key Return
sleep 2
wine wineboot --end-session
await_end
[[ $(head -n 1 "$state") == 2451402.96*$'\r' ]] || fail "the end of the session lost the state"

# Unpacked in a folder whose name is not ASCII it finds its pictures: else a message would be in the way.
unpacked=$TARNWICK_WINEPREFIX/drive_c/Kalender\ é
unzip -q build/packages/tarnwick-18.0-windows.zip -d "$unpacked"
program=$unpacked/tarnwick-18.0/tarnwick.exe
start_program
quit_program

wine "$folder/uninstall.exe" /S
scripts/wine.sh --screen --wait
expect_no_file "$folder"
expect_no_file "$shortcut"
expect_file "$state"
echo "installed, used, started again and uninstalled"
