#!/usr/bin/python3
"""Adds terms to the tables of the longitudes for lines that stand in what these leave of the
ephemeris; the README has the method.

usage: search.py GRID TABLES OUTPUT

GRID is a file of the sampler at even intervals, TABLES a folder of fitted tables, OUTPUT one for
the tables with more terms, whose amplitudes are still to be fitted.
"""
import itertools
import sys

import numpy

import series

FLOOR = 0.0035  # arcseconds: smaller lines are worth no term
PADDING = 4  # a spectrum is sampled so much closer than it resolves
OF_MOON = {"D": 6, "lp": 2, "l": 4, "F": 2}  # the largest multiples that are tried
OF_PLANETS = {"Me": 4, "V": 20, "E": 20, "M": 12, "J": 6, "S": 5, "U": 4, "N": 4}
MOST_PLANETS = 3
LARGEST_SUM = 4  # of the planets' multiples, which their perihelia and nodes have to make up for
MATCHES = 16  # combinations, the simplest ones, that are tried for a line
AS_GOOD = 0.8  # of the best one's gain
EVERY = 20  # of the grid's epochs are enough to compare combinations


def combinations(limits):
    """All rows of multiples of some angles up to the limits, of F the even ones: the Moon's orbit is
    the same on both sides of the ecliptic."""
    ranges = [range(-limit, limit + 1, 2 if name == "F" else 1) for name, limit in limits.items()]
    values = numpy.array(list(itertools.product(*ranges)))
    rows = numpy.zeros((len(values), len(series.ANGLES)), int)
    rows[:, [series.ANGLES.index(name) for name in limits]] = values
    return rows


def of_planets():
    rows = [combinations({name: OF_PLANETS[name] for name in names})
            for names in itertools.combinations(OF_PLANETS, MOST_PLANETS)]
    rows = numpy.unique(numpy.vstack(rows), axis=0)
    return rows[abs(rows.sum(axis=1)) <= LARGEST_SUM]


def simplicity(rows):
    """The less the simpler."""
    planets = rows[:, series.ANGLES.index("Me"):]
    return abs(rows).sum(axis=1) + 3 * abs(planets.sum(axis=1)) + 8 * (rows != 0).sum(axis=1)


class Combinations:
    """Those that can make a line, with their frequencies in the middle of the span."""

    def __init__(self, polynomials):
        ends = (numpy.array([series.FIRST, series.LAST]) - series.J2000) / series.CENTURY
        around = ends.mean() + numpy.array([-1, 1])
        self.rates = numpy.array([numpy.diff(series.polynomial(polynomials[name], around))[0] / 2
                                  for name in series.ANGLES])
        self.resolution = 360 / (ends[1] - ends[0])  # degrees a century, as the rates
        self.moon = combinations(OF_MOON)
        planets = of_planets()
        self.planets = planets[numpy.argsort(planets @ self.rates)]

    def matching(self, rate):
        """The simplest ones that stay with a line for most of the span."""
        rates, rest = self.planets @ self.rates, rate - self.moon @ self.rates
        first = numpy.searchsorted(rates, rest - self.resolution / 2)
        last = numpy.searchsorted(rates, rest + self.resolution / 2)
        rows = [moon + self.planets[i:j] for moon, i, j in zip(self.moon, first, last) if i < j]
        rows = numpy.vstack(rows or [self.moon[:0]])
        return rows[numpy.argsort(simplicity(rows), kind="stable")[:MATCHES]]


def residuals(name, model, places):
    parts = []
    for part in series.chunks(len(places.jd)):
        some = places.part(part)
        values = series.Epochs(model.polynomials, some.jd).terms(model.tables[name]).sum(axis=0)
        parts.append(series.target(name, model.polynomials, some) - values)
    return numpy.concatenate(parts)


def lines(values, step):
    """Rates (degrees a century) and amplitudes of the lines above the floor, the largest first."""
    window = numpy.hanning(len(values))
    spectrum = abs(numpy.fft.rfft(values * window, PADDING * len(values))) / (window.sum() / 2)
    inner = spectrum[1:-1]
    peaks = (inner >= spectrum[:-2]) & (inner > spectrum[2:]) & (inner > FLOOR)
    places = numpy.flatnonzero(peaks) + 1
    places = places[numpy.argsort(-spectrum[places])]
    return places * 360 * series.CENTURY / (PADDING * len(values) * step), spectrum[places]


def waves_along(values, epochs, rows):
    """Amplitudes s0, c0 of each row's waves in some values, were there no others."""
    sines, cosines = epochs.waves(rows)
    return 2 * numpy.array([sines @ values, cosines @ values]).T / len(values)


def best_match(rows, values, epochs):
    """The place of the simplest row of those that take about the most away, and its amplitudes."""
    found = waves_along(values, epochs, rows)
    gains = (found ** 2).sum(axis=1)
    place = numpy.argmax(gains >= AS_GOOD * gains.max())
    return place, found[place]


def widen(amplitudes):
    """The next power of x is to be fitted too: an amplitude that is not zero will be."""
    power = 1 if not amplitudes[[1, 4]].any() else 2
    wanted = [0, 3, power, 3 + power]
    amplitudes[wanted] += 1e-4 * (amplitudes[wanted] == 0)


def told_apart(found, rates, resolution):
    """Of the rates of lines those that no term has and none before, and the places of the terms that
    have the others."""
    apart, known = [], set()
    for rate in found:
        distances = abs(numpy.append(rates, apart) - rate)
        nearest = distances.argmin()
        if distances[nearest] >= resolution:
            apart.append(rate)
        elif nearest < len(rates):
            known.add(nearest)
    return apart, known


def extend(name, model, places, candidates):
    """Gives a table a term for each line in what it leaves, or, for a line that is not told apart
    from a term, this term an amplitude more."""
    table = model.tables[name]
    values = residuals(name, model, places)
    found, _ = lines(values, places.jd[1] - places.jd[0])
    apart, known = told_apart(found, abs(table.multiples @ candidates.rates), candidates.resolution)
    for term in known:
        widen(table.amplitudes[term])
    epochs = series.Epochs(model.polynomials, places.jd[::EVERY])
    for rate in apart:
        rows = candidates.matching(rate)
        if len(rows) == 0:
            continue
        place, (sine, cosine) = best_match(rows, values[::EVERY], epochs)
        print(f"{name}: {rate:.3f} degrees a century, {numpy.hypot(sine, cosine):.4f}", rows[place])
        table.multiples = numpy.vstack([table.multiples, rows[place]])
        table.amplitudes = numpy.vstack([table.amplitudes, [sine, 0, 0, cosine, 0, 0]])


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    places, model = series.read_places(sys.argv[1]), series.read_model(sys.argv[2])
    candidates = Combinations(model.polynomials)
    for name in series.MEANS:
        extend(name, model, places, candidates)
    series.write_model(sys.argv[3], model)


if __name__ == "__main__":
    main()
