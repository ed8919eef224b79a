#include "lunation_view/printed_lunations.h"

#include <cmath>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

constexpr int kOffset = 330;  // minutes east of Greenwich

TEST(PrintedLunationsTest, YearHoldsAllItsLunationsAndNoOther) {
  for (std::int32_t lunation = kFirstLunation; lunation <= kLastLunation; lunation += 997) {
    for (int calendar = 0; calendar < 4; ++calendar) {
      const GridReading reading{calendar, kOffset};
      const std::string year = YearOfLunation(lunation, reading);
      SCOPED_TRACE("lunation " + std::to_string(lunation) + ", year " + year);
      const LunationSpan span = LunationsOfYear(lunation, reading);
      for (std::int32_t i = span.first - 1; i <= span.last + 1; ++i) {
        if (i < kFirstLunation || i > kLastLunation) continue;
        ASSERT_EQ(YearOfLunation(i, reading) == year, span.first <= i && i <= span.last) << i;
      }
      const bool cut = span.first == kFirstLunation || span.last == kLastLunation;
      ASSERT_LE(span.last - span.first, 12);
      ASSERT_TRUE(cut || span.last - span.first >= 11);
    }
  }
}

TEST(PrintedLunationsTest, YearEndsWithTheRange) {
  EXPECT_EQ(LunationsOfYear(kFirstLunation, {0, 0}).first, kFirstLunation);
  EXPECT_EQ(LunationsOfYear(kLastLunation, {0, 0}).last, kLastLunation);
  // Without a calendar there are no years to go by.
  const LunationSpan span = LunationsOfYear(0, {4, 0});
  EXPECT_EQ(span.first, 0);
  EXPECT_EQ(span.last, 0);
}

// Lunation 298 begins on the last day of 4720, but is the first of 4721.
TEST(PrintedLunationsTest, YearIsThatOfTheTitle) {
  const PrintedGrids pages = PrintedLunations("Year", LunationsOfYear(300, {0, 0}), {0, 0});
  EXPECT_EQ(pages.page(0).title, "Lunation 298 (Apollo 4721)");
  EXPECT_EQ(pages.page(pages.page_count).title.substr(pages.page(0).title.find('(')),
            "(Apollo 4722)");
}

TEST(PrintedLunationsTest, MoonWaxesFromTheRightAndWanesFromTheLeft) {
  const GridReading reading{0, kOffset};
  const PrintedGrid page = PrintedPageOf(MakeLunationGrid(332, reading), reading);
  ASSERT_EQ(page.cells.size(), std::size_t{kGridCells});
  ASSERT_EQ(page.headings.size(), std::size_t{kGridColumns});
  double lit_before = -1;
  bool waxed = true;
  for (const auto& cell : page.cells) {
    if (!cell) continue;
    const PrintedMoon moon = cell->moon;
    const bool new_moon = cell->main == "30 Orpheus";  // half an hour after that noon
    EXPECT_TRUE(new_moon || waxed || !moon.from_right) << cell->main;
    EXPECT_TRUE(new_moon || !moon.from_right || moon.lit > lit_before) << cell->main;
    EXPECT_TRUE(cell->events != "Full moon 20:23" || moon.lit > 0.99);
    EXPECT_TRUE(cell->events != "1st quarter 17:17" || std::fabs(moon.lit - 0.5) < 0.05);
    waxed = new_moon || moon.from_right;
    lit_before = moon.lit;
  }
  EXPECT_FALSE(waxed);
  EXPECT_NE(page.note.find("GMT + 05:30."), std::string::npos);
}

// On paper no line ends within a time.
TEST(PrintedLunationsTest, TimesAreWhole) {
  const GridReading reading{0, 0};
  const PrintedGrid page = PrintedPageOf(MakeLunationGrid(-37105, reading), reading);
  EXPECT_EQ(page.cells[0]->events, "Dark moon 10:24\u00a0\u00b1\u00a011\u00a0min");
}

}  // namespace
}  // namespace tarnwick
