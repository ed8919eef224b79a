#include "calendars/date_processing.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

void ExpectResult(std::int32_t result, char letter, const std::vector<std::string>& texts) {
  for (const std::string& text : texts) {
    SCOPED_TRACE(text);
    DateRecord record{0, 0, 0, letter, 0, result == 1 ? 0 : 1};
    EXPECT_EQ(ParseDateString(text, record), result);
    EXPECT_EQ(record.valid, result == 1 ? 1 : 0);
    EXPECT_EQ(record.calendar, letter == '?' ? 'G' : letter);
  }
}

TEST(ParseDateString, GivesResultsByTheKindOfFailure) {
  ExpectResult(1, 'G', {"2003-12-31", "\t-3200-01-01 "});
  ExpectResult(1, '?', {"2003-12-31"});
  ExpectResult(1, 'R', {"4708-13-30"});
  ExpectResult(0, 'G',
               {"", "2003-12", "-2003-12", "2003/12/31", "1900-02-29", "2003-99999999999-1"});
  ExpectResult(-1, 'G', {"2003-12-31-1", "2003-xii-31", "0000000000000000000000000002003-12-31"});
  ExpectResult(-1, 'H', {"2003-12-2-9"});
}

TEST(ParseDateString, ComputesTheDayNumberWhereTheEngineCan) {
  const std::pair<char, std::int32_t> day_numbers[] = {
      {'G', 2451589}, {'J', 2451602}, {'A', 2451603}, {'R', 0}};
  for (const auto& [letter, day_number] : day_numbers) {
    DateRecord record;
    record.calendar = letter;
    ASSERT_EQ(ParseDateString(letter == 'A' ? "2000-02-29" : "2000-02-14", record), 1);
    EXPECT_EQ(record.jdn, day_number) << letter;
  }
}

TEST(Names, AreTakenFromTheirLanguage) {
  EXPECT_EQ(WeekdayName(0), "Sunday");
  EXPECT_EQ(WeekdayName(3, true), "Wednesday");
  EXPECT_EQ(WeekdayName(6, true, kGerman), "Samstag  ");
  EXPECT_EQ(WeekdayName(7), "");
  EXPECT_EQ(WeekdayName(-1), "");
  EXPECT_EQ(MonthName(12), "December");
  EXPECT_EQ(MonthName(9, kEnglish, true), "Sept.");
  EXPECT_EQ(MonthName(3, kGerman), "März");
  EXPECT_EQ(MonthName(10, kGerman, true), "Okt.");
  EXPECT_EQ(MonthName(13), "Intercalarius");
  EXPECT_EQ(MonthName(0), "");
  EXPECT_EQ(AnnusNovusDayName(30), "Quintidi");
  EXPECT_EQ(AnnusNovusDayName(6), "Primidi");
  EXPECT_EQ(AnnusNovusDayName(0), "");
}

TEST(DateTexts, GroupThousandsOnlyInLongYears) {
  const std::pair<DateRecord, std::string> texts[] = {
      {{2003, 12, 31}, "2003-12-31"},  {{-3200, 1, 1}, "-3200-01-01"},
      {{79, 8, 24}, "79-08-24"},       {{0, 2, 9}, "0-02-09"},
      {{9999, 12, 31}, "9999-12-31"},  {{-9999, 1, 1}, "-9999-01-01"},
      {{10000, 1, 1}, "10,000-01-01"}, {{-10000, 1, 1}, "-10,000-01-01"},
  };
  for (const auto& [date, text] : texts) EXPECT_EQ(DateText(date), text);
}

TEST(DateTexts, NameTheCalendarInWords) {
  EXPECT_EQ(DayOfYearText({2011, 12, 5, 'G'}),
            "The 5th day of December in the year 2011 in the Common Era Calendar");
  EXPECT_EQ(DayOfYearText({-12011, 1, 22, 'J'}),
            "The 22nd day of January in the year -12,011 in the Julian Calendar");
  EXPECT_EQ(DayOfYearText({12011, 13, 1, 'A'}),
            "The 1st day of Intercalarius in the year 12011 in the Annus Novus Calendar");
  EXPECT_EQ(DayOfYearText({2011, 3, 13, 'R'}),
            "The 13th day of March in the year 2011 in the  Calendar");
}

TEST(TimeOfDay, IsRoundedToSecondsWithinTheDay) {
  const double second = 1.0 / 86400;
  EXPECT_EQ(TimeOfDayText(0.5, false), "12:00");
  EXPECT_EQ(TimeOfDayText(57307.4 * second, true), "15:55:07");
  EXPECT_EQ(TimeOfDayText(3599.6 * second, false), "01:00");
  EXPECT_EQ(TimeOfDayText(1 - 0.4 * second, true), "23:59:59");
  EXPECT_EQ(TimeOfDayText(1, false), "23:59");
  for (const double outside : {-0.001, 1.001, std::nan("")}) {
    EXPECT_EQ(TimeOfDayText(outside, false), "XX:XX:XX") << outside;
  }
}

