// The lunation calendar's window.
#include "desktop/calendar_view.h"

#include <QImage>
#include <QTemporaryDir>

#include "desktop/qt_desktop.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

struct CalendarWindow {
  CalendarWindow() {
    main.form.calendar.cmdDisplayCalendar.Click();
    QVERIFY(QTest::qWaitForWindowActive(&view));
  }

  frmCalendar& Form() { return main.form.calendar.calendar_window; }
  QWidget& WidgetOf(const Control& control) { return *view.WidgetOf(control); }

  MainWindow main;
  CalendarView view{main.form.calendar.calendar_window, main.gate};
};

}  // namespace

class CalendarViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void pagesFit() {
    CalendarWindow calendar;
    const QSize size = calendar.view.size();
    for (int list = 0; list < 4; ++list) {
      calendar.main.form.calendar.cboMonthCalendar.SetListIndex(list);
      for (int i = 0; i < 2; ++i) calendar.Form().cmdShowPreviousOrNext[1].Click();
      QCoreApplication::processEvents();
      VerifyNothingIsClipped(calendar.view);
    }
    calendar.Form().lblEvent[0].SetCaption("Dark moon\nNon-central annular solar eclipse");
    QCoreApplication::processEvents();
    VerifyNothingIsClipped(calendar.view);
    QCOMPARE(calendar.view.size(), size);
  }

  void dayIsTakenByMouseAndByKeyboard() {
    CalendarWindow calendar;
    const Label& shown = calendar.main.form.dates.lblCommonEraDate[1];
    // The picture lets the click through: the whole cell takes it.
    QWidget& first = calendar.WidgetOf(calendar.Form().lblDate[0]);
    const QPoint on_picture = calendar.WidgetOf(calendar.Form().imgMoon[0]).geometry().center();
    QCOMPARE(first.childAt(on_picture), nullptr);
    QTest::mouseClick(&first, Qt::LeftButton, {}, on_picture);
    QCOMPARE(shown.Caption(), "2024-02-09 CE (Friday, February 9, 2024)");

    // Down to the last week and no further, then over the cell that is never shown.
    first.setFocus();
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Left, Qt::Key_Down}) {
      QTest::keyClick(calendar.view.focusWidget(), key);
    }
    QCOMPARE(calendar.view.focusWidget(), &calendar.WidgetOf(calendar.Form().lblDate[30]));
    QTest::keyClick(calendar.view.focusWidget(), Qt::Key_Return);
    QCOMPARE(shown.Caption(), "2024-03-08 CE (Friday, March 8, 2024)");
  }

  void imageHasTwiceTheResolution() {
    CalendarWindow calendar;
    const QTemporaryDir folder;
    const QString file = folder.filePath(QString::fromUtf8("Mond \xC3\xA9.png"));
    QtDesktop desktop(calendar.main.gate);
    const Frame& page = calendar.Form().fraCalendar;
    QCOMPARE(desktop.SaveImage(page, file.toStdU16String()), "");
    const QImage saved(file);
    const QWidget& widget = calendar.WidgetOf(page);
    QCOMPARE(saved.size(), 2 * widget.size());

    // The Moon itself is drawn finer, not the screen's pixels doubled.
    const QWidget& moon = calendar.WidgetOf(calendar.Form().imgMoon[18]);
    const QPoint corner = 2 * moon.mapTo(&widget, moon.rect().center() - QPoint(15, 15));
    int fine = 0;
    for (int y = 0; y < 60; y += 2) {
      for (int x = 0; x < 60; x += 2) {
        const QPoint at = corner + QPoint(x, y);
        fine += saved.pixel(at) != saved.pixel(at + QPoint(1, 0)) ? 1 : 0;
      }
    }
    QVERIFY2(fine > 600, qPrintable(QString::number(fine)));

    QVERIFY(!desktop.SaveImage(page, folder.filePath("no folder/a.png").toStdU16String()).empty());
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
    QVERIFY(!desktop.SaveImage(page, file.toStdU16String()).empty());
    QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
  }
};

const AddSuite<CalendarViewTest> added;

}  // namespace tarnwick

#include "calendar_view_test.moc"
