#!/bin/bash
# Prints how much of each folder the last run of the coverage tests has reached, and writes
# build/coverage/index.html, which shows it line by line. Branches that only an exception takes are not
# counted: nearly every call of the library has one.
# usage: scripts/coverage-table.sh     ./test.sh --coverage calls it
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

gcovr --root . --exclude-throw-branches --exclude-unreachable-branches \
  --exclude tests/ --exclude build/ -j "$(nproc)" \
  --csv build/coverage/coverage.csv --html-details build/coverage/index.html build/coverage

# Columns 2, 3, 5 and 6 of a file: lines, those reached, branches, those reached.
awk -F, '
  function share(reached, all) { return all ? 100 * reached / all : 100 }
  function print_row(name) {
    printf "%-14s %6d of %6d lines %6.1f %%   %6d of %6d branches %6.1f %%\n", name,
           sum[name, 3], sum[name, 2], share(sum[name, 3], sum[name, 2]),
           sum[name, 6], sum[name, 5], share(sum[name, 6], sum[name, 5])
  }
  NR > 1 {
    folder = $1
    sub(/\/.*/, "", folder)
    if (!((folder, 2) in sum)) folders[++count] = folder
    for (i = 2; i <= 6; ++i) {
      sum[folder, i] += $i
      sum["all", i] += $i
    }
  }
  END {
    for (i = 1; i <= count; ++i) print_row(folders[i])
    print_row("all")
  }' build/coverage/coverage.csv
