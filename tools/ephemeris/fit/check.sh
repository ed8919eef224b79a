#!/bin/bash
# Checks every phase and every eclipse of the span, as the program's series give it, against the same
# search with the places of DE431: build/fit/events.md and build/fit/phase_errors.png. Status 1 where
# something must not be so.
# usage: check.sh
set -euo pipefail
export PYTHONDONTWRITEBYTECODE=1
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../../.." && pwd)
work=$root/build/fit
programs=$root/build/release/bin

cd "$root"
scripts/packages.sh run test fit
mkdir -p "$work"
cmake --preset release
ninja -C build/release events_by_series events_by_de431

"$programs/events_by_de431" >"$work/de431.events" &
direct=$!
"$programs/events_by_series" >"$work/series.events"
wait "$direct"

python=/usr/bin/python3
lists=("$work/series.events" "$work/de431.events")
code=0
"$python" "$here/check_events.py" "${lists[@]}" >"$work/events.md" || code=$?
cat "$work/events.md"
"$python" "$here/plot_phase_errors.py" "${lists[@]}" "$work/phase_errors.png"
exit "$code"
