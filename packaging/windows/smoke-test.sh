#!/bin/bash
# Installs the packaged program under Wine, uses it with real keys as a user would, finds its state
# again, and uninstalls it. Leaves a picture of the program in build/windows-screen.png.
# usage: packaging/windows/smoke-test.sh      after ./package.sh windows
set -euo pipefail
export LC_ALL=C.UTF-8 # for names that are not ASCII
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

export TARNWICK_WINEPREFIX=$PWD/build/wine-smoke
setup=$PWD/build/packages/tarnwick-18.0-setup.exe
# For each wait a limit of its own, so that what hangs is named before everything is given up.
seconds_to_appear=120
seconds_to_answer=60
seconds_to_end=180

if [[ ${1:-} != --on-screen ]]; then
  scripts/packages.sh windows drive
  rm -rf "$TARNWICK_WINEPREFIX"
  exec timeout --kill-after=10 600 xvfb-run -a -s "-screen 0 1280x900x24" "$0" --on-screen
fi

# step NAME: what begins now.
step() {
  step=$1
  echo "$SECONDS s: $step"
}

fail() {
  echo "$0: $step: $1" >&2
  exit 1
}

expect_file() { [[ -e $1 ]] || fail "there is no $1"; }
expect_no_file() { [[ ! -e $1 ]] || fail "there is still $1"; }

# wine ARGUMENTS...: of scripts/wine.sh; until all that was started has ended.
wine() {
  timeout "$seconds_to_end" scripts/wine.sh --screen "$@" ||
    fail "exit code $?, where 124 is no end within $seconds_to_end s: $*"
}

# await SECONDS CONDITION: while the program runs.
await() {
  local end=$((SECONDS + $1))
  until "$2"; do
    program_runs || fail "the program has ended by itself"
    ((SECONDS < end)) || fail "not within $1 s: $2"
    sleep 0.2
  done
}

program_runs() { kill -0 "$running" 2>/dev/null; }

# xdotool gives up where any window goes while it looks through them all, and Wine opens and closes some
# at its start: an error says nothing but that it is to be asked again.
window_is_there() {
  window=$(xdotool search --onlyvisible --name '^Tarnwick 18.0$' 2>/dev/null | head -n 1)
}

window_is_active() {
  [[ $(xdotool getactivewindow 2>/dev/null) == "$window" ]] && return
  xdotool windowactivate "$window" 2>/dev/null
  return 1
}

# start_program: in the background, until its window is there and has the focus.
start_program() {
  scripts/wine.sh --screen "$program" &
  running=$!
  await "$seconds_to_appear" window_is_there
  await "$seconds_to_answer" window_is_active
  sleep 2
}

await_end() {
  timeout "$seconds_to_answer" tail --pid="$running" -f /dev/null || fail "the program does not end"
}

# quit_program: by its mnemonic.
quit_program() {
  xdotool key alt+q
  await_end
  wait "$running" || fail "the program ends with exit code $?"
}

show_what_is_there() {
  timeout "$seconds_to_answer" import -window root build/windows-failure.png &&
    echo "$0: the screen: build/windows-failure.png"
  ps --ppid 2 -p 2 --deselect --forest -o pid,stat,etime,time,comm # not the kernel's
}

# What still runs after a failure would be waited for without end.
clean_up() {
  local code=$?
  ((code == 0)) || show_what_is_there >&2 || true
  scripts/wine.sh --screen --kill
  kill "$manager" 2>/dev/null || true
}

openbox 2>/dev/null &
manager=$!
trap clean_up EXIT
sleep 1

users=$TARNWICK_WINEPREFIX/drive_c/users/$(id -un)/AppData
folder=$users/Local/Programs/Tarnwick
program=$folder/tarnwick.exe
shortcut="$users/Roaming/Microsoft/Windows/Start Menu/Programs/Tarnwick.lnk"
state="$users/Roaming/Ostrel Systems/tnwk.usr"

step "new Wine"
wine --wait

step "installation"
wine "$setup" /S
expect_file "$program"
expect_file "$folder/assets/moon_pics/day1.gif"
expect_file "$folder/assets/coastlines.csv"
expect_file "$folder/assets/places.csv"
expect_file "$shortcut"
expect_no_file "$state"

step "first use"
start_program
xdotool type --delay 50 '1999-08-11 CE 11:03'
xdotool key Return
sleep 2
import -window root build/windows-screen.png
quit_program
expect_file "$state"
[[ $(head -n 1 "$state") == 2451401.96*$'\r' ]] || fail "the moment typed is not in the state"
cp "$state" build/first.usr

step "second use"
start_program
quit_program
cmp "$state" build/first.usr || fail "the state did not come back as it was"

# The end of the session of Windows comes without Quit.
step "end of the session"
start_program
xdotool type --delay 50 '1999-08-12 CE 11:03'
xdotool key Return
sleep 2
wine wineboot --end-session
await_end
[[ $(head -n 1 "$state") == 2451402.96*$'\r' ]] || fail "the end of the session lost the state"

# Unpacked in a folder whose name is not ASCII it finds its pictures: else a message would be in the way.
step "use in another folder"
unpacked=$TARNWICK_WINEPREFIX/drive_c/Kalender\ é
unzip -q build/packages/tarnwick-18.0-windows.zip -d "$unpacked"
program=$unpacked/tarnwick-18.0/tarnwick.exe
start_program
quit_program

step "removal"
wine "$folder/uninstall.exe" /S
wine --wait
expect_no_file "$folder"
expect_no_file "$shortcut"
expect_file "$state"
echo "installed, used, started again and uninstalled"
