#!/usr/bin/python3
"""Chooses the terms that the program takes, and fits them for phases; the README has the method.

usage: choose.py PLACES PHASES TABLES OUTPUT

PLACES and PHASES are files of the sampler, TABLES a folder of fitted tables with more terms than
are wanted, OUTPUT one for the tables with those that are left.
"""
import sys

import numpy

import fit
import series

LONGITUDES = ["moon_longitude", "sun_longitude"]
# How many terms stay; the longitudes share theirs.
WANTED = [(LONGITUDES, 782), (["moon_latitude"], 247), (["moon_distance"], 221),
          (["sun_latitude"], 12), (["sun_distance"], 37)]
SIGNS = {"moon_longitude": 1, "sun_longitude": -1}  # in the elongation
MEAN_RATE = 0.508  # of the elongation, arcseconds a second of time
WEIGHT_OF_PHASES = 0.4  # of all of them, where all places have 1
LIMIT, CLOSE = 0.49, 1e-4  # seconds: no phase is to be more in error, and how exactly that is held
NEAR = 0.6  # of the limit: what may come to lie above it
SWEEPS = 1000


class Problem:
    """Least squares for the amplitudes of some tables at once: for those that are not zero."""

    def __init__(self, names, model):
        self.model = model
        self.used = {name: model.tables[name].amplitudes != 0 for name in names}
        count = sum(used.sum() for used in self.used.values())
        self.matrix, self.right = numpy.zeros((count, count)), numpy.zeros(count)

    def rows(self, name, places):
        return fit.columns(name, self.used[name], {}, self.model, places)

    def target(self, name, places):
        return series.target(name, self.model.polynomials, places)

    def columns(self):
        """The place of each table's amplitudes among the unknowns."""
        first = 0
        for name, used in self.used.items():
            yield name, slice(first, first + used.sum())
            first += used.sum()

    def terms(self):
        """(table, place in it) of the term that each unknown belongs to, as fit.columns has them."""
        return [(name, term) for name, used in self.used.items()
                for term in numpy.tile(numpy.arange(len(used)), 6)[used.T.ravel()]]

    def add_places(self, places):
        """Each table is to give its target."""
        for part in series.chunks(len(places.jd)):
            some = places.part(part)
            for name, columns in self.columns():
                rows = self.rows(name, some)
                self.matrix[columns, columns] += rows @ rows.T
                self.right[columns] += rows @ self.target(name, some)

    def elongation(self, phases):
        """What the Moon's longitude less the Sun's is to give, and its rows."""
        rows = [sign * self.rows(name, phases) for name, sign in SIGNS.items()]
        return numpy.vstack(rows), sum(sign * self.target(name, phases)
                                       for name, sign in SIGNS.items())

    def add_phases(self, phases, rates, weight):
        """The instants of phases are to be right. Rates are the elongation's, arcseconds a second."""
        for part in series.chunks(len(phases.jd)):
            rows, values = self.elongation(phases.part(part))
            scale = numpy.sqrt(weight) * MEAN_RATE / rates[part]
            rows *= scale
            self.matrix += rows @ rows.T
            self.right += rows @ (values * scale)

    def errors(self, phases, rates, solution):
        """Of the instants of phases, in seconds."""
        parts = []
        for part in series.chunks(len(phases.jd)):
            rows, values = self.elongation(phases.part(part))
            parts.append((solution @ rows - values) / rates[part])
        return numpy.concatenate(parts)

    def solve(self):
        return fit.solve(self.matrix, self.right, len(self.right))

    def keep(self, kept):
        """Goes on with some of the terms alone."""
        columns = numpy.array([term in kept for term in self.terms()])
        self.matrix, self.right = self.matrix[numpy.ix_(columns, columns)], self.right[columns]
        for name, used in self.used.items():
            places = sorted(term for table, term in kept if table == name)
            table = self.model.tables[name]
            self.used[name] = used[places]
            self.model.tables[name] = series.Table(table.multiples[places],
                                                   table.amplitudes[places])

    def take_over(self, solution):
        """The amplitudes become the model's."""
        for name, columns in self.columns():
            amplitudes = numpy.zeros((6, len(self.used[name])))
            amplitudes[self.used[name].T] = solution[columns]
            self.model.tables[name].amplitudes = amplitudes.T


