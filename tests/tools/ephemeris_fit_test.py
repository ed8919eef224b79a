#!/usr/bin/python3
"""Fits the largest terms of the series to stored places, as tools/ephemeris/fit fits all to a million.

usage: ephemeris_fit_test.py
"""
import copy
import csv
import pathlib
import sys
import tempfile
import unittest

import numpy

ROOT = pathlib.Path(__file__).parents[2]
PROGRAM = ROOT / "tools" / "ephemeris"
sys.path.insert(0, str(PROGRAM / "fit"))
sys.dont_write_bytecode = True

import choose
import compare
import fit
import search
import series

ROWS = 30  # of each table are fitted at most; the others are taken from the places
# What the places lie off the series by makes up the error of an amplitude. Where s0, s1 and s2 are
# fitted together they come out so much worse than s0 does alone; five times that is allowed.
STANDARD_ERRORS = 5 * numpy.array([1.5, 1.7, 3.4] * 2)


def data_rows(name):
    with open(ROOT / "tests" / "data" / name, newline="") as file:
        return [row for row in csv.reader(file) if not row[0].startswith("#")][1:]


def stored_places():
    return series.Places(*numpy.array(data_rows("places.csv"), float).T)


def shortened(model):
    """The largest terms without planets: among those with them some have so nearly one period, or so
    long a one, that only their sum can be told."""
    tables = {}
    for name, table in model.tables.items():
        with_planets = table.multiples[:, series.ANGLES.index("Me"):].any(axis=1)
        rows = numpy.flatnonzero(~with_planets)[:ROWS]
        tables[name] = series.Table(table.multiples[rows], table.amplitudes[rows])
    return series.Model(copy.deepcopy(model.polynomials), tables)


def without_other_terms(model, places):
    """The places as they were if the model had its first rows alone."""
    whole, short = (series.positions(some, places.jd) for some in (model, shortened(model)))
    return series.Places(places.jd, *(getattr(places, name) - getattr(whole, name) +
                                      getattr(short, name) for name in series.TABLES))


class EphemerisFit(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.model = series.read_model(PROGRAM)
        cls.places = stored_places()

    def test_known_terms_give_their_check_values(self):
        rows = numpy.array([row[1:] for row in data_rows("check_values.csv") if row[0] == "series"],
                           float)
        found = series.positions(series.read_model(PROGRAM / "fit" / "terms"), rows[:, 0])
        for column, name, decimals in zip(rows.T[1:], series.TABLES, (8, 8, 4, 8, 8, 10)):
            largest = abs(getattr(found, name) - column).max()
            self.assertLess(largest, 0.6 * 10.0 ** -decimals, name)

    def test_derivatives_are_quotients_of_differences(self):
        places, change = self.places.part(slice(None, None, 10)), 1e-4
        for name, polynomials in fit.FITTED.items():
            unused = numpy.zeros_like(self.model.tables[name].amplitudes, bool)
            for polynomial in polynomials:
                with self.subTest(name, polynomial=polynomial):
                    [row] = fit.columns(name, unused, {polynomial: [1]}, self.model, places)
                    before, after = (copy.deepcopy(self.model) for _ in range(2))
                    step = change * fit.unit(polynomial) / series.LONG
                    before.polynomials[polynomial][1] -= step
                    after.polynomials[polynomial][1] += step
                    differences = (search.residuals(name, before, places) -
                                   search.residuals(name, after, places))
                    error = differences / (2 * change) - row
                    self.assertLess(abs(error).max(), 1e-5 * abs(row).max())

    def test_fit_finds_amplitudes_and_polynomials(self):
        places = without_other_terms(self.model, self.places)
        known, found = shortened(self.model), shortened(self.model)
        for name, seconds_of_arc in (("D", 60), ("lp", 30), ("l", -60), ("F", 60), ("L", 60)):
            found.polynomials[name][2] += seconds_of_arc / 3600 / 50 ** 2
        for name in "PQ":
            found.polynomials[name][:] = 0
        fit.fit(found, places)
        rms = {name: pair[1] for name, pair in compare.statistics(known, places)["all"].items()}
        rms["sun_distance"] *= 100  # the table has another unit
        for name in series.TABLES:
            with self.subTest(name):
                error = abs(found.tables[name].amplitudes - known.tables[name].amplitudes)
                limit = STANDARD_ERRORS * rms[name] * (2 / len(places.jd)) ** 0.5
                self.assertTrue((error <= limit).all(), (error / limit).max(axis=0))

    def test_search_makes_a_lacking_term_of_its_line(self):
        lacking = self.model.tables["moon_longitude"].multiples[5]
        candidates = search.Combinations(self.model.polynomials)
        rate = abs(lacking @ candidates.rates)
        days = 1.6 * numpy.arange(2 ** 16)
        found, sizes = search.lines(0.5 * numpy.cos(numpy.radians(rate * days / 36525)), 1.6)
        self.assertLess(abs(found[0] - rate), 360 * 36525 / days[-1] / search.PADDING)
        self.assertAlmostEqual(sizes[0], 0.5, delta=0.05)

        epochs = series.Epochs(self.model.polynomials, self.places.jd)
        sines, cosines = epochs.waves(lacking[None])
        rows = candidates.matching(rate)
        place, amplitudes = search.best_match(rows, (0.3 * sines - 0.4 * cosines)[0], epochs)
        sign = 1 if (rows[place] == lacking).all() else -1
        self.assertEqual((sign * rows[place]).tolist(), lacking.tolist())
        self.assertLess(abs(amplitudes - [sign * 0.3, -0.4]).max(), 0.05)

    def test_the_term_that_gives_nothing_is_left_out(self):
        name, model = "moon_latitude", shortened(self.model)
        table, useless = model.tables[name], 7
        table.multiples = numpy.insert(table.multiples, useless, 3, axis=0)
        table.amplitudes = numpy.insert(table.amplitudes, useless, 1, axis=0)
        problem = choose.Problem([name], model)
        problem.add_places(without_other_terms(self.model, self.places))
        count = len(table.multiples)
        problem.keep(choose.most_useful(problem, count - 1))
        problem.take_over(problem.solve())
        self.assertEqual(len(model.tables[name].multiples), count - 1)
        self.assertFalse((model.tables[name].multiples == 3).all(axis=1).any())

    def test_phases_are_held_below_a_limit_and_no_more(self):
        random = numpy.random.default_rng(1)
        moves = random.normal(size=(20, 12))
        influence, errors, limit = moves.T @ moves, random.normal(size=12), 0.8
        pulls = choose.held_below(limit, errors, influence)
        after = errors - influence @ pulls
        self.assertLess(abs(after).max(), limit + 2 * choose.CLOSE)
        self.assertGreater(abs(pulls).max(), 0)
        # What is pulled lies at the limit, on the side that it is pulled from.
        self.assertLess(abs((after - limit * numpy.sign(pulls))[pulls != 0]).max(), 0.01)

    def test_tables_are_read_as_they_were_written_the_largest_terms_first(self):
        with tempfile.TemporaryDirectory() as folder:
            series.write_model(folder, self.model)
            again = series.read_model(folder)
        for table in again.tables.values():
            has_constant = not table.multiples[0].any()
            self.assertLessEqual(numpy.diff(series.sizes(table)[has_constant:]).max(), 0)
        jd = self.places.jd
        for name, written in vars(series.positions(self.model, jd)).items():
            read = getattr(series.positions(again, jd), name)
            limit = 1e-5 if name == "moon_distance" else 2e-8
            self.assertLess(abs(read - written).max(), limit, name)


if __name__ == "__main__":
    unittest.main(verbosity=2)
