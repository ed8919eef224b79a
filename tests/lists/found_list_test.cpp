#include "lists/found_list.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "calendars/date_processing.h"
#include "lists/csv.h"
#include "lists/list_period.h"
#include "lists/row_order.h"
#include "navigation/target.h"

namespace tarnwick {
namespace {

constexpr GeoPoint kBabylon{32.54, 44.42};

Period PeriodOf(const std::string& from, const std::string& to) {
  Period period;
  EXPECT_EQ(ReadListPeriod(from, to, {}, period), "") << from << " to " << to;
  return period;
}

std::unique_ptr<FoundList> WholeList(ListKind kind, std::size_t choice, const std::string& from,
                                     const std::string& to) {
  auto list = MakeList({kind, choice, PeriodOf(from, to), EventPlace{kBabylon, "Babylon"}, 0});
  while (list->FindMore()) {
  }
  return list;
}

// "2024-01-04 CE|03:30|Last quarter"
std::string FirstRow(const FoundList& list) {
  std::string row;
  for (std::size_t i = 0; i < list.Columns().size(); ++i) {
    row += (i == 0 ? "" : "|") + list.Cell(0, i, {});
  }
  return row;
}

TEST(FoundList, FindsAllThereIsAndTellsIt) {
  using enum ListKind;
  struct Asked {
    ListKind kind;
    std::size_t choice;
    std::string year;
    std::size_t rows;
  };
  const std::pair<Asked, std::string> cases[] = {
      {{kPhases, 0, "2024", 50}, "2024-01-04 CE|03:30|Last quarter|296|2,460,313.6461"},
      {{kPhases, 3, "2024", 12}, "2024-01-25 CE|17:54|Full moon|297|2,460,335.2458"},
      {{kEclipses, 0, "2024", 4},
       "2024-03-25 CE|07:12|Penumbral lunar eclipse|113|-0.1325|1.0609|299|2,460,394.8006"},
      {{kSeenEclipses, 2, "-135", 1},
       "-135-04-12 CE|05:25 +- 5 min|08:23 +- 5 min|Central total solar "
       "eclipse|total|1.050|34.7|75|"
       "1,671,853.7264|total; partial if delta T is 310 s more"},
      {{kCrescents, 0, "2024", 13},
       "2024-01-12 CE|17:41|A|easily visible|0.412|26.8|297|2,460,322.1135"},
      {{kDays, 0, "2024", 366},
       "Monday|2024-01-01 CE|2023-12-19 JC|4720-12-20 ARC|33-43-10-21 SD|124-06-06-3 LLT|"
       "1-117-06-20 KSG|5023-10-3-6 OLW|2,460,311.5000 CJD|2,460,311.0000 AJD"},
  };
  for (const auto& [asked, first] : cases) {
    const auto list =
        WholeList(asked.kind, asked.choice, asked.year + "-01-01 CE", asked.year + "-12-31 CE");
    EXPECT_EQ(list->Size(), asked.rows) << first;
    EXPECT_EQ(FirstRow(*list), first);
  }
}

// What the search finds one by one, the list has as a whole.
TEST(FoundList, HasTheCoincidencesThatASearchFinds) {
  const auto list = WholeList(ListKind::kCoincidences, 0, "1900-01-01 CE", "1999-12-31 CE");
  DayNumber day = DayOf(PeriodOf("1900-01-01 CE", "1999-12-31 CE").begin, 0) - 1;
  ASSERT_GT(list->Size(), 50U);
  for (std::size_t row = 0; row < list->Size(); ++row) {
    day = *FindCoincidence(day, true, [] { return true; });
    EXPECT_EQ(list->MomentOf(row).moment, NoonOf(day, 0));
  }
  EXPECT_GT(*FindCoincidence(day, true, [] { return true; }),
            DayOf(PeriodOf("1900-01-01 CE", "1999-12-31 CE").end, 0) - 1);
}

TEST(RowOrder, SortsByValueNotByText) {
  const auto list = WholeList(ListKind::kEclipses, 0, "1990-01-01 CE", "2009-12-31 CE");
  constexpr std::size_t kTime = 1;
  constexpr std::size_t kSaros = 3;
  const std::size_t size = list->Size();
  for (const bool descending : {false, true}) {
    for (const std::size_t column : {kTime, kSaros}) {
      const RowOrder order(*list, column, descending);
      for (std::size_t i = 1; i < size; ++i) {
        const double before = list->SortKey(order.RowAt(i - 1, size), column);
        const double after = list->SortKey(order.RowAt(i, size), column);
        EXPECT_TRUE(descending ? before >= after : before <= after) << i;
      }
    }
  }
  const RowOrder order(*list, kSaros, false);
  EXPECT_EQ(order.RowAt(size, size + 1), size) << "a row found later comes last";
}

TEST(ListPeriod, CountsDaysWhole) {
  const Period days = PeriodOf("2024-03-01 CE", "2024-03-01 CE");
  EXPECT_EQ(days.end - days.begin, 1);
  EXPECT_EQ(PeriodOf("2024-03-01 CE 06:00", "2024-03-01 CE (18:00)").end, days.end);
  EXPECT_EQ(PeriodOf("2460371 AJD", "2460372 AJD").begin, UniversalTime(2460371));
  Period untouched = days;
  EXPECT_NE(ReadListPeriod("2024-03-02 CE", "2024-03-01 CE", {}, untouched), "");
  EXPECT_EQ(untouched.begin, days.begin);
}

TEST(CSV, QuotesWhatNeedsIt) {
  std::string text;
  AddCSVLine(std::vector<std::string>{"a", "b,c", "say \"x\"", "", "two\nlines"}, text);
  EXPECT_EQ(text, "a,\"b,c\",\"say \"\"x\"\"\",,\"two\nlines\"\r\n");
}

}  // namespace
}  // namespace tarnwick
