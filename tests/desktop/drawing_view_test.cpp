// Drawings on the screen.
#include "desktop/drawing_view.h"

#include "desktop/look.h"
#include "tests/desktop/bound_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

constexpr QColor kLineColor(200, 0, 0);
constexpr QColor kAreaColor(0, 0, 200);
constexpr QColor kInk(0, 200, 0);

enum Layer { kArea, kLine, kText, kMark, kLayerCount };

const std::vector<LayerLook> kLooks{
    {.area = kAreaColor},
    {.line = kLineColor, .width = 6},
    {.ink = kInk},
    {.mark = MarkShape::kRing, .ink = kInk},
};

// Or nearly so, as where the edge of something is painted smoothly.
bool IsLike(const QColor& seen, const QColor& color) {
  return qAbs(seen.red() - color.red()) + qAbs(seen.green() - color.green()) +
             qAbs(seen.blue() - color.blue()) <
         200;
}

// A drawing in a window, and how its view paints it.
struct Drawn {
  Drawn() : view(2, kLooks, &bound.window) {
    bound.window.layout()->addWidget(&view);
    bound.binder.Bind(drawing, view);
    bound.Show();
    view.setMinimumSize(0, 0);
    bound.window.layout()->setEnabled(false);
    view.resize(400, 300);
  }

  QImage Painted() { return view.grab().toImage(); }
  QColor ColorAt(double x, double y) {
    const QRectF place = view.PlaceOfDrawing();
    const QPointF at = place.topLeft() + QPointF(x * place.width(), y * place.height());
    return Painted().pixelColor(at.toPoint());
  }
  // How many pixels left of a place are more or less of a colour.
  int CountOf(const QColor& color, double end = 1e9) {
    const QImage image = Painted();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width() && x < end; ++x) {
        if (IsLike(image.pixelColor(x, y), color)) ++count;
      }
    }
    return count;
  }
  void Click(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&view, button, {}, place.toPoint());
  }

  BoundWindow bound;
  Drawing drawing{bound.form, "drwMap"};
  DrawingView view;
};

}  // namespace

class DrawingViewTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void clickTellsThePoint() {
    Drawn drawn;
    std::vector<DrawingPoint> points;
    drawn.drawing.on_point = [&](DrawingPoint point) { points.push_back(point); };
    drawn.view.resize(1000, 300);  // with room beside the drawing
    const QRectF place = drawn.view.PlaceOfDrawing();
    drawn.Click(place.topLeft() + QPointF(place.width() / 4, place.height() / 2));
    QCOMPARE(points.size(), std::size_t{1});
    QVERIFY(qAbs(points[0].x - 0.25) < 0.01 && qAbs(points[0].y - 0.5) < 0.01);

