#!/bin/bash
# Lets disks, files, displays and pictures fail around the built programs, and kills them while they
# save: nothing may be lost, disturbed or hang. A minute. The last line is the count: "N passed,
# N failed". Needs a release build (./test.sh --build-only).
# usage: scripts/hard-faults.sh [--no-skips] [WORD]
#   --no-skips  a fault that cannot be had here is a failure
#   WORD        only the cases that have it in their names
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
scripts/packages.sh faults

# Disks are mounted in a name space of our own, where they go with the last program in it.
alone=(unshare --mount --propagation private)
((EUID == 0)) || alone=(unshare --user --map-root-user --mount --propagation private)
"${alone[@]}" true || alone=()
exec timeout --kill-after=10 300 "${alone[@]}" python3 -B tests/faults/run.py build/release/bin "$@"
