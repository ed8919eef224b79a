#include "help/help_text.h"

#include <array>

namespace tarnwick {
namespace {

constexpr std::string_view kFirstSteps =
    R"(Tarnwick takes one moment and shows it at once in nine calendars and day counts, with the Moon as it stands at that moment. It finds phases of the Moon, eclipses, and days on which several calendars begin a month.

# The current moment

There is one current moment, and all that the main window shows belongs to it. Type a date into the entry box and press Enter, or click Now for the present:

    2003-12-31 CE 15:55

Nine lines show the moment: CE, JC, ARC, SD, LLT, KSG, OLW, CJD and AJD. The calendar of the white line is the current one. A click on a date makes its calendar current and copies the date to the entry box. Rest the pointer on a date to read it in words, and on what stands before it to read what it is.

The time, the dates, the facts about the Moon and the eclipse can be copied as they are shown: by "Copy" of their context menu, or by Ctrl+C when the Tab key has brought you there. "Copy all dates" copies the time and the nine dates, a line each.

After Now the moment follows the clock until you compute, move, search or recall another one.

# Time

Greenwich and local say in which time dates are read and shown; switching between them leaves the moment as it is. Local time is that of the chosen time zone. Choosing another zone keeps the local date and time and so moves the moment.

At the first start the zone is that of your computer, and Now shows the time of its clock. Choose it again when summer time changes it. A zone that would lead out of the accepted range is refused.

# Range and state

Moments from -3200-01-01 CE to 6000-01-01 CE are accepted. When you quit, the moment, the zone and your other choices are saved, and the next run begins with them. They lie in the file tnwk.usr in the folder "Ostrel Systems" of %APPDATA% on Windows, of ~/.config elsewhere.

# Saving files

Whatever you save replaces an earlier file only when the new one is complete. If saving fails, a message says why, and the earlier file is still there. A write-protected file stays as it is.

# Keys

- Enter in the entry box or the box of days computes.
- Enter elsewhere presses the button that has the focus.
- Escape gives up a search, ends a repeated move and closes the small windows.
- The arrow keys, the space bar and letters open a list; Enter chooses, Escape leaves it as it was.
- F1 opens this help.
- Ctrl+S saves the state at once.
- Ctrl+P opens the log preferences.
- Alt+Left and Alt+Right lead back to what was shown before, and forward again.
- Ctrl+L opens the lunation calendar; Page Up and Page Down turn its page.
- Ctrl+Q quits, from any window.
- Alt with an underlined letter does what is written there.)";

constexpr std::string_view kEnteringDates =
    R"(An entry is a date, the abbreviation of its calendar and, if you like, a time of day:

    2003-12-31 CE 15:55

- The parts of a date are joined by dashes; leading zeros may be left out.
- Without an abbreviation the current calendar is taken.
- Without a time, noon is taken. A time is hours, a colon and minutes, from 0:00 to 23:59, and nothing more; it stands after the abbreviation. 3pm, 1530 or 15:55:30 are refused.
- A remark in brackets ends the entry and is not read. So a date on display can be pasted as it stands, with its weekday.
- Blanks, commas and the case of letters do not count.
- The line below the box says what may be typed and, after a refusal, what is wrong with the entry.

An entry that is the current moment already is not computed again; a message says that there is nothing to do.

# The nine forms

- CE and JC: year-month-day. The year 0 exists: it is 1 BCE, and -584 is 585 BCE.
    2003-12-31 CE
    -584-05-28 JC 15:00
- ARC: year-month-day.
    4708-11-11 ARC
- SD: cycle-year-month-day.
    33-31-09-11 SD
- LLT: year-month-triday-day, which means cycle 0, or with the cycle before the year.
    112-01-04-3 LLT
    0-112-01-04-3 LLT
- KSG: cycle-year-month-day, or year-month-day, which means cycle 1.
    1-105-13-11 KSG
    105-13-11 KSG
- OLW: year-month-week-day. Its day begins at 6 o'clock, and so does its time: 06:00 OLW is noon. Without a time, 12:00 OLW is taken, which is 18:00 on the clock.
    5011-09-2-3 OLW 06:00
- CJD and AJD: a number of days. The time is its fraction, so none is added. Copied by the program it stands for the whole moment, of which its four decimals show no seconds.
    2,455,901.5 CJD
    2455901 AJD

Read at GMT, all the examples from ARC on are noon of 2011-12-05 CE.

# Plus and minus days

A number in the box of days, with decimals if you like, is added to the date entered, or with minus taken from it. The sum goes to the entry box, so that Enter adds once more: 2024-02-28 CE plus 1,000 days is 2026-11-24 CE, and the next 2029-08-20 CE.)";

