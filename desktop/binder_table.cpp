// Tables of many rows.
#include <QHeaderView>
#include <QKeyEvent>
#include <cstddef>
#include <string>

#include "desktop/binder.h"
#include "desktop/characters.h"
#include "desktop/event_hook.h"
#include "desktop/mirror.h"
#include "desktop/table_view.h"

namespace tarnwick {
namespace {

// Held down, Enter would take the row again and again.
bool IsEnter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const auto& press = static_cast<const QKeyEvent&>(event);
  return (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) && !press.isAutoRepeat();
}

}  // namespace

void Binder::Bind(Table& table, TableView& view) {
  BindControl(table, view);
  view.SetCells([&table, &gate = gate_](std::size_t row, std::size_t column) {
    std::string text;
    gate.Run([&] {
      if (table.cell_text) text = table.cell_text(row, column);
    });
    return ToQt(text);
  });
  Mirror(table, Property::kColumns, view, [&] { view.SetColumns(table.Columns()); });
  Mirror(table, Property::kRows, view, [&] {
    view.SetRowCount(table.RowCount());
    view.Select(table.Selected());
  });
  Mirror(table, Property::kCells, view, [&] { view.Renew(); });
  Mirror(table, Property::kSelectedRow, view, [&] { view.Select(table.Selected()); });
  Mirror(table, Property::kOrder, view, [&] { view.ShowOrder(table.SortedBy()); });
  BindTableEvents(table, view);
}

void Binder::BindTableEvents(Table& table, TableView& view) {
  const auto take = [&table, &gate = gate_] { gate.RunFor(table, [&] { table.PressEnter(); }); };
  QObject::connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, &view,
                   [&, &gate = gate_] {
                     const bool taken = gate.RunFor(table, [&] { table.Select(view.Selected()); });
                     if (!taken) view.Select(table.Selected());
                   });
  QObject::connect(&view, &TableView::doubleClicked, &view, take);
  QObject::connect(
      view.horizontalHeader(), &QHeaderView::sectionClicked, &view, [&, &gate = gate_](int column) {
        gate.RunFor(table, [&] { table.ClickHeading(static_cast<std::size_t>(column)); });
        view.ShowOrder(table.SortedBy());  // the heading has turned its arrow
      });
  new EventHook(view, [take](QEvent& event) {
    if (!IsEnter(event)) return false;
    take();
    return true;
  });
}

}  // namespace tarnwick
