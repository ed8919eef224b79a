// The nine calendars and day counts that a moment is read and shown in, and what the program knows
// of each.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "calendars/entry_code.h"
#include "engines/instant.h"

namespace tarnwick {

// By their numbers in the saved state.
enum class Calendar : std::int16_t { kCE, kJC, kARC, kSD, kLLT, kKSG, kCJD, kAJD, kOLW };
using enum Calendar;

inline constexpr std::int16_t kCalendarCount = 9;
inline constexpr std::array<Calendar, kCalendarCount> kCalendars{kCE,  kJC,  kARC, kSD, kLLT,
                                                                 kKSG, kCJD, kAJD, kOLW};

// In the order in which the window and the log show them: the day counts last.
inline constexpr std::array<Calendar, kCalendarCount> kDisplayOrder{kCE,  kJC,  kARC, kSD, kLLT,
                                                                    kKSG, kOLW, kCJD, kAJD};

// Whether its dates are plain day counts, with the time of day in their fraction.
constexpr bool IsDayCount(Calendar calendar) { return calendar == kCJD || calendar == kAJD; }

// How one calendar shows a moment.
struct DateTexts {
  std::string short_form;  // "2003-12-31 CE": what the history and the entry box take
  std::string long_form;   // "2003-12-31 CE (Wednesday, December 31, 2003)": the label's caption
  std::string tool_tip;  // "The 31st day of December in the year 2003 ..."; empty if there is none
};

// What a date text says: its day, or why there is none.
struct ReadDay {
  EntryCode code = kEntryOk;
  DayNumber day_number;
};

// Day numbers are the calendar's own: a day of OLW begins later than the civil day of its number.
struct CalendarRow {
  std::string_view abbreviation;
  std::string_view long_name;    // in the middle of a sentence
  std::string_view spoken_name;  // of its date on display, for who does not see it
  std::string_view explanation;  // what it is, in one sentence
  double day_shift;              // of the beginning of its days after midnight, in days
  EntryCode failure;             // why a text is refused that is none of its dates
  // Nothing for a day count:
  std::string (*short_form)(DayNumber day_number);  // of its texts
  DateTexts (*texts)(DayNumber day_number);
  // The text is a date without abbreviation. Throws RuntimeError when a number is too large.
  ReadDay (*read)(std::string_view date);
};

const CalendarRow& RowOf(Calendar calendar);

inline std::string_view AbbreviationOf(Calendar calendar) { return RowOf(calendar).abbreviation; }

// The calendar with exactly this abbreviation.
std::optional<Calendar> CalendarIndex(std::string_view abbreviation);

}  // namespace tarnwick
