// Tables on the screen, bound to their controls.
#include "desktop/table_view.h"

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>

#include "tests/desktop/bound_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

// A table whose cells say where they are.
struct ShownTable {
  explicit ShownTable(std::size_t rows) {
    table.SetColumns(
        {{"Date", "-2026-11-22 CE"}, {"Eclipse", "Total solar"}, {"Saros", "88", true}});
    table.cell_text = [this](std::size_t row, std::size_t column) {
      ++asked;
      return word + std::to_string(row) + "/" + std::to_string(column);
    };
    table.on_take = [this](std::size_t row) { taken.push_back(row); };
    table.on_heading_click = [this](std::size_t column) { clicked.push_back(column); };
    table.SetRowCount(rows);
    bound.window.resize(500, 400);
    bound.Show();
    view.setFocus(Qt::MouseFocusReason);
    table.Select(std::nullopt);  // the focus has chosen the first one
    QCoreApplication::processEvents();
  }

  int Top() { return view.verticalScrollBar()->value(); }
  QPoint MiddleOf(int row, int column) {
    return view.visualRect(view.model()->index(row, column)).center();
  }
  void Click(int row) { QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, MiddleOf(row, 1)); }

  BoundWindow bound;
  Table table{bound.form, "tblList"};
  TableView& view = bound.Add<TableView>(table);
  std::string word;
  int asked = 0;
  std::vector<std::size_t> taken;
  std::vector<std::size_t> clicked;
};

using Row = std::optional<std::size_t>;

}  // namespace

class TableViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void selectionGoesBothWays() {
    ShownTable shown(1000);
    QVERIFY(!shown.view.Selected());
    shown.Click(3);
    QCOMPARE(shown.table.Selected(), Row(3));
    QTest::mouseClick(shown.view.viewport(), Qt::LeftButton, Qt::ControlModifier,
                      shown.MiddleOf(3, 1));
    QCOMPARE(shown.table.Selected(), Row(3));
    shown.table.Select(700);
    QCOMPARE(shown.view.Selected(), Row(700));
    QVERIFY(shown.view.viewport()->rect().contains(shown.MiddleOf(700, 0)));
    QVERIFY(shown.view.selectionModel()->isRowSelected(700));
    shown.table.Select(std::nullopt);
    QVERIFY(!shown.view.Selected());
    shown.table.SetEnabled(false);
    shown.Click(shown.Top());
    QVERIFY(!shown.table.Selected());
  }

  void keysLeadAlongTheRows() {
    ShownTable shown(1000);
    for (const auto& [key, least, most] : {std::tuple(Qt::Key_Down, 501U, 501U),
                                           {Qt::Key_Up, 499U, 499U},
                                           {Qt::Key_PageDown, 505U, 540U},
                                           {Qt::Key_PageUp, 460U, 495U},
                                           {Qt::Key_Home, 0U, 0U},
                                           {Qt::Key_End, 999U, 999U},
                                           {Qt::Key_9, 500U, 500U}}) {
      shown.table.Select(500);
      QTest::keyClick(&shown.view, key);
      const std::size_t row = shown.table.Selected().value();
      QVERIFY2(row >= least && row <= most, qPrintable(QString::number(row)));
    }
  }

  void rowIsTakenByEnterAndDoubleClick() {
    ShownTable shown(1000);
    QTest::keyClick(&shown.view, Qt::Key_Return);  // no row is selected
    shown.table.Select(4);
    QTest::keyClick(&shown.view, Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&shown.view, &held);
    shown.Click(2);
    QTest::mouseDClick(shown.view.viewport(), Qt::LeftButton, {}, shown.MiddleOf(2, 1));
    QCOMPARE(shown.taken, (std::vector<std::size_t>{4, 2}));
  }

  void headingIsClickedAndShowsTheOrder() {
    ShownTable shown(10);
    QHeaderView& headings = *shown.view.horizontalHeader();
    QCOMPARE(headings.sortIndicatorSection(), -1);
    const auto click = [&](int column) {
      const QPoint place(
          headings.sectionViewportPosition(column) + headings.sectionSize(column) / 2,
          headings.height() / 2);
      QTest::mouseClick(headings.viewport(), Qt::LeftButton, {}, place);
    };
    click(1);
    QCOMPARE(shown.clicked, std::vector<std::size_t>{1});
    QCOMPARE(headings.sortIndicatorSection(), -1);  // the form has not sorted
    shown.table.SetOrder(Table::Order{2, true});
    QCOMPARE(headings.sortIndicatorSection(), 2);
    QCOMPARE(headings.sortIndicatorOrder(), Qt::DescendingOrder);
    click(0);
    QCOMPARE(headings.sortIndicatorSection(), 2);
  }

  void growingAndOtherColumnsKeepPlaceAndSelection() {
    ShownTable shown(1000);
    shown.table.Select(300);
    shown.view.verticalScrollBar()->setValue(600);
    for (std::size_t rows = 1001; rows < 1100; ++rows) {
      shown.table.SetRowCount(rows);
      QCoreApplication::processEvents();
      QCOMPARE(shown.Top(), 600);
    }
    QCOMPARE(shown.view.Selected(), Row(300));
    QCOMPARE(shown.table.Selected(), Row(300));
    shown.table.SetColumns({{"Saros", "888", true}});
    QCoreApplication::processEvents();
    QCOMPARE(shown.view.model()->columnCount(), 1);
    QCOMPARE(shown.view.Selected(), Row(300));
    QCOMPARE(shown.table.Selected(), Row(300));
    QCOMPARE(shown.Top(), 600);
    shown.view.scrollToBottom();
    QVERIFY(shown.view.viewport()->rect().contains(shown.MiddleOf(1098, 0)));
  }

  void anotherTableBeginsAtItsTop() {
    ShownTable shown(1000);
    shown.table.Select(900);
    shown.table.SetRowCount(0);
    QVERIFY(!shown.table.Selected());
    shown.table.SetRowCount(500);
    QCoreApplication::processEvents();
    QCOMPARE(shown.Top(), 0);
    QVERIFY(!shown.view.Selected());
    shown.table.Select(20);
    shown.table.SetRowCount(100);
    QCOMPARE(shown.view.Selected(), Row(20));
  }

  void columnsHaveRoomForTheirTexts() {
    ShownTable shown(10);
    const QFontMetrics font = shown.view.fontMetrics();
    int column = 0;
    for (const TableColumn& one : shown.table.Columns()) {
      const int width = shown.view.columnWidth(column++);
      QVERIFY(width > font.horizontalAdvance(one.longest.c_str()) + font.height() / 2);
      QVERIFY(width > font.horizontalAdvance(one.heading.c_str()) + font.height() / 2);
    }
  }

  void onlyShownCellsAreAskedFor() {
    constexpr int kRows = 1'000'000;
    ShownTable shown(kRows);
    const int rows = shown.view.viewport()->height() / shown.view.rowHeight(0) + 2;
    const int page = 3 * rows;  // cells of three columns
    QVERIFY(shown.asked > 0);
    QVERIFY2(shown.asked <= 4 * page, qPrintable(QString::number(shown.asked)));
    shown.asked = 0;
    QTest::keyClick(&shown.view, Qt::Key_End);
    QTest::keyClicks(&shown.view, "999");  // nothing is looked for
    QCoreApplication::processEvents();
    QCOMPARE(shown.table.Selected(), Row(kRows - 1));
    QVERIFY2(shown.asked <= 8 * page, qPrintable(QString::number(shown.asked)));
  }

  void changedCellsArePaintedAnew() {
    ShownTable shown(10);
    const QImage before = shown.view.grab().toImage();
    shown.word = "changed ";
    shown.asked = 0;
    shown.table.Renew();
    QTRY_VERIFY(shown.asked > 0);
    QVERIFY(shown.view.grab().toImage() != before);
  }

  void readersAreToldOfCells() {
    ShownTable shown(1000);
    QAccessibleInterface& told = *QAccessible::queryAccessibleInterface(&shown.view);
    QCOMPARE(told.role(), QAccessible::Table);
    QAccessibleTableInterface& table = *told.tableInterface();
    QCOMPARE(table.rowCount(), 1000);
    QCOMPARE(table.columnDescription(1), "Eclipse");
    QCOMPARE(table.cellAt(700, 2)->text(QAccessible::Name), "700/2");
    shown.table.Select(700);
    QCOMPARE(table.selectedRows(), QList<int>{700});
  }
};

const AddSuite<TableViewTest> added;

}  // namespace tarnwick

#include "table_view_test.moc"
