#!/usr/bin/python3
"""Compares two small lists of phases and eclipses as tools/ephemeris/fit/check.sh does whole ones.

usage: event_check_test.py
"""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "tools" / "ephemeris" / "fit"))
sys.dont_write_bytecode = True

import check_events

# Of January and February 2000, with a total eclipse of the Moon and a partial one of the Sun.
EVENTS = """\
0,0,2451550.259836000,0.000001,0,0,0,0,0,0,0,0,0
0,1,2451558.066053000,0.000002,0,0,0,0,0,0,0,0,0
0,2,2451564.695199000,0.000000,10,124,2451564.697200000,-0.2957,1.3246,2.3064,160.9,101.7,38.5
0,3,2451571.832152000,-0.000001,0,0,0,0,0,0,0,0,0
1,0,2451580.044505000,0.000001,1,150,2451580.034900000,-1.2233,0.5795,0,0,0,0
""".splitlines()
TOTAL, PARTIAL_SOLAR = 2, 4  # their rows
LATE = 1.001 * check_events.PROMISED / check_events.SECONDS


def events(*changes, rows=EVENTS):
    """The list, with the numbers that are told as (column, row, what is added)."""
    read = check_events.read_events(rows)
    for column, row, added in changes:
        read[column][row] += added
    return read


class EventCheck(unittest.TestCase):
    def test_faults_are_found(self):
        without_last, without_second = EVENTS[:-1], EVENTS[:1] + EVENTS[2:]
        for name, series, de431, fault in (
                ("none", events(), events(), None),
                ("no eclipse", events(("type", TOTAL, -10)), events(), "in one list only: 1."),
                ("one more", events(("type", 1, 1)), events(), "in one list only: 1."),
                ("late", events(("instant", 3, LATE)), events(), "0.5 s or more: 1."),
                ("early", events(("instant", 3, -LATE)), events(), "0.5 s or more: 1."),
                ("saros", events(("saros", PARTIAL_SOLAR, 1)), events(), "Saros"),
                ("search", events(), events(("left", 0, -0.02)), "stopped too early"),
                ("fewer", events(rows=without_last), events(), "not hold the same phases"),
                ("gap", events(rows=without_second), events(rows=without_second), "in both lists")):
            with self.subTest(name):
                found = check_events.faults(series, de431)
                self.assertEqual(len(found), 0 if fault is None else 1, found)
                self.assertIn(fault or "", " ".join(found))
                report = "\n".join(check_events.report(series, de431))
                self.assertEqual("**Fault:**" in report, fault is not None)

    def test_other_type_is_told_with_what_both_lists_say(self):
        other = events(("type", TOTAL, -1), ("magnitude", TOTAL, -0.325))
        rows = list(check_events.differing_rows(other, events()))
        self.assertEqual([row[2:4] + row[6:7] for row in rows],
                         [("series", "partial lunar", "0.999600"),
                          ("DE431", "total lunar", "1.324600")])
        self.assertEqual(check_events.faults(other, events()), [])

    def test_errors_are_told_in_seconds_and_by_kind(self):
        changed = events(("instant", 1, 0.35 / 86400), ("greatest", PARTIAL_SOLAR, -0.3 / 86400))
        phases = {row[0]: row[1:] for row in check_events.phase_rows(changed, events())}
        self.assertEqual(phases["all"], (5, "0.350", "0.1565", 1, 0))
        self.assertEqual(phases["first quarter"], (1, "0.350", "0.3500", 1, 0))
        self.assertEqual(phases["new moon"], (2, "0.000", "0.0000", 0, 0))
        eclipses = {row[0]: row[1:] for row in check_events.error_rows(changed, events())}
        self.assertEqual(eclipses["greatest, solar"], ("s", 1, "-0.300", "0.300", "0.300"))
        self.assertEqual(eclipses["greatest, lunar"], ("s", 1, "0.000", "0.000", "0.000"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
