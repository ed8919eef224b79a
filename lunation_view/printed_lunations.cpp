#include "lunation_view/printed_lunations.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "calendars/date_processing.h"
#include "moment/time_zone.h"
#include "moon/moon_data.h"

namespace tarnwick {
namespace {

constexpr int kMostLunations = 14;  // of a year

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

// The events of a day; none of their lines can be broken within a time: "18:24 +- 11 min".
std::string WithWholeTimes(const std::string& events) {
  return Replaced(Replaced(events, " +- ", "\u00a0\u00b1\u00a0"), " min", "\u00a0min");
}

PrintedCell PrintedCellOf(const GridCell& cell, const GridReading& reading) {
  const MoonData moon = MoonDataAt(NoonOf(cell.day_number, reading.offset_minutes));
  return {{moon.fraction, moon.waxing}, cell.date, cell.ce_date, WithWholeTimes(cell.times)};
}

bool IsInYear(std::int32_t lunation, const std::string& year, const GridReading& reading) {
  return lunation >= kFirstLunation && lunation <= kLastLunation &&
         YearOfLunation(lunation, reading) == year;
}

}  // namespace

PrintedGrid PrintedPageOf(const LunationGrid& grid, const GridReading& reading) {
  PrintedGrid page;
  page.title = grid.title;
  page.subtitle = grid.year_and_month;
  for (int column = 0; column < kGridColumns; ++column) {
    page.headings.push_back(WeekdayHeading(column));
  }
  for (const auto& cell : grid.cells) {
    page.cells.push_back(cell ? std::optional(PrintedCellOf(*cell, reading)) : std::nullopt);
  }
  page.note = "Days and times are those of " + TimeZoneText(TimeZoneIndex(reading.offset_minutes)) +
              ". " + std::string(kLunarWeekNote);
  return page;
}

LunationSpan LunationsOfYear(std::int32_t lunation, const GridReading& reading) {
  const std::string year = YearOfLunation(lunation, reading);
  LunationSpan span{lunation, lunation};
  if (year.empty()) return span;
  const auto has_room = [&span] { return span.last - span.first + 1 < kMostLunations; };
  while (has_room() && IsInYear(span.first - 1, year, reading)) --span.first;
  while (has_room() && IsInYear(span.last + 1, year, reading)) ++span.last;
  return span;
}

PrintedGrids PrintedLunations(std::string title, const LunationSpan& span,
                              const GridReading& reading) {
  return {std::move(title), static_cast<std::size_t>(span.last - span.first) + 1,
          [first = span.first, reading](std::size_t page) {
            const std::int32_t lunation = first + static_cast<std::int32_t>(page);
            return PrintedPageOf(MakeLunationGrid(lunation, reading), reading);
          }};
}

}  // namespace tarnwick
