#include "desktop/main_window_view.h"

#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
class MainWindowViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void momentIsTypedMovedAndSearchedFromByKeyboard() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    const auto text_of = [&](const Control& control) {
      return main.Find<QWidget>(control).property("text").toString();
    };
    auto& date = main.Find<QLineEdit>(main.form.entry.txbDate);
    QVERIFY(date.hasFocus());
    QTest::keyClicks(&date, "2003-12-31 ce 15:55");
    QTest::keyClick(&date, Qt::Key_Return);
    QCOMPARE(date.text(), "2003-12-31 CE 15:55");
    QCOMPARE(date.cursorPosition(), 19);
    QTest::keyClick(&main.view, Qt::Key_B, Qt::AltModifier);
    QTRY_VERIFY(main.Find<QWidget>(main.form.move.cmdMove).hasFocus());
    QTest::keyClick(&main.view, Qt::Key_V, Qt::AltModifier);
    QTRY_COMPARE(main.Find<QComboBox>(main.form.history.cboHistory).currentText(),
                 "2003-12-30 CE 15:55 (local = GMT)");
    QCOMPARE(text_of(main.form.dates.lblCommonEraDate[1]),
             "2003-12-30 CE (Tuesday, December 30, 2003)");
    const QLabel* note = nullptr;  // in the place of the eclipse as long as there is none
    for (const QLabel* label : main.view.findChildren<QLabel*>()) {
      if (label->text().startsWith("What a search")) note = label;
    }
    QVERIFY(note != nullptr && note->isVisible());
    QTest::keyClick(&main.view, Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(text_of(main.form.search.lblActualEclipseData),
                 "Central annular-total solar eclipse\nLunation number = 65\nSaros number = 129");
    QVERIFY(!note->isVisible());
    QVERIFY(main.desktop.TakeMessages().empty());
  }

  // Where it has no room for all of it.
  void hintCanBeReadInItsToolTip() {
    MainWindow main;
    Label& hint = main.form.entry.lblEntryHint;
    auto& line = main.Find<QWidget>(hint);
    for (const std::string& text : {std::string("short"), std::string(500, 'x')}) {
      hint.SetCaption(text);
      QHelpEvent asked(QEvent::ToolTip, {}, {});
      QApplication::sendEvent(&line, &asked);
      QCOMPARE(line.toolTip().toStdString(), text == "short" ? "" : text);
    }
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
    QCOMPARE(order.join(" "),
             "txbDate optPlus txbPlusMinus cmdCompute cmdClearDate cmdNow optLocal cboTimeZone "
             "lblTime(1) lblCommonEraDate(1) lblJulianCalendarDate(1) lblArchetypesDate(1) "
             "lblSarvikDolmerSLCDate(1) lblLTCLunarDate(1) lblKSGDate(1) lblOstrelLWCDate(1) "
             "lblChronologicalJulianDate(1) lblAstronomicalJulianDate(1) lblPhaseOfMoon(1) "
             "lblAgeOfMoon(1) lblDeltaT(1) cboMoveStep chkRepeatedly optMoveDirection(0) cmdMove "
             "cboRefreshPeriod cmdStop cmdPauseResume cboTarget optNext cmdSearch cboHistory "
             "chkLog cmdLogPreferences cmdReset cmdSaveState cboMonthCalendar cmdDisplayCalendar "
             "cmdSky cmdLists cmdHelp cmdQuit");
  }

  void groupsOfOptionsStayApart() {
    MainWindow main;
    frmMain& form = main.form;
    const std::initializer_list<OptionButton*> others{&form.entry.optMinus, &form.time.optGreenwich,
                                                      &form.move.optMoveDirection[1],
                                                      &form.search.optPrevious};
    for (OptionButton* option : others) main.Find<QAbstractButton>(*option).click();
    for (OptionButton* option : others) QVERIFY(main.Find<QAbstractButton>(*option).isChecked());
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

  void moonIsShownAtItsPhase() {
    MainWindow main;
    auto& picture = main.Find<QWidget>(main.form.moon.picMoon);
    const auto brightness = [&](double across) {
      const QImage shown = picture.grab().toImage();
      const double x = shown.width() / 2.0 + across * shown.height() / 2.0;
      return qGray(shown.pixel(static_cast<int>(x), shown.height() / 2));
    };
    const QSize before = main.view.size();
    // 82.8 %, waxing: the edge at 0.63 of the left
    main.form.entry.txbDate.SetText("2024-01-21 CE 12:00");
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

  void runningMoveIsSteeredWhileItsFrameIsDisabled() {
    MainWindow main;
    frmMain& form = main.form;
    form.move.fraStopPauseResume.SetVisible(true);
    form.move.fraMove.SetEnabled(false);
    form.search.fraSearch.SetEnabled(false);
    for (const auto& [control, usable] : std::initializer_list<std::pair<const Control*, bool>>{
             {&form.move.cboMoveStep, false},
             {&form.move.optMoveDirection[0], false},
             {&form.move.chkRepeatedly, false},
             {&form.move.cmdMove, false},
             {&form.search.cboTarget, false},
             {&form.search.optNext, false},
             {&form.search.cmdSearch, false},
             {&form.move.cmdStop, true},
             {&form.move.cmdPauseResume, true},
             {&form.move.cboRefreshPeriod, true}}) {
      const auto& widget = main.Find<QWidget>(*control);
      QVERIFY2(widget.isVisible() && widget.isEnabled() == usable, control->Name().c_str());
    }
  }
};

const AddSuite<MainWindowViewTest> added;

}  // namespace tarnwick

#include "main_window_view_test.moc"
