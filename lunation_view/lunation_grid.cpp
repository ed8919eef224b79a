#include "lunation_view/lunation_grid.h"

#include <algorithm>
#include <vector>

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/lunar_week.h"
#include "engines/phases.h"
#include "lunation_view/month_calendar.h"
#include "moon/clock_error.h"
#include "moon/moon_data.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr int kLunadayColumn = kGridColumns - 1;
constexpr int kLastCell = kGridCells - 1;
constexpr int kLongLunation = 30;
// The place that the OLW calendar would have in the list; its day begins six hours late.
constexpr int kOLWMonthCalendar = 4;

// The day of a moment, and its time of day.
DayAndTime DayOf(UniversalTime moment, const GridReading& reading) {
  const double shift = reading.calendar == kOLWMonthCalendar ? kOLWDayShift : 0;
  return SplitCJD(AJDToCJD(moment, reading.offset_minutes) - shift);
}

DayNumber FirstDayOf(std::int32_t lunation, const GridReading& reading) {
  return DayOf(FindPhaseEvent(lunation, kNewMoon).ut, reading).day_number;
}

// Something that happens on one of the days.
struct DayEvent {
  DayAndTime when;
  std::string name;
  std::string certainty;  // follows its time
};

DayEvent EventAt(UniversalTime instant, std::string_view name, const GridReading& reading) {
  return {DayOf(instant, reading), std::string(name), ClockErrorSuffix(ClockError(instant))};
}

void AddPhase(std::vector<DayEvent>& events, std::int32_t lunation, std::int16_t phase,
              const GridReading& reading) {
  const PhaseEvent event = FindPhaseEvent(lunation, phase);
  events.push_back(EventAt(event.ut, PhaseText(phase), reading));
  if (event.eclipse.type == kNotEclipsed) return;
  events.push_back(EventAt(GreatestEclipse(event.eclipse),
                           EclipseTypeText(static_cast<std::int16_t>(event.eclipse.type)),
                           reading));
}

// With the new moon after the last day: its eclipse can be greatest before the midnight between.
std::vector<DayEvent> EventsOf(std::int32_t lunation, const GridReading& reading) {
  std::vector<DayEvent> events;
  for (std::int16_t phase = 0; phase < kPhaseCount; ++phase)
    AddPhase(events, lunation, phase, reading);
  AddPhase(events, lunation + 1, kNewMoon, reading);
  return events;
}

bool IsCellShown(int cell, std::int32_t length) {
  return IsCellUsed(cell) && (cell != kLastCell || length == kLongLunation);
}

GridCell CellOf(DayNumber day_number, const GridReading& reading,
                const std::vector<DayEvent>& events) {
  const UniversalTime noon = NoonOf(day_number, reading.offset_minutes);
  const DateTexts ce = DateTextsOf(kCE, noon, reading.offset_minutes);
  const auto calendar = PageCalendar(reading.calendar);
  const std::string date =
      calendar ? DateTextsOf(*calendar, noon, reading.offset_minutes).long_form : "";
  GridCell cell{day_number,
                CalendarDayOf(reading.calendar, day_number).day,
                ce.short_form,
                "",
                "",
                MoonDescription(MoonDataAt(noon)),
                date + "\n" + ce.long_form};
  for (const DayEvent& event : events) {
    if (event.when.day_number != day_number) continue;
    const std::string line_end = cell.event.empty() ? "" : "\n";
    cell.event += line_end + event.name;
    cell.times +=
        line_end + event.name + " " + TimeOfDayText(event.when.fraction, false) + event.certainty;
  }
  if (!cell.times.empty()) cell.tool_tip += "\n" + cell.times;
  return cell;
}

// A month as it follows others on a page, and how many of the days are its own.
struct PageMonth {
  std::string year;
  std::string name;
  int days = 0;
};

std::vector<PageMonth> MonthsOf(const LunationDays& days, int calendar) {
  std::vector<PageMonth> months;
  for (std::int32_t i = 0; i < days.length; ++i) {
    const CalendarDay day = CalendarDayOf(calendar, days.first_day + i);
    if (months.empty() || months.back().name != day.month || months.back().year != day.year) {
      months.push_back({day.year, day.month, 0});
    }
    ++months.back().days;
  }
  return months;
}

const PageMonth& LongestOf(const std::vector<PageMonth>& months) {
  return *std::max_element(months.begin(), months.end(),
                           [](const PageMonth& a, const PageMonth& b) { return a.days < b.days; });
}

std::string TitleOf(const LunationDays& days, const std::vector<PageMonth>& months, int calendar) {
  const PageMonth& longest = LongestOf(months);
  const std::string text =
      PageCalendar(calendar) ? longest.name + " " + longest.year : "Undefined calendar";
  return "Lunation " + std::to_string(days.lunation) + " (" + text + ")";
}

std::string YearAndMonthOf(const std::vector<PageMonth>& months) {
  std::string years;
  std::string names;
  for (std::size_t i = 0; i < months.size(); ++i) {
    if (i == 0 || months[i].year != months[i - 1].year)
      years += (i == 0 ? "" : "-") + months[i].year;
    names += (i == 0 ? "" : "-") + months[i].name;
  }
  return names.empty() ? "" : years + " - " + names;
}

}  // namespace

LunationDays DaysOfLunation(std::int32_t lunation, const GridReading& reading) {
  const DayNumber first_day = FirstDayOf(lunation, reading);
  return {lunation, first_day, FirstDayOf(lunation + 1, reading) - first_day};
}

std::int32_t LunationOfDay(UniversalTime moment, const GridReading& reading) {
  const DayNumber day_number = DayOf(moment, reading).day_number;
  std::int32_t lunation = LunationOf(moment);
  // The new moon may come later on the same day.
  if (FirstDayOf(lunation + 1, reading) <= day_number) ++lunation;
  return std::clamp(lunation, kFirstLunation, kLastLunation);
}

std::string YearOfLunation(std::int32_t lunation, const GridReading& reading) {
  return LongestOf(MonthsOf(DaysOfLunation(lunation, reading), reading.calendar)).year;
}

LunationGrid MakeLunationGrid(std::int32_t lunation, const GridReading& reading) {
  LunationGrid grid;
  grid.days = DaysOfLunation(lunation, reading);
  const std::vector<PageMonth> months = MonthsOf(grid.days, reading.calendar);
  grid.title = TitleOf(grid.days, months, reading.calendar);
  grid.year_and_month = YearAndMonthOf(months);
  const std::vector<DayEvent> events = EventsOf(lunation, reading);
  DayNumber day_number = grid.days.first_day;
  for (int i = 0; i < kGridCells; ++i) {
    if (!IsCellShown(i, grid.days.length)) continue;
    grid.cells[static_cast<std::size_t>(i)] = CellOf(day_number, reading, events);
    day_number = day_number + 1;
  }
  return grid;
}

std::string WeekdayHeading(int column) {
  if (column == kLunadayColumn) return "Lunaday";
  // Monday first; the names begin with Sunday.
  return WeekdayName((column + 1) % 7).substr(0, 3) + "   ";
}

}  // namespace tarnwick
