#include "desktop/print_painter.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "desktop/characters.h"

namespace tarnwick {
namespace {

constexpr double kMargin = 12;  // mm
constexpr double kPointsPerInch = 72;

constexpr QColor kInk(0, 0, 0);
constexpr QColor kSecondInk(68, 68, 68);  // for what stands back
constexpr QColor kRule(150, 150, 150);
constexpr QColor kShadow(72, 80, 92);  // the part of the Moon that is not lit

// Sizes of texts, in points.
constexpr double kTitleSize = 17;
constexpr double kSubtitleSize = 11;
constexpr double kHeadingSize = 9;
constexpr double kMainSize = 10;
constexpr double kSmallSize = 8;
constexpr double kNoteSize = 8;
constexpr double kTableTitleSize = 13;
constexpr double kTableSize = 9;
constexpr double kSmallestSize = 1;
constexpr double kSizeStep = 0.25;

constexpr double kLeastMoon = 0.3;     // of the height of a cell, its diameter
constexpr double kLargestMoon = 0.45;  // where the events leave the room
constexpr double kWidestMoon = 0.8;    // of the width of a cell
constexpr double kColumnGap = 10;      // points
constexpr double kWidestColumn = 1.6;  // times what its texts need
constexpr double kRowPart = 1.35;      // height of a row, in lines of text
constexpr double kEndless = 1e9;       // longer than any paper
constexpr int kLeft = Qt::AlignLeft | Qt::AlignTop;
constexpr int kCentre = Qt::AlignHCenter | Qt::AlignTop;
constexpr int kRight = Qt::AlignRight | Qt::AlignTop;

// The page that a device is painting, in its own units; 0, 0 is where the margins end.
class Sheet {
 public:
  explicit Sheet(QPagedPaintDevice& device)
      : device_(device),
        unit_(device.logicalDpiX() / kPointsPerInch),
        area_(QPointF(), device.pageLayout().paintRect(QPageLayout::Point).size() * unit_) {}

  const QRectF& Area() const { return area_; }
  double Points(double points) const { return points * unit_; }

  QFont FontOf(double points, bool bold = false) const {
    QFont font = QGuiApplication::font();
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
  }
  QFontMetricsF Metrics(const QFont& font) const { return {font, &device_}; }
  double LineHeight(double points, bool bold = false) const {
    return Metrics(FontOf(points, bold)).lineSpacing();
  }
  double Width(const QString& text, const QFont& font) const {
    return Metrics(font).horizontalAdvance(text);
  }
  // The room that a text takes whose lines are broken at a width.
  QSizeF BrokenSize(const QString& text, const QFont& font, double width) const {
    const QRectF column(0, 0, width, kEndless);
    return Metrics(font).boundingRect(column, kCentre | Qt::TextWordWrap, text).size();
  }
  // The font, or a smaller one in which the text takes no more than the width.
  QFont Fitted(const QString& text, QFont font, double width) const {
    const double needed = Width(text, font);
    // Widths do not shrink quite as sizes do.
    if (needed > width) font.setPointSizeF(0.98 * font.pointSizeF() * width / needed);
    return font;
  }

 private:
  QPagedPaintDevice& device_;
  double unit_;
  QRectF area_;
};

// Writes on a sheet.
class Pen {
 public:
  Pen(QPainter& painter, const Sheet& sheet) : painter_(painter), sheet_(sheet) {}

  // One line, at the top of the place; set smaller if it is too long for it.
  void Line(const QRectF& place, const QString& text, const QFont& font, const QColor& ink,
            int alignment) const {
    painter_.setFont(sheet_.Fitted(text, font, place.width()));
    painter_.setPen(ink);
    painter_.drawText(place, alignment | Qt::TextSingleLine | Qt::TextDontClip, text);
  }
  void BrokenLines(const QRectF& place, const QString& text, const QFont& font, const QColor& ink,
                   int alignment) const {
    painter_.setFont(font);
    painter_.setPen(ink);
    painter_.drawText(place, alignment | Qt::TextWordWrap | Qt::TextDontClip, text);
  }
  void Rule(const QPointF& from, const QPointF& to, double points) const {
    painter_.setPen(QPen(kRule, sheet_.Points(points)));
    painter_.drawLine(from, to);
  }
  void Frame(const QRectF& place) const {
    painter_.setPen(QPen(kRule, sheet_.Points(0.5)));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(place);
  }
  void Moon(const QPointF& centre, double radius, const PrintedMoon& moon) const;

