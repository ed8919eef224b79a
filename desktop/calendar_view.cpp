#include "desktop/calendar_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/choice.h"
#include "desktop/bound_widgets.h"
#include "desktop/link_label.h"
#include "desktop/look.h"
#include "desktop/mirror.h"
#include "desktop/panel.h"
#include "desktop/picture_view.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"fraCalendar", 0, "Lunation"},
    {"imgMoon", 0, "The Moon"},
    {"lblDate", 0, "Day"},
    {"lblCEDate", 0, "CE date"},
    {"lblEvent", 0, "Phases and eclipses"},
    {"cmdShowPreviousOrNext(0)", 'p', ""},
    {"cmdShowPreviousOrNext(1)", 'n', ""},
    {"cmdSaveCalendarImage", 'S', ""},
    {"cmdClose", 'C', ""},
};

constexpr double kSmall = 0.85;  // of the font
constexpr int kPictureLines = 4;
constexpr int kEventLines = 3;  // a phase, and an eclipse that takes two
constexpr char kLongestDate[] = "10-3 Mellephan.";
constexpr char kLongestEventLine[] = "Non-central annular";

QFont Resized(const QFont& font, double factor) {
  QFont resized = font;
  resized.setPointSizeF(factor * font.pointSizeF());
  return resized;
}

QLabel* MakeText(double size, QWidget* parent) {
  auto* text = new QLabel(parent);
  text->setFont(Resized(text->font(), size));
  text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  return text;
}

// The ground of a cell, with an outline when its day is the current one.
class CellView final : public QWidget {
 public:
  CellView(Label& date, QWidget* parent) : QWidget(parent), date_(date) {
    Mirror(date, Property::kForeColor, *this, [this] { update(); });
    Mirror(date, Property::kVisible, *this, [this] { update(); });
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    if (!date_.Visible()) return;
    const bool current = date_.ForeColor() == kSelectedColor;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(current ? QPen(Look::kFocusRing, 2) : QPen(Look::kPanelEdge));
    painter.setBrush(Look::kSky);
    const double radius = fontMetrics().height() / 3.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
  }

 private:
  const Label& date_;
};

}  // namespace

CalendarView::CalendarView(frmCalendar& form, HandlerGate& gate)
    : form_(form), binder_(gate, kWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakePage(), 1);
  rows->addWidget(MakeButtons());
  resize(sizeHint());
  binder_.Bind(form_, *this);
}

QWidget* CalendarView::MakePage() {
  const int space = Spacing(*this);
  auto* page = new QWidget(this);
  binder_.Bind(form_.fraCalendar, *page);
  auto* rows = new QVBoxLayout(page);
  rows->setContentsMargins(space, space, space, space);
  rows->setSpacing(space / 2);

  QLabel* title = MakeText(1.3, page);
  binder_.Bind(form_.lblTitle, *title);
  rows->addWidget(title);
  QLabel* months = MakeText(1, page);
  binder_.Bind(form_.lblYearAndMonth, *months);
  rows->addWidget(months);

  auto* grid = new QGridLayout;
  grid->setSpacing(space / 2);
  AddHeadings(*grid, page);
  for (int i = 0; i < kGridCells; ++i) {
    const int row = 1 + i / kGridColumns;
    grid->addWidget(MakeCell(static_cast<std::size_t>(i), page), row, i % kGridColumns);
    grid->setRowStretch(row, 1);
  }
  rows->addLayout(grid, 1);
  return page;
}

void CalendarView::AddHeadings(QGridLayout& grid, QWidget* page) {
  const QFontMetrics small(Resized(font(), kSmall));
  const int widest = qMax(fontMetrics().horizontalAdvance(kLongestDate),
                          small.horizontalAdvance(kLongestEventLine));
  for (int column = 0; column < kGridColumns; ++column) {
    QLabel* heading = MakeText(1, page);
    binder_.Bind(form_.lblWeekday[static_cast<std::size_t>(column)], *heading);
    SetTextColor(*heading, Look::kCaption);
    grid.addWidget(heading, 0, column);
    grid.setColumnStretch(column, 1);
    grid.setColumnMinimumWidth(column, widest + 2 * Spacing(*this));
  }
}

QWidget* CalendarView::MakeCell(std::size_t index, QWidget* page) {
  auto* cell = new CellView(form_.lblDate[index], page);
  const int space = Spacing(*this);
  auto* rows = new QVBoxLayout(cell);
  rows->setContentsMargins(space / 2, space, space / 2, space / 2);
  rows->setSpacing(0);

  auto* picture = new PictureView(kPictureLines, cell);
  binder_.Bind(form_.imgMoon[index], *picture);
  rows->addWidget(picture, 1);
  auto* date = new LinkLabel(LinkLabel::Kind::kValue, cell);
  date->setCheckable(true);
  binder_.Bind(form_.lblDate[index], *date);
  rows->addWidget(date, 0, Qt::AlignHCenter);
  QLabel* ce_date = MakeText(kSmall, cell);
  binder_.Bind(form_.lblCEDate[index], *ce_date);
  SetTextColor(*ce_date, Look::kCaption);
  rows->addWidget(ce_date);
  QLabel* event = MakeText(kSmall, cell);
  event->setWordWrap(true);
  // A line of several takes a little more than the height of the font.
  event->setFixedHeight((3 * kEventLines + 1) * event->fontMetrics().height() / 3);
  binder_.Bind(form_.lblEvent[index], *event);
  SetTextColor(*event, Look::kEvent);
  rows->addWidget(event);
  // Every page has the same room, whatever cells it shows.
  for (QWidget* part : {static_cast<QWidget*>(picture), static_cast<QWidget*>(date),
                        static_cast<QWidget*>(ce_date), static_cast<QWidget*>(event)}) {
    KeepRoomWhenHidden(*part);
  }
  return cell;
}

QWidget* CalendarView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  for (Button& button : form_.cmdShowPreviousOrNext) {
    row.addWidget(MakeButton(binder_, button, area));
  }
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdSaveCalendarImage, area));
  row.addWidget(MakeButton(binder_, form_.cmdClose, area));
  return area;
}

}  // namespace tarnwick
