#include "calendars/lunar_week.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>

#include "calendars/equinoxes.h"
#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "engines/date_engine.h"
#include "engines/date_fields.h"
#include "engines/names.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kYearsBeforeCE = 3000;
constexpr std::int32_t kFarthestGregorianYear = 9999;
constexpr std::int32_t kMonths = 13;
constexpr std::int32_t kWeeks = 4;
constexpr std::int32_t kLongestWeek = 9;
constexpr std::int32_t kDaysNamedFromBeginning = 5;
constexpr double kStartBeforeNoon = 0.5 - kOLWDayShift;  // of a day

constexpr std::array<std::string_view, kLongestWeek> kDayNames{"Dayone",  "Daytwo",  "Daythree",
                                                               "Dayfour", "Dayfive", "Nineday",
                                                               "Herday",  "Freeday", "Moonday"};
constexpr std::array<std::string_view, kWeeks> kWeekNames{"Weekone", "Weektwo", "Weekthree",
                                                          "Weekfour"};
constexpr std::array<std::string_view, kMonths> kMonthNames{
    "Artaud",  "Benjamin", "Clark",   "De Quincy", "Ellis", "Furst",  "Grof",
    "Hoffman", "Izumi",    "Janiger", "Kesey",     "Lilly", "Kestrin"};
constexpr std::array<std::string_view, kMonths> kShortMonthNames{
    "Artaud", "Benjam", "Clark",   "De Quin", "Ellis", "Furst", "Grof",
    "Hoffm",  "Izumi",  "Janiger", "Kesey",   "Lilly", "Kestr"};

// The lunation of month 1 of the year tied to a Gregorian year. Every conversion asks for one or
// two, and the next one for the same, so those found last are kept.
std::int32_t FirstLunation(std::int32_t gregorian_year) {
  struct YearBegin {
    std::optional<std::int32_t> year;
    std::int32_t lunation = 0;
  };
  static std::array<YearBegin, 16> kept;
  YearBegin& place = kept[static_cast<std::uint32_t>(gregorian_year) % kept.size()];
  if (place.year != gregorian_year) {
    UniversalTime instant;
    std::int32_t lunation = 0;
    NearestNewMoon(OLWYearReference(gregorian_year), instant, lunation);
    place = {gregorian_year, lunation};
  }
  return place.lunation;
}

std::int32_t GregorianYear(std::int32_t olw_year) {
  return CheckedSubtract(olw_year, kYearsBeforeCE);
}

std::int32_t MonthsInYear(std::int32_t olw_year) {
  const std::int32_t year = GregorianYear(olw_year);
  return FirstLunation(CheckedAdd(year, 1)) - FirstLunation(year);
}

// The days on which the weeks of a lunation end: 0 is that of its new moon, before the first week,
// 1 to 3 those of the other phases, 4 that of the next new moon.
using WeekEnds = std::array<DayNumber, kWeeks + 1>;

WeekEnds WeekEndsOf(std::int32_t lunation) {
  WeekEnds ends{};
  for (std::int16_t phase = 0; phase < kWeeks; ++phase) {
    ends[static_cast<std::size_t>(phase)] = OLWDayNumber(PhaseTime(lunation, phase));
  }
  ends.back() = OLWDayNumber(PhaseTime(CheckedAdd(lunation, 1), kNewMoon));
  return ends;
}

// The lunation whose month holds an OLW day. The day of a new moon ends the month before, even if
// it begins with that new moon.
std::int32_t LunationOfDay(DayNumber day_number) {
  const std::int32_t lunation = LunationOf(UniversalTime(day_number.value - kStartBeforeNoon));
  return OLWDayNumber(PhaseTime(lunation, kNewMoon)) < day_number ? lunation : lunation - 1;
}

std::int32_t LunationOfMonth(const OLWDate& record) {
  return CheckedAdd(FirstLunation(GregorianYear(record.year)), record.month - 1);
}

bool MonthExists(const OLWDate& record) {
  return record.month >= 1 && record.month <= kMonths && record.month <= MonthsInYear(record.year);
}

std::int32_t WeekLength(const WeekEnds& ends, std::int32_t week) {
  const auto w = static_cast<std::size_t>(week);
  return ends[w] - ends[w - 1];
}

std::int16_t Validate(const OLWDate& record) {
  OLWDate copy = record;
  std::int16_t error = kOLWValid;
  OLWDateToJDN(copy, error);
  return error;
}

}  // namespace

UniversalTime OLWDayStart(UniversalTime instant) {
  return UniversalTime(std::floor(instant.days + kStartBeforeNoon) - kStartBeforeNoon);
}

DayNumber OLWDayNumber(UniversalTime instant) {
  return DayNumber(CheckedFloor<std::int32_t>(instant.days + kStartBeforeNoon));
}

// By the delta T of the year that is asked for, wherever the instant falls.
UniversalTime OLWYearReference(std::int32_t gregorian_year) {
  return UniversalTime(SeasonInstant(gregorian_year, Season::kMarchEquinox).days -
                       DeltaTForYear(gregorian_year) / kMinutesPerDay);
}

