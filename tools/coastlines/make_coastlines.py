#!/usr/bin/env python3
"""Writes assets/coastlines.csv from land-110m.json of the npm package world-atlas.

usage: make_coastlines.py land-110m.json     the README beside this script says where it comes from

The file is TopoJSON: its arcs are polylines of whole numbers, each point told by its difference
from the one before; scale and translate make degrees of them.
"""
import itertools
import json
import math
import pathlib
import sys

TABLE = pathlib.Path(__file__).parent.parent.parent / "assets" / "coastlines.csv"

HEADING = """\
# Coastlines of the Earth at 1:110 million, latitude north and longitude east of Greenwich in degrees
# A point a line; a blank line stands between two polylines, and none crosses the date line
# From Natural Earth 4.1 (naturalearthdata.com), which is in the public domain
# Written by tools/coastlines/make_coastlines.py
latitude,longitude
"""


def points(arc, transform):
    """The points of an arc, (longitude, latitude), in hundredths of a degree."""
    sums = zip(*map(itertools.accumulate, zip(*arc)))
    return [tuple(round(100 * (number * scale + translate)) for number, scale, translate
                  in zip(point, transform["scale"], transform["translate"])) for point in sums]


def arcs_of_land(topology):
    """The numbers of the arcs that bound land, each once; ~number means an arc run backwards."""
    return sorted({number if number >= 0 else ~number
                   for shape in topology["objects"]["land"]["geometries"]
                   for polygon in shape["arcs"] for ring in polygon for number in ring})


def on_date_line(point):
    return abs(point[0]) == 18000


def on_edge(start, end):
    """Whether a segment is no coast, but runs along the date line or the South Pole."""
    return (on_date_line(start) and on_date_line(end)) or start[1] == end[1] == -9000


def beside(point, other):
    """A point; one on the date line on that side of the map where the other lies."""
    return (int(math.copysign(18000, other[0])), point[1]) if on_date_line(point) else point


def polylines(arc):
    """An arc without its edges, cut where it crosses the date line."""
    found = []
    for start, end in itertools.pairwise(arc):
        if start == end or on_edge(start, end):
            continue
        start, end = beside(start, end), beside(end, start)
        if not found or found[-1][-1] != start:
            found.append([start])
        found[-1].append(end)
    return found


def main():
    topology = json.loads(pathlib.Path(sys.argv[1]).read_text())
    lines = [line for number in arcs_of_land(topology)
             for line in polylines(points(topology["arcs"][number], topology["transform"]))]
    blocks = ["".join(f"{latitude / 100:.2f},{longitude / 100:.2f}\n" for longitude, latitude in line)
              for line in lines]
    TABLE.write_text(HEADING + "\n".join(blocks))
    print(f"{len(lines)} polylines, {sum(map(len, lines))} points")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: make_coastlines.py land-110m.json")
    main()
