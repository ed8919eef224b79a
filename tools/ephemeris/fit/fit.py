#!/usr/bin/python3
"""Fits the series of Moon and Sun to sampled places; the README has the method.

usage: fit.py PLACES TERMS START OUTPUT

PLACES is a file of the sampler, TERMS a folder whose CSV files say which terms there are and which
of their amplitudes are not zero, START the polynomials to begin with, OUTPUT a folder for the
tables.
"""
import sys

import numpy

import series

ANGLE_STEPS = 4
PLACES_FOR_STEPS = 100_000
# Of an amplitude's place on the diagonal of the normal equations: keeps lines of nearly one
# frequency, and slow ones and the polynomials, from growing against each other.
RIDGE = 1e-9

# The polynomials that are fitted along with a table, and the powers of T that each has.
ALL = range(series.DEGREE + 1)
# In this order: a table's polynomials stand in those after it.
FITTED = {
    "sun_longitude": {"Ls": ALL, "lp": ALL, "e": range(1, series.DEGREE)},
    "sun_latitude": {"P": range(series.DEGREE), "Q": range(series.DEGREE)},
    "moon_longitude": {"L": ALL, "D": ALL, "l": ALL},
    "moon_latitude": {"F": ALL},
    "sun_distance": {},
    "moon_distance": {},
}


def derivatives(name, polynomial_names, model, epochs, sines, cosines, places):
    """Those of a table's target by its polynomials: name -> a number for each epoch, by radian (e:
    by its unit; P and Q: by arcsecond)."""
    table = model.tables[name]
    of_sines, of_cosines = epochs.amplitudes(table)
    rates = of_sines * cosines - of_cosines * sines
    found = {}
    for polynomial in polynomial_names:
        if polynomial in series.ANGLES:
            found[polynomial] = table.multiples[:, series.ANGLES.index(polynomial)] @ rates
        if polynomial == series.MEANS.get(name):
            found[polynomial] = found.get(polynomial, numpy.zeros_like(epochs.t)) + series.ARCSECONDS
        if polynomial == "e":
            powers = numpy.abs(table.multiples[:, series.ANOMALY_OF_SUN])
            found[polynomial] = powers @ (of_sines * sines + of_cosines * cosines) / epochs.e
        if polynomial in "PQ":
            place = numpy.radians(places.sun_longitude)
            found[polynomial] = numpy.sin(place) if polynomial == "P" else numpy.cos(place)
    return found


def columns(name, used, polynomials, model, places):
    """The rows of the transposed design matrix: one for each used amplitude, all s0 first, then one
    for each power of each polynomial, as a power of x."""
    epochs = series.Epochs(model.polynomials, places.jd)
    sines, cosines = epochs.waves(model.tables[name].multiples)
    rows = [(sines if kind < 3 else cosines)[used[:, kind]] * epochs.x ** (kind % 3)
            for kind in range(6)]
    found = derivatives(name, polynomials, model, epochs, sines, cosines, places)
    for polynomial, powers in polynomials.items():
        rows.append(found[polynomial] * epochs.x ** numpy.array(powers)[:, None])
    return numpy.vstack(rows)


def normal_equations(name, used, polynomials, model, places):
    """Summed in chunks of epochs, so that no more than one chunk's columns are held."""
    count = used.sum() + sum(map(len, polynomials.values()))
    matrix, right = numpy.zeros((count, count)), numpy.zeros(count)
    for part in series.chunks(len(places.jd)):
        some = places.part(part)
        rows = columns(name, used, polynomials, model, some)
        matrix += rows @ rows.T
        # The amplitudes are solved for in whole, the polynomials for what is to be added to them.
        right += rows @ series.target(name, model.polynomials, some)
    return matrix, right


def scaled(matrix, amplitudes):
    """The normal equations with a diagonal of ones and the ridge, and what each unknown is to be
    divided by then. The first of the unknowns are amplitudes."""
    scale = numpy.sqrt(matrix.diagonal())
    matrix = matrix / scale / scale[:, None]
    matrix[numpy.diag_indices(amplitudes)] += RIDGE
    return matrix, scale


def solve(matrix, right, amplitudes):
    matrix, scale = scaled(matrix, amplitudes)
    return numpy.linalg.solve(matrix, right / scale) / scale


def unit(polynomial):
    """Of a polynomial's coefficients in the files, of what the equations are solved in."""
    return 1.0 if polynomial in ("e", "P", "Q") else numpy.degrees(1)


def fit_table(name, used, polynomials, model, places):
    """One Gauss-Newton step: sets the amplitudes of a table and betters its polynomials."""
    solution = solve(*normal_equations(name, used, polynomials, model, places), used.sum())
    table = model.tables[name]
    amplitudes = numpy.zeros((6, len(table.multiples)))
    amplitudes[used.T] = solution[:used.sum()]
    table.amplitudes = amplitudes.T
    first = used.sum()
    for polynomial, powers in polynomials.items():
        for power, change in zip(powers, solution[first:]):
            old = model.polynomials[polynomial]
            old[power] += change * unit(polynomial) / series.LONG ** power
        first += len(powers)


def fit_angles(used, model, places):
    """The polynomials, by steps through the tables; the first amplitudes are found without them."""
    for name, polynomials in FITTED.items():
        only_mean = {mean: ALL for mean in [series.MEANS.get(name)] if mean}
        fit_table(name, used[name], only_mean, model, places)
    for step in range(ANGLE_STEPS):
        before = {name: old.copy() for name, old in model.polynomials.items()}
        for name, polynomials in FITTED.items():
            fit_table(name, used[name], polynomials, model, places)
        tell_change(step, before, model.polynomials)


def tell_change(step, before, after):
    ends = (numpy.array([series.FIRST, series.LAST]) - series.J2000) / series.CENTURY
    changes = {name: abs(series.polynomial(after[name] - before[name], ends)).max()
               for name in after if any(name in fitted for fitted in FITTED.values())}
    print(f"step {step + 1}, largest change at the ends of the span:",
          ", ".join(f"{name} {change:.1e}" for name, change in changes.items()), flush=True)


def fit(model, places):
    """Sets the amplitudes that are not zero, and the fitted polynomials, of a model. Its amplitudes
    at the beginning say only which these are."""
    used = {name: table.amplitudes != 0 for name, table in model.tables.items()}
    for table in model.tables.values():
        table.amplitudes = numpy.zeros_like(table.amplitudes)
    every = max(1, len(places.jd) // PLACES_FOR_STEPS)
    fit_angles(used, model, places.part(slice(None, None, every)))
    for name, polynomials in FITTED.items():
        fit_table(name, used[name], polynomials, model, places)


def main():
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    places, terms, start, output = sys.argv[1:]
    model = series.read_model(terms, start)
    fit(model, series.read_places(places))
    series.write_model(output, model)


if __name__ == "__main__":
    main()
