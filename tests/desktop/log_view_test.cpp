// The windows of the log.
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/log_window_view.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

struct LogWindows {
  LogWindows() {
    main.view.move(60, 40);
    main.form.log.chkLog.SetValue(true);
    main.form.move.cmdMove.Click();
    main.form.log.cmdViewLog.Click();
    QVERIFY(QTest::qWaitForWindowActive(&log));
  }

  QPlainTextEdit& Text() {
    return *qobject_cast<QPlainTextEdit*>(log.WidgetOf(main.form.log.log_window.txbText));
  }

  MainWindow main;
  LogWindowView log{main.form.log.log_window, main.gate};
};

}  // namespace

class LogViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void logOpensAtItsEnd() {
    LogWindows windows;
    for (int i = 0; i < 30; ++i) windows.main.form.move.cmdMove.Click();
    windows.main.form.log.log_window.cmdClose.Click();
    windows.main.form.log.cmdViewLog.Click();
    QVERIFY(QTest::qWaitForWindowActive(&windows.log));
    QCoreApplication::processEvents();
    const QPlainTextEdit& text = windows.Text();
    QVERIFY(text.verticalScrollBar()->maximum() > 0);
    QVERIFY(text.viewport()->rect().contains(text.cursorRect().center()));
    QVERIFY(text.textCursor().atEnd());
  }

  void selectionByMouseWidensTheButton() {
    LogWindows windows;
    auto* copy = qobject_cast<QPushButton*>(
        windows.log.WidgetOf(windows.main.form.log.log_window.cmdCopyToClipboard));
    const int narrow = copy->width();
    QTest::mouseDClick(windows.Text().viewport(), Qt::LeftButton, {}, QPoint(20, 12));
    QTest::mouseRelease(windows.Text().viewport(), Qt::LeftButton, {}, QPoint(20, 12));
    QTRY_COMPARE(copy->text().remove('&'), "Copy selected text to clipboard");
    QTRY_VERIFY(copy->width() > narrow);
  }

  void captionsFit() {
    LogWindows windows;
    windows.log.resize(windows.log.minimumSize());
    frmLog& form = windows.main.form.log.log_window;
    form.txbText.Select(0, 1);
    form.txbText.on_mouse_up();
    QCoreApplication::processEvents();
    VerifyNothingIsClipped(windows.log);
    // The buttons stand in a row without touching.
    int end = -1;
    for (const Button* button :
         {&form.cmdClear, &form.cmdCopyToClipboard, &form.cmdSaveAs, &form.cmdClose}) {
      const QRect place = windows.log.WidgetOf(*button)->geometry();
      QVERIFY2(place.left() > end, button->Name().c_str());
      end = place.right();
    }
  }
};

const AddSuite<LogViewTest> added;

}  // namespace tarnwick

#include "log_view_test.moc"
