#include "help/help_text.h"

#include <array>

namespace tarnwick {
namespace {

constexpr std::string_view kFirstSteps =
    R"(Tarnwick takes one moment and shows it at once in nine calendars and day counts, with the Moon as it stands at that moment. It finds phases of the Moon, eclipses, and days on which several calendars begin a month, and tells what any place on the Earth sees of the sky.

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
- Ctrl+T opens the lists.
- Ctrl+K opens the sky at a place; Page Up and Page Down lead to the previous and the next eclipse there.
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

The times in the description are those of the eclipse itself, read as Greenwich or local time like the others. A typed date, a move and another zone take the description away. Rest the pointer on that of an old eclipse to read how sure its times are.

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

The day of the current moment stands out. Rest the pointer on a day to read its dates in full and the times of its events, with their standard error where that is a minute or more: 18:24 +- 11 min.

The title names the lunation by its number and by the month to which most of its days belong, for example Lunation 332 (Sophia 4723). Lunation 0 began on 2000-01-06 CE; those before it have negative numbers. The line below the title names every year and month on the page.

# What you can do

- A click on a day makes its noon the current moment.
- "Show previous lunation" and "Show next lunation" turn the page, from lunation -64316 to lunation 49472.
- "Print" prints the page; "Print year" prints the pages of all lunations of its year, the year that the title names, in the chosen calendar. The pages are light, with the Moon as it stands at noon of each day, and the times of the events.
- "Save as PDF" and "Save year as PDF" write what would be printed to a file, for the paper in the list: A4 or Letter.
- "Save as PNG image" writes the page to a picture file.
- Close and Escape put the window away.

A change of the time system, the time zone or the calendar in the list is shown at once.)";

constexpr std::string_view kTheSkyAtAPlace =
    R"(The button "Sky at a place", or Ctrl+K, opens a window that tells what is seen from one place on the Earth: Sun and Moon at the current moment, through its day and its lunation, and an eclipse. It goes along with the moment, the calendar, the time system and the zone of the main window.

# The place

Choose a place from the list, or type its latitude and longitude and press Enter. They are degrees with decimals, or degrees, minutes and seconds; a letter tells the side, or a minus that it is south or west:

    32.54 N
    32 32 24 N
    -33.87

Both may be typed together, into either box:

    32.54 N 44.42 E
    -33.87, 151.2

A click into the map takes the place that lies there, to a tenth of a degree.

At the first start the place is Greenwich. Yours is kept in the file tnwk-place.usr, in the folder of the saved state. The list is the file places.csv in the folder "assets" of the program, in UTF-8. It can be extended: a line below the first is a place, and a cell with a comma stands in quotation marks. No name may stand there twice.

    name,latitude,longitude,note
    Mari,34.55,40.89,"tablets from the Euphrates, with month names"

A new version of the program brings its own list, so keep a copy of yours.

# Times

A time is told twice: by the local mean time of the place, which is Universal Time and four minutes for each degree of its longitude, more in the east and less in the west; and as the main window reads times. Rest the pointer on it to read its date in both.

# At the moment

The altitude is that of the middle of the disc, as seen from the place at the height of the sea, without refraction. The azimuth counts from north through east: 90 is east, 180 south.

# This day

The day goes from midnight to midnight of local mean time. Sun and Moon rise and set by their upper limb, lifted by a refraction of 34 minutes of arc, and are highest in the meridian, be that above the horizon or not. Some things do not happen on a day: the Moon rises some 50 minutes later each time and so misses a day in every month, and near the poles neither may rise or set for weeks.

# First and last crescent

The first crescent of a lunation is seen in the evening, in the days after its new moon; the last one in the morning, in the days before the next. Whether it can be seen is told by the rule of Yallop (1997), from the height of the Moon above the Sun and the width of the crescent, in six classes:

- A: easily visible
- B: visible under perfect conditions
- C: perhaps with optical aid, once it is found
- D: only with optical aid
- E: not visible with a telescope
- F: not visible at all

Of the three evenings after the new moon, and the three mornings before the next, the one nearest to it of class A or B is named; if one of class C is nearer still, that one too. Rest the pointer on it to read of all three. The rule comes from sightings in clear air over a level horizon. Clouds, haze and hills it does not know.)";

constexpr std::string_view kEclipsesAtAPlace =
    R"(The window "Sky at a place" shows the eclipse that is described in the main window; if there is none, that of the current lunation, of two the nearer one. Its date is a Julian one before 1582-10-15 CE. Before the year 1 the year that historians count, who know no year 0, stands beside it: (-584, 585 BCE).

# What is seen

An eclipse of the Sun is seen as partial, annular or total. The magnitude is the part of the Sun's diameter that is covered, in the annular or total phase the Moon's diameter divided by the Sun's; the percentage is the part of its disc that is covered.

An eclipse of the Moon is penumbral, partial or total, and the same for all who see the Moon. The magnitude is the depth of the Moon in the umbra, or in the penumbra, in diameters of the Moon.

Only what stands above the horizon is seen: with its upper limb and a refraction of 34 minutes of arc, as at rising and setting. If the maximum is hidden, the most that can be seen is told, at the rising or setting of Sun or Moon.

The list has the beginnings and ends of the phases, with the altitude and azimuth of Sun or Moon. What happens below the horizon is grey and says so.

# The map

For an eclipse of the Sun:

