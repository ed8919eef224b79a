#include <map>

#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

// Where the widgets stand that have a text of their own and are always shown.
std::map<QString, QRect> Places(const QWidget& window) {
  std::map<QString, QRect> places;
  for (const QWidget* widget : TextWidgets(window)) {
    if (widget->objectName().isEmpty() || widget->objectName().startsWith("lbl")) continue;
    places[widget->objectName()] = QRect(widget->mapTo(&window, QPoint()), widget->size());
  }
  return places;
}

}  // namespace

class NavigationViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void moveIsMadeByKeyboard() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    QTest::keyClick(&main.view, Qt::Key_B, Qt::AltModifier);
    QTRY_VERIFY(main.Find<QWidget>(main.form.move.cmdMove).hasFocus());
    QTest::keyClick(&main.view, Qt::Key_V, Qt::AltModifier);
    QTRY_COMPARE(main.Find<QComboBox>(main.form.history.cboHistory).currentText(),
                 "2024-03-04 CE 12:34 (local = GMT)");
    QCOMPARE(main.Find<QAbstractButton>(main.form.dates.lblCommonEraDate[1]).text(),
             "2024-03-04 CE (Monday, March 4, 2024)");
  }

  void searchShowsTheEclipse() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    auto& targets = main.Find<QComboBox>(main.form.search.cboTarget);
    main.form.search.cboTarget.SetListIndex(kLunarEclipseTarget + 1);
    QCOMPARE(targets.currentText(), "Total lunar eclipse");
    const auto& result = main.Find<QLabel>(main.form.search.lblActualEclipseData);
    const QLabel* note = nullptr;  // in its place as long as there is none
    for (const QLabel* label : main.view.findChildren<QLabel*>()) {
      if (label->text().startsWith("What a search")) note = label;
    }
    QVERIFY(result.text().isEmpty() && note != nullptr && note->isVisible());
    QTest::keyClick(&main.view, Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!result.text().isEmpty());
    QVERIFY(!note->isVisible());
    const QStringList lines = result.text().split('\n');
    QCOMPARE(lines.size(), 6);
    QCOMPARE(lines.front(), "Total lunar eclipse");
    QVERIFY(lines.back().startsWith("Total phase starts "));
    QVERIFY(lines.back().endsWith("m."));
    QVERIFY(main.desktop.TakeMessages().empty());
  }

  void runningMoveIsSteeredWhileItsFrameIsDisabled() {
    MainWindow main;
    frmMain& form = main.form;
    form.move.fraStopPauseResume.SetVisible(true);
    form.search.lblSearching.SetVisible(true);
    form.move.fraMove.SetEnabled(false);
    form.search.fraSearch.SetEnabled(false);
    for (const Control* control : std::initializer_list<const Control*>{
             &form.move.cboMoveStep, &form.move.optMoveDirection[0], &form.move.chkRepeatedly,
             &form.move.cmdMove, &form.search.cboTarget, &form.search.optNext,
             &form.search.cmdSearch}) {
      QVERIFY2(!main.Find<QWidget>(*control).isEnabled(), control->Name().c_str());
    }
    for (const Control* control : std::initializer_list<const Control*>{
             &form.move.cmdStop, &form.move.cmdPauseResume, &form.move.cboRefreshPeriod,
             &form.move.lblRefreshPeriod, &form.search.lblSearching}) {
      const auto& widget = main.Find<QWidget>(*control);
      QVERIFY2(widget.isEnabled() && widget.isVisible(), control->Name().c_str());
    }
  }

  void longestTextsLeaveTheWindowAlone() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowExposed(&main.view));
    main.form.move.fraStopPauseResume.SetVisible(true);
    QCoreApplication::processEvents();
    const QSize smallest = main.view.minimumSizeHint();
    const auto places = Places(main.view);
    QVERIFY(places.contains("cmdPauseResume") && places.contains("cmdQuit"));
    main.FillWithLongestTexts();
    QCOMPARE(main.view.minimumSizeHint(), smallest);
    QVERIFY(Places(main.view) == places);
    VerifyNothingIsClipped(main.view);

    main.form.move.fraStopPauseResume.SetVisible(false);
    main.form.search.lblSearching.SetVisible(false);
    main.form.search.lblActualEclipseData.SetCaption("");
    QCoreApplication::processEvents();
    QCOMPARE(main.view.minimumSizeHint(), smallest);
    for (const auto& [name, place] : Places(main.view))
      QVERIFY2(place == places.at(name), qPrintable(name));
  }
};

const AddSuite<NavigationViewTest> added;

}  // namespace tarnwick

#include "navigation_view_test.moc"
