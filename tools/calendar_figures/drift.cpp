#include "tools/calendar_figures/drift.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

#include "calendars/date_processing.h"
#include "calendars/day_date.h"

namespace tarnwick {
namespace {

constexpr DayNumber kFirstDay(552284);  // -3200-01-01 CE
constexpr DayNumber kLastDay(3912515);
constexpr std::int32_t kFirstYear = -3200;
constexpr double kDaysPerYear = 365.2425;
constexpr std::int32_t kShortestMonth = 27;  // whole days that surely are not another first

// Month and day of month of a day number.
struct MonthDay {
  std::int32_t month = 0;
  std::int32_t day = 0;
};

MonthDay ARCDay(DayNumber day_number) {
  const ARCDate date = DateOfDay<ARCDate>(day_number);
  return {date.month, date.day};
}

MonthDay SDDay(DayNumber day_number) {
  const SDDate date = DateOfDay<SDDate>(day_number);
  return {date.month, date.day};
}

MonthDay LLTDay(DayNumber day_number) {
  const LLTDate date = DateOfDay<LLTDate>(day_number);
  return {date.month, 3 * (date.triday - 1) + date.day};
}

MonthDay KSGDay(DayNumber day_number) {
  const KSGDate date = DateOfDay<KSGDate>(day_number);
  return {date.month, date.day};
}

MonthDay OLWDay(DayNumber day_number) {
  const OLWDate date = DateOfDay<OLWDate>(day_number);
  const bool first = date.week == 1 && date.day == 1;
  return {date.month, first ? 1 : 2};
}

struct Reckoning {
  const char* calendar;
  MonthDay (*month_day)(DayNumber day_number);
};
constexpr Reckoning kLunar[] = {
    {"ARC", ARCDay}, {"SD", SDDay}, {"LLT", LLTDay}, {"KSG", KSGDay}, {"OLW", OLWDay}};
constexpr Reckoning kSolar[] = {{"ARC", ARCDay}, {"SD", SDDay}, {"OLW", OLWDay}};

std::int32_t GregorianYear(DayNumber day_number) {
  return kFirstYear +
         static_cast<std::int32_t>(std::floor((day_number - kFirstDay) / kDaysPerYear));
}

double FromNewMoon(DayNumber day_number) {
  const UniversalTime noon = NoonOf(day_number, 0);
  UniversalTime instant;
  std::int32_t lunation = 0;
  NearestNewMoon(noon, instant, lunation);
  return noon - instant;
}

double FromEquinox(DayNumber day_number) {
  const std::int32_t year = GregorianYear(day_number);
  double nearest = std::numeric_limits<double>::infinity();
  for (std::int32_t y = year - 1; y <= year + 1; ++y) {
    const double distance = NoonOf(day_number, 0) - OLWYearReference(y);
    if (std::fabs(distance) < std::fabs(nearest)) nearest = distance;
  }
  return nearest;
}

// Sums of the distances within one span of years.
struct Collector {
  int count = 0;
  double sum = 0;
  double squares = 0;
  double least = std::numeric_limits<double>::infinity();
  double largest = -std::numeric_limits<double>::infinity();

  void Add(double distance) {
    ++count;
    sum += distance;
    squares += distance * distance;
    least = std::min(least, distance);
    largest = std::max(largest, distance);
  }
  DriftPoint Point(double year) const {
    const double mean = sum / count;
    return {year, mean, least, largest, std::sqrt(std::max(0.0, squares / count - mean * mean))};
  }
};

using Distance = double (*)(DayNumber day_number);

Drift DriftOf(const Reckoning& reckoning, bool years, Distance distance) {
  std::vector<Collector> spans(
      static_cast<std::size_t>((GregorianYear(kLastDay) - kFirstYear) / kYearsPerPoint + 1));
  for (DayNumber day = kFirstDay; day <= kLastDay; day = day + 1) {
    const auto [month, day_of_month] = reckoning.month_day(day);
    if (day_of_month != 1) continue;
    if (!years || month == 1) {
      spans[static_cast<std::size_t>((GregorianYear(day) - kFirstYear) / kYearsPerPoint)].Add(
          distance(day));
    }
    day = day + kShortestMonth;
  }
  Drift drift{reckoning.calendar, {}};
  double year = kFirstYear + kYearsPerPoint / 2.0;
  for (const Collector& span : spans) {
    if (span.count > 1) drift.points.push_back(span.Point(year));
    year += kYearsPerPoint;
  }
  return drift;
}

}  // namespace

std::vector<Drift> MonthDrifts() {
  std::vector<Drift> drifts;
  for (const Reckoning& reckoning : kLunar) {
    drifts.push_back(DriftOf(reckoning, false, FromNewMoon));
  }
  return drifts;
}

std::vector<Drift> YearDrifts() {
  std::vector<Drift> drifts;
  for (const Reckoning& reckoning : kSolar) {
    drifts.push_back(DriftOf(reckoning, true, FromEquinox));
  }
  return drifts;
}

}  // namespace tarnwick
