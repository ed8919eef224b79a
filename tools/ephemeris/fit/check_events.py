#!/usr/bin/python3
"""Compares all phases and eclipses by the series with those by the ephemeris itself.

usage: check_events.py SERIES DE431

Both are lists of events.cpp. Errors are series minus DE431. The status is 1 where the lists do not
hold the same phases and eclipses, where a saros number differs, where a search has stopped before
0.01 s, or where a phase is off by the half second that phase_engine.h promises or more.
"""
import sys

import numpy

from compare import spans

COLUMNS = ["lunation", "phase", "instant", "left", "type", "saros", "greatest", "gamma",
           "magnitude", "penumbral_magnitude", "penumbral_minutes", "umbral_minutes",
           "total_minutes"]
PHASES = ["new moon", "first quarter", "full moon", "last quarter"]
TYPES = ["none", "partial solar", "central annular", "central total", "non-central total",
         "non-central annular", "central annular-total", "non-central annular-total", "penumbral",
         "partial lunar", "total lunar"]
FIRST_LUNAR_TYPE = 8
SECONDS = 86400
LATE, VERY_LATE = 0.3, 0.4  # seconds; how many phases are off by more is told
PROMISED, EXACT = 0.5, 0.01  # seconds

# Quantity of an eclipse: unit, what makes the unit of the list that one, digits.
QUANTITIES = {
    "greatest": ("s", SECONDS, 3), "gamma": ("Earth radii", 1, 6), "magnitude": ("", 1, 6),
    "penumbral_magnitude": ("", 1, 6), "penumbral_minutes": ("min", 1, 4),
    "umbral_minutes": ("min", 1, 4), "total_minutes": ("min", 1, 4),
}


def read_events(path):
    return dict(zip(COLUMNS, numpy.loadtxt(path, delimiter=",", ndmin=2).T))


def numbers(events):
    """Of the phases, counted on from one to the next."""
    return (4 * events["lunation"] + events["phase"]).astype(int)


def phase_errors(series, de431):
    """Seconds."""
    return (series["instant"] - de431["instant"]) * SECONDS


def faults(series, de431):
    """What must not be, a line each."""
    number = numbers(de431)
    if not numpy.array_equal(numbers(series), number):
        return ["The lists do not hold the same phases."]
    found = []
    if (numpy.diff(number) != 1).any():
        found.append("Phases are missing in both lists.")
    one_only = (series["type"] > 0) != (de431["type"] > 0)
    if one_only.any():
        found.append(f"Eclipses in one list only: {one_only.sum()}.")
    if (~one_only & (series["saros"] != de431["saros"])).any():
        found.append("Saros numbers differ.")
    late = abs(phase_errors(series, de431)) >= PROMISED
    if late.any():
        found.append(f"Phases that are off by {PROMISED} s or more: {late.sum()}.")
    if max(largest(series["left"]), largest(de431["left"])) > EXACT:
        found.append("A search has stopped too early.")
    return found


def largest(values):
    return abs(values).max()


def rms(values):
    return numpy.sqrt((values ** 2).mean())


def table(heads, rows):
    yield ""
    yield "| " + " | ".join(heads) + " |"
    yield "|---" * len(heads) + "|"
    for row in rows:
        yield "| " + " | ".join(str(cell) for cell in row) + " |"
    yield ""


def phase_rows(series, de431):
    error = phase_errors(series, de431)
    by_kind = ((kind, de431["phase"] == i) for i, kind in enumerate(PHASES))
    for name, chosen in (*spans(de431["instant"]), *by_kind):
        if chosen.any():
            part = abs(error[chosen])
            yield (name, len(part), f"{largest(part):.3f}", f"{rms(part):.4f}",
                   (part > LATE).sum(), (part > VERY_LATE).sum())


def tell_phases(series, de431):
    error = phase_errors(series, de431)
    worst = abs(error).argmax()
    yield "## Phases"
    yield from table(["which", "phases", "largest s", "rms s", f"above {LATE} s",
                      f"above {VERY_LATE} s"], phase_rows(series, de431))
    at = f"{PHASES[int(de431['phase'][worst])]} of JD (TT) {de431['instant'][worst]:.4f}"
    left = ", ".join(f"{largest(events['left']):.4f} s" for events in (series, de431))
    yield f"The mean of all is {error.mean():.4f} s, the largest {error[worst]:.3f} s: {at}."
    yield f"One more step of either search would change no phase by more than {left}."


def count_rows(series, de431):
    for number, name in enumerate(TYPES):
        if number > 0:
            yield name, (series["type"] == number).sum(), (de431["type"] == number).sum()
    yield "all", (series["type"] > 0).sum(), (de431["type"] > 0).sum()


def differing_rows(series, de431):
    """Of eclipses that have not one type and saros in both lists: what each list says."""
    differ = (series["type"] != de431["type"]) | (series["saros"] != de431["saros"])
    for i in numpy.flatnonzero(differ):
        for name, events in (("series", series), ("DE431", de431)):
            numbers_told = ("gamma", "magnitude", "penumbral_magnitude")
            yield (f"{events['instant'][i]:.4f}", PHASES[int(events["phase"][i])], name,
                   TYPES[int(events["type"][i])], int(events["saros"][i]),
                   *(f"{events[column][i]:.6f}" for column in numbers_told))


def error_rows(series, de431):
    in_both = (series["type"] > 0) & (de431["type"] > 0)
    lunar = de431["type"] >= FIRST_LUNAR_TYPE
    for kind, of_kind in (("solar", in_both & ~lunar), ("lunar", in_both & lunar)):
        for name, (unit, factor, digits) in QUANTITIES.items():
            chosen = of_kind & (series[name] != 0) & (de431[name] != 0)
            if chosen.any():
                error = (series[name] - de431[name])[chosen] * factor
                yield (f"{name.replace('_', ' ')}, {kind}", unit, len(error),
                       f"{error.mean():.{digits}f}", f"{rms(error):.{digits}f}",
                       f"{largest(error):.{digits}f}")


def tell_eclipses(series, de431):
    yield "## Eclipses"
    yield from table(["type", "series", "DE431"], count_rows(series, de431))
    differing = list(differing_rows(series, de431))
    yield f"Eclipses that differ in type, saros or existence: {len(differing) // 2}."
    if differing:
        yield from table(["JD (TT)", "at", "by", "type", "saros", "gamma", "magnitude",
                          "penumbral"], differing)
    yield "Errors, a semi-duration's where there is such a phase by both:"
    yield from table(["quantity", "unit", "eclipses", "mean", "rms", "largest"],
                     error_rows(series, de431))


def report(series, de431):
    """Lines of Markdown."""
    yield "# Phases and eclipses by the series against those by JPL DE431"
    yield ""
    found = faults(series, de431)
    yield from (f"**Fault:** {fault}" for fault in found)
    if not found:
        yield "Both lists hold the same phases and eclipses, with the same saros numbers."
    if len(series["instant"]) == len(de431["instant"]):
        yield ""
        yield from tell_phases(series, de431)
        yield ""
        yield from tell_eclipses(series, de431)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    series, de431 = (read_events(path) for path in sys.argv[1:])
    for line in report(series, de431):
        print(line)
    sys.exit(1 if faults(series, de431) else 0)


if __name__ == "__main__":
    main()
