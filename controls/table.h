// A table of texts, of which only those on display are ever asked for.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controls/control.h"

namespace tarnwick {

struct TableColumn {
  std::string heading;
  std::string longest;  // a text as long as any of its cells is likely to be: how wide it is
  bool right = false;   // its cells stand at the right, as numbers do
};

class Table : public Control {
 public:
  using Control::Control;
  bool CanTakeFocus() const override { return true; }

  const std::vector<TableColumn>& Columns() const { return columns_; }
  void SetColumns(std::vector<TableColumn> columns);

  // More rows may be added at any time; every cell is that of `cell_text` when it is shown.
  std::size_t RowCount() const { return row_count_; }
  void SetRowCount(std::size_t count);
  std::function<std::string(std::size_t row, std::size_t column)> cell_text;
  // What the cells say has changed.
  void Renew();

  std::optional<std::size_t> Selected() const { return selected_; }
  void Select(std::optional<std::size_t> row);

  // The column by which the rows are sorted, if they are, and which way.
  struct Order {
    std::size_t column = 0;
    bool descending = false;
    friend bool operator==(const Order&, const Order&) = default;
  };
  const std::optional<Order>& SortedBy() const { return order_; }
  void SetOrder(std::optional<Order> order) { Assign(order_, order, Property::kOrder); }

  // The user clicks the heading of a column; takes a row, by Enter or a double click.
  std::function<void(std::size_t column)> on_heading_click;
  std::function<void(std::size_t row)> on_take;
  void ClickHeading(std::size_t column) const;
  bool PressEnter() override;

 private:
  std::vector<TableColumn> columns_;
  std::size_t row_count_ = 0;
  std::optional<std::size_t> selected_;
  std::optional<Order> order_;
};

}  // namespace tarnwick
