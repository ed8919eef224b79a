#!/usr/bin/env python3
"""Writes the tables of engines/ephemeris/ from the CSV files beside this script.

The series were fitted to JPL DE431 over the years -3200 to 6000; each file is sorted by amplitude,
so the first rows make the best shorter series. How many are kept stands in SERIES.
"""
import csv
import pathlib

HERE = pathlib.Path(__file__).parent
TABLES = HERE.parent.parent / "engines" / "ephemeris"

SERIES = {
    "moon_longitude": (640, "arcseconds, added to the mean longitude L"),
    "moon_latitude": (252, "arcseconds"),
    "moon_distance": (226, "km"),
    "sun_longitude": (131, "arcseconds, added to the mean longitude Ls"),
    "sun_latitude": (13, "arcseconds"),
    "sun_distance": (37, "1e-8 au"),
}
MULTIPLES = 13


def read(name):
    with open(HERE / f"{name}.csv", newline="") as file:
        rows = [row for row in csv.reader(file) if not row[0].startswith("#")]
    return rows[0], rows[1:]


def aligned(rows):
    widths = [max(map(len, column)) for column in zip(*rows)]
    return [[cell.rjust(width) for cell, width in zip(row, widths)] for row in rows]


def write(name, heading, lines):
    heading.append(f"Written by tools/ephemeris/make_tables.py from {name}.csv.")
    text = "".join(f"// {line}\n" for line in heading) + "".join(f"{line}\n" for line in lines)
    (TABLES / f"{name}.inc").write_text(text)


def write_series(name):
    count, unit = SERIES[name]
    header, rows = read(name)
    kept = aligned([header] + rows[:count])
    names = kept[0]
    lines = ["//" + " ".join(names[:MULTIPLES]) + "    " + "  ".join(names[MULTIPLES:])]
    for row in kept[1:]:
        lines.append(f"{{{{{','.join(row[:MULTIPLES])}}}, {{{', '.join(row[MULTIPLES:])}}}}},")
    title = name.replace("_", " ").capitalize()
    write(name, [f"{title}: {unit}. The {count} largest of {len(rows)} terms, fitted to DE431."],
          lines)


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
    for series in SERIES:
        write_series(series)
    write_arguments()
    write_delta_t()