    drawn.Click(place.topLeft() - QPointF(5, -5));
    drawn.Click(place.bottomRight() + QPointF(-5, 5));
    drawn.Click(place.center(), Qt::RightButton);
    drawn.drawing.SetEnabled(false);
    drawn.Click(place.center());
    QCOMPARE(points.size(), std::size_t{1});
    QCOMPARE(drawn.view.cursor().shape(), Qt::CrossCursor);
    drawn.drawing.SetDescription("A path through Europe");
    QCOMPARE(drawn.view.accessibleDescription(), "A path through Europe");
  }

  void contentIsShownInItsOrder() {
    Drawn drawn;
    drawn.drawing.SetContent({.lines = {{kLine, {{0, 0.25}, {1, 0.25}}},
                                        {kArea, {{0, 0}, {0.5, 0}, {0.5, 0.5}, {0, 0.5}}},
                                        {kLayerCount, {{0, 0.75}, {1, 0.75}}},
                                        {-1, {{0, 0.75}, {1, 0.75}}}},
                              .marks = {},
                              .legend = {{kLayerCount, "beyond"}, {-1, "below"}}});
    QCOMPARE(drawn.ColorAt(0.25, 0.25), kLineColor);
    QCOMPARE(drawn.ColorAt(0.75, 0.25), kLineColor);
    QCOMPARE(drawn.ColorAt(0.25, 0.125), kAreaColor);
    QCOMPARE(drawn.ColorAt(0.75, 0.125), Look::kPaper);
    QCOMPARE(drawn.ColorAt(0.25, 0.75), Look::kPaper);
    drawn.drawing.SetContent({});
    QCOMPARE(drawn.ColorAt(0.25, 0.25), Look::kPaper);
  }

  void drawingKeepsItsShape() {
    Drawn drawn;
    for (const QSize size : {QSize(900, 300), QSize(300, 900), QSize(300, 210), QSize(20, 20)}) {
      drawn.view.resize(size);
      const QRectF place = drawn.view.PlaceOfDrawing();
      QVERIFY(qAbs(place.width() - 2 * place.height()) < 0.01);
      QVERIFY(QRectF(drawn.view.rect()).contains(place) || place.isEmpty());
      drawn.Painted();
    }
  }

  // As much of the text is painted anywhere as is in the middle.
  void textsStayInside() {
    Drawn drawn;
    const auto ink_of_text = [&](int layer, DrawingPoint at) {
      drawn.drawing.SetContent(
          {.lines = {}, .marks = {{layer, at, "Constantinople"}}, .legend = {}});
      const int with_text = drawn.CountOf(kInk);
      drawn.drawing.SetContent({.lines = {}, .marks = {{layer, at, ""}}, .legend = {}});
      return with_text - drawn.CountOf(kInk);
    };
    for (const int layer : {kText, kMark}) {
      const int whole = ink_of_text(layer, {0.5, 0.5});
      QVERIFY(whole > 50);
      for (const DrawingPoint at :
           {DrawingPoint{0, 0}, {0.5, 0}, {1, 0}, {1, 0.5}, {1, 1}, {0, 1}}) {
        const int ink = ink_of_text(layer, at);
        QVERIFY2(ink > whole * 2 / 3, qPrintable(QString("%1 of %2").arg(ink).arg(whole)));
      }
    }
  }

  // A mark right of another one takes the place of its text, which goes to the left.
  void textsGiveWay() {
    Drawn drawn;
    const DrawnMark mark{kMark, {0.5, 0.5}, "Constantinople"};
    const auto ink_at_the_left = [&](std::vector<DrawnMark> marks) {
      drawn.drawing.SetContent({.lines = {}, .marks = std::move(marks), .legend = {}});
      const double middle = drawn.view.PlaceOfDrawing().center().x();
      return drawn.CountOf(kInk, middle - drawn.view.fontMetrics().height());
    };
    QCOMPARE(ink_at_the_left({mark}), 0);
    QVERIFY(ink_at_the_left({mark, {kMark, {0.58, 0.5}, ""}}) > 50);
  }

  void legendTakesItsRows() {
    Drawn drawn;
    const QRectF before = drawn.view.PlaceOfDrawing();
    DrawingContent content;
    content.legend = {{kMark, "a mark"}, {kLine, "a line"}};
    drawn.drawing.SetContent(content);
    QCOMPARE(drawn.view.PlaceOfDrawing(), before);
    const int ink = drawn.CountOf(kInk);
    QVERIFY(ink > 0);
    QVERIFY(drawn.CountOf(kLineColor) > 0);
    for (int i = 0; i < 12; ++i) content.legend.push_back({kArea, "what is covered by the area"});
    content.legend.push_back({kMark, "a mark"});
    content.legend.push_back({kArea, std::string(200, 'x')});
    drawn.drawing.SetContent(content);
    QVERIFY(drawn.view.PlaceOfDrawing().height() < before.height());
    QVERIFY(drawn.CountOf(kInk) > 3 * ink / 2);
  }
};

const AddSuite<DrawingViewTest> added;

}  // namespace tarnwick

#include "drawing_view_test.moc"
