// What must hold in every calendar, tested by one body over each of them.
#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>
#include <string>

#include "calendars/archetypes.h"
#include "calendars/date_processing.h"
#include "calendars/goddess.h"
#include "calendars/solilunar.h"
#include "calendars/triday.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kFirstDay = 552283;  // -3201-12-31 CE, where Greenwich noon starts the range
constexpr std::int32_t kLastDay = 3912515;  // 6000-01-01 CE
constexpr std::int32_t kFarBeyond = 3'000'000;

// The fields of a date from the greatest to the least: cycle (0 if there are none), year, month and
// day, or triday and its day; 0 in the place that is left.
using Fields = std::array<std::int32_t, 5>;

struct Calendar {
  std::string name;  // as in the reference table
  Fields (*fields_of)(std::int32_t day_number);
  std::int32_t (*day_number_of)(const Fields& fields);
  std::string (*text_of)(std::int32_t day_number);
  std::optional<std::int32_t> (*parse)(const std::string& text);
};

void PrintTo(const Calendar& calendar, std::ostream* out) { *out << calendar.name; }

template <char letter>
DateRecord EuroDate(std::int32_t day_number) {
  DateRecord record;
  record.calendar = letter;
  record.jdn = day_number;
  jdn_to_euro_date(record);
  return record;
}

template <char letter>
Calendar EuroCalendar(const std::string& name) {
  return {name,
          [](std::int32_t day_number) {
            const DateRecord record = EuroDate<letter>(day_number);
            return Fields{0, record.year, record.month, record.day};
          },
          [](const Fields& fields) {
            DateRecord record{fields[1], fields[2], fields[3], letter};
            return euro_date_to_jdn(record);
          },
          [](std::int32_t day_number) { return DateText(EuroDate<letter>(day_number)); },
          [](const std::string& text) -> std::optional<std::int32_t> {
            DateRecord record;
            record.calendar = letter;
            if (ParseDateString(text, record) != kDateParsed) return std::nullopt;
            return record.jdn;
          }};
}

// For the calendars with a module of their own.
template <auto to_date, typename Record>
Record DateOf(std::int32_t day_number) {
  Record record;
  record.jdn = day_number;
  to_date(record);
  return record;
}

template <auto to_jdn, typename Record>
std::int32_t DayNumberOf(Record record) {
  to_jdn(record);
  return record.jdn;
}

template <auto parse, auto to_jdn, typename Record>
std::optional<std::int32_t> Parse(const std::string& text) {
  Record record;
  if (!parse(text, record) || !to_jdn(record)) return std::nullopt;
  return record.jdn;
}

// The text without the abbreviation behind it.
std::string Numbers(const std::string& text) { return text.substr(0, text.find(' ')); }

bool ParseARCDate(const std::string& text, ARCDate& record) {
  DateRecord parsed;
  parsed.calendar = 'R';
  if (ParseDateString(text, parsed) != kDateParsed) return false;
  record = {parsed.year, parsed.month, parsed.day};
  return true;
}

constexpr auto ARCDateOf = DateOf<JDNToARCDate, ARCDate>;
constexpr auto SDDateOf = DateOf<JDNToSDDate, SDDate>;
constexpr auto LLTDateOf = DateOf<JDNToLLT, LLTDate>;
constexpr auto KSGDateOf = DateOf<JDNToKSGDate, KSGDate>;

Calendar ARCCalendar() {
  return {"ARC",
          [](std::int32_t day_number) {
            const ARCDate date = ARCDateOf(day_number);
            return Fields{0, date.year, date.month, date.day};
          },
          [](const Fields& fields) {
            return DayNumberOf<ARCDateToJDN>(ARCDate{fields[1], fields[2], fields[3]});
          },
          [](std::int32_t day_number) { return Numbers(ARCDateString(ARCDateOf(day_number), 1)); },
          Parse<ParseARCDate, ARCDateToJDN, ARCDate>};
}

Calendar SDCalendar() {
  return {"SD",
          [](std::int32_t day_number) {
            const SDDate date = SDDateOf(day_number);
            return Fields{date.cycle, date.year, date.month, date.day};
          },
          [](const Fields& fields) {
            return DayNumberOf<SDDateToJDN>(SDDate{fields[0], fields[1], fields[2], fields[3]});
          },
          [](std::int32_t day_number) { return Numbers(SDDateString(SDDateOf(day_number), 1)); },
          Parse<ParseSDDate, SDDateToJDN, SDDate>};
}

