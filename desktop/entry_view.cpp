#include "desktop/entry_view.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"txbDate", 0, "Date and time"},
    {"optPlus", 'p', ""},
    {"optMinus", 'm', ""},
    {"txbPlusMinus", 0, "Days to add or subtract"},
    {"lblDays", 'd', ""},
    {.control = "lblEntryHint", .spoken = "", .announced = true},
    {"cmdCompute", 'C', ""},
    {"cmdClearDate", 'l', ""},
};

constexpr double kTypedSize = 1.2;  // of the font: what is typed is what the rest follows from

// One line, cut short where it does not fit; its tool tip then says all of it.
class QuietLine final : public QLabel {
 public:
  using QLabel::QLabel;

  QSize sizeHint() const override { return {0, fontMetrics().height()}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ToolTip) setToolTip(Shown() == text() ? QString() : text());
    return QLabel::event(event);
  }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), Shown(), foregroundRole());
  }

 private:
  QString Shown() const { return fontMetrics().elidedText(text(), Qt::ElideRight, width()); }
};

constexpr char kLongestDayCount[] = "+9,999,999";

QLineEdit* MakeLineEdit(QWidget* panel) {
  auto* edit = new QLineEdit(panel);
  edit->setFont(Scaled(edit->font(), kTypedSize));
  return edit;
}

// The width of a line edit that shows all of a text.
int EditWidth(const QLineEdit& edit, const QString& text) {
  return edit.fontMetrics().horizontalAdvance(text) + 2 * edit.fontMetrics().height();
}

}  // namespace

EntryView::EntryView(EntrySection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent), section_(section), binder_(binder) {
  binder_.AddWordings(kWordings);
  binder_.Bind(section_.fraConvert, static_cast<QWidget&>(*this));  // needs no title
  const int space = Spacing(*this);
  Content().setContentsMargins(2 * space, 3 * space / 2, 2 * space, 3 * space / 2);
  Content().addLayout(MakeEntryRow());
  Content().addWidget(MakeHint());
  commands_ = MakeCommandRow();
  Content().addLayout(commands_);
}

QHBoxLayout* EntryView::MakeEntryRow() {
  const int space = Spacing(*this);
  auto* row = new QHBoxLayout;
  row->setSpacing(space);

  QLineEdit* date = MakeLineEdit(this);
  date->setPlaceholderText("date, e.g. 2003-12-31 CE 15:55");
  date->setMinimumWidth(EditWidth(*date, date->placeholderText()));
  binder_.Bind(section_.txbDate, *date);
  row->addWidget(date, 1);
  row->addSpacing(space);

  auto* direction = new Area(2 * space, this);
  AddOption(binder_, section_.optPlus, *direction);
  AddOption(binder_, section_.optMinus, *direction);
  row->addWidget(direction);

  QLineEdit* days = MakeLineEdit(this);
  days->setAlignment(Qt::AlignRight);
  days->setFixedWidth(EditWidth(*days, kLongestDayCount));
  binder_.Bind(section_.txbPlusMinus, *days);
  row->addWidget(days);

  auto* unit = new QLabel(this);
  unit->setBuddy(days);
  binder_.Bind(section_.lblDays, *unit);
  row->addWidget(unit);
  return row;
}

QWidget* EntryView::MakeHint() {
  auto* hint = new QuietLine(this);
  binder_.Bind(section_.lblEntryHint, *hint);
  SetTextColor(*hint, Look::kCaption);
  return hint;
}

QHBoxLayout* EntryView::MakeCommandRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(Spacing(*this));
  row->addWidget(MakeButton(binder_, section_.cmdCompute, this, ButtonRole::kAccent));
  row->addWidget(MakeButton(binder_, section_.cmdClearDate, this));
  return row;
}

}  // namespace tarnwick
