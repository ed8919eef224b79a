#include "navigation/step.h"

#include <gtest/gtest.h>
#include <string>

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "engines/checked_arithmetic.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr int kOffset = 120;         // every date here is read in this zone
constexpr long kTime = 47229;        // 13:07:09
constexpr long kBeforeDawn = 11709;  // 03:15:09
constexpr long kDay = 86400;
constexpr long kDawn = kDay / 4;

const CalendarRow& RowNamed(const std::string& calendar) {
  return RowOf(CalendarIndex(calendar).value());
}

std::int32_t DayNumberOf(const std::string& numbers, const std::string& calendar) {
  const ReadDay read = RowNamed(calendar).read(numbers);
  EXPECT_EQ(read.code, kEntryOk) << numbers;
  return read.day_number.value;
}

// The date text and time, "2024-02-29 CE 13:07:09", of a moment.
std::string TextOf(UniversalTime moment, const std::string& calendar) {
  const CalendarRow& row = RowNamed(calendar);
  const LocalCJD cjd = AJDToCJD(moment, kOffset);
  return row.texts(SplitCJD(cjd - row.day_shift).day_number).short_form + " " +
         TimeOfDayText(SplitCJD(cjd).fraction, true);
}

UniversalTime MomentOf(const std::string& numbers, const std::string& calendar, long seconds) {
  std::int32_t day = DayNumberOf(numbers, calendar);
  if (calendar == "OLW" && seconds < kDawn) ++day;  // the small hours of the next civil day
  return CJDToAJD(LocalCJD(day + static_cast<double>(seconds) / kDay), kOffset);
}

int StepNamed(const std::string& text) {
  int step = 0;
  while (StepText(step) != text) ++step;
  return step;
}

TEST(Steps, OfMinutesHoursAndDays) {
  const struct {
    std::string step;
    std::string date;
    long seconds;
    std::string forward;
    std::string back;
  } rows[] = {
      {"1 minute", "2024-02-29", kDay - 30, "2024-03-01 CE 00:00:30", "2024-02-29 CE 23:58:30"},
      {"1 minute", "2023-12-31", kDay - 60, "2024-01-01 CE 00:00:00", "2023-12-31 CE 23:58:00"},
      {"1 hour", "2023-01-31", kTime, "2023-01-31 CE 14:07:09", "2023-01-31 CE 12:07:09"},
      {"1 hour", "2023-12-31", 0, "2023-12-31 CE 01:00:00", "2023-12-30 CE 23:00:00"},
      {"1 day", "2024-02-29", kTime, "2024-03-01 CE 13:07:09", "2024-02-28 CE 13:07:09"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.step + " from " + row.date);
    const UniversalTime moment = MomentOf(row.date, "CE", row.seconds);
    const int step = StepNamed(row.step);
    EXPECT_EQ(StepCalendar(step), std::nullopt);
    EXPECT_EQ(TextOf(StepMoment(step, true, moment, kOffset, ""), "CE"), row.forward);
    EXPECT_EQ(TextOf(StepMoment(step, false, moment, kOffset, ""), "CE"), row.back);
  }
}

struct DateRow {
  std::string step;
  std::string date;
  std::string forward;
  std::string back;
};

void ExpectSteps(const DateRow& row, const std::string& calendar, long seconds) {
  SCOPED_TRACE(row.step + " from " + row.date + " at second " + std::to_string(seconds));
  const int step = StepNamed(row.step);
  const UniversalTime moment = MomentOf(row.date, calendar, seconds);
  const std::string rest =
      " " + calendar + " " + TimeOfDayText(static_cast<double>(seconds) / kDay, true);
  ASSERT_EQ(TextOf(moment, calendar), row.date + rest);
  EXPECT_EQ(TextOf(StepMoment(step, true, moment, kOffset, row.date), calendar),
            row.forward + rest);
  EXPECT_EQ(TextOf(StepMoment(step, false, moment, kOffset, row.date), calendar), row.back + rest);
}