constexpr std::string_view kMovingAndSearching =
    R"(A move or a search begins at the current moment, or at the date that you have typed into the entry box.

# Moving

Choose a step and a direction and click Move. Steps of a minute, an hour or a day leave the current calendar alone. The others keep the time of day and make the calendar in their name current. Where the day does not exist, the last one of its month or week is taken, and the next step goes on from there; likewise with the last month of a year:

    2001-01-31 CE  ->  2001-02-28 CE  ->  2001-03-28 CE

ARC steps do not arrive in month 13: the month step goes from month 12 to month 1 of the next year, the year step forward from month 13 to month 1 of the year after the next.

With "repeatedly" the steps follow each other at the pace chosen under "seconds a step". Stop ends them. Pause interrupts them, and the pace can be changed meanwhile. A move that leaves the accepted range ends with a message.

# Searching

Choose a target, next or previous, and click Search. Dark moon is the new moon, Quarter any of the four phases. The search ends at the instant of the phase, or at greatest eclipse; the panel Eclipse then describes the eclipse. Annular-total eclipses count as total and as annular. The next total solar eclipse after 1999-08-01 CE is

    1999-08-11 CE 11:03 (GMT)

"Eclipse in same saros series" needs an eclipse on display: find one first. From this one, the next is that of 2017-08-21 CE. Where the series ends, or going back begins, a notice says so and names the series of the eclipse found instead.

The times in the description are those of the eclipse itself, read as Greenwich or local time like the others. A typed date, a move and another zone take the description away.

"Coincidence of 1sts of month" finds a day on which SD, ARC, LLT and KSG begin a month together, such as 2000-04-04 CE. Escape gives a search up.

# History and Reset

History holds the last eight results; choose one to return to it. This sets the time zone to GMT. If a local entry names another zone, such as (local = GMT-03:30), choose that zone again to be back at its moment; entries in Greenwich time or AJD do not need it.

The buttons < and > beside the history, or Alt+Left and Alt+Right, lead back to whatever was shown before and forward again, up to a hundred results, each with its exact moment, calendar, time system, zone and eclipse. They write neither history nor log.

Reset sets calendar, time system, directions, step, pace and target to their defaults, ends logging and goes to the present. The time zone stays.)";

constexpr std::string_view kTheLog =
    R"(The log is plain text that takes what you find.

Check "Log all results" to log every result as it comes. Otherwise "Log this result" logs the last one, once, as it was shown when it was found. A result that repeats the newest of the history is not logged again. "View log" opens the log.

# Entries

An entry says what was done, the result, the same moment in the other calendars, the state of the Moon and, where there is one, the description of the eclipse. "Set log preferences" chooses the calendars, the two texts of the Moon and one of two layouts. With JC, SD, KSG and the phase included, the layout "calendar=date" gives

    Convert date
    2003-12-31 CE 15:55 (local = GMT)
    JC=2003-12-18  SD=33-23-10-09  KSG=1-98-06-08
    Gibbous moon (waxing), illum. =  62.0%.

and the layout "date calendar,"

    Convert date
    2003-12-31 CE 15:55 (local = GMT)
    2003-12-18 JC (Wednesday, 33-23-10-09 SD, 1-98-06-08 KSG
    Gibbous moon (waxing), illum. =  62.0%.

In the second layout CE and JC dates carry their weekday, in a parenthesis that is left open. The current calendar is left out of the third line, since the result is given in it. If you have opened the preferences, Reset asks whether to reset them too.

# The log window

You may edit the text. "Copy to clipboard" copies all of it, or what you have selected. "Save as ..." writes it to a text file. "Clear log" asks, and then erases everything.

- Close and Escape put the window away and keep the log.
- The close box of the window's frame ends the log; the next result begins a new one.

The log takes a million characters; when it is full, the program asks whether to clear it. The result that found it full then begins the new log. If you do not clear it, that result waits for "Log this result".

# What is kept

A log that ends, by that close box or because you quit, is not lost: what you have not saved since it last changed is added to the file tnwk-log.txt, under a line with the date and time. The file lies in the folder of the saved state, "Ostrel Systems" of %APPDATA% on Windows, of ~/.config elsewhere; after the close box a notice names it. It only grows: edit or delete it as you like.

What you have cleared is not kept. If the file cannot be written, the close box leaves the log open, so that you can save it elsewhere; when you quit, a message says so, and the log is lost.)";

