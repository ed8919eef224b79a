#include <QDir>
#include <QImage>
#include <array>
#include <cstdint>
#include <vector>

#include "tests/desktop/suites.h"
#include "tools/moon_pictures/moon_drawing.h"

namespace tarnwick {
namespace {

constexpr int kFullMoon = 17;  // the number of its picture

// Pixels in sunlight in the left and the right half. Sky and earthshine are bluish, sunlit ground
// is not.
struct Lit {
  int left = 0;
  int right = 0;
};

Lit CountLit(const QImage& image) {
  Lit lit;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qBlue(pixel) > qRed(pixel) + 3) continue;
      ++(2 * x < image.width() ? lit.left : lit.right);
    }
  }
  return lit;
}

}  // namespace

class MoonPicturesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void lightFollowsTheDaysOfALunation() {
    const QDir folder(QCoreApplication::applicationDirPath() + "/assets/moon_pics");
    QCOMPARE(folder.entryList(QDir::Files).size(), 30);
    int before = -1;
    for (int number = 1; number <= 32; ++number) {
      if (number == 8 || number == 24) continue;  // those cells of the calendar are empty
      const QString file = QString("day%1.gif").arg(number);
      const QImage image(folder.filePath(file));
      QVERIFY2(!image.isNull() && image.width() == image.height(), qPrintable(file));
      const Lit lit = CountLit(image);
      const int all = lit.left + lit.right;
      QVERIFY2(number <= kFullMoon ? all > before : all < before, qPrintable(file));
      before = all;
      if (number == kFullMoon) continue;
      // Next to new moon nothing may be lit.
      QVERIFY2(number < kFullMoon ? lit.right >= lit.left : lit.left >= lit.right,
               qPrintable(file));
    }
  }

  // A full Moon is flat.
  void reliefShowsInSunlight() {
    constexpr int kWidth = 60;
    std::vector<std::uint32_t> flat = DrawMoon(kWidth, {1, true});
    Relight(flat, kWidth, {1, true}, {0.5, true});
    const std::vector<std::uint32_t> drawn = DrawMoon(kWidth, {0.5, true});
    int different = 0;
    for (std::size_t i = kWidth / 2 + 5; i < drawn.size(); i += kWidth) {
      if (drawn[i] != flat[i]) ++different;
    }
    QVERIFY(different > kWidth / 3);
  }
};

const AddSuite<MoonPicturesTest> added;

}  // namespace tarnwick

#include "moon_pictures_test.moc"