// ARC: months 13 exist in 4706, 4709, 4711, 4714, 4717 and the step looks for them in the years
// after these. Month 10 has 30 days in 4709, for the step in 4710.
// SD, months and days of the last month: 32-60 12/30, 33-28 13/30, 33-30 13/30, 33-40 12/29, 33-41
// 13/30, 33-42 12/29, 33-58 13/29, 33-59 12/30, 33-60 13/30, 34-01 12/29, 34-28 12/29, 34-58 12/29,
// 32-20 13/29, 33-20 13/30, 34-20 12/30, 32-30 12/30, 34-30 13/30, 32-28 13/30, 32-58 13/30.
// KSG: month 13 has 29 days in the years divisible by 10 or 235.
// LLT: month 6 has 9 tridays; month 12 has 10 in the years 107 and 384, 9 in the others here.
// OLW: month 1 of 5024 begins after the new moon of 2024-03-10. By the almanac its weeks have 6, 9,
// 7 and 7 days, and 8 have week 2 of the next month, of 5023-12, 5023-01 and 5025-01. 5024 has 13
// months, 5023 and 5025 have 12.
const DateRow kDateRows[] = {
    {"1 CE month", "2024-02-29", "2024-03-29", "2024-01-29"},
    {"1 CE month", "2024-03-31", "2024-04-30", "2024-02-29"},
    {"1 CE month", "2023-12-31", "2024-01-31", "2023-11-30"},
    {"1 CE month", "2024-01-31", "2024-02-29", "2023-12-31"},
    {"1 CE year", "2024-02-29", "2025-02-28", "2023-02-28"},
    {"1 CE year", "0-12-31", "1-12-31", "-1-12-31"},
    {"1 CE century", "2000-02-29", "2100-02-28", "1900-02-28"},
    {"1 ARC month", "4708-11-30", "4708-12-29", "4708-10-29"},
    {"1 ARC month", "4709-13-30", "4710-01-30", "4709-12-29"},
    {"1 ARC month", "4710-12-29", "4711-01-29", "4710-11-29"},
    {"1 ARC month", "4711-01-30", "4711-02-29", "4710-12-29"},
    {"1 ARC month", "4709-12-15", "4710-01-15", "4709-11-15"},
    {"1 ARC month", "4710-11-30", "4710-12-29", "4710-10-29"},
    {"1 ARC year", "4708-11-30", "4709-11-30", "4707-11-30"},
    {"1 ARC year", "4709-13-30", "4711-01-30", "4708-12-29"},
    {"1 ARC year", "4709-10-30", "4710-10-29", "4708-10-29"},
    {"1 SD month", "33-40-11-30", "33-40-12-29", "33-40-10-29"},
    {"1 SD month", "33-60-13-30", "34-01-01-30", "33-60-12-29"},
    {"1 SD month", "33-01-01-30", "33-01-02-29", "32-60-12-30"},
    {"1 SD year", "33-60-13-30", "34-01-12-29", "33-59-12-30"},
    {"1 SD year", "33-01-01-30", "33-02-01-30", "32-60-01-30"},
    {"1 SD cycle", "33-28-13-30", "34-28-12-29", "32-28-13-30"},
    {"1 SD cycle", "33-20-13-30", "34-20-12-30", "32-20-13-29"},
    {"1 KSG month", "1-105-12-29", "1-105-13-29", "1-105-11-29"},
    {"1 KSG month", "1-111-01-30", "1-111-02-29", "1-110-13-29"},
    {"1 KSG month", "1-470-13-29", "2-1-01-29", "1-470-12-29"},
    {"1 KSG year", "1-109-13-30", "1-110-13-29", "1-108-13-30"},
    {"1 KSG year", "1-109-13-15", "1-110-13-15", "1-108-13-15"},
    {"1 KSG year", "1-236-13-30", "1-237-13-30", "1-235-13-29"},
    {"1 KSG year", "2-1-05-30", "2-2-05-30", "1-470-05-30"},
    {"1 KSG cycle", "0-1-01-01", "1-1-01-01", "-1-1-01-01"},
    {"1 LLT month", "112-05-10-1", "112-06-09-3", "112-04-10-1"},
    {"1 LLT month", "112-11-10-1", "112-12-09-3", "112-10-10-1"},
    {"1 LLT month", "384-12-10-1", "1-001-01-10-1", "384-11-10-1"},
    {"1 LLT month", "001-01-10-2", "001-02-10-2", "-1-384-12-10-2"},
    {"1 LLT year", "107-12-10-2", "108-12-09-3", "106-12-09-3"},
    {"1 LLT year", "384-01-10-3", "1-001-01-10-3", "383-01-10-3"},
    {"1 LLT year", "001-06-09-3", "002-06-09-3", "-1-384-06-09-3"},
    {"1 LLT cycle", "107-12-10-3", "1-107-12-10-3", "-1-107-12-10-3"},
    {"1 OLW week", "5024-01-2-9", "5024-01-3-7", "5024-01-1-6"},
    {"1 OLW week", "5024-13-4-3", "5025-01-1-3", "5024-13-3-3"},
    {"1 OLW week", "5024-01-1-3", "5024-01-2-3", "5023-12-4-3"},
    {"1 OLW month", "5024-01-2-9", "5024-02-2-8", "5023-12-2-8"},
    {"1 OLW month", "5024-13-4-3", "5025-01-4-3", "5024-12-4-3"},
    {"1 OLW month", "5023-12-3-5", "5024-01-3-5", "5023-11-3-5"},
    {"1 OLW year", "5024-01-2-9", "5025-01-2-8", "5023-01-2-8"},
    {"1 OLW year", "5024-13-4-3", "5025-12-4-3", "5023-12-4-3"},
};

