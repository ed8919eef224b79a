// What must hold in every calendar, tested by one body over each of them.
#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/day_date.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kFirstDay = 552283;  // -3201-12-31 CE, where Greenwich noon starts the range
constexpr std::int32_t kLastDay = 3912515;  // 6000-01-01 CE
constexpr std::int32_t kFarBeyond = 3'000'000;

// The fields of a date from the greatest to the least: cycle (0 if there are none), year, month and
// day, or triday and its day; 0 in the place that is left.
using Fields = std::array<std::int32_t, 5>;

struct FieldsOfCalendar {
  Calendar calendar;
  Fields (*fields_of)(std::int32_t day_number);
  std::int32_t (*day_number_of)(const Fields& fields);
};

void PrintTo(const FieldsOfCalendar& calendar, std::ostream* out) {
  *out << AbbreviationOf(calendar.calendar);
}

template <char letter>
FieldsOfCalendar EuroCalendar(Calendar calendar) {
  return {calendar,
          [](std::int32_t day_number) {
            const DateRecord record = CivilDateOf(day_number, letter);
            return Fields{0, record.year, record.month, record.day};
          },
          [](const Fields& fields) {
            DateRecord record{fields[1], fields[2], fields[3], letter};
            return euro_date_to_jdn(record);
          }};
}

// The fields of the calendar's record, which begin with the cycle if there is one.
Fields FieldsOf(const ARCDate& date) { return {0, date.year, date.month, date.day}; }
Fields FieldsOf(const SDDate& date) { return {date.cycle, date.year, date.month, date.day}; }
Fields FieldsOf(const KSGDate& date) { return {date.cycle, date.year, date.month, date.day}; }
Fields FieldsOf(const LLTDate& date) {
  return {date.cycle, date.year, date.month, date.triday, date.day};
}

void Fill(ARCDate& date, const Fields& f) { date = {f[1], f[2], f[3]}; }
void Fill(SDDate& date, const Fields& f) { date = {f[0], f[1], f[2], f[3]}; }
void Fill(LLTDate& date, const Fields& f) { date = {f[0], f[1], f[2], f[3], f[4]}; }
void Fill(KSGDate& date, const Fields& f) {
  const auto narrow = [](std::int32_t field) { return static_cast<std::int16_t>(field); };
  date = {f[0], narrow(f[1]), narrow(f[2]), narrow(f[3])};
}

template <class Date, bool (*to_jdn)(Date&)>
FieldsOfCalendar OwnCalendar(Calendar calendar) {
  return {calendar,
          [](std::int32_t day_number) { return FieldsOf(DateOfDay<Date>(DayNumber(day_number))); },
          [](const Fields& fields) {
            Date date;
            Fill(date, fields);
            to_jdn(date);
            return date.jdn;
          }};
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

class EveryCalendar : public testing::TestWithParam<FieldsOfCalendar> {};

TEST_P(EveryCalendar, AgreesWithTheReferenceTable) {
  const CalendarRow& calendar = RowOf(GetParam().calendar);
  const std::string abbreviation(calendar.abbreviation);
  for (const ReferenceRow& row : ReadReferenceData("dates.csv")) {
    const std::int32_t day_number = std::stoi(row.at("day_number"));
    const std::string& text = row.at(abbreviation);
    EXPECT_EQ(calendar.texts(DayNumber(day_number)).short_form, text + " " + abbreviation);
    EXPECT_EQ(calendar.read(text).day_number, DayNumber(day_number)) << text;
    EXPECT_EQ(euro_day_of_week(day_number), std::stoi(row.at("weekday"))) << day_number;
  }
}

// Every day of a stretch has a date that no other has, in order, and comes back from it.
void CheckDays(const FieldsOfCalendar& calendar, std::int32_t first, std::int32_t last) {
  Fields before = calendar.fields_of(first - 1);
  for (std::int32_t day_number = first; day_number <= last; ++day_number) {
    const Fields date = calendar.fields_of(day_number);
    ASSERT_EQ(calendar.day_number_of(date), day_number) << testing::PrintToString(date);
    ASSERT_TRUE(Follows(before, date)) << testing::PrintToString(date) << " on " << day_number;
    before = date;
  }
}

TEST_P(EveryCalendar, KeepsEveryDayOfTheRangeAndThoseFarBeyond) {
  constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
  CheckDays(GetParam(), kFirstDay, kLastDay);
  for (const std::int32_t first : {kFirstDay - kFarBeyond, kLastDay + kFarBeyond, kLowest + 1}) {
    CheckDays(GetParam(), first, first + 10000);
  }
  CheckDays(GetParam(), kHighest - 10000, kHighest - 1);
}

INSTANTIATE_TEST_SUITE_P(
    Calendars, EveryCalendar,
    testing::Values(EuroCalendar<'G'>(kCE), EuroCalendar<'J'>(kJC),
                    OwnCalendar<ARCDate, ARCDateToJDN>(kARC), OwnCalendar<SDDate, SDDateToJDN>(kSD),
                    OwnCalendar<LLTDate, LLTToJDN>(kLLT), OwnCalendar<KSGDate, KSGDateToJDN>(kKSG)),
    [](const auto& tested) { return std::string(AbbreviationOf(tested.param.calendar)); });

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
