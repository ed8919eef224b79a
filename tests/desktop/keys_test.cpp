// The window by keyboard alone: lists, Enter, shortcuts.
#include <QAbstractItemView>
#include <QPushButton>

#include "desktop/calendar_view.h"
#include "desktop/help_view.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

// The list of targets, with the focus.
struct Targets {
  Targets() {
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    list.setFocus();
    main.form.search.cboTarget.on_click = [this] {
      ++choices;
      main.form.entry.TakeFocus();
    };
  }
  void PressInList(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(list.view(), key, modifiers);
  }

  MainWindow main;
  QComboBox& list = main.Find<QComboBox>(main.form.search.cboTarget);
  int choices = 0;
};

}  // namespace

class KeysTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void closedListOpensAndStaysAsItIs() {
    Targets targets;
    QComboBox& list = targets.list;
    for (const auto& [key, modifiers] : {std::pair(Qt::Key_Up, Qt::NoModifier),
                                         {Qt::Key_Down, Qt::NoModifier},
                                         {Qt::Key_Space, Qt::NoModifier},
                                         {Qt::Key_Down, Qt::AltModifier}}) {
      QTest::keyClick(&list, key, modifiers);
      QVERIFY(list.view()->isVisible());
      targets.PressInList(Qt::Key_Down);
      if (modifiers == Qt::AltModifier) {
        targets.PressInList(Qt::Key_Down, modifiers);
      } else {
        targets.PressInList(Qt::Key_Escape);
      }
      QVERIFY(!list.view()->isVisible());
    }
    for (const auto key : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown}) {
      QTest::keyClick(&list, key);
    }
    QVERIFY(!list.view()->isVisible() && list.hasFocus());
    QCOMPARE(list.currentText(), "Total solar eclipse");
    QCOMPARE(targets.choices, 0);
  }

  void itemIsFoundByTypingIt() {
    Targets targets;
    QTest::keyClick(&targets.list, Qt::Key_S);
    QVERIFY(targets.list.view()->isVisible());
    QTest::keyClicks(targets.list.view(), "olar eclipse");
    QCOMPARE(targets.choices, 0);
    targets.PressInList(Qt::Key_Return);
    QCOMPARE(targets.main.form.search.cboTarget.Text(), "Solar eclipse");
    QCOMPARE(targets.choices, 1);
    QVERIFY(targets.main.Find<QWidget>(targets.main.form.entry.txbDate).hasFocus());
  }

  void blankRowsCannotBeChosen() {
    Targets targets;
    QAbstractItemView& view = *targets.list.view();
    targets.main.form.search.cboTarget.SetListIndex(kQuarterTarget);
    targets.choices = 0;
    targets.list.showPopup();
    const QRect blank = view.visualRect(view.model()->index(kFirstBlankTarget, 0));
    const QRect quarter = view.visualRect(view.model()->index(kQuarterTarget, 0));
    QTest::mouseMove(view.viewport(), quarter.center());
    QTest::qWait(QApplication::doubleClickInterval());  // till then the list takes no click
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, blank.center());
    QVERIFY(view.isVisible());
    targets.PressInList(Qt::Key_Down);
    targets.PressInList(Qt::Key_Return);
    QCOMPARE(targets.main.form.search.cboTarget.ListIndex(), int{kAnyEclipseTarget});
    QCOMPARE(targets.choices, 1);
  }

  void enterPressesTheFocusedButtonOnce() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    auto& move = main.Find<QPushButton>(main.form.move.cmdMove);
    move.setFocus();
    QTest::keyClick(&move, Qt::Key_Return);
    QTest::keyClick(&move, Qt::Key_Enter, Qt::KeypadModifier);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&move, &held);
    QCOMPARE(main.form.entry.txbDate.Text(), "2024-03-07 CE 12:34");
  }

  void shortcutsArePressedInTheirWindows() {
    MainWindow main;
    CalendarView page(main.form.calendar.calendar_window, main.gate);
    HelpView help(main.form.help_window, main.gate);
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    QCOMPARE(main.Find<QWidget>(main.form.cmdHelp).toolTip(), "F1");
    QTest::keyClick(&main.view, Qt::Key_L, Qt::ControlModifier);
    QVERIFY(QTest::qWaitForWindowActive(&page));
    const std::string title = main.form.calendar.calendar_window.lblTitle.Caption();
    QTest::keyClick(&page, Qt::Key_PageDown);
    QVERIFY(main.form.calendar.calendar_window.lblTitle.Caption() != title);
    QTest::keyClick(&page, Qt::Key_PageUp);
    QCOMPARE(main.form.calendar.calendar_window.lblTitle.Caption(), title);
    QTest::keyClick(&page, Qt::Key_Escape);
    QVERIFY(!page.isVisible());

    main.form.help_window.Show();
    QVERIFY(QTest::qWaitForWindowActive(&help));
    QTest::keyClick(&help, Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(main.desktop.TakeEnd());
  }
};

const AddSuite<KeysTest> added;

}  // namespace tarnwick

#include "keys_test.moc"