Calendar LLTCalendar() {
  return {"LLT",
          [](std::int32_t day_number) {
            const LLTDate date = LLTDateOf(day_number);
            return Fields{date.cycle, date.year, date.month, date.triday, date.day};
          },
          [](const Fields& fields) {
            return DayNumberOf<LLTToJDN>(
                LLTDate{fields[0], fields[1], fields[2], fields[3], fields[4]});
          },
          [](std::int32_t day_number) { return Numbers(LLTDateString(LLTDateOf(day_number), 1)); },
          Parse<ParseLLTDate, LLTToJDN, LLTDate>};
}

Calendar KSGCalendar() {
  return {"KSG",
          [](std::int32_t day_number) {
            const KSGDate date = KSGDateOf(day_number);
            return Fields{date.cycle, date.year, date.month, date.day};
          },
          [](const Fields& fields) {
            return DayNumberOf<KSGDateToJDN>(KSGDate{
                fields[0], static_cast<std::int16_t>(fields[1]),
                static_cast<std::int16_t>(fields[2]), static_cast<std::int16_t>(fields[3])});
          },
          [](std::int32_t day_number) { return KSGDateString(KSGDateOf(day_number), 1, false); },
          Parse<ParseKSGDate, KSGDateToJDN, KSGDate>};
}

// Whether one field goes up by one, all greater ones stay and all lesser ones begin again at 1.
// A place that the calendar leaves stays 0.
bool Follows(const Fields& before, const Fields& after) {
  std::size_t place = 0;
  while (place + 1 < after.size() && before[place] == after[place]) ++place;
  if (after[place] != before[place] + 1) return false;
  for (++place; place < after.size(); ++place) {
    if (after[place] != (before[place] == 0 ? 0 : 1)) return false;
  }
  return true;
}

class EveryCalendar : public testing::TestWithParam<Calendar> {};

TEST_P(EveryCalendar, AgreesWithTheReferenceTable) {
  for (const ReferenceRow& row : ReadReferenceData("dates.csv")) {
    const std::int32_t day_number = std::stoi(row.at("day_number"));
    const std::string& text = row.at(GetParam().name);
    EXPECT_EQ(GetParam().text_of(day_number), text) << day_number;
    EXPECT_EQ(GetParam().parse(text), day_number) << text;
    EXPECT_EQ(euro_day_of_week(day_number), std::stoi(row.at("weekday"))) << day_number;
  }
}

// Every day of a stretch has a date that no other has, in order, and comes back from it.
void CheckDays(const Calendar& calendar, std::int32_t first, std::int32_t last) {
  Fields before = calendar.fields_of(first - 1);
  for (std::int32_t day_number = first; day_number <= last; ++day_number) {
    const Fields date = calendar.fields_of(day_number);
    ASSERT_EQ(calendar.day_number_of(date), day_number) << calendar.text_of(day_number);
    ASSERT_TRUE(Follows(before, date)) << calendar.text_of(day_number) << " on " << day_number;
    before = date;
  }
}

TEST_P(EveryCalendar, KeepsEveryDayOfTheRange) { CheckDays(GetParam(), kFirstDay, kLastDay); }

TEST_P(EveryCalendar, KeepsDaysFarBeyondTheRange) {
  CheckDays(GetParam(), kFirstDay - kFarBeyond, kFirstDay - kFarBeyond + 10000);
  CheckDays(GetParam(), kLastDay + kFarBeyond, kLastDay + kFarBeyond + 10000);
}

TEST_P(EveryCalendar, KeepsTheFirstAndTheLastDayNumberOf32Bits) {
  constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
  CheckDays(GetParam(), kLowest + 1, kLowest + 1000);
  CheckDays(GetParam(), kHighest - 1000, kHighest - 1);
}

INSTANTIATE_TEST_SUITE_P(Calendars, EveryCalendar,
                         testing::Values(EuroCalendar<'G'>("CE"), EuroCalendar<'J'>("JC"),
                                         ARCCalendar(), SDCalendar(), LLTCalendar(), KSGCalendar()),
                         [](const auto& calendar) { return calendar.param.name; });

TEST(Weekdays, RunOnThroughTheRangeAndBeyond) {
  constexpr std::int32_t kWednesdayBeforeZero = -6;  // day number 0 is a Monday
  std::int32_t weekday = euro_day_of_week(kWednesdayBeforeZero);
  EXPECT_EQ(weekday, 2);
  for (std::int32_t day_number = kWednesdayBeforeZero + 1; day_number <= kLastDay; ++day_number) {
    weekday = (weekday + 1) % 7;
    ASSERT_EQ(euro_day_of_week(day_number), weekday) << day_number;
  }
}

}  // namespace
}  // namespace tarnwick