void NearestNewMoon(UniversalTime t, UniversalTime& instant, std::int32_t& lunation) {
  lunation = LunationOf(t);
  instant = PhaseTime(lunation, kNewMoon);
  const std::int32_t next = CheckedAdd(lunation, 1);
  const UniversalTime next_instant = PhaseTime(next, kNewMoon);
  if (next_instant - t >= t - instant) return;
  lunation = next;
  instant = next_instant;
}

void OLWDateToJDN(OLWDate& record, std::int16_t& error) {
  error = kOLWBadMonth;
  if (!MonthExists(record)) return;
  error = kOLWBadWeek;
  if (record.week < 1 || record.week > kWeeks) return;
  const WeekEnds ends = WeekEndsOf(LunationOfMonth(record));
  error = kOLWBadDay;
  if (record.day < 1 || record.day > std::min(kLongestWeek, WeekLength(ends, record.week))) return;
  error = kOLWValid;
  record.jdn = CheckedAdd(ends[static_cast<std::size_t>(record.week - 1)].value, record.day);
}

std::int16_t JDNToOLWDate(OLWDate& record) {
  const DayNumber day_number(record.jdn);
  std::int32_t year = CivilDateOf(record.jdn).year;
  if (day_number <= OLWDayNumber(PhaseTime(FirstLunation(year), kNewMoon))) {
    year = CheckedSubtract(year, 1);
  }
  const std::int32_t lunation = LunationOfDay(day_number);
  const WeekEnds ends = WeekEndsOf(lunation);
  std::size_t week = 1;
  while (week < kWeeks && day_number > ends[week]) ++week;
  record.year = CheckedAdd(year, kYearsBeforeCE);
  record.month = lunation - FirstLunation(year) + 1;
  record.week = static_cast<std::int32_t>(week);
  record.day = day_number - ends[week - 1];
  return CheckedNarrow<std::int16_t>(ends.back() - ends.front());
}

bool IsOLWYearInReach(std::int32_t olw_year) {
  return std::abs(std::int64_t{olw_year} - kYearsBeforeCE) <= kFarthestGregorianYear;
}

std::int16_t ParseOLWDate(std::string_view text, OLWDate& record) {
  const DateFields fields = ParseDateFields(text, '-');
  if (fields.status != FieldsStatus::kFields || fields.count != 4) return kOLWBadText;
  if (!IsOLWYearInReach(fields.values[0])) return kOLWBadText;
  record.year = fields.values[0];
  record.month = fields.values[1];
  record.week = fields.values[2];
  record.day = fields.values[3];
  std::int16_t error = kOLWValid;
  OLWDateToJDN(record, error);
  return error;
}

void ClampOLWDay(OLWDate& record) {
  record.day = std::min(record.day, kLongestWeek);
  while (record.day > 1 && Validate(record) == kOLWBadDay) --record.day;
}

void StepOLWWeek(OLWDate& record, bool forward) {
  record.week += forward ? 1 : -1;
  if (record.week < 1 || record.week > kWeeks) {
    record.week = forward ? 1 : kWeeks;
    StepOLWMonth(record, forward);
  }
  ClampOLWDay(record);
}

void StepOLWMonth(OLWDate& record, bool forward) {
  record.month = CheckedAdd(record.month, forward ? 1 : -1);
  if (record.month == 0) {
    record.month = kMonths;
    record.year = CheckedSubtract(record.year, 1);
    if (!MonthExists(record)) --record.month;
  } else if (!MonthExists(record)) {
    record.month = 1;
    record.year = CheckedAdd(record.year, 1);
  }
  ClampOLWDay(record);
}

void StepOLWYear(OLWDate& record, bool forward) {
  record.year = CheckedAdd(record.year, forward ? 1 : -1);
  if (!MonthExists(record)) record.month = kMonths - 1;
  ClampOLWDay(record);
}

std::string_view OLWDayName(const OLWDate& record) {
  if (record.day <= kDaysNamedFromBeginning) return NameOf(kDayNames, record.day);
  if (Validate(record) != kOLWValid) return "";
  const std::int32_t length = WeekLength(WeekEndsOf(LunationOfMonth(record)), record.week);
  return NameOf(kDayNames, kLongestWeek - (length - record.day));
}

std::string_view OLWWeekName(std::int32_t week) { return NameOf(kWeekNames, week); }

std::string_view OLWMonthName(std::int32_t month) { return NameOf(kMonthNames, month); }

std::string_view OLWShortMonthName(std::int32_t month) { return NameOf(kShortMonthNames, month); }

std::string OLWDateString(const OLWDate& record, std::int32_t style) {
  switch (style) {
    case 1:
      return NumericDate({{record.year}, {record.month, 2}, {record.week}, {record.day}}, " OLW");
    case 2:
      return std::string(OLWDayName(record)) + " in " + std::string(OLWWeekName(record.week)) +
             " of " + std::string(OLWMonthName(record.month)) + ", " + std::to_string(record.year);
    default:
      return "";
  }
}

}  // namespace tarnwick
