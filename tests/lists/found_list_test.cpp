#include "lists/found_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "calendars/date_processing.h"
#include "lists/csv.h"
#include "lists/list_period.h"
#include "lists/row_order.h"

namespace tarnwick {
namespace {

using testing::ElementsAre;

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

std::vector<std::string> RowOf(const FoundList& list, std::size_t row,
                               const ListReading& reading = {}) {
  std::vector<std::string> cells;
  for (std::size_t i = 0; i < list.Columns().size(); ++i) {
    cells.push_back(list.Cell(row, i, reading));
  }
  return cells;
}

TEST(FoundList, Look) {
  for (auto kind : {ListKind::kPhases, ListKind::kEclipses, ListKind::kSeenEclipses,
                    ListKind::kCoincidences, ListKind::kCrescents, ListKind::kDays}) {
    auto list =
        WholeList(kind, 0, kind == ListKind::kCoincidences ? "1900-01-01 CE" : "2024-01-01 CE",
                  kind == ListKind::kCoincidences ? "2100-01-01 CE" : "2024-12-31 CE");
    std::printf("%zu rows, %f\n", list->Size(), list->Progress());
    for (std::size_t r = 0; r < std::min<std::size_t>(3, list->Size()); ++r) {
      for (auto& c : RowOf(*list, r)) std::printf("%s | ", c.c_str());
      std::printf("\n");
    }
  }
}

}  // namespace
}  // namespace tarnwick