 private:
  QPainter& painter_;
  const Sheet& sheet_;
};

// The lit limb is half a circle, the terminator half an ellipse; that one bulges towards the lit
// limb before the quarter and away from it after.
QPainterPath LitPart(double radius, double lit) {
  const QRectF disc(-radius, -radius, 2 * radius, 2 * radius);
  const double bulge = radius * std::abs(1 - 2 * lit);
  const QRectF ellipse(-bulge, -radius, 2 * bulge, 2 * radius);
  QPainterPath path;
  path.moveTo(0, -radius);
  path.arcTo(disc, 90, -180);
  path.arcTo(ellipse, -90, lit < 0.5 ? 180 : -180);
  path.closeSubpath();
  return path;
}

void Pen::Moon(const QPointF& centre, double radius, const PrintedMoon& moon) const {
  painter_.save();
  painter_.translate(centre);
  if (!moon.from_right) painter_.scale(-1, 1);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(kShadow);
  painter_.drawEllipse(QPointF(), radius, radius);
  painter_.setBrush(Qt::white);
  painter_.drawPath(LitPart(radius, std::clamp(moon.lit, 0.0, 1.0)));
  painter_.setPen(QPen(kShadow, sheet_.Points(0.6)));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawEllipse(QPointF(), radius, radius);
  painter_.restore();
}

QString PageNumber(std::size_t page, std::size_t count) {
  return "Page " + QString::number(page + 1) + " of " + QString::number(count);
}

// How the cells of a grid lie on a sheet, and in which fonts, the same for all of its cells.
struct GridLayout {
  QRectF cells;  // all of them
  QSizeF cell;
  double padding = 0;
  double moon = 0;  // radius
  QFont main;
  QFont small;
  QFont events;
};

int ColumnsOf(const PrintedGrid& grid) {
  return std::max(1, static_cast<int>(grid.headings.size()));
}

int RowsOf(const PrintedGrid& grid) {
  const int columns = ColumnsOf(grid);
  return std::max(1, (static_cast<int>(grid.cells.size()) + columns - 1) / columns);
}

// How high the events of the cell that has most of them are, their lines broken at a width; too
// high if a word is too wide.
double EventHeight(const PrintedGrid& grid, const Sheet& sheet, const QFont& font, double width) {
  double height = 0;
  for (const auto& cell : grid.cells) {
    if (!cell || cell->events.empty()) continue;
    const QSizeF needed = sheet.BrokenSize(ToQt(cell->events), font, width);
    height = std::max(height, needed.width() > width ? kEndless : needed.height());
  }
  return height;
}

// The largest font in which the events of every cell have room.
QFont EventFont(const PrintedGrid& grid, const Sheet& sheet, const QSizeF& room) {
  double size = kSmallSize;
  while (size > kSmallestSize &&
         EventHeight(grid, sheet, sheet.FontOf(size), room.width()) > room.height()) {
    size -= kSizeStep;
  }
  return sheet.FontOf(size);
}

GridLayout LayOut(const PrintedGrid& grid, const Sheet& sheet, const QRectF& cells) {
  GridLayout layout;
  layout.cells = cells;
  layout.cell = QSizeF(cells.width() / ColumnsOf(grid), cells.height() / RowsOf(grid));
  layout.padding = sheet.Points(3.5);
  const double width = layout.cell.width() - 2 * layout.padding;
  layout.main = sheet.FontOf(kMainSize, true);
  layout.small = sheet.FontOf(kSmallSize);
  for (const auto& cell : grid.cells) {
    if (!cell) continue;
    layout.main = sheet.Fitted(ToQt(cell->main), layout.main, width);
    layout.small = sheet.Fitted(ToQt(cell->small), layout.small, width);
  }
  const double height = layout.cell.height();
  const double room = height - 4 * layout.padding - sheet.Metrics(layout.main).lineSpacing() -
                      sheet.Metrics(layout.small).lineSpacing();
  const double events = EventHeight(grid, sheet, sheet.FontOf(kSmallSize), width);
  const double moon = std::clamp(room - events, kLeastMoon * height, kLargestMoon * height);
  layout.moon = std::min(moon, kWidestMoon * width) / 2;
  layout.events = EventFont(grid, sheet, QSizeF(width, room - moon));
  return layout;
}

void PaintCell(const PrintedCell& cell, const QRectF& place, const GridLayout& layout,
               const Sheet& sheet, const Pen& pen) {
  pen.Frame(place);
  const double padding = layout.padding;
  QRectF rest = place.adjusted(padding, 1.5 * padding, -padding, -padding);
  pen.Moon(QPointF(place.center().x(), rest.top() + layout.moon), layout.moon, cell.moon);
  rest.setTop(rest.top() + 2 * layout.moon + padding);
  pen.Line(rest, ToQt(cell.main), layout.main, kInk, kCentre);
  rest.setTop(rest.top() + sheet.Metrics(layout.main).lineSpacing());
  pen.Line(rest, ToQt(cell.small), layout.small, kSecondInk, kCentre);
  rest.setTop(rest.top() + sheet.Metrics(layout.small).lineSpacing());
  pen.BrokenLines(rest, ToQt(cell.events), layout.events, kInk, kCentre);
}

void PaintCells(const PrintedGrid& grid, const GridLayout& layout, const Sheet& sheet,
                const Pen& pen) {
  const auto columns = static_cast<std::size_t>(ColumnsOf(grid));
  for (std::size_t i = 0; i < grid.cells.size(); ++i) {
    if (!grid.cells[i]) continue;
    const std::size_t row = i / columns;
    const QPointF corner(static_cast<double>(i % columns) * layout.cell.width(),
                         static_cast<double>(row) * layout.cell.height());
    PaintCell(*grid.cells[i], {layout.cells.topLeft() + corner, layout.cell}, layout, sheet, pen);
  }
}

// Takes a line off the top of what is left of the page.
QRectF TakeLine(QRectF& rest, double height) {
  const QRectF line(rest.topLeft(), QSizeF(rest.width(), height));
  rest.setTop(rest.top() + height);
  return line;
}

// The note and, of several pages, the number below it; takes their room off the end of the page.
void PaintFoot(const PrintedGrid& grid, const QString& number, const Sheet& sheet, const Pen& pen,
               QRectF& rest) {
  const QFont font = sheet.FontOf(kNoteSize);
  const QString note = ToQt(grid.note);
  const double right = sheet.Width(number, font) + (number.isEmpty() ? 0 : sheet.Points(16));
  const double height = std::max(sheet.BrokenSize(note, font, rest.width() - right).height(),
                                 sheet.LineHeight(kNoteSize));
  const QRectF foot(rest.left(), rest.bottom() - height, rest.width(), height);
  pen.BrokenLines(foot.adjusted(0, 0, -right, 0), note, font, kSecondInk, kLeft);
  pen.Line(foot, number, font, kSecondInk, kRight);
  rest.setBottom(foot.top() - sheet.Points(5));
}

void PaintGrid(const PrintedGrid& grid, const QString& number, const Sheet& sheet, const Pen& pen) {
  QRectF rest = sheet.Area();
  pen.Line(TakeLine(rest, sheet.LineHeight(kTitleSize, true)), ToQt(grid.title),
           sheet.FontOf(kTitleSize, true), kInk, kCentre);
  pen.Line(TakeLine(rest, 1.3 * sheet.LineHeight(kSubtitleSize)), ToQt(grid.subtitle),
           sheet.FontOf(kSubtitleSize), kSecondInk, kCentre);
  PaintFoot(grid, number, sheet, pen, rest);
  const QRectF headings = TakeLine(rest, 1.2 * sheet.LineHeight(kHeadingSize));
  const double width = rest.width() / ColumnsOf(grid);
  for (std::size_t i = 0; i < grid.headings.size(); ++i) {
    const QPointF corner(headings.left() + static_cast<double>(i) * width, headings.top());
    pen.Line({corner, QSizeF(width, headings.height())}, ToQt(grid.headings[i]).trimmed(),
             sheet.FontOf(kHeadingSize), kSecondInk, kCentre);
  }
  PaintCells(grid, LayOut(grid, sheet, rest), sheet, pen);
}

// How a table lies on a sheet.
struct TableLayout {
  QFont font;
  QFont heading;
  QRectF rows;  // of a page
  double row = 0;
  std::size_t rows_of_page = 1;
  std::vector<QRectF> columns;  // from left to right; of the first row
};

double NeededWidth(const TableColumn& column, const Sheet& sheet, const QFont& font,
                   const QFont& heading) {
  return std::max(sheet.Width(ToQt(column.longest), font),
                  sheet.Width(ToQt(column.heading), heading));
}

std::vector<double> NeededWidths(const PrintedTable& table, const Sheet& sheet, double size) {
  std::vector<double> widths;
  for (const TableColumn& column : table.columns) {
    widths.push_back(NeededWidth(column, sheet, sheet.FontOf(size), sheet.FontOf(size, true)));
  }
  return widths;
}

double Sum(const std::vector<double>& widths) {
  double sum = 0;
  for (const double width : widths) sum += width;
  return sum;
}

// Between two columns.
double Gap(const Sheet& sheet, double size) { return sheet.Points(kColumnGap * size / kTableSize); }

double Gaps(const PrintedTable& table, const Sheet& sheet, double size) {
  return Gap(sheet, size) * (std::max(1.0, static_cast<double>(table.columns.size())) - 1);
}

double NeededWidth(const PrintedTable& table, const Sheet& sheet, double size) {
  return Sum(NeededWidths(table, sheet, size)) + Gaps(table, sheet, size);
}

// The largest size in which the columns have room side by side.
double TableSize(const PrintedTable& table, const Sheet& sheet) {
  double size = kTableSize;
  while (size > kSmallestSize && NeededWidth(table, sheet, size) > sheet.Area().width()) {
    size -= kSizeStep;
  }
  return size;
}

TableLayout LayOut(const PrintedTable& table, const Sheet& sheet) {
  const double size = TableSize(table, sheet);
  TableLayout layout;
  layout.font = sheet.FontOf(size);
  layout.heading = sheet.FontOf(size, true);
  layout.row = kRowPart * sheet.LineHeight(size);
  const double above = 1.6 * sheet.LineHeight(kTableTitleSize, true) + 1.2 * layout.row;
  layout.rows = sheet.Area().adjusted(0, above, 0, 0);
  layout.rows_of_page = static_cast<std::size_t>(std::max(1.0, layout.rows.height() / layout.row));
  const std::vector<double> widths = NeededWidths(table, sheet, size);
  const double gaps = Gaps(table, sheet, size);
  const double spread =
      std::clamp((layout.rows.width() - gaps) / std::max(1.0, Sum(widths)), 0.0, kWidestColumn);
  double left = layout.rows.left();
  for (const double width : widths) {
    layout.columns.emplace_back(left, layout.rows.top(), width * spread, layout.row);
    left += width * spread + Gap(sheet, size);
  }
  return layout;
}

std::size_t PagesOf(const PrintedTable& table, const TableLayout& layout) {
  return std::max<std::size_t>(1,
                               (table.row_count + layout.rows_of_page - 1) / layout.rows_of_page);
}

int AlignmentOf(const TableColumn& column) { return column.right ? kRight : kLeft; }

void PaintTableHead(const PrintedTable& table, const QString& number, const TableLayout& layout,
                    const Sheet& sheet, const Pen& pen) {
  const QFont small = sheet.FontOf(kNoteSize);
  const double right = sheet.Width(number, small) + sheet.Points(16);
  pen.Line(sheet.Area().adjusted(0, 0, -right, 0), ToQt(table.title),
           sheet.FontOf(kTableTitleSize, true), kInk, kLeft);
  pen.Line(sheet.Area(), number, small, kSecondInk, kRight);
  for (std::size_t i = 0; i < layout.columns.size(); ++i) {
    pen.Line(layout.columns[i].translated(0, -1.1 * layout.row), ToQt(table.columns[i].heading),
             layout.heading, kInk, AlignmentOf(table.columns[i]));
  }
  const double y = layout.rows.top() - 0.12 * layout.row;
  pen.Rule({layout.rows.left(), y}, {layout.rows.right(), y}, 1);
}

void PaintTablePage(const PrintedTable& table, std::size_t page, const TableLayout& layout,
                    const Sheet& sheet, const Pen& pen) {
  PaintTableHead(table, PageNumber(page, PagesOf(table, layout)), layout, sheet, pen);
  const std::size_t first = page * layout.rows_of_page;
  const std::size_t last = std::min(table.row_count, first + layout.rows_of_page);
  for (std::size_t row = first; row < last; ++row) {
    const double down = static_cast<double>(row - first) * layout.row;
    for (std::size_t i = 0; i < layout.columns.size(); ++i) {
      pen.Line(layout.columns[i].translated(0, down), ToQt(table.cell(row, i)), layout.font, kInk,
               AlignmentOf(table.columns[i]));
    }
    const double y = layout.rows.top() + down + 0.9 * layout.row;
    pen.Rule({layout.rows.left(), y}, {layout.rows.right(), y}, 0.25);
  }
}

std::size_t PagesOf(const PrintedDocument& document, const Sheet& sheet) {
  if (const auto* grids = std::get_if<PrintedGrids>(&document)) return grids->page_count;
  const auto& table = std::get<PrintedTable>(document);
  return PagesOf(table, LayOut(table, sheet));
}

void PaintPage(const PrintedDocument& document, std::size_t page, const Sheet& sheet,
               const Pen& pen) {
  if (const auto* table = std::get_if<PrintedTable>(&document)) {
    PaintTablePage(*table, page, LayOut(*table, sheet), sheet, pen);
    return;
  }
  const auto& grids = std::get<PrintedGrids>(document);
  const QString number = grids.page_count > 1 ? PageNumber(page, grids.page_count) : QString();
  PaintGrid(grids.page(page), number, sheet, pen);
}

bool IsWide(const PrintedDocument& document, const Sheet& upright) {
  const auto* table = std::get_if<PrintedTable>(&document);
  return table == nullptr || NeededWidth(*table, upright, kTableSize) > upright.Area().width();
}

}  // namespace

void ArrangePaper(const PrintedDocument& document, PaperSize paper, QPagedPaintDevice& device) {
  const QPageSize size(paper == PaperSize::kA4 ? QPageSize::A4 : QPageSize::Letter);
  const QMarginsF margins(kMargin, kMargin, kMargin, kMargin);
  device.setPageLayout({size, QPageLayout::Portrait, margins, QPageLayout::Millimeter});
  if (IsWide(document, Sheet(device))) device.setPageOrientation(QPageLayout::Landscape);
}

std::size_t CountPages(const PrintedDocument& document, QPagedPaintDevice& device) {
  return PagesOf(document, Sheet(device));
}

std::string PaintPages(
    const PrintedDocument& document, const PageRange& range, QPagedPaintDevice& device,
    const std::function<bool(std::size_t done, std::size_t count)>& keep_painting) {
  const Sheet sheet(device);
  const std::size_t pages = PagesOf(document, sheet);
  const std::size_t first = std::max<std::size_t>(range.first, 1) - 1;
  const std::size_t last = std::min(range.last, pages);
  if (first >= last)
    return "None of its " + std::to_string(pages) + " pages is among those chosen.";
  if (last - first > kMostPages) {
    return std::to_string(last - first) + " pages are more than can be printed at once, " +
           std::to_string(kMostPages) + ".";
  }
  QPainter painter;
  if (!painter.begin(&device)) return "The printer or its file cannot be opened.";
  painter.setRenderHint(QPainter::Antialiasing);
  const Pen pen(painter, sheet);
  for (std::size_t page = first; page < last; ++page) {
    if (!keep_painting(page - first, last - first)) return "It was stopped.";
    if (page > first && !device.newPage()) return "The printer takes no further page.";
    PaintPage(document, page, sheet, pen);
  }
  return painter.end() ? "" : "The printer could not finish.";
}

}  // namespace tarnwick
