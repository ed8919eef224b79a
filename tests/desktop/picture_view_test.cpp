#include "desktop/picture_view.h"

#include <QTemporaryDir>
#include <algorithm>
#include <fstream>
#include <vector>

#include "tests/desktop/bound_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

constexpr QColor kDrawn(200, 40, 40);
constexpr QColor kRetouched(40, 40, 200);

// A view on a screen with `ratio` pixels a point.
class ScaledView : public PictureView {
 public:
  explicit ScaledView(double ratio) : PictureView(10, nullptr), ratio_(ratio) {}

 protected:
  int metric(PaintDeviceMetric metric) const override {
    return metric == PdmDevicePixelRatioScaled ? static_cast<int>(ratio_ * devicePixelRatioFScale())
                                               : PictureView::metric(metric);
  }

 private:
  double ratio_;
};

QImage Painted(QWidget& view) {
  QImage image(view.size(), QImage::Format_RGB32);
  image.fill(Qt::white);
  view.render(&image);
  return image;
}

QColor ColorInTheMiddle(QWidget& view) {
  const QImage image = Painted(view);
  return image.pixelColor(image.rect().center());
}

}  // namespace

class PictureViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    QImage image(20, 20, QImage::Format_RGB888);
    image.fill(kDrawn);
    const QString name = folder_.filePath("square.bmp");
    QVERIFY(image.save(name));
    file_ = name.toStdString();
  }

  void pictureOfTheFileIsShown() {
    BoundWindow bound;
    Picture picture(bound.form, "picMoon");
    auto* view = new PictureView(10, &bound.window);
    bound.binder.Bind(picture, *view);
    view->resize(90, 60);
    picture.SetPicture(file_);
    const QImage painted = Painted(*view);
    QCOMPARE(painted.pixelColor(45, 30), kDrawn);
    QCOMPARE(painted.pixelColor(45, 1), kDrawn);
    QCOMPARE(painted.pixelColor(16, 30), kDrawn);
    QVERIFY(painted.pixelColor(13, 30) != kDrawn);  // square, in the middle

    picture.SetPicture(file_, [](std::span<std::uint32_t> pixels, int /*width*/) {
      std::fill(pixels.begin(), pixels.end(), kRetouched.rgb());
    });
    QCOMPARE(ColorInTheMiddle(*view), kRetouched);
    picture.SetPicture(file_);
    QCOMPARE(ColorInTheMiddle(*view), kDrawn);
  }

  void retouchIsDoneOnceForEachSize() {
    PictureView view(10, nullptr);
    std::vector<int> widths;
    view.SetPicture(file_, [&](std::span<std::uint32_t> pixels, int width) {
      QCOMPARE(pixels.size(), static_cast<std::size_t>(width) * width);
      QCOMPARE(pixels.front(), kDrawn.rgb());
      widths.push_back(width);
    });
    view.resize(70, 50);
    Painted(view);
    Painted(view);
    view.resize(70, 80);
    Painted(view);
    QCOMPARE(widths, (std::vector<int>{50, 70}));
  }

  void retouchHasThePixelsOfTheScreen() {
    for (const double ratio : {1.0, 1.25, 2.0, 2.5}) {
      ScaledView view(ratio);
      int shown = 0;
      view.SetPicture(file_,
                      [&](std::span<std::uint32_t> /*pixels*/, int width) { shown = width; });
      view.resize(100, 100);
      Painted(view);
      QCOMPARE(shown, static_cast<int>(100 * ratio));
    }
  }

  void missingPictureShowsNothing() {
    PictureView view(10, nullptr);
    view.resize(50, 50);
    const QColor ground = ColorInTheMiddle(view);
    const std::string no_picture = folder_.filePath("text.bmp").toStdString();
    std::ofstream(no_picture) << "BM, but no picture";
    for (const std::filesystem::path& file :
         {std::filesystem::path(no_picture), std::filesystem::path("/no/such/file.bmp"),
          std::filesystem::path()}) {
      view.SetPicture(file_, {});
      QCOMPARE(ColorInTheMiddle(view), kDrawn);
      view.SetPicture(file, [](std::span<std::uint32_t> /*pixels*/, int /*width*/) {
        QFAIL("there is nothing to retouch");
      });
      QCOMPARE(ColorInTheMiddle(view), ground);
    }
  }

 private:
  std::filesystem::path file_;
  QTemporaryDir folder_;
};

const AddSuite<PictureViewTest> added;

}  // namespace tarnwick

#include "picture_view_test.moc"
