"""The series of Moon and Sun: their tables, their values, and what they must give at sampled
places.

A model is polynomials (name -> coefficients of T^0 to T^8) and tables (name -> Table). T counts
Julian centuries of TT from J2000 and x = T / 50. The README has the formulas.
"""
import csv
import dataclasses
import pathlib

import numpy

ANGLES = ["D", "lp", "l", "F", "L", "Me", "V", "E", "M", "J", "S", "U", "N"]
ANOMALY_OF_SUN = ANGLES.index("lp")
MEANS = {"moon_longitude": "L", "sun_longitude": "Ls"}
DECIMALS = {"moon_longitude": 4, "moon_latitude": 4, "moon_distance": 3,
            "sun_longitude": 4, "sun_latitude": 4, "sun_distance": 0}
TABLES = list(DECIMALS)
DEGREE = 8
ARCSECONDS = numpy.degrees(1) * 3600  # of a radian
J2000, CENTURY, LONG = 2451545.0, 36525.0, 50.0
FIRST, LAST = 550000.0, 3914990.0
CHUNK = 4096  # epochs at a time: 50 MB for the columns of the largest table


@dataclasses.dataclass
class Table:
    multiples: numpy.ndarray  # a row of thirteen integers for each term
    amplitudes: numpy.ndarray  # s0, s1, s2, c0, c1, c2 of each term


@dataclasses.dataclass
class Model:
    polynomials: dict
    tables: dict


@dataclasses.dataclass
class Places:
    """Degrees, km and au, at Julian dates (TT)."""
    jd: numpy.ndarray
    moon_longitude: numpy.ndarray
    moon_latitude: numpy.ndarray
    moon_distance: numpy.ndarray
    sun_longitude: numpy.ndarray
    sun_latitude: numpy.ndarray
    sun_distance: numpy.ndarray

    def part(self, index):
        return Places(*(getattr(self, field.name)[index] for field in dataclasses.fields(self)))


def read_places(path):
    return Places(*numpy.fromfile(path).reshape(-1, 7).T.copy())


def read_rows(path):
    with open(path, newline="") as file:
        return list(csv.reader(file))[1:]


def read_model(folder, polynomials=None):
    """From the CSV files of a folder; the polynomials from another file where one is named."""
    folder = pathlib.Path(folder)
    rows = read_rows(polynomials or folder / "arguments.csv")
    read = {row[0]: numpy.array(row[1:], float) for row in rows}
    tables = {}
    for name in TABLES:
        rows = numpy.array(read_rows(folder / f"{name}.csv"), float)
        tables[name] = Table(rows[:, :len(ANGLES)].astype(int), rows[:, len(ANGLES):])
    return Model(read, tables)


def trimmed(number, decimals):
    text = f"{number:.{decimals}f}"
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def write_table(path, table, decimals):
    with open(path, "w", newline="") as file:
        writer = csv.writer(file, lineterminator="\n")
        writer.writerow(ANGLES + ["s0", "s1", "s2", "c0", "c1", "c2"])
        for multiples, amplitudes in zip(table.multiples, table.amplitudes):
            writer.writerow([*multiples, *(trimmed(a, decimals) for a in amplitudes)])


def write_polynomials(path, polynomials):
    with open(path, "w", newline="") as file:
        writer = csv.writer(file, lineterminator="\n")
        writer.writerow(["name"] + [f"c{power}" for power in range(DEGREE + 1)])
        for name, coefficients in polynomials.items():
            # To 1e-9 degrees at the ends of the span.
            head = [f"{c:.16g}" for c in coefficients[:2]]
            writer.writerow([name, *head, *(f"{c:.10g}" for c in coefficients[2:])])


def write_model(folder, model):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    write_polynomials(folder / "arguments.csv", model.polynomials)
    for name in TABLES:
        write_table(folder / f"{name}.csv", in_order(model.tables[name]), DECIMALS[name])


def polynomial(coefficients, t):
    value = numpy.zeros_like(t)
    for coefficient in coefficients[::-1]:
        value = value * t + coefficient
    return value


