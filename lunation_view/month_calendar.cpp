#include "lunation_view/month_calendar.h"

#include "calendars/day_date.h"

namespace tarnwick {
namespace {

std::string Join(std::int64_t number, std::string_view separator, std::string_view text) {
  return std::to_string(number) + std::string(separator) + std::string(text);
}

CalendarDay ARCDay(DayNumber day_number) {
  const ARCDate date = DateOfDay<ARCDate>(day_number);
  const std::string_view month = ARCMonthName(date.month);
  return {std::to_string(date.year), std::string(month), Join(date.day, " ", month)};
}

CalendarDay SDDay(DayNumber day_number) {
  const SDDate date = DateOfDay<SDDate>(day_number);
  const std::string_view month = SDMonthName(date.month);
  return {Join(date.cycle, "-", std::to_string(date.year)), std::string(month),
          Join(date.day, " ", month)};
}

CalendarDay KSGDay(DayNumber day_number) {
  const KSGDate date = DateOfDay<KSGDate>(day_number);
  const std::string_view month = KSGMonthName(date.month);
  return {Join(date.cycle, "-", std::to_string(date.year)), std::string(month),
          Join(date.day, " ", month)};
}

// Days are counted in tridays: "6-1 Oraiel" is the first day of the sixth.
CalendarDay LLTDay(DayNumber day_number) {
  const LLTDate date = DateOfDay<LLTDate>(day_number);
  const std::string year = std::to_string(date.year);
  return {date.cycle == 0 ? year : Join(date.cycle, "-", year),
          std::string(LLTMonthName(date.month)),
          Join(date.triday, "-", Join(date.day, " ", LLTShortMonthName(date.month)))};
}

struct MonthCalendar {
  Calendar calendar;
  CalendarDay (*day)(DayNumber day_number);
};
constexpr std::array<MonthCalendar, kMonthCalendars.size()> kRows{
    {{kARC, ARCDay}, {kSD, SDDay}, {kKSG, KSGDay}, {kLLT, LLTDay}}};

const MonthCalendar* FindRow(int calendar) {
  const auto index = static_cast<std::size_t>(calendar);
  return index < kRows.size() ? &kRows[index] : nullptr;
}

}  // namespace

CalendarDay CalendarDayOf(int calendar, DayNumber day_number) {
  const MonthCalendar* row = FindRow(calendar);
  return row == nullptr ? CalendarDay() : row->day(day_number);
}

std::optional<Calendar> PageCalendar(int calendar) {
  const MonthCalendar* row = FindRow(calendar);
  return row == nullptr ? std::nullopt : std::optional(row->calendar);
}

}  // namespace tarnwick
