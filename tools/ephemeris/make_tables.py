#!/usr/bin/env python3
"""Writes the tables of engines/ephemeris/ from the CSV files beside this script.

The series were fitted to JPL DE431 over the years -3200 to 6000, by what is in fit/; the rows of
each file are sorted by size, so that the first make the best shorter series.
"""
import csv
import pathlib

from product_plan import ANGLES, Plan, opposite, size

HERE = pathlib.Path(__file__).parent
TABLES = HERE.parent.parent / "engines" / "ephemeris"

UNITS = {
    "moon_longitude": "arcseconds, added to the mean longitude L",
    "moon_latitude": "arcseconds",
    "moon_distance": "km",
    "sun_longitude": "arcseconds, added to the mean longitude Ls",
    "sun_latitude": "arcseconds",
    "sun_distance": "1e-8 au",
}

# A term is large if its amplitudes add up to so much.
LARGE = {"moon_longitude": 2, "moon_latitude": 2, "moon_distance": 50, "sun_longitude": 2,
         "sun_latitude": 2, "sun_distance": 100}
# How many of their first rows lead to near a phase.
ROUGH = {"moon_longitude": 80, "sun_longitude": 10}


def read(name):
    with open(HERE / f"{name}.csv", newline="") as file:
        rows = [row for row in csv.reader(file) if not row[0].startswith("#")]
    return rows[0], rows[1:]


def aligned(rows):
    widths = [max(map(len, column)) for column in zip(*rows)]
    return [[cell.rjust(width) for cell, width in zip(row, widths)] for row in rows]


def write(name, heading, lines, source=None):
    heading.append(f"Written by tools/ephemeris/make_tables.py from {source or name + '.csv'}.")
    text = "".join(f"// {line}\n" for line in heading) + "".join(f"{line}\n" for line in lines)
    (TABLES / f"{name}.inc").write_text(text)


def write_series(name):
    header, rows = read(name)
    kept = aligned([header] + rows)
    names = kept[0]
    lines = ["//" + " ".join(names[:ANGLES]) + "    " + "  ".join(names[ANGLES:])]
    for row in kept[1:]:
        lines.append(f"{{{{{','.join(row[:ANGLES])}}}, {{{', '.join(row[ANGLES:])}}}}},")
    title = name.replace("_", " ").capitalize()
    write(name, [f"{title}: {UNITS[name]}. {len(rows)} terms, fitted to DE431."], lines)


def groups_of_thetas(series, large):
    """The thetas of some series by the tables that have large or small, constant or varying terms
    of it: a bit for each. Those of large terms come first. Since the terms of a table shall lie
    side by side, each group is followed by the one that is most like it."""
    uses = {}
    for i, (name, rows) in enumerate(series.items()):
        for row in rows:
            multiples = tuple(map(int, row[:ANGLES]))
            s0, s1, s2, c0, c1, c2 = (abs(float(amplitude)) for amplitude in row[ANGLES:])
            is_large = s0 + s1 + s2 + c0 + c1 + c2 >= large[name]
            varies = s1 + s2 + c1 + c2 > 0
            theta = max(multiples, opposite(multiples))
            uses[theta] = uses.get(theta, 0) | 1 << 4 * i + 2 * is_large + varies
    groups = {}
    for theta in sorted(uses, key=lambda theta: (size(theta), theta)):
        groups.setdefault(uses[theta], []).append(theta)
    any_large = sum(0b1100 << 4 * i for i in range(len(series)))
    use = any_large
    while groups:
        use = min(groups, key=lambda other: (not other & any_large, (use ^ other).bit_count(),
                                             -len(groups[other]), other))
        yield use & any_large != 0, groups.pop(use)


def write_products(name, series, large):
    plan = Plan(groups_of_thetas(series, large))
    rows = [[str(left), str(right), *map(str, theta)] for left, right, theta in plan.steps()]
    lines = [f"{{{row[0]}, {row[1]}}},  // {' '.join(row[2:])}" for row in aligned(rows)]
    write(name, ["Places of both factors in the list of phasors; multiples of the angles.",
                 f"{len(plan.factors)} that serve as factors, {len(plan.thetas)} that terms have."],
          lines, "the series, as product_plan.py plans them")


def write_arguments():
    _, rows = read("arguments")
    lines = [f"{{{', '.join(row[1:])}}},  // {row[0].strip()}" for row in aligned(rows)]
    write("arguments", ["Coefficients of T^0 to T^8, T in Julian centuries of TT from J2000.",
                        "Degrees, but e is a pure number and P, Q are arcseconds."], lines)


def write_delta_t():
    _, rows = read("delta_t")
    lines = [f"{{{row[0]}, {row[1]}}}," for row in aligned(rows)]
    write("delta_t", ["Delta T, seconds, at 1 January of the year: knots of a cubic spline.",
                      "Stephenson, Morrison and Hohenkerk (2016), observed values to 2026."], lines)


if __name__ == "__main__":
    for series in UNITS:
        write_series(series)
    rows = {name: read(name)[1] for name in UNITS}
    write_products("products", rows, LARGE)
    rough = {name: rows[name][:count] for name, count in ROUGH.items()}
    write_products("rough_products", rough, dict.fromkeys(ROUGH, 0))
    write_arguments()
    write_delta_t()
