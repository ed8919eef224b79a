#!/usr/bin/python3
"""Draws the errors of all phases against the year.

usage: plot_phase_errors.py SERIES DE431 PNG

The first two are lists of events.cpp that hold the same phases.
"""
import sys

import matplotlib
import numpy

import check_events
from series import J2000

matplotlib.use("Agg")
from matplotlib import colors, pyplot

INCHES, DOTS_PER_INCH = (12, 6), 100
BIN = 50  # years
CELLS = 10, 0.01  # of the cloud: years, seconds
LIMIT = 0.6  # seconds, at both ends of the axis at least
LARGEST, RMS = "#c2571a", "#14406e"


def by_bins(years, errors):
    """Edges of bins, and in each the least error, the largest, and the root mean square."""
    number = numpy.floor(years / BIN).astype(int)
    first = number.min()
    parts = [errors[number == i] for i in range(first, number.max() + 1)]
    edges = BIN * numpy.arange(first, first + len(parts) + 1)
    return edges, *(numpy.array([of(part) for part in parts])
                    for of in (numpy.min, numpy.max, check_events.rms))


def draw_cloud(axes, years, errors, limit):
    width, height = CELLS
    edges = (numpy.arange(years.min(), years.max() + width, width),
             numpy.arange(-limit, limit + height, height))
    count, *_ = numpy.histogram2d(years, errors, edges)
    palest = pyplot.get_cmap("Blues")(numpy.linspace(0.3, 0.75, 256))  # one phase must be seen
    shades = axes.pcolormesh(*edges, numpy.ma.masked_equal(count.T, 0), norm=colors.LogNorm(vmin=1),
                             cmap=colors.ListedColormap(palest), linewidth=0)
    bar = axes.figure.colorbar(shades, ax=axes, pad=0.01, aspect=40, ticks=[1, 2, 5, 10, 20, 50],
                               format="%d", label=f"phases in {width} years and {height} s")
    bar.ax.minorticks_off()


def draw_lines(axes, years, errors):
    edges, least, most, rms = by_bins(years, errors)
    axes.stairs(most, edges, baseline=None, color=LARGEST, label=f"largest in {BIN} years")
    axes.stairs(least, edges, baseline=None, color=LARGEST)
    axes.stairs(rms, edges, baseline=None, color=RMS, linewidth=1.6, label=f"rms of {BIN} years")
    axes.stairs(-rms, edges, baseline=None, color=RMS, linewidth=1.6)


def draw(years, errors, path):
    limit = max(LIMIT, 1.1 * check_events.largest(errors))
    figure, axes = pyplot.subplots(figsize=INCHES, dpi=DOTS_PER_INCH, layout="constrained")
    draw_cloud(axes, years, errors, limit)
    draw_lines(axes, years, errors)
    axes.set(xlim=(years.min(), years.max()), ylim=(-limit, limit), xlabel="year",
             ylabel="series less JPL DE431, seconds",
             title=f"Errors of all {len(errors):,} phases of the Moon")
    axes.set_xticks(range(-3000, 6001, 1000))
    axes.grid(color="#dddddd", linewidth=0.6)
    axes.set_axisbelow(True)
    axes.spines[["top", "right"]].set_visible(False)
    axes.legend(loc="upper left", ncols=2, frameon=True, edgecolor="none")
    figure.savefig(path)


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    series, de431 = (check_events.read_events(path) for path in sys.argv[1:3])
    years = 2000 + (de431["instant"] - J2000) / 365.25
    draw(years, check_events.phase_errors(series, de431), sys.argv[3])


if __name__ == "__main__":
    main()
