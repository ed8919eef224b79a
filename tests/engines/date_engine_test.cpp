#include "engines/date_engine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {
namespace {

using testing::FieldsAre;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

struct KnownDate {
  std::int32_t day_number;
  DateRecord date;
};

void CheckBothWays(const std::vector<KnownDate>& known_dates, std::int32_t (*to_jdn)(DateRecord&),
                   void (*from_jdn)(DateRecord&)) {
  for (const KnownDate& known : known_dates) {
    SCOPED_TRACE(known.day_number);
    DateRecord date = known.date;
    EXPECT_EQ(to_jdn(date), known.day_number);
    EXPECT_EQ(date.jdn, known.day_number);
    EXPECT_EQ(date.valid, 1);
    DateRecord back{0, 0, 0, known.date.calendar, known.day_number};
    from_jdn(back);
    EXPECT_THAT(back, FieldsAre(known.date.year, known.date.month, known.date.day,
                                known.date.calendar, known.day_number, 0));
  }
}

TEST(DateEngine, ConvertsWellKnownDates) {
  CheckBothWays({{2451545, {2000, 1, 1, 'G'}},
                 {2451545, {1999, 12, 19, 'J'}},
                 {2299161, {1582, 10, 15, 'G'}},
                 {2299160, {1582, 10, 4, 'J'}},
                 {-1, {-4713, 12, 31, 'J'}},
                 {1721119, {0, 2, 29, 'G'}},
                 {1721117, {0, 2, 29, 'J'}}},
                euro_date_to_jdn, jdn_to_euro_date);
  CheckBothWays({{2451545, {2000, 1, 1, 'A'}},
                 {2451910, {2000, 13, 6, 'A'}},
                 {2452275, {2001, 13, 5, 'A'}},
                 {1721059, {-1, 13, 5, 'A'}}},
                annus_novus_date_to_jdn, jdn_to_annus_novus_date);
}

TEST(DateEngine, RefusesDatesThatDoNotExistOrDoNotFit) {
  const DateRecord impossible_dates[] = {
      {1900, 2, 29, 'G'},     {-100, 2, 29, 'G'}, {2001, 2, 29, 'J'},    {2000, 2, 30, 'J'},
      {2024, 4, 31, 'G'},     {2024, 0, 1, 'G'},  {2024, 13, 1, 'G'},    {2024, 1, 0, 'G'},
      {2024, 1, 32, 'G'},     {2001, 13, 6, 'A'}, {kHighest, 1, 1, 'G'}, {kLowest, 12, 31, 'J'},
      {kHighest, 13, 5, 'A'},
  };
  for (DateRecord date : impossible_dates) {
    SCOPED_TRACE(testing::PrintToString(date.year) + "-" + testing::PrintToString(date.month));
    date.valid = 1;
    const bool euro = date.calendar != 'A';
    EXPECT_EQ(euro ? euro_date_to_jdn(date) : annus_novus_date_to_jdn(date), kNoSuchDate);
    EXPECT_EQ(date.jdn, kNoSuchDate);
    EXPECT_EQ(date.valid, 0);
  }
}

TEST(DateEngine, LeavesArchetypesDayNumbersToTheirModule) {
  DateRecord date{4708, 13, 30, 'R', 5, 1};
  EXPECT_EQ(annus_novus_date_is_valid(date), 1);
  EXPECT_EQ(annus_novus_date_to_jdn(date), kNoSuchDate);
  EXPECT_THAT(date, FieldsAre(4708, 13, 30, 'R', 0, 1));
}

void ExpectStatus(std::int32_t status, char letter, const std::vector<std::string_view>& texts) {
  for (const std::string_view text : texts) {
    SCOPED_TRACE(text);
    DateRecord date{1, 2, 3, 'X', 4, 5};
    EXPECT_EQ(str_to_date(text, letter, date, '-'), status);
    if (status != 0) {
      EXPECT_THAT(date, FieldsAre(1, 2, 3, 'X', 4, 5));
    }
  }
}

TEST(StrToDate, TellsUnreadableTextsFromImpossibleDates) {
  using std::string_view_literals::operator""sv;
  ExpectStatus(0, 'G', {"2003-12-31", "-0-1-1", "40000-12-31", "00000000000000000000002003-12-31"});
  ExpectStatus(0, 'J', {"-40000-1-1", "1900-2-29"});
  ExpectStatus(0, 'R', {"4708-13-30"});
  ExpectStatus(0, 'A', {"2000-13-6"});
  ExpectStatus(-1, 'G', {"1900-2-29", "99999999999-1-1", "2003-1-4294967297", "2147483647-1-1"});
  ExpectStatus(-1, 'R', {"4708-14-1", "4708-1-31"});
  ExpectStatus(-1, 'A', {"2001-13-6"});
  ExpectStatus(-5, 'G',
               {"", "-", "2003-12", "2003-12-31-1", "1-1-1-1-1-1", "2003-12-", "2003--12-31",
                "--2003-12-31", "+2003-12-31", "2003-12-3 1", "2003/12/31", "2003-12-31\0garbage"sv,
                "000000000000000000000002003-12-31"});
  ExpectStatus(-5, 'H', {"2003-12-31", "2003-12-2-9"});
}

TEST(StrToDate, FillsTheRecord) {
  DateRecord date;
  ASSERT_EQ(str_to_date("-3200/01/27", 'J', date, '/'), 0);
  EXPECT_THAT(date, FieldsAre(-3200, 1, 27, 'J', testing::_, testing::_));
}

TEST(Juldat, SplitsAMoment) {
  std::int32_t year = 0;
  std::int32_t month = 0;
  std::int32_t day = 0;
  double fraction = 0;
  ASSERT_EQ(juldat(1721058.75, "A", &year, &month, &day, &fraction), 0);
  EXPECT_EQ(year, -1);
  EXPECT_EQ(month, 12);
  EXPECT_EQ(day, 31);
  EXPECT_EQ(fraction, 0.25);
  ASSERT_EQ(juldat(1721059.5, "A", &year, &month, &day, &fraction), 0);
  EXPECT_EQ(year, 0);
  EXPECT_EQ(fraction, 0);

  for (const double hopeless : {3e9, -3e9, 1e300, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(juldat(hopeless, "A", &year, &month, &day, &fraction), -1) << hopeless;
  }
}

TEST(DaysElapsed, CountsEitherWay) {
  DateRecord from;
  DateRecord to;
  from.jdn = 100;
  to.jdn = 93;
  EXPECT_EQ(days_elapsed(from, to, 0), -7);
  EXPECT_EQ(days_elapsed(to, from, 1), 8);
  from.jdn = kLowest;
  EXPECT_EQ(days_elapsed(from, to, 0), kNoSuchDate);
}

std::tm Broken(int year, int month, int day, int hour, int minute) {
  std::tm time{};
  time.tm_year = year - 1900;
  time.tm_mon = month - 1;
  time.tm_mday = day;
  time.tm_hour = hour;
  time.tm_min = minute;
  return time;
}

TEST(Timezone, IsTakenAcrossTheEndOfAMonthAndAYear) {
  EXPECT_EQ(MinutesAhead(Broken(2024, 3, 1, 5, 30), Broken(2024, 3, 1, 0, 0)), 330);
  EXPECT_EQ(MinutesAhead(Broken(2025, 1, 1, 12, 15), Broken(2024, 12, 31, 22, 15)), 840);
  EXPECT_EQ(MinutesAhead(Broken(2024, 2, 29, 20, 30), Broken(2024, 3, 1, 0, 0)), -210);
}

TEST(Timezone, AgreesWithTheSystemsOwnReckoning) {
  const std::time_t now = std::time(nullptr);
  const int daylight_saving = std::localtime(&now)->tm_isdst;
  std::tm gmt_read_as_local = *std::gmtime(&now);
  gmt_read_as_local.tm_isdst = daylight_saving;
  const double seconds = std::difftime(now, std::mktime(&gmt_read_as_local));
  EXPECT_EQ(get_timezone(), static_cast<std::int32_t>(seconds / 60));
}

TEST(SeparateThousands, GroupsOnlyTheIntegerPart) {
  EXPECT_EQ(separate_thousands("1234567.89123", ','), "1,234,567.89123");
  EXPECT_EQ(separate_thousands("-123", ','), "-123");
  EXPECT_EQ(separate_thousands("-123456", '.'), "-123.456");
  EXPECT_EQ(separate_thousands("-2147483648", ','), "-2,147,483,648");
  EXPECT_EQ(separate_thousands("1234567", 0), "1234567");
  EXPECT_EQ(separate_thousands("", ','), "");
}

}  // namespace
}  // namespace tarnwick
