#!/bin/bash
# Builds Tarnwick and runs its tests. The last line is the count: "N passed, N failed".
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

usage() {
  cat >&2 <<'END'
usage: ./test.sh [--sanitize | --windows] [--build-only]
  --sanitize    with the address, leak and undefined behaviour sanitizers
  --windows     cross-built for Windows, run under Wine
  --build-only  build, but run nothing
END
  exit 2
}

preset=release
build_only=false
for option in "$@"; do
  case $option in
    --sanitize | --windows)
      [[ $preset == release ]] || usage
      preset=${option#--}
      ;;
    --build-only) build_only=true ;;
    *) usage ;;
  esac
done

groups=(run test)
[[ $preset == windows ]] && groups+=(windows)
scripts/packages.sh "${groups[@]}"

if [[ $preset == windows ]]; then
  TARNWICK_WINDOWS_QT=${TARNWICK_WINDOWS_QT:-$(packaging/windows/qt.sh)}
  export TARNWICK_WINDOWS_QT
fi
cmake --preset "$preset"
cmake --build --preset "$preset"
if $build_only; then exit 0; fi

code=0
ctest --preset "$preset" -j "$(nproc)" || code=$?

count=$(scripts/count-tests.awk "build/$preset/Testing/Temporary/LastTest.log")
echo "$count"
# A run of no test at all proves nothing.
[[ $count != "0 passed"* ]] || code=1
exit "$code"
