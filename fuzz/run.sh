#!/bin/bash
# Runs the fuzz targets side by side, from the committed inputs and those that earlier runs found.
# The last line is the count of targets: "N passed, N failed".
# usage: fuzz/run.sh SECONDS     after ./test.sh --fuzz --build-only
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
seconds=$1
results=build/fuzz/results

# The longest input of a target, in bytes.
declare -A longest=([entry]=2048 [state]=4096 [program]=2048)
# What is freed, and where each piece of memory came from, would else be kept by the gigabyte.
export ASAN_OPTIONS=quarantine_size_mb=64:malloc_context_size=8

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

run_target() {
  local target=$1
  # What inputs have in common is not weighed: it costs a fifth of the time, and memory.
  local options=(-max_total_time="$seconds" -timeout=30 -rss_limit_mb=2000 -entropic=0
    -max_len="${longest[$target]}" -artifact_prefix="$results/$target-")
  [[ ! -e fuzz/$target.dict ]] || options+=(-dict="fuzz/$target.dict")
  if [[ -z $(ls "fuzz/corpus/$target" 2>/dev/null) ]]; then
    echo "fuzz/corpus/$target holds no input"
    return 1
  fi
  mkdir -p "build/fuzz/corpus/$target"
  TMPDIR=$scratch build/fuzz/bin/fuzz_"$target" "${options[@]}" \
    "build/fuzz/corpus/$target" "fuzz/corpus/$target"
}

rm -rf "$results"
mkdir -p "$results"
declare -A run
for target in "${!longest[@]}"; do
  run_target "$target" >"$results/$target.log" 2>&1 &
  run[$target]=$!
done

passed=0
failed=0
for target in "${!run[@]}"; do
  if wait "${run[$target]}"; then
    ((++passed))
    echo "fuzz_$target: nothing found; $(grep -m 1 DONE "$results/$target.log")"
    continue
  fi
  ((++failed))
  echo "fuzz_$target failed:"
  sed '/^#[0-9]/d; /NEW_FUNC/d' "$results/$target.log"
  for input in "$results/$target"-*; do
    [[ -e $input ]] || continue
    echo "This input fails:"
    cat -v "$input"
    echo "To repeat it: build/fuzz/bin/fuzz_$target $input"
  done
done
echo "$passed passed, $failed failed"
((failed == 0))
