// What holds in every window of the program.
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <map>
#include <set>

#include "desktop/look.h"
#include "desktop/qt_desktop.h"
#include "tests/desktop/all_windows.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

// Where the widgets stand that are no texts to be read only.
std::map<QString, QRect> Places(const QWidget& window) {
  static const QRegularExpression kNames("^(cmd|txb|cbo|chk|opt|fra|drw|tbl)");
  std::map<QString, QRect> places;
  for (const QWidget* widget : window.findChildren<QWidget*>(kNames)) {
    if (!widget->isVisible()) continue;
    places[widget->objectName()] = QRect(widget->mapTo(&window, QPoint()), widget->size());
  }
  return places;
}

}  // namespace

class WindowsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void nothingMovesOrIsClippedAsTextsChange() {
    const QFont usual = QApplication::font();
    for (const double scale : {1.0, 1.5, 2.5}) {
      QApplication::setFont(Scaled(usual, scale));
      AllWindows windows;
      windows.main.form.lists.lists_window.cboChoice.SetVisible(false);
      QTest::qWait(10);  // for the layouts, one inside the other
      std::map<const QWidget*, std::map<QString, QRect>> before;
      for (const QWidget* window : windows.All()) before[window] = Places(*window);
      const QSize smallest = windows.main.view.minimumSizeHint();
      windows.FillWithLongestTexts();
      QCOMPARE(windows.main.view.minimumSizeHint(), smallest);
      for (QWidget* window : windows.All()) {
        VerifyNothingIsClipped(*window);
        const auto after = Places(*window);
        for (const auto& [name, place] : before[window]) {
          if (after.contains(name)) QVERIFY2(place == after.at(name), qPrintable(name));
        }
        window->resize(1, 1);
        QCoreApplication::processEvents();
        VerifyNothingIsClipped(*window);
      }
      const auto& date = windows.main.Find<QLineEdit>(windows.main.form.entry.txbDate);
      QVERIFY(date.fontMetrics().horizontalAdvance(date.placeholderText()) <
              date.width() - date.textMargins().left() - date.textMargins().right());
    }
    QApplication::setFont(usual);
  }

  void mnemonicsAreUnique() {
    AllWindows windows;
    windows.FillWithLongestTexts();
    std::size_t found = 0;
    for (const QWidget* window : windows.All()) {
      std::set<QString> seen;
      for (const QWidget* widget : TextWidgets(*window)) {
        if (qobject_cast<const QLineEdit*>(widget) != nullptr) continue;
        const QString text = widget->property("text").toString();
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (letter.isEmpty()) continue;
        QVERIFY2(seen.insert(letter).second, qPrintable(letter + " of " + text));
      }
      found += seen.size();
    }
    QCOMPARE(found, std::size_t{72});
  }

  void timersTick() {
    AllWindows windows;
    for (const Form* form : windows.main.screen.Forms()) {
      for (Control* control : form->Controls()) {
        auto* timer = dynamic_cast<Timer*>(control);
        if (timer == nullptr) continue;
        int ticks = 0;
        timer->on_timer = [&] { timer->SetEnabled(++ticks < 3); };
        timer->SetInterval(1);
        timer->SetEnabled(true);
        QTRY_COMPARE(ticks, 3);
      }
    }
  }

  // With its legend, and nothing of the dark window at its corners.
  void imageOfTheMapIsLight() {
    AllWindows windows;
    windows.FillWithLongestTexts();
    const Frame& map = windows.main.form.sky.sky_window.fraMap;
    const QTemporaryDir folder;
    const QString file = folder.filePath("map.png");
    QCOMPARE(QtDesktop(windows.main.gate).SaveImage(map, file.toStdString()), "");
    const QImage image(file);
    QCOMPARE(image.size(), 2 * windows.sky.WidgetOf(map)->size());
    for (const QPoint corner : {image.rect().topLeft(), image.rect().bottomRight()}) {
      QCOMPARE(image.pixelColor(corner), Look::kLightPanel);
    }
    QCOMPARE(image.pixelColor(image.rect().center() + QPoint(8, 8)), Look::kPaper);
  }
};

const AddSuite<WindowsTest> added;

}  // namespace tarnwick

#include "windows_test.moc"
