// The calendars in which a lunation can be laid out, in the order of their list.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "calendars/calendar_table.h"

namespace tarnwick {

inline constexpr std::array<std::string_view, 4> kMonthCalendars{
    "Archetypes Calendar dates", "Sarvik-Dolmer Solilunar dates", "Kestrin-Sarvik Goddess dates",
    "Lunar Liberalia Triday dates"};

// What a calendar page says of a day. All texts are empty for an index that names no calendar.
struct CalendarDay {
  std::string year;   // with its cycle where dates show one: "4723", "33-46"
  std::string month;  // "Sophia"
  std::string day;    // with the month, as it fits a cell: "14 Sophia"
};
CalendarDay CalendarDayOf(int calendar, DayNumber day_number);

// The calendar that an index of the list names.
std::optional<Calendar> PageCalendar(int calendar);

}  // namespace tarnwick
