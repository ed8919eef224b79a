#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace tarnwick {

// The nine calendars and day counts, by their index in the calendar table.
enum Calendar : std::int16_t { kCE, kJC, kARC, kSD, kLLT, kKSG, kCJD, kAJD, kOLW };

inline constexpr std::int16_t kCalendarCount = 9;

struct CalendarName {
  std::string_view abbreviation;
  std::string_view long_name;
};

inline constexpr std::array<CalendarName, kCalendarCount> kCalendarTable{{
    {"CE", "Common Era date"},
    {"JC", "Julian date"},
    {"ARC", "Archetypes Calendar date"},
    {"SD", "Sarvik-Dolmer Solilunar Calendar date"},
    {"LLT", "Lunar Liberalia Triday Calendar date"},
    {"KSG", "Kestrin-Sarvik Goddess Calendar date"},
    {"CJD", "chronological Julian date"},
    {"AJD", "astronomical Julian date"},
    {"OLW", "Ostrel Lunar Week Calendar"},
}};

constexpr std::string_view AbbreviationOf(std::int16_t calendar) {
  return kCalendarTable[static_cast<std::size_t>(calendar)].abbreviation;
}

// The index of the calendar with exactly this abbreviation, or -1.
std::int16_t CalendarIndex(std::string_view abbreviation);

// Whether its dates are plain day counts, with the time of day in their fraction.
constexpr bool IsDayCount(std::int16_t calendar) { return calendar == kCJD || calendar == kAJD; }

}  // namespace tarnwick
