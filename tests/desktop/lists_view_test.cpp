// The window of lists.
#include "desktop/lists_view.h"

#include <set>

#include "desktop/look.h"
#include "tests/desktop/lists_texts.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

struct ListsWindow {
  ListsWindow() {
    main.form.lists.cmdLists.Click();
    QVERIFY(QTest::qWaitForWindowActive(&view));
  }

  MainWindow main;
  frmLists& form = main.form.lists.lists_window;
  ListsView view{form, main.gate};
};

}  // namespace

class ListsViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void nothingMovesOrIsClippedAsTextsChange_data() {
    QTest::addColumn<double>("scale");
    QTest::newRow("100 %") << 1.0;
    QTest::newRow("250 %") << 2.5;
  }

  void nothingMovesOrIsClippedAsTextsChange() {
    QFETCH(double, scale);
    const QFont usual = QApplication::font();
    QApplication::setFont(Scaled(usual, scale));
    {
      ListsWindow lists;
      frmLists& form = lists.form;
      const auto places = [&] {
        QTest::qWait(10);  // for the layouts, one inside the other
        QList<QRect> found{lists.view.geometry()};
        for (const Control* control : std::initializer_list<const Control*>{
                 &form.txbFrom, &form.cmdList, &form.fraColumns, &form.tblList, &form.cmdTakeRow,
                 &form.cmdClose}) {
          found << lists.view.WidgetOf(*control)->geometry();
        }
        return found;
      };
      FillWithLongestTexts(form);
      const QList<QRect> filled = places();
      VerifyNothingIsClipped(lists.view);
      form.cboChoice.SetVisible(false);
      form.cmdStopList.SetVisible(false);
      form.lblListTitle.SetCaption("");
      form.lblProgress.SetCaption("");
      for (CheckBox& column : form.chkColumn) column.SetVisible(false);
      QCOMPARE(places(), filled);
      FillWithLongestTexts(form);
      lists.view.resize(1, 1);
      QCoreApplication::processEvents();
      VerifyNothingIsClipped(lists.view);
    }
    QApplication::setFont(usual);
  }

  void mnemonicsAreUnique() {
    ListsWindow lists;
    FillWithLongestTexts(lists.form);
    std::set<QString> seen;
    for (const QWidget* widget : TextWidgets(lists.view)) {
      if (qobject_cast<const QLineEdit*>(widget) != nullptr) continue;
      const QString text = widget->property("text").toString();
      const QString letter = QKeySequence::mnemonic(text).toString();
      if (!letter.isEmpty())
        QVERIFY2(seen.insert(letter).second, qPrintable(letter + " of " + text));
    }
    QCOMPARE(seen.size(), std::size_t{10});
  }

  void listIsMadeByItsTimer() {
    ListsWindow lists;
    int ticks = 0;
    lists.form.tmrList.on_timer = [&] {
      if (++ticks == 3) lists.form.tmrList.SetEnabled(false);
    };
    lists.form.tmrList.SetInterval(1);
    lists.form.tmrList.SetEnabled(true);
    QTRY_COMPARE(ticks, 3);
  }
};

const AddSuite<ListsViewTest> added;

}  // namespace tarnwick

#include "lists_view_test.moc"
