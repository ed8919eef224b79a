#include "desktop/main_window_view.h"

#include <set>

#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
class MainWindowViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void typedDateIsComputedOnReturn() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    QCOMPARE(main.view.windowTitle(), "Tarnwick 18.0");
    auto& date = main.Find<QLineEdit>(main.form.entry.txbDate);
    QVERIFY(date.hasFocus());
    QTest::keyClicks(&date, "2003-12-31 ce 15:55");
    QTest::keyClick(&date, Qt::Key_Return);
    QCOMPARE(main.Find<QAbstractButton>(main.form.dates.lblCommonEraDate[1]).text(),
             "2003-12-31 CE (Wednesday, December 31, 2003)");
    QCOMPARE(main.Find<QAbstractButton>(main.form.dates.lblTime[1]).text(), "15:55 (local=GMT)");
    QCOMPARE(date.text(), "2003-12-31 CE 15:55");
    QCOMPARE(date.cursorPosition(), 19);
    QVERIFY(main.desktop.TakeMessages().empty());
  }

  void faultyEntryIsReported() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    auto& date = main.Find<QLineEdit>(main.form.entry.txbDate);
    QTest::keyClicks(&date, "2003-13-31 ce");
    QTest::keyClick(&main.view, Qt::Key_C, Qt::AltModifier);
    QTRY_COMPARE(date.text(), "2003-13-31 CE");
    const std::vector<Message> messages = main.desktop.TakeMessages();
    QCOMPARE(messages.size(), std::size_t{1});
    QCOMPARE(messages.front().title, "Invalid date/time entry");

    // A hint that has no room for all of it can be read in its tool tip.
    Label& hint = main.form.entry.lblEntryHint;
    auto& line = main.Find<QWidget>(hint);
    for (const std::string& text : {std::string("short"), std::string(500, 'x')}) {
      hint.SetCaption(text);
      QHelpEvent asked(QEvent::ToolTip, {}, {});
      QApplication::sendEvent(&line, &asked);
      QCOMPARE(line.toolTip().toStdString(), text == "short" ? "" : text);
    }
  }

  void everyControlHasItsWidget() {
    MainWindow main;
    for (Control* control : main.form.Controls()) {
      const char* name = control->Name().c_str();
      if (dynamic_cast<Timer*>(control) != nullptr) continue;
      const QWidget* widget = main.view.WidgetOf(*control);
      QVERIFY2(widget != nullptr, name);
      // The tab key stops at the chosen one of a group of option buttons only.
      const auto* option = dynamic_cast<OptionButton*>(control);
      const bool tab_stop = control->CanTakeFocus() && (option == nullptr || option->Value());
      if (tab_stop) QVERIFY2((widget->focusPolicy() & Qt::TabFocus) != 0, name);
    }
  }

  void mnemonicsAreUnique() {
    MainWindow main;
    main.form.move.fraStopPauseResume.SetVisible(true);
    std::set<QString> seen;
    for (const QWidget* widget : TextWidgets(main.view)) {
      const QVariant text = widget->property("text");
      const QString letter = QKeySequence::mnemonic(text.toString()).toString();
      if (letter.isEmpty() || qobject_cast<const QLineEdit*>(widget)) continue;
      QVERIFY2(seen.insert(letter).second, qPrintable(letter + " of " + text.toString()));
    }
    QCOMPARE(seen.size(), std::size_t{24});
  }

  void tabKeyFollowsTheOrderOfUse() {
    MainWindow main;
    main.form.move.fraStopPauseResume.SetVisible(true);
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    QStringList order;
    for (int i = 0; i < 45 && (i == 0 || main.view.focusWidget()->objectName() != "txbDate"); ++i) {
      order << main.view.focusWidget()->objectName();
      QTest::keyClick(main.view.focusWidget(), Qt::Key_Tab);
    }
    const QStringList expected{
        "txbDate",
        "optPlus",
        "txbPlusMinus",
        "cmdCompute",
        "cmdClearDate",
        "cmdNow",
        "optLocal",
        "cboTimeZone",
        "lblTime(1)",
        "lblCommonEraDate(1)",
        "lblJulianCalendarDate(1)",
        "lblArchetypesDate(1)",
        "lblSarvikDolmerSLCDate(1)",
        "lblLTCLunarDate(1)",
        "lblKSGDate(1)",
        "lblOstrelLWCDate(1)",
        "lblChronologicalJulianDate(1)",
        "lblAstronomicalJulianDate(1)",
        "lblPhaseOfMoon(1)",
        "lblAgeOfMoon(1)",
        "lblDeltaT(1)",
        "cboMoveStep",
        "chkRepeatedly",
        "optMoveDirection(0)",
        "cmdMove",
        "cboRefreshPeriod",
        "cmdStop",
        "cmdPauseResume",
        "cboTarget",
        "optNext",
        "cmdSearch",
        "cboHistory",
        "chkLog",
        "cmdLogPreferences",
        "cmdReset",
        "cmdSaveState",
        "cboMonthCalendar",
        "cmdDisplayCalendar",
        "cmdSky",
        "cmdLists",
        "cmdHelp",
        "cmdQuit",
    };
    QCOMPARE(order, expected);
  }

  void labelIsCopiedByKeyboard() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    auto& julian = main.Find<QWidget>(main.form.dates.lblJulianCalendarDate[1]);
    julian.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&julian, Qt::Key_Return);
    auto& date = main.Find<QLineEdit>(main.form.entry.txbDate);
    QCOMPARE(date.text(), "2024-02-21 JC 12:34");
    QVERIFY(date.hasFocus());
  }

  void groupsOfOptionsStayApart() {
    MainWindow main;
    frmMain& form = main.form;
    for (OptionButton* option : {&form.entry.optMinus, &form.time.optGreenwich,
                                 &form.move.optMoveDirection[1], &form.search.optPrevious}) {
      main.Find<QAbstractButton>(*option).click();
    }
    for (OptionButton* option : {&form.entry.optMinus, &form.time.optGreenwich,
                                 &form.move.optMoveDirection[1], &form.search.optPrevious}) {
      QVERIFY(option->Value() && main.Find<QAbstractButton>(*option).isChecked());
    }
    QVERIFY(!main.Find<QAbstractButton>(form.time.optLocal).isChecked());
  }

  void checkMarkAppearsBesideNow() {
    MainWindow main;
    const auto& mark = main.Find<QWidget>(main.form.picCheck);
    auto& now = main.Find<QWidget>(main.form.cmdNow);
    const QRect before = now.geometry();
    QVERIFY(!mark.isVisible());
    QTest::mouseClick(&now, Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(mark.isVisible());
    QCOMPARE(now.geometry(), before);
  }

  void currentCalendarIsWhite() {
    MainWindow main;
    const auto color = [&](ValueLabel& label) {
      return main.Find<QWidget>(label[1]).palette().color(QPalette::WindowText);
    };
    QCOMPARE(color(main.form.dates.lblCommonEraDate), QColor(255, 255, 255));
    QCOMPARE(color(main.form.dates.lblKSGDate), QColor(200, 200, 200));
    QTest::mouseClick(&main.Find<QWidget>(main.form.dates.lblKSGDate[0]), Qt::LeftButton);
    QCOMPARE(color(main.form.dates.lblCommonEraDate), QColor(200, 200, 200));
    QCOMPARE(color(main.form.dates.lblKSGDate), QColor(255, 255, 255));
  }

  void moonIsShownAtItsPhase() {
    MainWindow main;
    auto& picture = main.Find<QWidget>(main.form.moon.picMoon);
    const auto brightness = [&](double across) {
      const QImage shown = picture.grab().toImage();
      const double x = shown.width() / 2.0 + across * shown.height() / 2.0;
      return qGray(shown.pixel(static_cast<int>(x), shown.height() / 2));
    };
    const QSize before = main.view.size();
    main.form.entry.txbDate.SetText(
        "2024-01-21 CE 12:00");  // 82.8 %, waxing: the edge at 0.63 of the left
    main.form.entry.cmdCompute.Click();
    QVERIFY(brightness(0.8) > 80);
    QVERIFY(brightness(-0.5) > 60);
    QVERIFY(brightness(-0.8) < 60);
    main.form.entry.txbDate.SetText("2024-01-11 CE 12:00");
    main.form.entry.cmdCompute.Click();
    QVERIFY(brightness(0.8) < 60);
    QCOMPARE(main.view.size(), before);
  }

  void closeBoxEndsTheProgram() {
    MainWindow main;
    main.view.close();
    QVERIFY(main.desktop.TakeEnd());
    QVERIFY(!main.view.isVisible());
  }

  void noTextIsClipped_data() {
    QTest::addColumn<double>("scale");
    QTest::newRow("100 %") << 1.0;
    QTest::newRow("150 %") << 1.5;
    QTest::newRow("250 %") << 2.5;
  }

  void noTextIsClipped() {
    QFETCH(double, scale);
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * scale);
    QApplication::setFont(font);
    {
      MainWindow main;
      main.FillWithLongestTexts();
      QVERIFY(QTest::qWaitForWindowExposed(&main.view));
      VerifyNothingIsClipped(main.view);
      main.view.resize(1, 1);
      QCoreApplication::processEvents();
      VerifyNothingIsClipped(main.view);
      const auto& date = main.Find<QLineEdit>(main.form.entry.txbDate);
      QVERIFY(date.fontMetrics().horizontalAdvance(date.placeholderText()) <
              date.width() - date.textMargins().left() - date.textMargins().right());
    }
    QApplication::setFont(usual);
  }
};

const AddSuite<MainWindowViewTest> added;

}  // namespace tarnwick

#include "main_window_view_test.moc"
