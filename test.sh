#!/bin/bash
# Builds Tarnwick and runs its tests. The last line is the count: "N passed, N failed".
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

usage() {
  cat >&2 <<'END'
usage: ./test.sh [--sanitize | --windows | --coverage | --fuzz [SECONDS]] [--build-only]
  --sanitize    with the address, leak and undefined behaviour sanitizers
  --windows     cross-built for Windows, run under Wine
  --coverage    without the windows of the program; also tells how much of the code they reach, and shows
                it in build/coverage/index.html
  --fuzz        the fuzz targets instead of the tests, each for so many seconds, 60 unless named
  --build-only  build, but run nothing
END
  exit 2
}

preset=release
build_only=false
seconds=60
while (($#)); do
  case $1 in
    --sanitize | --windows | --coverage | --fuzz)
      [[ $preset == release ]] || usage
      preset=${1#--}
      if [[ $preset == fuzz && ${2:-} =~ ^[1-9][0-9]*$ ]]; then
        seconds=$2
        shift
      fi
      ;;
    --build-only) build_only=true ;;
    *) usage ;;
  esac
  shift
done

groups=(run test)
[[ $preset == windows || $preset == coverage ]] && groups+=("$preset")
[[ $preset == fuzz ]] && groups=(fuzz)
scripts/packages.sh "${groups[@]}"

if [[ $preset == windows ]]; then
  TARNWICK_WINDOWS_QT=${TARNWICK_WINDOWS_QT:-$(packaging/windows/qt.sh)}
  export TARNWICK_WINDOWS_QT
fi
cmake --preset "$preset"
cmake --build --preset "$preset"
if $build_only; then exit 0; fi
if [[ $preset == fuzz ]]; then exec fuzz/run.sh "$seconds"; fi

# Counts of an earlier run would be added to.
[[ $preset == coverage ]] && find build/coverage -name '*.gcda' -delete

code=0
ctest --preset "$preset" -j "$(nproc)" || code=$?

[[ $preset == coverage ]] && scripts/coverage-table.sh

count=$(scripts/count-tests.awk "build/$preset/Testing/Temporary/LastTest.log")
echo "$count"
# A run of no test at all proves nothing.
[[ $count != "0 passed"* ]] || code=1
exit "$code"