- the central line, between the limits of totality or annularity, and the point of greatest eclipse, for which duration and width of the path are told
- thin, the limits as they would lie if delta T were less, or more, by its standard error
- the curves along which the greatest magnitude seen above the horizon is 0, 0.2, 0.4, 0.6 and 0.8; beyond that of 0 nothing is seen

For an eclipse of the Moon:

- a line around the places that see the whole of its umbral phase, and one around those that see some of it; in a penumbral eclipse that is the penumbral phase
- darkened, where the Moon is below the horizon as that begins, is greatest, or ends; where all three coincide, nothing of it is seen
- where the Moon stands in the zenith at greatest eclipse

The night is shaded: of a solar eclipse that at greatest eclipse and, where there is no eclipse, that of the current moment. The chosen place is marked. A new map appears when all of it has been computed, which takes a moment. "Save map as PNG" writes it to a picture file.

# How sure it is

How far the Earth had turned in the far past, or will have turned in the far future, is known no better than delta T. Where its standard error is a minute or more, the times of phases and contacts show it:

    18:24 +- 11 min

In about two cases of three the truth lies within it. What is seen may depend on it, since the path of an eclipse moves with delta T: a degree of longitude in four minutes, to the west if delta T is less. So it is computed again with delta T less and more by its standard error, and what changes is told:

    total; partial if delta T is 11 min less

Risings and settings hardly depend on it, so none is told of them.

# Next and previous

"Next eclipse here" and "Previous eclipse here" look from the current moment for an eclipse that can be seen at the place. The list beside them says which: any, one of the Sun, a total one of the Sun, or a partial or total one of the Moon. It must be seen there as such: a total one as total. Escape gives the search up.

The instant at which the most of it is seen there becomes the current moment; history and log take it, as they do of any search. After that of 1999-08-11 CE, the next total eclipse of the Sun that Stuttgart sees is that of 2151-06-14 CE.)";

constexpr std::string_view kLists =
    R"(The button "Lists", or Ctrl+T, opens a window with everything of a kind in a period: the phases of the Moon, eclipses, the eclipses seen at the place of "Sky at a place", days on which four calendars begin a month together, first crescents at the place, or the days in all nine calendars.

# Making a list

Choose what to list, type from when to when, as dates are typed in the main window, and press Enter or "Make list". A day without a time counts whole, so that a list from 2024-01-01 CE to 2024-12-31 CE has all of that year. Rows appear as they are found, and "Stop" ends that; what was found stays.

Dates and times are those of the main window: of its current calendar, its time system and its zone. Times of old events say how sure they are, from one minute on: "18:24 +- 11 min". An eclipse stands at its greatest phase, or, if it is one seen at the place, when the most of it is seen there; a crescent on the evening of class A or B or, where there is none, of class C.

# Using it

- A click on a heading sorts by that column, another one the other way round.
- The boxes above choose the columns, in the window as well as in files and on paper.
- Enter, a double click or "Take up moment" makes the moment of a row the current one, and describes its eclipse.
- "Save as CSV" makes a file for spreadsheets, in UTF-8.
- "Save as iCalendar" makes a file for calendar programs, an event a row. Phases and eclipses stand at their instants, crescents and coincidences as whole days. Such a file knows no years before 1: you are told how many rows were left out.
- "Print" and "Save as PDF" put the list on paper, with its title and the headings on every page.

A file takes 500,000 rows at most, paper 20,000. The command line tool tarnwick_tables prints lists of any length.)";

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

Compared with DE431 itself, over all phases and eclipses from -3200 to 6000, the largest errors are:

- 0.5 seconds in a phase (455,798 phases; root mean square 0.12 seconds)
- 0.56 seconds in greatest eclipse (44,059 eclipses; root mean square 0.12 seconds)
- 0.00016 in gamma, 0.0003 in a magnitude

No eclipse is missing and none is added; all saros numbers agree and all types but two, lunar eclipses of 1553 and 5517 on the border of their type. Half the duration of a phase of a lunar eclipse is off by 0.045 minutes at most in 1215 eclipses computed by other software, and by more only where the phase hardly begins. The figures hold in Terrestrial Time. The program shows times in minutes and drops the seconds; in lunar eclipses it takes the phases to lie evenly about the greatest.

For a place, in Universal Time with delta T as it is taken:

- 0.9 seconds in a rising or setting of the Moon, mostly some tenths in one of the Sun, and 4 seconds at the edge of the polar day, where the Sun hardly climbs
- 0.5 seconds in the maximum of a solar eclipse
- 0.7 kilometres in the central line, divided by the sine of the Sun's altitude
- 0.003 degrees in an altitude
- 0.0001 in Yallop's q, and no difference in the class of a crescent

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

constexpr std::array kPages{
    HelpPage{"First steps", kFirstSteps},
    HelpPage{"Entering dates", kEnteringDates},
    HelpPage{"Moving and searching", kMovingAndSearching},
    HelpPage{"The log", kTheLog},
    HelpPage{"The lunation calendar", kLunationCalendar},
    HelpPage{"The sky at a place", kTheSkyAtAPlace},
    HelpPage{"Eclipses at a place", kEclipsesAtAPlace},
    HelpPage{"Lists", kLists},
    HelpPage{"The nine calendars", kTheNineCalendars},
    HelpPage{"Accuracy and sources", kAccuracyAndSources},
};

}  // namespace

std::span<const HelpPage> HelpPages() { return kPages; }

}  // namespace tarnwick
