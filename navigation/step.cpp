#include "navigation/step.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "calendars/date_processing.h"
#include "calendars/day_date.h"
#include "engines/checked_arithmetic.h"
#include "engines/date_engine.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

// Where a step begins.
struct Start {
  UniversalTime moment;
  int offset_minutes;
  std::string_view olw_date;
};

void Require(bool exists) {
  if (!exists) ThrowOverflow();
}

// The Gregorian date of record.jdn.
void FillDate(DateRecord& record) { jdn_to_euro_date(record); }

// And back. A step leaves a date that exists, unless its day number does not fit 32 bits.
void FillDayNumber(DateRecord& record) { Require(euro_date_to_jdn(record) != kNoSuchDate); }
void FillDayNumber(ARCDate& record) { Require(ARCDateToJDN(record)); }
void FillDayNumber(SDDate& record) { Require(SDDateToJDN(record)); }
void FillDayNumber(LLTDate& record) { Require(LLTToJDN(record)); }
void FillDayNumber(KSGDate& record) { Require(KSGDateToJDN(record)); }

constexpr std::int32_t kShortestCEMonth = 28;

void LowerCEDay(DateRecord& record) {
  while (record.day > kShortestCEMonth && euro_date_to_jdn(record) == kNoSuchDate) --record.day;
}

void StepCEMonth(DateRecord& record, bool forward) {
  record.month += forward ? 1 : -1;
  if (record.month < 1 || record.month > 12) {
    record.month = forward ? 1 : 12;
    record.year = CheckedAdd(record.year, forward ? 1 : -1);
  }
  LowerCEDay(record);
}

template <std::int32_t years>
void StepCEYears(DateRecord& record, bool forward) {
  record.year = CheckedAdd(record.year, forward ? years : -years);
  LowerCEDay(record);
}

// The steps of the calendar look for long years one year beside those that have a month 13 or a
// 30th day; what they arrive at may not exist.
void CorrectARCDate(ARCDate& record, bool forward) {
  const bool missing = ARCMonthLength(CheckedAdd(record.year, 1), record.month) < 0;
  if (missing && forward) {
    record.year = CheckedAdd(record.year, 1);
    record.month = 1;
  } else if (missing) {
    record.month = 12;
  }
  const std::int32_t length = ARCMonthLength(CheckedAdd(record.year, 1), record.month);
  record.day = std::min(record.day, length);
}

template <void (*step)(ARCDate&, bool)>
void StepAndCorrect(ARCDate& record, bool forward) {
  step(record, forward);
  CorrectARCDate(record, forward);
}

void StepSDCycle(SDDate& record, bool forward) {
  record.cycle = CheckedAdd(record.cycle, forward ? 1 : -1);
  ClampSDDate(record);
}

void StepLLTCycle(LLTDate& record, bool forward) {
  record.cycle = CheckedAdd(record.cycle, forward ? 1 : -1);
}

template <int minutes>
UniversalTime StepTime(const Start& start, bool forward) {
  constexpr double kDays = static_cast<double>(minutes) / kMinutesPerDay;
  return start.moment + (forward ? kDays : -kDays);
}

template <typename Date, void (*step)(Date&, bool)>
UniversalTime StepDate(const Start& start, bool forward) {
  const DayAndTime from = SplitCJD(AJDToCJD(start.moment, start.offset_minutes));
  Date date;
  date.jdn = from.day_number.value;
  FillDate(date);
  step(date, forward);
  FillDayNumber(date);
  return CJDToAJD(LocalCJD(date.jdn + from.fraction), start.offset_minutes);
}

OLWDate ReadOLWDate(std::string_view text, DayNumber day_number) {
  OLWDate date;
  if (ParseOLWDate(text, date) == kOLWValid) return date;
  return DateOfDay<OLWDate>(day_number);
}

// Here the time of day counts from the beginning of the OLW day, so that the hours after midnight
// stay with the day that they belong to.
template <void (*step)(OLWDate&, bool)>
UniversalTime StepOLWDate(const Start& start, bool forward) {
  const DayAndTime from = SplitCJD(AJDToCJD(start.moment, start.offset_minutes) - kOLWDayShift);
  OLWDate date = ReadOLWDate(start.olw_date, from.day_number);
  step(date, forward);
  std::int16_t error = kOLWValid;
  OLWDateToJDN(date, error);
  Require(error == kOLWValid);
  return CJDToAJD(LocalCJD(date.jdn + kOLWDayShift + from.fraction), start.offset_minutes);
}

struct Step {
  std::string_view text;
  std::optional<Calendar> calendar;
  UniversalTime (*move)(const Start& start, bool forward);
};

constexpr std::nullopt_t kUnchanged = std::nullopt;

constexpr std::array<Step, kStepCount> kSteps{{
    {"1 minute", kUnchanged, StepTime<1>},
    {"1 hour", kUnchanged, StepTime<kMinutesPerHour>},
    {"1 day", kUnchanged, StepTime<kMinutesPerDay>},
    {"1 CE month", kCE, StepDate<DateRecord, StepCEMonth>},
    {"1 CE year", kCE, StepDate<DateRecord, StepCEYears<1>>},
    {"1 CE century", kCE, StepDate<DateRecord, StepCEYears<100>>},
    {"1 ARC month", kARC, StepDate<ARCDate, StepAndCorrect<StepARCMonth>>},
    {"1 ARC year", kARC, StepDate<ARCDate, StepAndCorrect<StepARCYear>>},
    {"1 SD month", kSD, StepDate<SDDate, StepSDMonth>},
    {"1 SD year", kSD, StepDate<SDDate, StepSDYear>},
    {"1 SD cycle", kSD, StepDate<SDDate, StepSDCycle>},
    {"1 KSG month", kKSG, StepDate<KSGDate, StepKSGMonth>},
    {"1 KSG year", kKSG, StepDate<KSGDate, StepKSGYear>},
    {"1 KSG cycle", kKSG, StepDate<KSGDate, StepKSGCycle>},
    {"1 LLT month", kLLT, StepDate<LLTDate, StepLLTMonth>},
    {"1 LLT year", kLLT, StepDate<LLTDate, StepLLTYear>},
    {"1 LLT cycle", kLLT, StepDate<LLTDate, StepLLTCycle>},
    {"1 OLW week", kOLW, StepOLWDate<StepOLWWeek>},
    {"1 OLW month", kOLW, StepOLWDate<StepOLWMonth>},
    {"1 OLW year", kOLW, StepOLWDate<StepOLWYear>},
}};

const Step& StepAt(int step) { return kSteps[static_cast<std::size_t>(step)]; }

}  // namespace

std::string_view StepText(int step) { return StepAt(step).text; }

std::optional<Calendar> StepCalendar(int step) { return StepAt(step).calendar; }

UniversalTime StepMoment(int step, bool forward, UniversalTime moment, int offset_minutes,
                         std::string_view olw_date) {
  return StepAt(step).move({moment, offset_minutes, olw_date}, forward);
}

}  // namespace tarnwick