TEST(Durations, LeaveOutWhatIsZero) {
  const std::tuple<std::int32_t, std::string, std::string> cases[] = {
      {0, "0 minutes", "0m"},
      {-5, "0 minutes", "0m"},
      {1, "1 minute", "1m"},
      {69, "1 hour and 9 minutes", "1h 9m"},
      {1441, "1 day and 1 minute", "1d 1m"},
      {2 * 1440 + 3 * 60, "2 days and 3 hours", "2d 3h"},
      {2 * 1440 + 3 * 60 + 5, "2 days, 3 hours and 5 minutes", "2d 3h 5m"}};
  for (const auto& [minutes, long_text, short_text] : cases) {
    EXPECT_EQ(DurationText(minutes, true), long_text);
    EXPECT_EQ(DurationText(minutes, false), short_text);
  }
}

TEST(Clock, IsReadInEveryFormOfItsTexts) {
  constexpr double kMarchFifth = 2460374.5;  // 2024-03-05, midnight at Greenwich
  const std::tuple<const char*, const char*, std::int32_t, double> cases[] = {
      {"2024-03-05", "00:00:00", 0, kMarchFifth},
      {"2024/03/05", "18:00:00", 0, kMarchFifth + 0.75},
      {"03/05/2024", "06:00:00", 0, kMarchFifth + 0.25},
      {"03-05-2024", "12:00:00 AM", 0, kMarchFifth},
      {"03.05.2024", "12:00:00 PM", 0, kMarchFifth + 0.5},
      {"2024-03-05", "6:00:00 PM", 0, kMarchFifth + 0.75},
      {"2024-03-05", "9:00 AM", 0, kMarchFifth + 0.375},
      {"2024-03-05", "01:30:00", 330, kMarchFifth - 4.0 / 24},
      {"2024-03-05", "23:00:00", -120, kMarchFifth + 25.0 / 24},
      {"2024-03-05", "00:00:27", 0, kMarchFifth + 27.0 / 86400},
  };
  for (const auto& [date, time, offset, ajd] : cases) {
    EXPECT_NEAR(NowAsAJD(date, time, offset).days, ajd, 1e-9) << date << " " << time;
  }
  for (const char* broken : {"", "?", "2024", "2024-02-31", "99999999999999999999"}) {
    EXPECT_LT(NowAsAJD(broken, broken, 0).days, -1e9) << broken;
  }
}

TEST(DayCounts, DifferByHalfADayAndTheOffset) {
  EXPECT_EQ(AJDToCJD(UniversalTime(2451545.0), 0), LocalCJD(2451545.5));
  EXPECT_EQ(AJDToCJD(UniversalTime(2451545.0), 720), LocalCJD(2451546.0));
  EXPECT_EQ(CJDToAJD(LocalCJD(2451545.0), -720), UniversalTime(2451545.0));
  EXPECT_EQ(NoonOf(DayNumber(2451545), 720), UniversalTime(2451544.5));
}

TEST(SplitCJD, CarriesWhatRoundsToMidnightIntoTheNextDay) {
  LocalCJD cjd(2451545);
  for (int hour = 0; hour < 24; ++hour) cjd = cjd + 1.0 / 24;
  ASSERT_NE(cjd, LocalCJD(2451546));
  const DayAndTime midnight = SplitCJD(cjd);
  EXPECT_EQ(midnight.day_number, DayNumber(2451546));
  EXPECT_EQ(midnight.fraction, 0);

  const DayAndTime before_zero = SplitCJD(LocalCJD(-0.25));
  EXPECT_EQ(before_zero.day_number, DayNumber(-1));
  EXPECT_EQ(before_zero.fraction, 0.75);

  const DayAndTime last_second = SplitCJD(LocalCJD(2451545 + 86399.4 / 86400));
  EXPECT_EQ(last_second.day_number, DayNumber(2451545));
  EXPECT_EQ(last_second.fraction, 86399.0 / 86400);
}

TEST(SplitCJD, RefusesWhatHasNoDayNumber) {
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double cjd : {2147483648.0, 2147483647.9999999, -2147483648.5, 1e300, infinity,
                           -infinity, std::nan("")}) {
    EXPECT_THROW(SplitCJD(LocalCJD(cjd)), RuntimeError) << cjd;
  }
  EXPECT_EQ(SplitCJD(LocalCJD(-2147483648.0)).day_number.value,
            std::numeric_limits<std::int32_t>::min());
}

TEST(CheckedArithmetic, ReportsOverflowByItsName) {
  EXPECT_EQ(CheckedAdd<std::int16_t>(32766, 1), 32767);
  EXPECT_EQ(CheckedMultiply<std::int32_t>(46341, -46340), -2147441940);
  EXPECT_THROW(CheckedAdd<std::int16_t>(32767, 1), RuntimeError);
  EXPECT_THROW(CheckedSubtract<std::int32_t>(-2147483647, 2), RuntimeError);
  EXPECT_THROW(CheckedMultiply<std::int32_t>(46341, 46341), RuntimeError);
  try {
    CheckedNarrow<std::int16_t>(-32769);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.what(), "Overflow");
  }
}

}  // namespace
}  // namespace tarnwick