constexpr std::string_view kLunationCalendar =
    R"(The button "Lunation calendar" opens a window with one lunation, from the day of a new moon to the day before the next. It opens at the lunation of the current moment. The list beside the button chooses the calendar in which the days are named: ARC, SD, KSG or LLT.

# The page

Four rows, the lunar weeks, have seven columns from Mon to Sun and an eighth, Lunaday. Days 15 and 30 of the lunation stand under Lunaday, at the end of the second and the fourth row; a lunation of 29 days has only the first of the two.

The headings count the days of the lunation: Mon is the first day of a lunar week. They are not the weekdays of the civil week, which fall otherwise. The days begin at midnight of the chosen time system.

Each day shows:

- a picture of the Moon as it looks, on average, on that day of a lunation
- the date in the chosen calendar, and the CE date
- the principal phase and the eclipse that fall on it

The day of the current moment stands out. Rest the pointer on a day to read its dates in full and the times of its events.

The title names the lunation by its number and by the month to which most of its days belong, for example Lunation 332 (Sophia 4723). Lunation 0 began on 2000-01-06 CE; those before it have negative numbers. The line below the title names every year and month on the page.

# What you can do

- A click on a day makes its noon the current moment.
- "Show previous lunation" and "Show next lunation" turn the page, from lunation -64316 to lunation 49472.
- "Save as PNG image" writes the page to a picture file.
- Close and Escape put the window away.

A change of the time system, the time zone or the calendar in the list is shown at once.)";

constexpr std::string_view kTheNineCalendars =
    R"(Two of the nine follow the Sun, three the Sun and the Moon, two the Moon alone, and two count days.

# CE, Common Era

The Gregorian calendar, extended to all years, in the order of ISO 8601. Year 0 exists; it is 1 BCE.

# JC, Julian Calendar

The calendar of Julius Caesar, likewise extended: every fourth year is a leap year. 2000-01-01 CE is 1999-12-19 JC.

# ARC, Archetypes Calendar

Lunisolar, by arithmetic. Years have 12 or 13 months and begin between late January and the end of February; 1803 years hold 22300 months and 658532 days. Months are named from Apollo to Persephone, days by decades from Sun Day to Pluto Day. The epoch, 442-01-01 ARC, is -2255-02-05 CE.

# SD, Sarvik-Dolmer Solilunar Calendar

Lunisolar, by arithmetic. Years have 12 or 13 months and begin with the new moon nearest to the March equinox; 6840 years hold 84599 months and 2498258 days. Sixty years make a cycle. Cycle times 60 plus year is the CE year in which the year begins: 33-46-01-01 SD is 2026-03-18 CE.

# LLT, Lunar Liberalia Triday Calendar

Lunar, by arithmetic. Twelve months of nine or ten tridays of three days make a year of 354 or 357 days, 384 years of 136077 days a cycle. The epoch, 001-01-01-1 LLT, is 1904-03-17 CE, the feast of Liberalia and a new moon.

# KSG, Kestrin-Sarvik Goddess Calendar

Lunar, by arithmetic. Thirteen months make a year of 384 days, or 383, and 470 years of 180432 days a cycle. The epoch, 1-1-01-01 KSG, is 1901-08-14 CE.

# OLW, Ostrel Lunar Week Calendar

Lunisolar, by the true Moon. A month begins on the day after new moon; its four weeks of six to nine days end on the days of first quarter, full moon, last quarter and new moon. A year begins with the new moon nearest to the March equinox of the CE year 3000 less. Days begin at 6 o'clock.

# CJD, chronological Julian date

Days and fractions from midnight in the chosen time system: 2,451,544.5 AJD is 2,451,545 CJD at GMT.

# AJD, astronomical Julian date

Days and fractions from noon at Greenwich, whatever the zone. 2,451,545 AJD is noon of 2000-01-01 CE.)";

constexpr std::string_view kAccuracyAndSources =
    R"(# What is computed

The phases are the instants at which the apparent longitudes of Moon and Sun, seen from the Earth's centre, differ by 0, 90, 180 and 270 degrees; longitudes, latitudes and distances come from series fitted to the ephemeris JPL DE431. Eclipses are computed from them: lunar ones with Danjon's shadow, solar ones by Bessel's method.

# How exactly

Compared with samples computed from DE431 by other software, from -3200 to 6000, the largest errors are:

- 0.69 seconds in a phase (2000 phases)
- 0.66 seconds in greatest solar eclipse (1199 eclipses)
- 0.77 seconds in greatest lunar eclipse (1215 eclipses)
- 0.043 minutes in half the duration of a phase of a lunar eclipse

