#!/bin/bash
# Checks that no folder uses one above it, the form of the C++ sources with clang-format, then their
# sense with clang-tidy.
# usage: scripts/check.sh [--format]     --format: without clang-tidy, which takes long
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

if (($# > 1)) || [[ ${1:-} != @(|--format) ]]; then
  echo "usage: scripts/check.sh [--format]" >&2
  exit 2
fi

scripts/packages.sh check
git ls-files -z '*.h' '*.cpp' '*.inc' '*CMakeLists.txt' | xargs -0rx scripts/layers.awk
git ls-files -z '*.h' '*.cpp' | xargs -0r clang-format --dry-run -Werror
[[ ${1:-} == --format ]] && exit

# clang-tidy reads how each source is compiled, and Qt's generated headers, from the release build.
./test.sh --build-only
# Only the preset fuzz compiles fuzz/.
scripts/packages.sh fuzz
cmake --preset fuzz
# Every source below the root but those that Qt's tools generate in build/. Warnings of the
# compiler's own are GCC's business: clang's -Wconversion has another idea of the signs.
for build in release fuzz; do
  sources='(?!build/)'
  [[ $build == fuzz ]] && sources=fuzz/
  run-clang-tidy -quiet -p "build/$build" -j "$(nproc)" -extra-arg=-Wno-everything \
    "^$PWD/$sources"
done
