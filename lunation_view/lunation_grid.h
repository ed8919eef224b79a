// One lunation as a calendar page: 4 rows of 8 cells, each row a lunar week of seven days. A
// "Lunaday" stands at the end of the second week and, in a lunation of 30 days, of the fourth.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engines/instant.h"
#include "moon/lunation_range.h"

namespace tarnwick {

inline constexpr int kGridColumns = 8;
inline constexpr int kGridCells = 32;

// How the days of a page are read.
struct GridReading {
  int calendar = 0;        // index in the list of month calendars
  int offset_minutes = 0;  // of the time system, east of Greenwich
};

// The days from one new moon, inclusive, to the next.
struct LunationDays {
  std::int32_t lunation = 0;
  DayNumber first_day;
  std::int32_t length = 0;  // 29 or 30
};

LunationDays DaysOfLunation(std::int32_t lunation, const GridReading& reading);

// The lunation whose days hold that of a moment, or the first or last one.
std::int32_t LunationOfDay(UniversalTime moment, const GridReading& reading);

struct GridCell {
  DayNumber day_number;
  std::string date;      // in the chosen calendar: "14 Sophia"
  std::string ce_date;   // "2026-11-23 CE"
  std::string event;     // principal phase and eclipse of the day, a line each
  std::string times;     // the same with their times: "Full moon 18:24 +- 11 min"
  std::string moon;      // "The Moon, gibbous, waxing, 62 % lit": at noon
  std::string tool_tip;  // both dates at length, the events with their times: "Full moon 14:53"
};

struct LunationGrid {
  LunationDays days;
  std::string title;           // "Lunation 332 (Sophia 4723)"
  std::string year_and_month;  // "4723 - Sophia-Dionysus": all that the lunation touches
  std::array<std::optional<GridCell>, kGridCells> cells;  // nothing where none is shown
};

// The year to which most of its days belong, as its title names it; empty for an index that names
// no calendar.
std::string YearOfLunation(std::int32_t lunation, const GridReading& reading);

LunationGrid MakeLunationGrid(std::int32_t lunation, const GridReading& reading);

// What the columns count, said on the page.
inline constexpr std::string_view kLunarWeekNote =
    "Mon to Sun and Lunaday count the days of the lunar week, from the new moon on; "
    "the days of the civil week fall otherwise.";

// "Mon   " to "Sun   " and "Lunaday" for the columns.
std::string WeekdayHeading(int column);

// Whether the cell is ever shown: those at the end of the first and third week are not.
constexpr bool IsCellUsed(int cell) { return cell != 7 && cell != 23; }

}  // namespace tarnwick