The types and saros numbers agree in all of these eclipses. The figures hold in Terrestrial Time. The program shows times in minutes and drops the seconds; in lunar eclipses it takes the phases to lie evenly about the greatest.

The illuminated part of the Moon comes from the positions of Moon and Sun from 1600 to 2099, and before and after from the phases.

# Delta T

Dates are in Universal Time, which follows the rotation of the Earth. Delta T, Terrestrial Time less Universal Time, comes from observations and, before and after them, from an extrapolation. In the far past and future it is the largest uncertainty of a date. Estimates of its standard error:

    -3200    34 minutes
    -1000    11 minutes
        0     4 minutes
     1000    55 seconds
     1900     0.1 seconds
     3000     2 minutes
     6000    23 minutes

# Exact range

Accepted moments run from Greenwich noon of -3201-12-31 CE (AJD 552,283) to that of 6000-01-01 CE (AJD 3,912,515). A move or a search can end beyond; results far outside mean nothing.

# Sources

The ephemeris is by Folkner and others (2014), delta T by Stephenson, Morrison and Hohenkerk (2016) with values observed since. The credits name all the sources.)";

constexpr std::string_view kCredits =
    R"(Tarnwick 18.0

# Licence

MIT License

Copyright (c) 2026 The Tarnwick developers

Permission is hereby granted, free of charge, to any person obtaining a copy of this software and associated documentation files (the "Software"), to deal in the Software without restriction, including without limitation the rights to use, copy, modify, merge, publish, distribute, sublicense, and/or sell copies of the Software, and to permit persons to whom the Software is furnished to do so, subject to the following conditions:

The above copyright notice and this permission notice shall be included in all copies or substantial portions of the Software.

THE SOFTWARE IS PROVIDED "AS IS", WITHOUT WARRANTY OF ANY KIND, EXPRESS OR IMPLIED, INCLUDING BUT NOT LIMITED TO THE WARRANTIES OF MERCHANTABILITY, FITNESS FOR A PARTICULAR PURPOSE AND NONINFRINGEMENT. IN NO EVENT SHALL THE AUTHORS OR COPYRIGHT HOLDERS BE LIABLE FOR ANY CLAIM, DAMAGES OR OTHER LIABILITY, WHETHER IN AN ACTION OF CONTRACT, TORT OR OTHERWISE, ARISING FROM, OUT OF OR IN CONNECTION WITH THE SOFTWARE OR THE USE OR OTHER DEALINGS IN THE SOFTWARE.

# Libraries

The windows are made with Qt 6, copyright The Qt Company Ltd. and other contributors, which is used under the GNU Lesser General Public License, version 3.

# Sources of the astronomy

- Moon and Sun: JPL DE431. Folkner et al., The Planetary and Lunar Ephemerides DE430 and DE431, IPN Progress Report 42-196 (2014).
- Delta T: Stephenson, Morrison, Hohenkerk, Measurement of the Earth's rotation: 720 BC to AD 2015, Proc. R. Soc. A 472 (2016). Its uncertainty: Morrison, Stephenson, Historical values of the Earth's clock error, Journal for the History of Astronomy 35 (2004).
- Phases and eclipses: Explanatory Supplement to the Astronomical Almanac, 3rd ed., ch. 11. Meeus, Elements of Solar Eclipses 1951-2200, and Astronomical Algorithms, 2nd ed., ch. 49 and 54.
- Lunar eclipses: Danjon, Les éclipses de Lune par la pénombre en 1951, L'Astronomie 65 (1951).
- Obliquity of the ecliptic: Laskar, Secular terms of classical planetary theories, Astronomy and Astrophysics 157 (1986).
- Saros numbers: van den Bergh, Periodicity and Variation of Solar (and Lunar) Eclipses (1955).
- Reference data for the tests of phases and eclipses: samples computed from JPL DE431 by other software.)";

constexpr std::array kPages{
    HelpPage{"First steps", kFirstSteps},
    HelpPage{"Entering dates", kEnteringDates},
    HelpPage{"Moving and searching", kMovingAndSearching},
    HelpPage{"The log", kTheLog},
    HelpPage{"The lunation calendar", kLunationCalendar},
    HelpPage{"The nine calendars", kTheNineCalendars},
    HelpPage{"Accuracy and sources", kAccuracyAndSources},
};

}  // namespace

std::span<const HelpPage> HelpPages() { return kPages; }

std::string_view CreditsText() { return kCredits; }

}  // namespace tarnwick