class Epochs:
    """What every table needs of the angles at some epochs."""

    def __init__(self, polynomials, jd):
        self.t = (jd - J2000) / CENTURY
        self.x = self.t / LONG
        degrees = [polynomial(polynomials[name], self.t) for name in ANGLES]
        self.angles = numpy.radians(numpy.mod(degrees, 360.0))
        self.e = polynomial(polynomials["e"], self.t)

    def waves(self, multiples):
        """Sine and cosine of theta, times e to the power of |k| of l': a row a term."""
        theta = multiples @ self.angles
        powers = numpy.abs(multiples[:, ANOMALY_OF_SUN])
        factors = self.e ** numpy.arange(powers.max(initial=0) + 1)[:, None]
        return numpy.sin(theta) * factors[powers], numpy.cos(theta) * factors[powers]

    def amplitudes(self, table):
        """Those of the sines and of the cosines at the epochs: a row a term."""
        powers = self.x ** numpy.arange(3)[:, None]
        return table.amplitudes[:, :3] @ powers, table.amplitudes[:, 3:] @ powers

    def terms(self, table):
        sines, cosines = self.waves(table.multiples)
        of_sines, of_cosines = self.amplitudes(table)
        return sines * of_sines + cosines * of_cosines


def sizes(table):
    """Root mean square of each term over the span, for even thetas and e = 1."""
    x = (numpy.linspace(FIRST, LAST, 1001) - J2000) / CENTURY / LONG
    powers = x ** numpy.arange(3)[:, None]
    squares = (table.amplitudes[:, :3] @ powers) ** 2 + (table.amplitudes[:, 3:] @ powers) ** 2
    return numpy.sqrt(squares.mean(axis=1) / 2)


def in_order(table):
    """The constant first, then by size, so that the first rows make the best shorter table."""
    is_constant = ~table.multiples.any(axis=1)
    order = numpy.lexsort((-sizes(table), ~is_constant))
    return Table(table.multiples[order], table.amplitudes[order])


def chunks(count):
    return [slice(first, min(first + CHUNK, count)) for first in range(0, count, CHUNK)]


def turned(degrees):
    """To -180 to 180 degrees."""
    return numpy.mod(degrees + 180.0, 360.0) - 180.0


def positions(model, jd):
    """Places by the series; longitudes from 0 to 360 degrees."""
    parts = [positions_at_once(model, jd[part]) for part in chunks(len(jd))]
    return Places(*map(numpy.concatenate, zip(*parts)))


def positions_at_once(model, jd):
    epochs = Epochs(model.polynomials, jd)
    sums = {name: epochs.terms(model.tables[name]).sum(axis=0) for name in TABLES}
    p, q = (polynomial(model.polynomials[name], epochs.t) for name in "PQ")
    a = polynomial(model.polynomials["L"], epochs.t) + sums["moon_longitude"] / 3600
    across, along = tilt(p, q, a)
    moon_longitude = a - numpy.tan(sums["moon_latitude"] / ARCSECONDS) * across / 3600
    moon_latitude = (sums["moon_latitude"] + along) / 3600
    sun_longitude = polynomial(model.polynomials["Ls"], epochs.t) + sums["sun_longitude"] / 3600
    sun_latitude = (sums["sun_latitude"] + tilt(p, q, sun_longitude)[1]) / 3600
    return (jd, numpy.mod(moon_longitude, 360.0), moon_latitude, sums["moon_distance"],
            numpy.mod(sun_longitude, 360.0), sun_latitude, sums["sun_distance"] * 1e-8)


def tilt(p, q, longitude):
    """What P and Q do at a longitude in degrees: to the longitude, per tangent of the latitude, and
    to the latitude; in arcseconds."""
    sine, cosine = numpy.sin(numpy.radians(longitude)), numpy.cos(numpy.radians(longitude))
    return p * cosine - q * sine, p * sine + q * cosine


def target(name, polynomials, places):
    """What a table must give at the places."""
    t = (places.jd - J2000) / CENTURY
    if name == "moon_distance":
        return places.moon_distance
    if name == "sun_distance":
        return places.sun_distance * 1e8
    if name == "sun_longitude":
        return 3600 * turned(places.sun_longitude - polynomial(polynomials["Ls"], t))
    p, q = (polynomial(polynomials[tilting], t) for tilting in "PQ")
    if name == "sun_latitude":
        return places.sun_latitude * 3600 - tilt(p, q, places.sun_longitude)[1]
    a, b = in_frame_of_series(p, q, places)
    if name == "moon_latitude":
        return b
    return 3600 * turned(a - polynomial(polynomials["L"], t))


def in_frame_of_series(p, q, places):
    """The Moon's longitude (degrees) and latitude (arcseconds) before P and Q. They shift it by 7"
    at most, so the second turn is exact to 1e-8 arcseconds."""
    a, b = places.moon_longitude, places.moon_latitude * 3600
    for _ in range(2):
        across, along = tilt(p, q, a)
        b = places.moon_latitude * 3600 - along
        a = places.moon_longitude + numpy.tan(b / ARCSECONDS) * across / 3600
    return a, b
