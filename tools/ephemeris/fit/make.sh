#!/bin/bash
# Fits the series anew, from nothing to tables, and compares them with others at places that the fit did
# not use. Nothing of the program changes.
# usage: make.sh [FOLDER]     for the tables; build/fit/tables unless it is told
set -euo pipefail
export PYTHONDONTWRITEBYTECODE=1
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../../.." && pwd)
work=$root/build/fit
tables=$(realpath -m "${1:-$work/tables}")

cd "$root"
scripts/packages.sh run test fit
mkdir -p "$work"
cmake --preset release
ninja -C build/release sampler

sampler=build/release/bin/sampler
"$sampler" random 800000 1 >"$work/fitted.places"
"$sampler" random 400000 2 >"$work/other.places"
"$sampler" every 1.6 >"$work/grid.places"
"$sampler" phases >"$work/phases.places"

# step PROGRAM ARGUMENTS...: tells how long it took.
step() {
  local start=$SECONDS
  /usr/bin/python3 "$here/$@"
  echo "== $1: $((SECONDS - start)) s"
}

cd "$work"
# With the terms that are known, then with those that these show to be lacking.
step fit.py fitted.places "$here/terms" "$here/start.csv" known
step compare.py other.places known "$here/terms" | tee known.md
step search.py grid.places known more
step fit.py fitted.places more known/arguments.csv wide
step choose.py fitted.places phases.places wide "$tables"
step compare.py other.places "$tables" "$here/.." | tee comparison.md