// In the middle of the day, in its small hours, and at its two ends.
TEST(Steps, OfMonthsYearsAndCycles) {
  EXPECT_EQ(DayNumberOf("5024-01-2-9", "OLW"), DayNumberOf("2024-03-25", "CE"));
  for (const DateRow& row : kDateRows) {
    const std::string calendar = row.step.substr(2, row.step.find(' ', 2) - 2);
    EXPECT_EQ(StepCalendar(StepNamed(row.step)), CalendarIndex(calendar));
    for (const long seconds : {kTime, kBeforeDawn, 0L, kDawn, kDay - 1}) {
      ExpectSteps(row, calendar, seconds);
    }
  }
}

TEST(Steps, OfTheLunarWeekCalendarStartFromTheDateShown) {
  const UniversalTime moment = MomentOf("5024-01-2-3", "OLW", kBeforeDawn);
  const int week = StepNamed("1 OLW week");
  EXPECT_EQ(TextOf(StepMoment(week, true, moment, kOffset, "5020-05-1-2"), "OLW"),
            "5020-05-2-2 OLW 03:15:09");
  for (const char* no_date : {"", "?", "5024-14-1-1", "5024-01-5-1"}) {
    EXPECT_EQ(TextOf(StepMoment(week, true, moment, kOffset, no_date), "OLW"),
              "5024-01-3-3 OLW 03:15:09")
        << no_date;
  }
}

TEST(Steps, OfAnHourAddUpToADay) {
  UniversalTime moment = MomentOf("2024-02-29", "CE", 0);
  for (int i = 0; i < 24; ++i) moment = StepMoment(StepNamed("1 hour"), true, moment, kOffset, "");
  EXPECT_EQ(TextOf(moment, "CE"), "2024-03-01 CE 00:00:00");
  EXPECT_EQ(TextOf(StepMoment(StepNamed("1 CE month"), true, moment, kOffset, ""), "CE"),
            "2024-04-01 CE 00:00:00");
  for (int i = 0; i < 48; ++i) moment = StepMoment(StepNamed("1 hour"), false, moment, kOffset, "");
  EXPECT_EQ(TextOf(moment, "CE"), "2024-02-28 CE 00:00:00");
}

// Also some thousand years beyond the limits of the program.
TEST(Steps, MoveInTheirDirectionAndKeepTheTime) {
  for (double ajd = 552283 - 2e6; ajd < 3912515 + 2e6; ajd += 34567.89) {
    const UniversalTime moment(ajd);
    const double time = SplitCJD(AJDToCJD(moment, kOffset)).fraction;
    for (int step = kOneDayStep; step < kStepCount; ++step) {
      SCOPED_TRACE(std::string(StepText(step)) + " from " + std::to_string(ajd));
      const UniversalTime next = StepMoment(step, true, moment, kOffset, "");
      const UniversalTime previous = StepMoment(step, false, moment, kOffset, "");
      EXPECT_GE(next, moment + 0.9);
      EXPECT_LE(previous, moment - 0.9);
      EXPECT_NEAR(SplitCJD(AJDToCJD(next, kOffset)).fraction, time, 1.5 / kDay);
      EXPECT_NEAR(SplitCJD(AJDToCJD(previous, kOffset)).fraction, time, 1.5 / kDay);
    }
  }
}

TEST(Steps, ThrowWhereTheNumbersEnd) {
  for (const char* step : {"1 CE century", "1 SD cycle", "1 KSG cycle", "1 LLT cycle"}) {
    EXPECT_THROW(StepMoment(StepNamed(step), true, UniversalTime(2147483000), 0, ""), RuntimeError)
        << step;
    EXPECT_THROW(StepMoment(StepNamed(step), false, UniversalTime(-2147483000), 0, ""),
                 RuntimeError)
        << step;
  }
}

}  // namespace
}  // namespace tarnwick
