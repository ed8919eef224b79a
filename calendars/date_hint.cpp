#include "calendars/date_hint.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "calendars/archetypes.h"
#include "calendars/date_processing.h"
#include "calendars/goddess.h"
#include "calendars/lunar_week.h"
#include "calendars/solilunar.h"
#include "calendars/text.h"
#include "calendars/triday.h"
#include "engines/checked_arithmetic.h"
#include "engines/date_fields.h"

namespace tarnwick {
namespace {

// One number of a date, which counts from 1.
struct Counted {
  std::string_view name;  // of what it counts: "Day"
  std::int32_t value;
  std::int32_t last;
  std::string beyond;  // what to say of a value above the last
};

std::string Count(std::int32_t count, std::string_view unit) {
  return std::to_string(count).append(" ").append(unit).append(count == 1 ? "" : "s");
}

// "Months of the year go from 1 to 12: this one is 13"
Counted Ranged(std::string_view name, std::string_view whole, std::int32_t value,
               std::int32_t last) {
  return {name, value, last,
          std::string(name) + "s of " + std::string(whole) + " go from 1 to " +
              std::to_string(last) + ": this one is " + std::to_string(value)};
}

// "February 2023 has 28 days"
Counted Having(std::string_view name, std::string_view unit, const std::string& whole,
               std::int32_t value, std::int32_t last) {
  return {name, value, last, whole + " has " + Count(last, unit)};
}

Counted DayOf(const std::string& month, std::int32_t value, std::int32_t last) {
  return Having("Day", "day", month, value, last);
}

// For calendars in which some years have a month 13.
Counted MonthOf(std::string_view calendar, std::int32_t value, std::int32_t months) {
  return {"Month", value, months,
          std::string(calendar) + " years have 12 or 13 months: this one has " +
              std::to_string(months)};
}

std::string FirstFault(std::span<const Counted> numbers) {
  for (const Counted& number : numbers) {
    if (number.value < 1) return std::string(number.name) + "s are counted from 1";
    if (number.value > number.last) return number.beyond;
  }
  return "";
}

// The last day, counting down from `day`, of which a date exists; 0 if there is none.
template <class Exists>
std::int32_t LastDay(std::int32_t day, Exists exists) {
  while (day > 0 && !exists(day)) --day;
  return day;
}

using Numbers = std::span<const std::int32_t>;

std::string EuroFault(Numbers numbers, char letter) {
  constexpr std::int32_t kLongestMonth = 31;
  const std::int32_t year = numbers[0];
  const std::int32_t month = numbers[1];
  if (year >= 1 && year <= kLongestMonth && numbers[2] > kLongestMonth) {
    return "The year comes first: year-month-day";
  }
  const std::int32_t last = LastDay(kLongestMonth, [&](std::int32_t day) {
    DateRecord record{year, month, day, letter};
    return euro_date_to_jdn(record) != kNoSuchDate;
  });
  const std::string name =
      std::string(MonthName(month)) + " " + YearText(year) + (letter == 'J' ? " JC" : "");
  // A year in which no day exists lies beyond the reach of day numbers.
  const std::array<Counted, 2> counted{Ranged("Month", "the year", month, 12),
                                       DayOf(name, numbers[2], last > 0 ? last : numbers[2])};
  return FirstFault(counted);
}

std::string CEFault(Numbers numbers) { return EuroFault(numbers, 'G'); }
std::string JCFault(Numbers numbers) { return EuroFault(numbers, 'J'); }

std::string ARCFault(Numbers numbers) {
  const std::int32_t index = CheckedAdd(numbers[0], 1);  // of the year, as its rules count it
  const std::int32_t month = numbers[1];
  const std::string name = std::string(ARCMonthName(month)) + " " + YearText(numbers[0]);
  const std::array<Counted, 2> counted{MonthOf("ARC", month, IsARCLeapYear(index) ? 13 : 12),
                                       DayOf(name, numbers[2], ARCMonthLength(index, month))};
  return FirstFault(counted);
}

std::string SDFault(Numbers numbers) {
  const SDDate date{numbers[0], numbers[1], numbers[2], numbers[3]};
  std::int16_t months = 0;
  const std::int32_t days = SDMonthLength(date, months);
  const std::string name = std::string(SDMonthName(date.month)) + " of the year " +
                           std::to_string(date.cycle) + "-" + std::to_string(date.year);
  const std::array<Counted, 3> counted{Ranged("Year", "an SD cycle", date.year, kSDCycleYears),
                                       MonthOf("SD", date.month, months),
                                       DayOf(name, date.day, days)};
  return FirstFault(counted);
}

// The cycle may be left out.
std::string LLTFault(Numbers numbers) {
  const Numbers of_year = numbers.last(4);
  const std::int32_t year = of_year[0];
  const std::int32_t month = of_year[1];
  std::int32_t tridays = 10;
  if (month == 6) tridays = kTridaysInMonth6;
  if (month == 12) tridays = num_tridays_in_12th_month(year);
  const std::string name = std::string(LLTMonthName(month)) + " " + std::to_string(year);
  const std::array<Counted, 4> counted{
      Ranged("Year", "an LLT cycle", year, kLLTCycleYears), Ranged("Month", "the year", month, 12),
      Having("Triday", "triday", name, of_year[2], tridays), DayOf("A triday", of_year[3], 3)};
  return FirstFault(counted);
}

std::string KSGFault(Numbers numbers) {
  const Numbers of_year = numbers.last(3);
  const std::int32_t year = of_year[0];
  const std::int32_t month = of_year[1];
  const std::string name =
      std::string(KSGMonthName(month)) + " of the year " + std::to_string(year);
  const std::array<Counted, 3> counted{Ranged("Year", "a KSG cycle", year, kKSGCycleYears),
                                       Ranged("Month", "the year", month, 13),
                                       DayOf(name, of_year[2], KSGMonthLength(year, month))};
  return FirstFault(counted);
}

std::int16_t OLWError(OLWDate date) {
  std::int16_t error = kOLWValid;
  OLWDateToJDN(date, error);
  return error;
}

std::string OLWFault(Numbers numbers) {
  if (!IsOLWYearInReach(numbers[0])) return "";
  const OLWDate date{numbers[0], numbers[1], numbers[2], numbers[3]};
  const bool long_year = OLWError({date.year, 13, 1, 1}) == kOLWValid;
  const std::int32_t days = LastDay(9, [&](std::int32_t day) {
    return OLWError({date.year, date.month, date.week, day}) == kOLWValid;
  });
  const std::string name = std::string(OLWWeekName(date.week)) + " of " +
                           std::string(OLWMonthName(date.month)) + " " + std::to_string(date.year);
  const std::array<Counted, 3> counted{MonthOf("OLW", date.month, long_year ? 13 : 12),
                                       Ranged("Week", "the month", date.week, 4),
                                       DayOf(name, date.day, days)};
  return FirstFault(counted);
}

struct Rule {
  std::string_view form;
  std::size_t fewest;  // numbers
  std::size_t most;
  std::string_view count;  // of its numbers, in words
  // The first number out of its range; empty if there is none.
  std::string (*fault)(Numbers numbers);
};

constexpr std::array<Rule, kCalendarCount> kRules{{
    {"year-month-day", 3, 3, "three", CEFault},
    {"year-month-day", 3, 3, "three", JCFault},
    {"year-month-day", 3, 3, "three", ARCFault},
    {"cycle-year-month-day", 4, 4, "four", SDFault},
    {"cycle-year-month-triday-day", 4, 5, "four or five", LLTFault},
    {"cycle-year-month-day", 3, 4, "three or four", KSGFault},
    {},
    {},
    {"year-month-week-day", 4, 4, "four", OLWFault},
}};

const Rule& RuleOf(Calendar calendar) { return kRules[static_cast<std::size_t>(calendar)]; }

std::string NumberFault(const Rule& rule, Numbers numbers) {
  try {
    return rule.fault(numbers);
  } catch (const RuntimeError&) {  // a number too large for the calendar's arithmetic
    return "";
  }
}

}  // namespace

std::string_view DateForm(Calendar calendar) { return RuleOf(calendar).form; }

std::string DateFault(Calendar calendar, std::string_view date) {
  const Rule& rule = RuleOf(calendar);
  const std::string dates = std::string(AbbreviationOf(calendar)) + " dates ";
  const std::string form(rule.form);
  const DateFields fields = ParseDateFields(date, '-');
  if (fields.status == FieldsStatus::kBadShape) {
    return dates + "are numbers joined by \"-\": " + form;
  }
  if (fields.count < rule.fewest || fields.count > rule.most) {
    return dates + "are " + std::string(rule.count) + " numbers, " + form + ": this one has " +
           std::to_string(fields.count);
  }
  std::string fault;
  if (fields.status == FieldsStatus::kFields) {
    fault = NumberFault(rule, Numbers(fields.values).first(fields.count));
  }
  return fault.empty() ? dates + "do not reach as far as that" : fault;
}

}  // namespace tarnwick
