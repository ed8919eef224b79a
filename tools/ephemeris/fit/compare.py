#!/usr/bin/python3
"""Compares tables with sampled places, by millennia, and one set of tables with another.

usage: compare.py PLACES TABLES [OTHER_TABLES]

Each cell is the largest error and the root mean square, in the units of the heading. With other
tables their errors follow, the quotients of the first by theirs, and where the first have an rms
more than 2 % larger, or a largest error more than 5 % larger.
"""
import sys

import numpy

import series

YEARS = [-3200, -3000, *range(-2000, 7000, 1000)]
QUANTITIES = {
    "elongation": '"', "moon_longitude": '"', "moon_latitude": '"', "moon_distance": "km",
    "sun_longitude": '"', "sun_latitude": '"', "sun_distance": "1e-6 au",
}
UNITS = {'"': 3600, "km": 1, "1e-6 au": 1e6}
WORSE_RMS, WORSE_LARGEST = 1.02, 1.05


def errors(model, places):
    """Series minus ephemeris, by quantity, in its unit."""
    found = series.positions(model, places.jd)
    difference = {name: getattr(found, name) - getattr(places, name) for name in series.TABLES}
    for name in series.MEANS:
        difference[name] = series.turned(difference[name])
    difference["elongation"] = difference["moon_longitude"] - difference["sun_longitude"]
    return {name: difference[name] * UNITS[unit] for name, unit in QUANTITIES.items()}


def spans(jd):
    """Name and choice of epochs: the whole span, then its millennia."""
    years = 2000 + (jd - series.J2000) / 365.25
    yield "all", numpy.full(len(jd), True)
    for first, last in zip(YEARS, YEARS[1:]):
        yield f"{first}..{last}", (first <= years) & (years < last)


def statistics(model, places):
    """Largest and rms: a pair by span and quantity."""
    by_quantity = errors(model, places)
    return {span: {name: (abs(error[chosen]).max(), numpy.sqrt((error[chosen] ** 2).mean()))
                   for name, error in by_quantity.items()}
            for span, chosen in spans(places.jd) if chosen.any()}


def quotients(first, second):
    return {span: {name: tuple(a / b for a, b in zip(pair, second[span][name]))
                   for name, pair in row.items()} for span, row in first.items()}


def tell(title, table):
    print(f"\n{title}; largest / rms\n")
    print("| years |", " | ".join(f"{name.replace('_', ' ')} {unit}"
                                  for name, unit in QUANTITIES.items()), "|")
    print("|---" * (1 + len(QUANTITIES)) + "|")
    for span, row in table.items():
        cells = (f"{largest:.3f} / {rms:.4f}" for largest, rms in row.values())
        print(f"| {span} |", " | ".join(cells), "|")


def tell_where_worse(quotient):
    print("\nWhere the first are worse by more than the limits:")
    for span, row in quotient.items():
        for name, (largest, rms) in row.items():
            if largest > WORSE_LARGEST or rms > WORSE_RMS:
                print(f"- {span}, {name.replace('_', ' ')}: {largest:.3f} / {rms:.4f}")


def main():
    if len(sys.argv) not in (3, 4):
        sys.exit(__doc__)
    places = series.read_places(sys.argv[1])
    found = {folder: statistics(series.read_model(folder), places) for folder in sys.argv[2:]}
    for folder, table in found.items():
        tell(f"Errors of {folder}", table)
    if len(found) == 2:
        quotient = quotients(*found.values())
        tell("Quotients of the first by the second", quotient)
        tell_where_worse(quotient)


if __name__ == "__main__":
    main()
