#include "desktop/table_view.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

#include "desktop/characters.h"
#include "desktop/look.h"

namespace tarnwick {

class TableModel final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void SetCells(TableView::CellText cell_text) { cell_text_ = std::move(cell_text); }

  void SetColumns(const std::vector<TableColumn>& columns) {
    beginResetModel();
    columns_ = columns;
    endResetModel();
  }

  void SetRowCount(int count) {
    if (count > rows_) {
      beginInsertRows({}, rows_, count - 1);
      rows_ = count;
      endInsertRows();
    } else if (count < rows_) {
      beginResetModel();
      rows_ = count;
      endResetModel();
    }
  }

  void Renew() {
    if (rows_ == 0 || columns_.empty()) return;
    const QModelIndex first = QAbstractTableModel::index(0, 0);
    const QModelIndex last = QAbstractTableModel::index(rows_ - 1, columnCount({}) - 1);
    Q_EMIT dataChanged(first, last);
  }

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
  }

  QVariant data(const QModelIndex& cell, int role) const override {
    if (!cell.isValid()) return {};
    if (role == Qt::TextAlignmentRole) return AlignmentOf(cell.column());
    if (role != Qt::DisplayRole || !cell_text_) return {};
    return cell_text_(static_cast<std::size_t>(cell.row()),
                      static_cast<std::size_t>(cell.column()));
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation == Qt::Vertical) {
      return QAbstractTableModel::headerData(section, orientation, role);
    }
    if (role == Qt::TextAlignmentRole) return AlignmentOf(section);
    if (role == Qt::DisplayRole)
      return ToQt(columns_.at(static_cast<std::size_t>(section)).heading);
    return {};
  }

 private:
  QVariant AlignmentOf(int column) const {
    const bool right = columns_.at(static_cast<std::size_t>(column)).right;
    return QVariant::fromValue((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  }

  TableView::CellText cell_text_;
  std::vector<TableColumn> columns_;
  int rows_ = 0;
};

namespace {

// Between the edge of a cell and its text.
int PaddingOf(const QFontMetrics& font) { return font.height() / 2; }

// Writes what a cell says; the view has painted the row.
class CellDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& cell) const override {
    const int padding = PaddingOf(option.fontMetrics);
    const QRect place = option.rect.adjusted(padding, 0, -padding, 0);
    QString text = cell.data().toString();
    const int needed = option.fontMetrics.horizontalAdvance(text);
    if (needed > place.width()) {
      text = option.fontMetrics.elidedText(text, Qt::ElideRight, place.width());
    }
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    painter->setPen(enabled ? Look::kFieldText : Look::kDisabledFieldText);
    painter->drawText(place, cell.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine, text);
  }
};

}  // namespace

TableView::TableView(QWidget* parent) : QTableView(parent), model_(new TableModel(this)) {
  setModel(model_);
  setItemDelegate(new CellDelegate(this));
  QPalette see_through = palette();
  see_through.setColor(QPalette::Highlight, Qt::transparent);
  setPalette(see_through);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setWordWrap(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(0);
  verticalHeader()->setDefaultSectionSize(3 * fontMetrics().height() / 2);
  QHeaderView& headings = *horizontalHeader();
  headings.setSectionsClickable(true);
  headings.setHighlightSections(false);
  headings.setMinimumSectionSize(2 * fontMetrics().height());
  headings.setSortIndicatorShown(true);
  ShowOrder({});
}

void TableView::SetCells(CellText cell_text) { model_->SetCells(std::move(cell_text)); }

void TableView::SetColumns(const std::vector<TableColumn>& columns) {
  const std::optional<std::size_t> selected = Selected();
  const int top = verticalScrollBar()->value();
  model_->SetColumns(columns);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    setColumnWidth(static_cast<int>(i), WidthOf(columns[i]));
  }
  Select(selected);
  executeDelayedItemsLayout();
  verticalScrollBar()->setValue(top);
}

// A heading has room for the arrow of the order too.
int TableView::WidthOf(const TableColumn& column) const {
  const QFontMetrics font = fontMetrics();
  const int padding = PaddingOf(font);
  const int heading = font.horizontalAdvance(ToQt(column.heading)) + 2 * padding;
  return std::max(heading, font.horizontalAdvance(ToQt(column.longest))) + 2 * padding;
}

void TableView::SetRowCount(std::size_t count) {
  const int rows = static_cast<int>(count);
  const bool fewer = rows < model_->rowCount({});
  model_->SetRowCount(rows);
  if (fewer) scrollToTop();
}

void TableView::Renew() { model_->Renew(); }

std::optional<std::size_t> TableView::Selected() const {
  const QModelIndex current = currentIndex();
  if (!current.isValid()) return std::nullopt;
  return static_cast<std::size_t>(current.row());
}

void TableView::Select(std::optional<std::size_t> row) {
  if (!row) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex cell =
      model_->index(static_cast<int>(*row), std::max(currentIndex().column(), 0));
  if (cell == currentIndex() && selectionModel()->isSelected(cell)) return;
  setCurrentIndex(cell);
}

void TableView::ShowOrder(const std::optional<Table::Order>& order) {
  const int column = order ? static_cast<int>(order->column) : -1;
  const bool descending = order && order->descending;
  horizontalHeader()->setSortIndicator(column,
                                       descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

// A row is what is chosen, so Home and End lead along the rows.
QModelIndex TableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const int column = std::max(currentIndex().column(), 0);
  if (action == MoveHome) return model_->index(0, column);
  if (action == MoveEnd) return model_->index(model_->rowCount({}) - 1, column);
  return QTableView::moveCursor(action, modifiers);
}

// Whatever leads to a row selects it, with whichever key held down.
QItemSelectionModel::SelectionFlags TableView::selectionCommand(const QModelIndex& /*index*/,
                                                                const QEvent* /*event*/) const {
  return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void TableView::paintEvent(QPaintEvent* event) {
  const QModelIndex current = currentIndex();
  if (current.isValid()) {
    QRect row(0, rowViewportPosition(current.row()), viewport()->width(), rowHeight(current.row()));
    QPainter painter(viewport());
    painter.fillRect(row, Look::kCurrentRow);
    row.setWidth(fontMetrics().height() / 4);
    painter.fillRect(row, Look::kCurrentBar);
  }
  QTableView::paintEvent(event);
}

}  // namespace tarnwick
