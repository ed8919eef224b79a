#include "calendars/triday.h"

#include <array>

#include "calendars/cycle_year.h"
#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "engines/names.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 3> kDayNames{"Sophiesday", "Zoesday", "Norasday"};
constexpr std::array<std::string_view, 12> kMonthNames{
    "Armedon",      "Nousanios", "Harmozel", "Phaionios", "Ainios",  "Oraiel",
    "Mellephaneus", "Loios",     "Davithe",  "Mousanios", "Amethes", "Eleleth"};

void MoveYear(LLTDate& record, bool forward) {
  StepYearOfCycle(record.cycle, record.year, kLLTCycleYears, forward);
}

void MoveMonth(LLTDate& record, bool forward) {
  const std::int32_t month = CheckedAdd(record.month, forward ? 1 : -1);
  if (forward ? month > 12 : month < 1) {
    MoveYear(record, forward);
    record.month = forward ? 1 : 12;
  } else {
    record.month = month;
  }
}

void ClampTo(std::int32_t tridays, LLTDate& record) {
  if (record.triday <= tridays) return;
  record.triday = tridays;
  record.day = 3;
}

std::string NumericText(const LLTDate& record) {
  const std::string text =
      NumericDate({{record.year, 3}, {record.month, 2}, {record.triday, 2}, {record.day}}, " LLT");
  return record.cycle == 0 ? text : std::to_string(record.cycle) + "-" + text;
}

}  // namespace

bool LLTValid(const LLTDate& record) { return ltclunar_valid(record) == 1; }

bool LLTToJDN(LLTDate& record) {
  if (!LLTValid(record)) return false;
  ltclunar_to_jdn(record);
  return true;
}

void JDNToLLT(LLTDate& record) { jdn_to_ltclunar(record); }

bool ParseLLTDate(std::string_view text, LLTDate& record) {
  switch (CountOf(text, "-")) {
    case 3:
      return parse_short_lunar_ltc_date(text, record) == 1;
    case 4:
    case 5:  // a negative cycle
      return parse_long_lunar_ltc_date(text, record) == 1;
    default:
      return false;
  }
}

std::string_view LLTDayName(std::int32_t day) { return NameOf(kDayNames, day); }

std::string_view LLTMonthName(std::int32_t month) { return NameOf(kMonthNames, month); }

std::string_view LLTShortMonthName(std::int32_t month) {
  return month == 7 ? "Mellephan." : LLTMonthName(month);
}

void ClampLLTTriday(LLTDate& record) {
  if (record.month == 6) ClampTo(kTridaysInMonth6, record);
  if (record.month == 12) ClampTo(num_tridays_in_12th_month(record.year), record);
}

void StepLLTYear(LLTDate& record, bool forward) {
  MoveYear(record, forward);
  ClampLLTTriday(record);
}

void StepLLTMonth(LLTDate& record, bool forward) {
  MoveMonth(record, forward);
  ClampLLTTriday(record);
}

std::string LLTDateString(const LLTDate& record, std::int32_t style) {
  if (style < 1) return "";
  if (style == 1) return NumericText(record);
  const std::string day(LLTDayName(record.day));
  const std::string month(LLTMonthName(record.month));
  const std::string year = std::to_string(record.year);
  switch (style) {
    case 2:
      return NumericText(record) + " (" + day + " " + std::to_string(record.triday) + " " + month +
             " " + year + ")";
    default:
      return day + " in the " + OrdinalText(record.triday) + " triday of " + month +
             " in the year " + year +
             (record.cycle == 0 ? "" : ", Cycle " + std::to_string(record.cycle));
  }
}

}  // namespace tarnwick
