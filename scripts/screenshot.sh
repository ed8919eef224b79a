#!/bin/bash
# Starts a program on the display, saves a picture of the screen once its window is there,
# ends the program and prints the picture's file name.
# usage: scripts/screenshot.sh FILE.png PROGRAM [ARGUMENTS...]
set -euo pipefail
file=$1
shift
seconds_to_appear=60

fail() {
  echo "$0: $1" >&2
  exit 1
}

rm -f "$file"
QT_QPA_PLATFORM=xcb "$@" &
program=$!
trap end_program EXIT

# A program that does not heed the request to end must not keep us.
end_program() {
  kill "$program" 2>/dev/null || return 0
  timeout 5 tail --pid="$program" -f /dev/null || kill -KILL "$program" 2>/dev/null || true
}

must_run() {
  kill -0 "$program" 2>/dev/null && return
  local code=0
  wait "$program" || code=$?
  fail "the program ended by itself, with exit code $code"
}

# The screen has one colour until a window has been painted.
window_is_there() {
  [[ $(import -window root png:- | identify -format %k png:-) -gt 1 ]]
}

until window_is_there; do
  must_run
  ((SECONDS < seconds_to_appear)) || fail "no window within $seconds_to_appear s"
  sleep 0.2
done
sleep 1 # for what follows the first painting, pictures for example
must_run

import -window root "$file"
echo "$file"
