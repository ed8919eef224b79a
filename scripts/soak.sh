#!/bin/bash
# Uses the real program at random on a screen of its own, and fails if it ends, hangs, or takes more and
# more memory, handles or threads. Figures and actions are left in build/soak.
# usage: scripts/soak.sh MINUTES [SEED]      after ./test.sh --build-only
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

readonly program=$PWD/build/release/bin/tarnwick
readonly results=$PWD/build/soak
readonly samples=$results/samples.txt
readonly seconds_to_answer=60 # on a machine with much else to do

if (($# < 1 || $# > 3)) || [[ ! $1 =~ ^[1-9][0-9]*$ || ! ${2:-1} =~ ^[0-9]+$ ]]; then
  echo "usage: scripts/soak.sh MINUTES [SEED]" >&2
  exit 2
fi
readonly minutes=$1 seed=${2:-1}

if [[ ${3:-} != --on-screen ]]; then
  scripts/packages.sh run screen drive
  [[ -x $program ]] || {
    echo "$0: build the program first: ./test.sh --build-only" >&2
    exit 2
  }
  rm -rf "$results"
  mkdir -p "$results"
  exec timeout --kill-after=10 $((minutes * 60 + 600)) xvfb-run -a -s "-screen 0 1280x900x24" \
    "$0" "$minutes" "$seed" --on-screen
fi

source scripts/soak-actions.sh

fail() {
  echo "$0: $1" >&2
  [[ ! -e $results/actions.txt ]] || tail -n 3 "$results/actions.txt" >&2
  import -window root "$results/screen.png" && echo "$0: the screen: $results/screen.png" >&2
  exit 1
}

must_run() {
  kill -0 "$pid" 2>/dev/null && return
  local code=0
  wait "$pid" || code=$?
  fail "the program has ended by itself, with status $code"
}

# wait_until COMMAND: often, until it succeeds.
wait_until() {
  local end=$((SECONDS + seconds_to_answer))
  until "$@"; do
    must_run
    ((SECONDS < end)) || fail "no answer within $seconds_to_answer s: $*"
    sleep 0.05
  done
}

# Fails where there is none, and where any window goes while it searches.
windows() { xdotool search --onlyvisible "$@" 2>/dev/null; }

main_is_there() { main=$(windows --name '^Tarnwick 18.0$'); }

active_window() { xdotool getactivewindow 2>/dev/null || true; }

# Whether there is nothing but the main window any more; helps what is there to go. Escape goes to the
# window that is active, since another one may wait for an answer to it. Notices go by themselves.
# What is drawn over the others, as an open list, has the name of the program.
only_main_is_left() {
  local window name other='' list=''
  for window in $(windows --pid "$pid"); do
    name=$(xdotool getwindowname "$window" 2>/dev/null) || return 1
    case $name in
      Notice) ;;
      tarnwick) list=$window ;;
      *) [[ $window == "$main" ]] || other=$window ;;
    esac
  done
  [[ -n $other$list ]] || return 0
  if [[ -z $list && $(active_window) == @(|"$main") ]]; then
    xdotool windowactivate "$other" 2>/dev/null
  else
    xdotool key Escape
  fi
  sleep 0.1
  return 1
}

main_is_alone() {
  only_main_is_left || return
  [[ $(active_window) == "$main" ]] && return
  xdotool windowactivate "$main" 2>/dev/null
  return 1
}

# A message may come up late, and a key be lost while the focus changes: it is pressed anew, but not
# so often that many queue up.
help_is_open() {
  windows --name '^Help$' >/dev/null && return
  main_is_alone || return
  if ((SECONDS >= next_key)); then
    xdotool key F1
    next_key=$((SECONDS + 5))
  fi
  return 1
}

# Back to the main window, with nothing under way. Help can be opened only then, and only by a program
# that takes events from the window system and runs its handlers: this is how it shows that it lives.
rest() {
  wait_until main_is_alone
  xdotool key Escape
  next_key=0
  wait_until help_is_open
  wait_until main_is_alone
}

# CPU time so far, in hundredths of a second.
read_cpu() {
  local fields
  read -ra fields <"/proc/$pid/stat"
  cpu=$((fields[13] + fields[14]))
}

# sample: second, anonymous and resident memory in kB, handles, threads, CPU time.
sample() {
  local key value anonymous=0 resident=0 threads=0
  while read -r key value _; do
    case $key in
      VmRSS:) resident=$value ;;
      RssAnon:) anonymous=$value ;;
      Threads:) threads=$value ;;
    esac
  done <"/proc/$pid/status"
  local handles=("/proc/$pid/fd/"*)
  read_cpu
  echo "$SECONDS $anonymous $resident ${#handles[@]} $threads $cpu"
}

declare -A done_of=()
perform() {
  echo "$SECONDS $1" >>"$results/actions.txt"
  "action_$1"
  rest
  done_of[$1]=$((${done_of[$1]:-0} + 1))
}

# Else the C library keeps large blocks that were given back, some 10 MB after the first saved picture,
# which looks like growth: a fixed threshold returns them at once.
readonly prompt_memory=MALLOC_MMAP_THRESHOLD_=131072

start_program() {
  work=$(mktemp -d /tmp/soak.XXXXXX)
  state="$work/config/Ostrel Systems/tnwk.usr"
  mkdir -m 700 "$work/config" "$work/runtime"
  (cd "$work" && exec env -u XDG_CURRENT_DESKTOP HOME="$work" XDG_CONFIG_HOME="$work/config" \
    XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=xcb "$prompt_memory" "$program") &
  pid=$!
  wait_until main_is_there
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$main")"
  main_width=$WIDTH
  main_height=$HEIGHT
}

must_be_idle() {
  read_cpu
  local before=$cpu
  sleep 5
  must_run
  read_cpu
  ((cpu - before < 100)) || fail "the program is busy with nothing: $((cpu - before))0 ms in 5 s"
}

program_has_ended() { ! kill -0 "$pid" 2>/dev/null; }

quit_program() {
  xdotool key alt+q
  local end=$((SECONDS + seconds_to_answer)) code=0
  until program_has_ended; do
    ((SECONDS < end)) || fail "the program does not quit"
    sleep 0.1
  done
  wait "$pid" || code=$?
  ((code == 0)) || fail "the program quits with status $code"
  # A record may have several lines: that of the eclipse.
  (($(wc -l <"$state") >= 27)) || fail "the saved state is not whole"
}

clean_up() {
  kill -KILL "${pid:-}" 2>/dev/null || true # it may hang
  kill "$manager" 2>/dev/null || true
  rm -rf "${work:-}"
}

openbox 2>/dev/null &
manager=$!
trap clean_up EXIT
sleep 1
RANDOM=$seed
start_program
rest

# Once each, so that what is made at first use is there before anything is measured.
for kind in $(printf '%s\n' "${kinds[@]}" | sort -u); do perform "$kind"; done
while ((SECONDS < minutes * 60)); do
  draw ${#kinds[@]}
  perform "${kinds[drawn]}"
  must_run
  sample >>"$samples"
done
must_be_idle
peak=$(awk '$1 == "VmHWM:" { print $2 }' "/proc/$pid/status")
quit_program

echo "seed $seed, $minutes min; actions done:"
for kind in $(printf '%s\n' "${!done_of[@]}" | sort); do printf '  %s %d' "$kind" "${done_of[$kind]}"; done
echo
echo "largest resident memory: $peak kB"
scripts/soak-verdict.awk "$samples"
