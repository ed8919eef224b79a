// The window of the sky at a place.
#include "desktop/sky_view.h"

#include <QImage>
#include <QTemporaryDir>
#include <set>

#include "desktop/look.h"
#include "desktop/qt_desktop.h"
#include "tests/desktop/shown_main_window.h"
#include "tests/desktop/sky_texts.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

struct SkyWindow {
  SkyWindow() {
    main.form.sky.cmdSky.Click();
    QVERIFY(QTest::qWaitForWindowActive(&view));
  }

  MainWindow main;
  frmSky& form = main.form.sky.sky_window;
  SkyView view{form, main.gate};
};

}  // namespace

class SkyViewTest : public QObject {
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
      SkyWindow sky;
      const QSize size = sky.view.size();
      const auto places = [&] {
        QTest::qWait(10);  // for the layouts, one inside the other
        QList<QRect> found;
        for (const Control* control : {static_cast<const Control*>(&sky.form.drwMap),
                                       static_cast<const Control*>(&sky.form.fraDay),
                                       static_cast<const Control*>(&sky.form.fraEclipse),
                                       static_cast<const Control*>(&sky.form.cmdClose)}) {
          found << sky.view.WidgetOf(*control)->geometry();
        }
        return found;
      };
      const QList<QRect> before = places();
      FillWithLongestTexts(sky.form);
      QCOMPARE(places(), before);
      VerifyNothingIsClipped(sky.view);
      for (std::size_t i = 1; i < kContactRows; ++i) {
        for (Label* label : {&sky.form.lblContact[i], &sky.form.lblContactLocalTime[i],
                             &sky.form.lblContactMainTime[i], &sky.form.lblContactAltitude[i]}) {
          label->SetVisible(false);
        }
      }
      QCOMPARE(places(), before);
      QCOMPARE(sky.view.size(), size);
      sky.view.resize(1, 1);
      QCoreApplication::processEvents();
      VerifyNothingIsClipped(sky.view);
      for (const QLabel* text : sky.view.findChildren<QLabel*>()) {
        if (!text->wordWrap() || !text->isVisible()) continue;
        QVERIFY2(text->heightForWidth(text->width()) <= text->height(),
                 qPrintable(text->objectName()));
      }
    }
    QApplication::setFont(usual);
  }

  void mnemonicsAreUnique() {
    SkyWindow sky;
    std::set<QString> seen;
    for (const QWidget* widget : TextWidgets(sky.view)) {
      if (qobject_cast<const QLineEdit*>(widget) != nullptr) continue;
      const QString text = widget->property("text").toString();
      const QString letter = QKeySequence::mnemonic(text).toString();
      if (!letter.isEmpty())
        QVERIFY2(seen.insert(letter).second, qPrintable(letter + " of " + text));
    }
    QCOMPARE(seen.size(), std::size_t{6});
  }

  void mapIsMadeByItsTimer() {
    SkyWindow sky;
    int ticks = 0;
    sky.form.tmrMap.on_timer = [&] {
      if (++ticks == 3) sky.form.tmrMap.SetEnabled(false);
    };
    sky.form.tmrMap.SetInterval(1);
    sky.form.tmrMap.SetEnabled(true);
    QTRY_COMPARE(ticks, 3);
  }

  // With its legend, and nothing of the dark window at its corners.
  void imageOfTheMapIsLight() {
    SkyWindow sky;
    FillWithLongestTexts(sky.form);
    QTemporaryDir folder;
    const QString file = folder.filePath("map.png");
    QtDesktop desktop(sky.main.gate);
    QCOMPARE(desktop.SaveImage(sky.form.fraMap, file.toStdString()), "");
    const QImage image(file);
    QCOMPARE(image.size(), 2 * sky.view.WidgetOf(sky.form.fraMap)->size());
    for (const QPoint corner : {image.rect().topLeft(), image.rect().bottomRight()}) {
      QCOMPARE(image.pixelColor(corner), Look::kLightPanel);
    }
    QCOMPARE(image.pixelColor(image.rect().center() + QPoint(8, 8)), Look::kPaper);
  }
};

const AddSuite<SkyViewTest> added;

}  // namespace tarnwick

#include "sky_view_test.moc"
