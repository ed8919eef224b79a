#!/bin/bash
# Checks that no folder uses one above it, the form of the C++ sources with clang-format, their sense
# with cppcheck and clang-tidy, and the use of memory with valgrind.
# usage: scripts/check.sh [--format]     --format: folders and form only, a second
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

# passedByValue: small records go by value here; clang-tidy knows what is dear to copy.
git ls-files '*.cpp' | cppcheck --file-list=- --quiet -j "$(nproc)" --std=c++20 -I . \
  --library=std,posix,qt,googletest --enable=warning,performance,portability \
  --inline-suppr --suppress=passedByValue --error-exitcode=1

# clang-tidy reads how each source is compiled, and Qt's generated headers, from the release build.
./test.sh --build-only

# What the sanitizers do not see is the use of values that nobody has set. Every flow, and all else but
# what goes through the whole range or kills a program: 40 times as slow, that would take minutes.
long='*Every*:*Kill*:LunationGridTest.*:*Eclipses*:Saros.*:Limits.*:SavedState.AnyBytes*'
seq 0 $(($(nproc) - 1)) | GTEST_TOTAL_SHARDS=$(nproc) xargs -P "$(nproc)" -I {} \
  env GTEST_SHARD_INDEX={} valgrind --quiet --leak-check=full --error-exitcode=1 \
  build/release/bin/tarnwick_tests --gtest_brief=1 --gtest_filter="-$long"

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
