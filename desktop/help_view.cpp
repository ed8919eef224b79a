#include "desktop/help_view.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desktop/accessible.h"
#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/look.h"
#include "desktop/mirror.h"
#include "desktop/panel.h"
#include "desktop/screen_fit.h"
#include "desktop/twips.h"

namespace tarnwick {
namespace {

constexpr Wording kHelpWordings[] = {
    {"lstPages", 0, "Pages of the help"},
    {"lblText", 0, "Page"},
    {"cmdCredits", 'r', ""},
    {"cmdClose", 'C', ""},
};
constexpr Wording kCreditsWordings[] = {
    {"lblText", 0, "Credits"},
    {"cmdWebPage", 'w', ""},
    {"cmdClose", 'C', ""},
};

constexpr Wording kNoticeWordings[] = {{.control = "lblNotice", .spoken = "", .announced = true}};

// In lines of text.
constexpr QSize kHelpSize{52, 34};
constexpr QSize kCreditsSize{36, 24};
constexpr QSize kLeastPage{18, 10};
constexpr int kWidestNotice = 32;

QTextBrowser* MakePage(Binder& binder, Label& text, QWidget* parent) {
  auto* page = new QTextBrowser(parent);
  page->setMinimumSize(kLeastPage * parent->fontMetrics().height());
  page->document()->setDocumentMargin(1.5 * Spacing(*parent));
  binder.Bind(text, *page);
  return page;
}

}  // namespace

HelpView::HelpView(frmHelp& form, HandlerGate& gate) : form_(form), binder_(gate, kHelpWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakePages(), 1);
  rows->addWidget(MakeButtons());
  FitToScreen(*this);
  resize(kHelpSize * fontMetrics().height());
  binder_.Bind(form_, *this);
}

QWidget* HelpView::MakePages() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& columns = area->Row();
  auto* pages = new QListWidget(area);
  pages->setSpacing(Spacing(*this) / 4);
  binder_.Bind(form_.lstPages, *pages);
  pages->setFixedWidth(pages->sizeHintForColumn(0) + 4 * Spacing(*this));
  columns.addWidget(pages);
  columns.addWidget(MakePage(binder_, form_.lblText, area), 1);
  return area;
}

QWidget* HelpView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  row.addWidget(MakeButton(binder_, form_.cmdCredits, area));
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdClose, area));
  return area;
}

CreditsView::CreditsView(frmCredits& form, HandlerGate& gate) : binder_(gate, kCreditsWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakePage(binder_, form.lblText, this), 1);
  auto* row = new QHBoxLayout;
  row->addWidget(MakeButton(binder_, form.cmdWebPage, this));
  row->addStretch();
  row->addWidget(MakeButton(binder_, form.cmdClose, this));
  rows->addLayout(row);
  FitToScreen(*this);
  resize(kCreditsSize * fontMetrics().height());
  binder_.Bind(form, *this);
}

NoticeView::NoticeView(frmNotice& form, HandlerGate& gate)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint),
      form_(form),
      gate_(gate),
      binder_(gate, kNoticeWordings) {
  SetRole(*this, QAccessible::Notification);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setPalette(LightPalette());
  const int space = Spacing(*this);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(3 * space, 3 * space / 2, 3 * space, 3 * space / 2);
  auto* text = new QLabel(this);
  text->setAlignment(Qt::AlignCenter);
  text->setWordWrap(true);
  binder_.Bind(form_.lblNotice, *text);
  row->addWidget(text);
  binder_.Bind(form_.tmrNotice, timer_);
  // Before the window is tied to it the form is told where the text finds its room.
  Mirror(form_, Property::kBounds, *this,
         [this] { form_.SetBounds(ToTwips(PlaceFor(ToPixels(form_.Bounds())))); });
  binder_.Bind(form_, *this);
}

QRect NoticeView::PlaceFor(const QRect& wanted) const {
  const QScreen* below = QGuiApplication::screenAt(wanted.center());
  const QRect room = (below != nullptr ? below : screen())->availableGeometry();
  const QMargins margins = layout()->contentsMargins();
  const int widest = qMin(room.width(), kWidestNotice * fontMetrics().height());
  const QRect text = fontMetrics().boundingRect(QRect({}, QSize(widest, room.height())),
                                                Qt::TextWordWrap, ToQt(form_.lblNotice.Caption()));
  QRect place({}, text.size().grownBy(margins) + QSize(2, 2));  // and the edge
  place.moveCenter(wanted.center());
  place.moveBottom(wanted.bottom());
  return Inside(place, room);
}

// A click anywhere on it is one on its text.
void NoticeView::mouseReleaseEvent(QMouseEvent* /*event*/) {
  gate_.Run([this] { form_.lblNotice.Click(); });
}

void NoticeView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(Look::kFieldEdge);
  painter.setBrush(Look::kLightPanel);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tarnwick
