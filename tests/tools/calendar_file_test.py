#!/usr/bin/python3
"""Reads calendar files of tarnwick_tables back with a reader that is not ours: the module icalendar.

usage: calendar_file_test.py TARNWICK_TABLES
"""
import csv
import datetime
import subprocess
import sys
import unittest

import icalendar

PLACE = ["32.54", "44.42"]
EPOCH = datetime.datetime(2000, 1, 1, 12, tzinfo=datetime.timezone.utc)  # AJD 2451545
TOOL = ""


def run(command, period, *options, place=()):
    return subprocess.run(
        [TOOL, command, *options, *place, *period], capture_output=True, check=True, timeout=60)


def rows(command, period, place=()):
    text = run(command, period, place=place).stdout.decode()
    return list(csv.DictReader(text.splitlines()))


def events(command, period, place=()):
    data = run(command, period, "--ics", place=place).stdout
    assert data.count(b"\n") == data.count(b"\r\n"), "every line ends with CR LF"
    assert all(len(line) <= 75 for line in data.split(b"\r\n")), "no line is longer than 75 octets"
    calendar = icalendar.Calendar.from_ical(data)
    assert calendar["VERSION"] == "2.0" and calendar["CALSCALE"] == "GREGORIAN"
    assert calendar["PRODID"].startswith("-//Tarnwick//")
    assert not calendar.errors
    found = calendar.walk("VEVENT")
    assert len(found) == len({event["UID"] for event in found}), "no identifier stands twice"
    for event in found:
        assert not event.errors and event["TRANSP"] == "TRANSPARENT" and "DTEND" not in event
        assert abs(datetime.datetime.now(datetime.timezone.utc) - event["DTSTAMP"].dt) < \
            datetime.timedelta(minutes=2)
    return found


class CalendarFiles(unittest.TestCase):
    def check_instants(self, found, ajds):
        self.assertEqual(len(found), len(ajds))
        for event, ajd in zip(found, ajds):
            instant = EPOCH + datetime.timedelta(days=float(ajd) - 2451545)
            self.assertLess(abs(event["DTSTART"].dt - instant), datetime.timedelta(seconds=0.51))

    def test_phases(self):
        for period in (["2024", "2026"], ["1", "3"], ["1581", "1584"], ["5998", "6001"]):
            found = events("phases", period)
            table = rows("phases", period)
            self.check_instants(found, [row["ut"] for row in table])
            names = ["New moon", "First quarter", "Full moon", "Last quarter"]
            self.assertEqual(
                [str(event["SUMMARY"]) for event in found],
                [names[int(row["phase"])] for row in table])

    def test_old_days_have_their_julian_date(self):
        for event in events("phases", ["1582", "1583"]):
            old = event["DTSTART"].dt.date() < datetime.date(1582, 10, 15)
            self.assertEqual("\nJulian calendar: 158" in event["DESCRIPTION"], old)

    def test_eclipses(self):
        for period in (["2000", "2020"], ["1500", "1520"]):
            found = events("eclipses", period)
            self.check_instants(found, [row["ut"] for row in rows("eclipses", period)])

    def test_eclipses_of_a_place(self):
        found = events("local", ["2000", "2020"], PLACE)
        table = rows("local", ["2000", "2020"], PLACE)
        self.check_instants(found, [row["seen_at"] for row in table])
        for event, row in zip(found, table):
            self.assertIn(f"seen as {row['seen']} at 32.54 N 44.42 E", event["SUMMARY"])
            self.assertIn("\n32.54 N 44.42 E\nSeen here as " + row["seen"], event["DESCRIPTION"])
            self.assertIn("° ", event["DESCRIPTION"])

    def test_crescents(self):
        found = {event["UID"].split("-")[1]: event for event in events(
            "crescents", ["2000", "2010"], PLACE)}
        evenings = {}
        for row in rows("crescents", ["2000", "2010"], PLACE):
            if int(row["evening"]) > 0 and row["class"] in ("A", "B"):
                evenings.setdefault(row["lunation"], row)
        self.assertGreater(len(evenings), 120)
        self.assertEqual(found.keys(), evenings.keys())
        for lunation, row in evenings.items():
            sunset = EPOCH + datetime.timedelta(
                days=float(row["sunset"]) - 2451545 + float(PLACE[1]) / 360)
            event = found[lunation]
            self.assertEqual(event["DTSTART"].dt, sunset.date())  # a whole day
            self.assertEqual(
                event["SUMMARY"], f"First crescent at 32.54 N 44.42 E ({row['class']})")

    def test_what_is_left_out_is_told(self):
        period = ["-1", "2"]
        done = run("phases", period, "--ics")
        found = icalendar.Calendar.from_ical(done.stdout).walk("VEVENT")
        left_out = len(rows("phases", period)) - len(found)
        self.assertGreater(left_out, 90)
        self.assertIn(f": {left_out} events\n", done.stderr.decode())


if __name__ == "__main__":
    TOOL = sys.argv.pop()
    unittest.main()
