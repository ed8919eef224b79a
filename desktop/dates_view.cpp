#include "desktop/dates_view.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "calendars/calendar_table.h"
#include "desktop/event_hook.h"
#include "desktop/link_label.h"
#include "desktop/look.h"
#include "desktop/mirror.h"

namespace tarnwick {
namespace {

constexpr int kRows = 10;
constexpr double kMostGrowth = 2;  // of the font
constexpr double kGrowthStep = 0.05;
constexpr double kAiriness = 1.15;  // the height that larger rows take, of what they need
constexpr char kLongestCaption[] = "Time";
constexpr char kLongestDate[] = "-5011-13-3-3 OLW (Daythree in Weekthree of De Quincy, -5011)";

}  // namespace

DatesView::DatesView(DatesSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent), section_(section), binder_(binder), table_(new QWidget(this)) {
  SetTitle("One moment, nine ways");
  const int space = Spacing(*this);
  auto* rows = new QGridLayout(table_);
  rows->setContentsMargins(3 * space / 2, 0, 0, 0);
  rows->setHorizontalSpacing(2 * space);
  rows->setVerticalSpacing(0);  // the padding of the labels is enough
  rows->setColumnStretch(1, 1);
  const Wording time[] = {{section.lblTime[1].Name(), 0, "Time"}};
  binder_.AddWordings(time);
  AddRow(section.lblTime, *rows);
  for (const Calendar calendar : kDisplayOrder) {
    ValueLabel& label = section.LabelOf(calendar);
    const Wording wording[] = {{label[1].Name(), 0, RowOf(calendar).spoken_name}};
    binder_.AddWordings(wording);
    AddRow(label, *rows);
  }
  // Room for any date, so that the window need not grow with the text, and no more, so that it can
  // shrink again.
  table_->setMinimumSize(RoomFor(font()));
  new EventHook(*table_, [this](QEvent& event) {
    if (event.type() == QEvent::Resize) FitFont();
    return false;
  });
  Content().addWidget(table_, 1);
}

void DatesView::AddRow(ValueLabel& label, QGridLayout& rows) {
  const int row = rows.count() / 2;
  auto* caption = new LinkLabel(LinkLabel::Kind::kCaption, table_);
  binder_.Bind(label[0], *caption);
  SetTextColor(*caption, Look::kCaption);
  rows.addWidget(caption, row, 0);

  auto* date = new LinkLabel(LinkLabel::Kind::kValue, table_);
  date->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  date->setCheckable(&label != &section_.lblTime);
  binder_.Bind(label[1], *date);
  rows.addWidget(date, row, 1);
  rows.setRowStretch(row, 1);
  new EventHook(*date, [this](QEvent& event) {
    if (event.type() == QEvent::Move || event.type() == QEvent::Resize) update();
    return false;
  });

  Mirror(label[1], Property::kSelected, *caption, [this, caption, date, &value = label[1]] {
    const bool current = value.Selected();
    SetTextColor(*caption, current ? Look::kFieldText : Look::kCaption);
    if (current) current_ = date;
    if (!current && current_ == date) current_ = nullptr;
    update();
  });
}

// What the dates need in a font, the longest of them included.
QSize DatesView::RoomFor(const QFont& font) const {
  const QFontMetrics measures(font);
  const int height = measures.height();
  const int width = measures.horizontalAdvance(kLongestDate) +
                    measures.horizontalAdvance(kLongestCaption) + height + 4 * Spacing(*this);
  return {width, kRows * (height + 2 * (height / 6))};
}

void DatesView::FitFont() {
  double growth = kMostGrowth;
  const auto fits = [&] {
    const QSize needed = RoomFor(Scaled(font(), growth));
    return needed.width() <= table_->width() && kAiriness * needed.height() <= table_->height();
  };
  while (growth > 1 && !fits()) growth -= kGrowthStep;
  table_->setFont(Scaled(font(), std::max(growth, 1.0)));
}

void DatesView::paintEvent(QPaintEvent* event) {
  Panel::paintEvent(event);
  if (current_ == nullptr) return;
  QRectF row = table_->geometry();
  row.setTop(table_->y() + current_->y());
  row.setHeight(current_->height());
  const double radius = Spacing(*this) / 2.0;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Look::kCurrentRow);
  painter.drawRoundedRect(row, radius, radius);
  row.setWidth(radius);
  painter.setBrush(Look::kCurrentBar);
  painter.drawRoundedRect(row, radius / 2, radius / 2);
}

}  // namespace tarnwick
