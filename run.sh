#!/bin/bash
# Builds Tarnwick and starts it. Arguments are handed to the program.
# Where there is no display it runs on a virtual one and leaves build/screenshot.png.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

has_display() { [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; }

groups=(run)
has_display || groups+=(screen)
scripts/packages.sh "${groups[@]}"

# Whoever only wants the program needs neither GoogleTest nor Google Benchmark.
cmake --preset release -DTARNWICK_TESTS=OFF -DTARNWICK_BENCHMARKS=OFF
cmake --build --preset release --target tarnwick tarnwick_driver tarnwick_tables

program=build/release/bin/tarnwick
if has_display; then
  exec "$program" "$@"
fi
# The outer limit is for a virtual screen that never comes up; screenshot.sh has its own.
exec timeout --kill-after=10 120 xvfb-run -a -s "-screen 0 1400x1000x24" \
  scripts/screenshot.sh build/screenshot.png "$program" "$@"
