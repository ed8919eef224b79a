// Every window on screens of several sizes and scalings: see CMakeLists.txt, which gives them.
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include "desktop/qt_desktop.h"
#include "tests/desktop/all_windows.h"
#include "tests/desktop/suites.h"
#include "tests/desktop/when_modal.h"

namespace tarnwick {
namespace {

void VerifyInside(const QWidget& window) {
  QVERIFY2(Available().contains(window.frameGeometry()), qPrintable(window.objectName()));
}

// As far as it has room in the window.
void VerifyInView(const QWidget& widget, const QScrollArea& area) {
  const QRect shown = widget.visibleRegion().boundingRect();
  const QSize most = widget.size().boundedTo(area.viewport()->size());
  QVERIFY2(shown.width() >= most.width() && shown.height() >= most.height(),
           qPrintable(widget.objectName()));
}

}  // namespace

class ScreensTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void screenIsTheOneAskedFor() {
    const QByteArray asked = qgetenv("TARNWICK_TEST_SCREEN");
    if (asked.isEmpty()) return;
    const QSize size =
        QGuiApplication::primaryScreen()->size() * qgetenv("QT_SCALE_FACTOR").toDouble();
    const QList<QByteArray> sides = asked.split('x');
    QVERIFY(qAbs(size.width() - sides[0].toInt()) <= 2 &&
            qAbs(size.height() - sides[1].toInt()) <= 2);
  }

  void placesAreBroughtInside() {
    for (const auto& [place, expected] :
         {std::pair(QRect(10, 30, 100, 100), QRect(10, 30, 100, 100)),
          {QRect(0, 20, 800, 580), QRect(0, 20, 800, 580)},
          {QRect(10, 550, 100, 100), QRect(10, 500, 100, 100)},
          {QRect(790, 30, 100, 100), QRect(700, 30, 100, 100)},
          {QRect(-50, 0, 100, 100), QRect(0, 20, 100, 100)},
          {QRect(300, 300, 900, 900), QRect(0, 20, 800, 580)},
          {QRect(300, 300, 100, 900), QRect(300, 20, 100, 580)}}) {
      QCOMPARE(Inside(place, {0, 20, 800, 580}), expected);
    }
  }

  void everyWindowOpensInside() {
    AllWindows windows;
    windows.FillWithLongestTexts();
    for (QWidget* window : windows.All()) VerifyInside(*window);
    for (QWidget* window : windows.Secondary()) {
      QCOMPARE(window->windowHandle()->transientParent(), windows.main.view.windowHandle());
    }
    QCOMPARE(windows.log.x(), windows.main.view.x());
    // An open log is put to its place again, which may lie below the screen.
    windows.main.form.log.cmdViewLog.Click();
    QCoreApplication::processEvents();
    VerifyInside(windows.log);
  }

  void everythingCanBeReached() {
    AllWindows windows;
    windows.FillWithLongestTexts();
    for (QWidget* window : windows.All()) {
      VerifyNothingIsClipped(*window);
      const auto& area = *window->findChild<QScrollArea*>();
      const QSize hidden = area.widget()->size() - area.viewport()->size();
      QVERIFY(area.horizontalScrollBar()->maximum() >= hidden.width());
      QVERIFY(area.verticalScrollBar()->maximum() >= hidden.height());
      window->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(window));
      for (QWidget* widget : area.widget()->findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled()) continue;
        if ((widget->focusPolicy() & Qt::TabFocus) == 0) continue;
        widget->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        VerifyInView(*widget, area);
      }
    }
  }

  void noticeIsAsLargeAsItsText() {
    AllWindows windows;
    windows.FillWithLongestTexts();
    QSize former(0, 0);
    for (const int words : {1, 4, 60}) {
      const QString text = QString("saved it ").repeated(words).trimmed();
      windows.main.form.notice.ShowOver(windows.main.form, text.toStdString());
      QCoreApplication::processEvents();
      VerifyInside(windows.notice);
      VerifyNothingIsClipped(windows.notice);
      const QSize size = windows.notice.size();
      QVERIFY(size.width() > former.width() || size.height() > former.height());
      former = size;
    }
  }

  void longMessagesFit() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    for (const QString& text :
         {QString("Nothing to do!"), QString("The file could not be written. ").repeated(8),
          QString("A line of it.\n").repeated(300), QString("/a_long_folder").repeated(80)}) {
      WhenModal<QMessageBox>([&](QMessageBox& box) {
        VerifyInside(box);
        const QLabel* shown = nullptr;
        for (const QLabel* label : box.findChildren<QLabel*>()) {
          if (label->isVisible() && label->text() == text) shown = label;
        }
        QVERIFY(shown != nullptr);
        QVERIFY(shown->width() >= shown->minimumSizeHint().width());
        QVERIFY(!shown->wordWrap() || shown->heightForWidth(shown->width()) <= shown->height());
        box.reject();
      });
      QtDesktop(main.gate).ShowMessage({text.toStdString(), "Save log", MessageIcon::kExclamation});
    }
  }
};

const AddSuite<ScreensTest> added;

}  // namespace tarnwick

#include "screens_test.moc"