def most_useful(problem, wanted):
    """So many terms: one by one that is left out without which the sum of squares grows least."""
    matrix, scale = fit.scaled(problem.matrix, len(problem.right))
    inverse = numpy.linalg.inv(matrix)
    solution = inverse @ (problem.right / scale)
    columns = {}
    for column, term in enumerate(problem.terms()):
        columns.setdefault(term, []).append(column)

    def loss(term):
        of = columns[term]
        return solution[of] @ numpy.linalg.solve(inverse[numpy.ix_(of, of)], solution[of])

    while len(columns) > wanted:
        least = min(columns, key=loss)
        of = columns.pop(least)
        across = inverse[:, of] @ numpy.linalg.inv(inverse[numpy.ix_(of, of)])
        solution -= across @ solution[of]
        inverse -= across @ inverse[of]
    return set(columns)


def held_below(limit, errors, influence):
    """How hard each phase must be pulled so that none is in error by more than the limit, with the
    sum of squares as small as it can be then: by the method of Hildreth, who sets right one after
    the other until nothing changes any more. Influence says what a pull on one does to all."""
    pulls, errors = numpy.zeros_like(errors), errors.copy()
    for _ in range(SWEEPS):
        for i, own in enumerate(influence.diagonal()):
            free = errors[i] + own * pulls[i]
            change = (free - numpy.clip(free, -limit, limit)) / own - pulls[i]
            errors -= influence[i] * change
            pulls[i] += change
        if abs(errors).max() < limit + CLOSE:
            return pulls
    raise ArithmeticError("the phases cannot be held below the limit")


def bounded(problem, phases, rates):
    """The solution that keeps the errors of all phases within the limit."""
    matrix, scale = fit.scaled(problem.matrix, len(problem.right))
    inverse = numpy.linalg.inv(matrix)
    best = inverse @ (problem.right / scale)
    errors = problem.errors(phases, rates, best / scale)
    tell(errors)
    near = abs(errors) > NEAR * LIMIT
    rows = problem.elongation(phases.part(near))[0] / rates[near] / scale[:, None]
    moves = inverse @ rows
    solution = (best - moves @ held_below(LIMIT, errors[near], rows.T @ moves)) / scale
    tell(problem.errors(phases, rates, solution))
    return solution


def tell(errors):
    print(f"phases: largest error {abs(errors).max():.3f} s, "
          f"rms {numpy.sqrt((errors ** 2).mean()):.4f} s", flush=True)


def rates_at(model, phases):
    """Of the elongation, arcseconds a second."""
    change = 0.01
    before, after = (series.positions(model, phases.jd + side) for side in (-change, change))
    turned = series.turned((after.moon_longitude - before.moon_longitude) -
                           (after.sun_longitude - before.sun_longitude))
    return turned * 3600 / (2 * change * 86400)


def main():
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    places, phases = map(series.read_places, sys.argv[1:3])
    model = series.read_model(sys.argv[3])
    rates = rates_at(model, phases)
    for names, wanted in WANTED:
        problem = Problem(names, model)
        problem.add_places(places)
        if names == LONGITUDES:
            weight = WEIGHT_OF_PHASES * len(places.jd) / len(phases.jd)
            problem.add_phases(phases, rates, weight)
        problem.keep(most_useful(problem, wanted))
        solution = bounded(problem, phases, rates) if names == LONGITUDES else problem.solve()
        problem.take_over(solution)
        print(*(f"{name}: {len(model.tables[name].multiples)} terms" for name in names), sep="\n")
    series.write_model(sys.argv[4], model)


if __name__ == "__main__":
    main()
