// Civil dates as the program reads and writes them: date texts, names of weekdays and months, times
// of day, durations, and the step between day counts and the computer's clock.
//
// Day counts: the AJD (astronomical Julian date) runs from noon to noon at Greenwich, the CJD
// (chronological Julian date) from midnight to midnight of the chosen time zone. The day number of
// a civil day is the whole part of the CJD, rounded down. Offsets are minutes east of GMT.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engines/date_engine.h"
#include "engines/instant.h"

namespace tarnwick {

// The first day of the Gregorian calendar, 1582 October 15: dates before it are told by the Julian.
inline constexpr DayNumber kGregorianReform(2299161);

// Languages of names; any value but kGerman means English.
inline constexpr std::int32_t kEnglish = 0;
inline constexpr std::int32_t kGerman = 1;

// Results of ParseDateString.
inline constexpr std::int32_t kDateParsed = 1;
inline constexpr std::int32_t kDateRejected = 0;
inline constexpr std::int32_t kDateMalformed = -1;

// Reads a date text, year-month-day, in the calendar whose letter stands in the record: "R"
// Archetypes, "J" Julian, "A" Annus Novus; "H" (lunar weeks) is refused; any other letter becomes
// "G", Gregorian. White space around the text is passed over.
// Returns
//   1   read; year, month, day and jdn are filled (jdn stays 0 for "R")
//   0   fewer than two separators (a leading "-" apart), a date that does not exist, or a number
//       beyond 32 bits
//   -1  a text of another shape, or longer than 32 characters
// `valid` becomes 1 exactly when the result is 1.
std::int32_t ParseDateString(std::string_view text, DateRecord& record);

// The name of a weekday, [0:6] from Sunday; empty for any other number. `padded` fills it with
// blanks to the nine characters of "Wednesday".
std::string WeekdayName(std::int32_t weekday, bool padded = false,
                        std::int32_t language = kEnglish);

// The name of a month, [1:12]; 13 is the last month of Annus Novus, "Intercalarius"; empty for any
// other number. Abbreviated: "Jan." to "Dec.".
std::string_view MonthName(std::int32_t month, std::int32_t language = kEnglish,
                           bool abbreviated = false);

// The name of a day in the weeks of five days of Annus Novus, by the day of the month, [1:30];
// empty for a day below 1.
std::string_view AnnusNovusDayName(std::int32_t day);

// A year as plain digits with its sign; beyond 9999 or below -9999 with thousands separators.
std::string YearText(std::int32_t year);

// The numeric text of a date: "2003-12-31", "-3200-01-01", "79-08-24", "12,003-12-31"; the year
// as YearText writes it.
std::string DateText(const DateRecord& record);

// The long text of a date in calendar "G", "J" or "A":
// "The 5th day of December in the year 2011 in the Common Era Calendar". Any other letter leaves
// the calendar's name empty. Years as in DateText, but never with separators in Annus Novus.
std::string DayOfYearText(const DateRecord& record);

// So many seconds after midnight as a clock shows it: "15:55", "15:55:07".
std::string ClockText(std::int32_t seconds, bool with_seconds);

// The time of day of a fraction of the day, [0:1], rounded to a whole second: "15:55" or
// "15:55:07". What rounds to the next midnight is still this day's last second; a fraction outside
// 0 to 1 gives "XX:XX:XX".
std::string TimeOfDayText(double fraction, bool with_seconds);

// A duration in words, "2 days, 3 hours and 5 minutes", or short, "2d 3h 5m". Parts that are zero
// are left out; nothing at all, or a negative duration, gives "0 minutes" or "0m".
std::string DurationText(std::int32_t minutes, bool long_form);

// The moment at which a clock shows this in a zone `offset_minutes` east of GMT. The date text is
// "yyyy-mm-dd" with any separators, or month, day and year ("mm/dd/yyyy") when its third character
// is "-", "/" or "."; the time text "hh:mm:ss", or "h:mm:ss AM" or "PM". A date that does not exist
// gives a moment far below every limit of the program.
UniversalTime NowAsAJD(std::string_view date_text, std::string_view time_text,
                       std::int32_t offset_minutes);

// cjd = ajd + 0.5 + offset / 1440, and back.
LocalCJD AJDToCJD(UniversalTime ajd, std::int32_t offset_minutes);
UniversalTime CJDToAJD(LocalCJD cjd, std::int32_t offset_minutes);

// The moment at which it is noon of a day there.
UniversalTime NoonOf(DayNumber day_number, std::int32_t offset_minutes);

// The day there that contains a moment.
DayNumber DayOf(UniversalTime moment, std::int32_t offset_minutes);

struct DayAndTime {
  DayNumber day_number;
  double fraction = 0;  // of the day, [0:1), a whole number of seconds / 86400
};

// Splits a CJD into day number and time of day after rounding it to whole seconds, so that a moment
// a few microseconds before midnight, as sums of fractions of a day produce it, belongs to the next
// day at 00:00. Throws RuntimeError when the day number does not fit 32 bits or the CJD is not
// finite.
DayAndTime SplitCJD(LocalCJD cjd);

}  // namespace tarnwick
