// Shows a table of any length: only the cells on display are asked for.
#pragma once

#include <QTableView>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "controls/table.h"

namespace tarnwick {

class TableModel;

class TableView final : public QTableView {
 public:
  using CellText = std::function<QString(std::size_t row, std::size_t column)>;

  explicit TableView(QWidget* parent);

  // Says what a cell shows, whenever it is to be painted.
  void SetCells(CellText cell_text);
  // Other columns; what is selected and at the top stays.
  void SetColumns(const std::vector<TableColumn>& columns);
  // More rows go to the end, and nothing moves; fewer are another table.
  void SetRowCount(std::size_t count);
  // Asks for the cells anew.
  void Renew();

  std::optional<std::size_t> Selected() const;
  void Select(std::optional<std::size_t> row);
  void ShowOrder(const std::optional<Table::Order>& order);

  // It would read the whole table to find a row that begins with a letter.
  void keyboardSearch(const QString& /*search*/) override {}

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int WidthOf(const TableColumn& column) const;

  TableModel* model_;
};

}  // namespace tarnwick
