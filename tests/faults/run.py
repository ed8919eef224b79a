#!/usr/bin/env python3
"""Lets what the program depends on fail, and looks whether it loses, disturbs or hangs on anything.

    run.py BIN [--no-skips] [WORD]

BIN is the folder of the built programs; with WORD only the cases are run that have it in their
names. Each case is named with what came of it; the last line is the count. Mounts file systems of
its own: to be started by scripts/hard-faults.sh, in a name space where they go with it. A case that
cannot be had here is skipped, which is a failure with --no-skips.
"""
import argparse
import subprocess
import sys
import traceback
from pathlib import Path

import desktop
import files
import kills
from harness import Fault, Skipped, Workshop


def outcome(case, shop):
    try:
        case(shop)
        return "passed", ""
    except Skipped as reason:
        return "SKIPPED", str(reason)
    except subprocess.TimeoutExpired as error:
        return "failed", f"hangs: {error}"
    except Fault as fault:
        return "failed", str(fault)
    except Exception:  # whatever a case meets, the others are run
        return "failed", traceback.format_exc()


def main():
    options = argparse.ArgumentParser(description=__doc__)
    options.add_argument("bin", type=Path)
    options.add_argument("--no-skips", action="store_true")
    options.add_argument("word", nargs="?", default="")
    options = options.parse_intermixed_args()
    count = {"passed": 0, "failed": 0, "SKIPPED": 0}
    for name, case in [*files.cases(), *kills.cases(), *desktop.cases()]:
        if options.word not in name:
            continue
        with Workshop(options.bin.absolute()) as shop:
            result, why = outcome(case, shop)
        count[result] += 1
        print(f"{result}: {name}" + (f": {why}" if why else ""), flush=True)
    if count["SKIPPED"]:
        print(f"{count['SKIPPED']} SKIPPED: not all faults can be had here")
    failed = count["failed"] + (count["SKIPPED"] if options.no_skips else 0)
    print(f"{count['passed']} passed, {failed} failed")
    return 1 if failed or not count["passed"] else 0


if __name__ == "__main__":
    sys.exit(main())
