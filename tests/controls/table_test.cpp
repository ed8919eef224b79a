#include "controls/table.h"

#include <gtest/gtest.h>
#include <vector>

#include "controls/form.h"
#include "tools/driver/properties.h"

namespace tarnwick {
namespace {

struct TableForm : Form {
  explicit TableForm(Screen& screen) : Form(screen, "frmTest", "Test") {
    table.on_take = [this](std::size_t row) { taken.push_back(row); };
    table.on_heading_click = [this](std::size_t column) { clicked.push_back(column); };
    table.SetColumns({{"Date", "8"}, {"Saros", "8", true}});
    table.SetRowCount(10);
  }
  Table table{*this, "tbl"};
  std::vector<std::size_t> taken;
  std::vector<std::size_t> clicked;
};

TEST(Table, OnlyWhatThereIsIsSelectedTakenAndClicked) {
  Screen screen;
  TableForm form(screen);
  form.table.PressEnter();
  form.table.Select(9);
  form.table.Select(10);
  form.table.PressEnter();
  form.table.ClickHeading(1);
  form.table.ClickHeading(2);
  EXPECT_EQ(form.taken, std::vector<std::size_t>{9});
  EXPECT_EQ(form.clicked, std::vector<std::size_t>{1});
}

TEST(Table, SelectionGoesWithItsRow) {
  Screen screen;
  TableForm form(screen);
  form.table.Select(4);
  form.table.SetRowCount(5);
  EXPECT_EQ(form.table.Selected(), 4U);
  form.table.SetRowCount(4);
  EXPECT_EQ(form.table.Selected(), std::nullopt);
}

TEST(Table, WatchersAreToldOfChangesOnly) {
  Screen screen;
  TableForm form(screen);
  std::vector<Property> told;
  form.table.Watch([&](Property property) { told.push_back(property); });
  form.table.SetRowCount(11);
  form.table.SetRowCount(11);
  form.table.Select(3);
  form.table.Select(3);
  form.table.Renew();
  form.table.SetOrder(Table::Order{1, true});
  form.table.SetOrder(Table::Order{1, true});
  EXPECT_EQ(told, (std::vector{Property::kRows, Property::kSelectedRow, Property::kCells,
                               Property::kOrder}));
}

TEST(Table, TellsItsPropertiesAsText) {
  Screen screen;
  TableForm form(screen);
  EXPECT_EQ(PropertyText(form.table, "Selected"), "-1");
  EXPECT_EQ(PropertyText(form.table, "SortedBy"), "-1");
  form.table.Select(7);
  form.table.SetOrder(Table::Order{1, true});
  for (const auto& [property, text] :
       {std::pair("RowCount", "10"), std::pair("Selected", "7"), std::pair("Columns", "Date|Saros"),
        std::pair("SortedBy", "1 descending")}) {
    EXPECT_EQ(PropertyText(form.table, property), text) << property;
  }
  EXPECT_EQ(DumpFields(form.table).at(1), "10");
}

}  // namespace
}  // namespace tarnwick
