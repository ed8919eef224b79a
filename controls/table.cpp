#include "controls/table.h"

namespace tarnwick {

void Table::SetColumns(std::vector<TableColumn> columns) {
  columns_ = std::move(columns);
  Notify(Property::kColumns);
}

void Table::SetRowCount(std::size_t count) {
  if (selected_ && *selected_ >= count) Select(std::nullopt);
  Assign(row_count_, count, Property::kRows);
}

void Table::Renew() { Notify(Property::kCells); }

void Table::Select(std::optional<std::size_t> row) {
  if (row && *row >= row_count_) return;
  Assign(selected_, row, Property::kSelectedRow);
}

void Table::ClickHeading(std::size_t column) const {
  if (on_heading_click && column < columns_.size()) on_heading_click(column);
}

bool Table::PressEnter() {
  if (selected_ && on_take) on_take(*selected_);
  return true;
}

}  // namespace tarnwick
