#include "controls/table.h"

#include <gtest/gtest.h>
#include <vector>

#include "controls/form.h"
#include "tools/driver/properties.h"

namespace tarnwick {
namespace {

struct TableOfTwoColumns : testing::Test {
  TableOfTwoColumns() {
    table.SetColumns({{"Date", "8"}, {"Saros", "8", true}});
    table.SetRowCount(10);
  }
  Screen screen;
  Form form{screen, "frmTest", "Test"};
  Table table{form, "tbl"};
};

TEST_F(TableOfTwoColumns, OnlyWhatThereIsIsSelectedTakenAndClicked) {
  std::vector<std::size_t> taken;
  std::vector<std::size_t> clicked;
  table.on_take = [&](std::size_t row) { taken.push_back(row); };
  table.on_heading_click = [&](std::size_t column) { clicked.push_back(column); };
  table.PressEnter();
  table.Select(9);
  table.Select(10);
  table.PressEnter();
  table.ClickHeading(1);
  table.ClickHeading(2);
  EXPECT_EQ(taken, std::vector<std::size_t>{9});
  EXPECT_EQ(clicked, std::vector<std::size_t>{1});
  EXPECT_EQ(DumpFields(table).at(1), "10");
  table.SetRowCount(9);
  EXPECT_EQ(table.Selected(), std::nullopt);
}

TEST_F(TableOfTwoColumns, WatchersAreToldOfChangesOnly) {
  std::vector<Property> told;
  table.Watch([&](Property property) { told.push_back(property); });
  for (int i = 0; i < 2; ++i) {
    table.SetRowCount(11);
    table.Select(3);
    table.SetOrder(Table::Order{1, true});
  }
  table.Renew();
  EXPECT_EQ(told, (std::vector{Property::kRows, Property::kSelectedRow, Property::kOrder,
                               Property::kCells}));
}

}  // namespace
}  // namespace tarnwick
