#!/bin/bash
# Fits the series anew, from nothing to tables, and compares these with the present ones at places that
# the fit did not use. Nothing of the program changes.
# usage: make.sh [FOLDER]     for the tables; build/fit/tables unless it is told
set -euo pipefail
export PYTHONDONTWRITEBYTECODE=1
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../../.." && pwd)
work=$root/build/fit
tables=$(realpath -m "${1:-$work/tables}")

"$root/scripts/packages.sh" fit
mkdir -p "$work"
g++ -std=c++20 -O2 -Wall -Wextra -Wconversion -Werror -o "$work/sampler" "$here/sampler.cpp" -lswe

"$work/sampler" 800000 1 >"$work/fitted.places"
"$work/sampler" 400000 2 >"$work/other.places"

python=/usr/bin/python3
"$python" "$here/fit.py" "$work/fitted.places" "$here/.." "$here/start.csv" "$tables"
"$python" "$here/compare.py" "$work/other.places" "$tables" "$here/.." | tee "$work/comparison.md"
