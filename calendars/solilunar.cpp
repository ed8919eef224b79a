#include "calendars/solilunar.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "calendars/cycle_year.h"
#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "engines/names.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 13> kMonthNames{
    "Aristarchus", "Bruno",   "Copernicus", "Dee",     "Eratosthenes", "Flamsteed", "Galileo",
    "Hypatia",     "Ibrahim", "Julius",     "Khayyam", "Lilius",       "Meton"};

void MoveYear(SDDate& record, bool forward) {
  StepYearOfCycle(record.cycle, record.year, kSDCycleYears, forward);
}

void MoveMonth(SDDate& record, bool forward) {
  const std::int32_t month = CheckedAdd(record.month, forward ? 1 : -1);
  if (forward ? month > SDMonthsInYear(record.year, record.cycle) : month < 1) {
    MoveYear(record, forward);
    record.month = forward ? 1 : SDMonthsInYear(record.year, record.cycle);
  } else {
    record.month = month;
  }
}

std::string NumericText(const SDDate& record) {
  return NumericDate({{record.cycle}, {record.year, 2}, {record.month, 2}, {record.day, 2}}, " SD");
}

// " in the year 7, cycle 3"
std::string YearWords(const SDDate& record) {
  return " in the year " + std::to_string(record.year) +
         (record.cycle == 0 ? "" : ", cycle " + std::to_string(record.cycle));
}

}  // namespace

bool SDDateToJDN(SDDate& record) {
  sdslcdate_to_jdn(record);
  return record.valid == 1;
}

std::int16_t JDNToSDDate(SDDate& record) {
  return CheckedNarrow<std::int16_t>(jdn_to_sdslcdate(record));
}

bool ParseSDDate(std::string_view text, SDDate& record) {
  return sdslc_datestr_to_sdslc_date(text, record) == 1;
}

std::string_view SDMonthName(std::int32_t month) { return NameOf(kMonthNames, month); }

bool IsLongSDYear(std::int32_t year, std::int32_t cycle) {
  return is_long_sdslc_year(year, cycle) == 1;
}

std::int16_t SDMonthsInYear(std::int32_t year, std::int32_t cycle) {
  return IsLongSDYear(year, cycle) ? 13 : 12;
}

std::int16_t SDMonthLength(const SDDate& record, std::int16_t& extra) {
  const std::int32_t absolute_year =
      CheckedAdd(CheckedMultiply(record.cycle, kSDCycleYears), record.year);
  SDDate absolute{0, absolute_year, record.month, record.day};
  const std::int32_t length = sdmonth_length(absolute);
  extra = CheckedNarrow<std::int16_t>(absolute.extra);
  return CheckedNarrow<std::int16_t>(length);
}

void ClampSDDate(SDDate& record) {
  std::int16_t months = 0;
  record.month = std::min<std::int32_t>(record.month, SDMonthsInYear(record.year, record.cycle));
  record.day = std::min<std::int32_t>(record.day, SDMonthLength(record, months));
}

void StepSDYear(SDDate& record, bool forward) {
  MoveYear(record, forward);
  ClampSDDate(record);
}

void StepSDMonth(SDDate& record, bool forward) {
  MoveMonth(record, forward);
  ClampSDDate(record);
}

std::string SDDateString(const SDDate& record, std::int32_t style) {
  if (style == 1) return NumericText(record);
  const std::string month(SDMonthName(record.month));
  const std::string day = std::to_string(record.day);
  switch (style) {
    case 2:
      return NumericText(record) + " (" + month + " " + day + ", " + std::to_string(record.cycle) +
             "-" + std::to_string(record.year) + ")";
    case 3:
      return day + " " + month + YearWords(record);
    default:
      return "The " + OrdinalText(record.day) + " day of " + month + YearWords(record);
  }
}

}  // namespace tarnwick
