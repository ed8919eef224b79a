#include "desktop/help_view.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desktop/accessible.h"
#include "desktop/bound_widgets.h"
#include "desktop/link_label.h"
#include "desktop/look.h"
#include "desktop/panel.h"

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

QTextBrowser* MakePage(Binder& binder, Label& text, QWidget* parent) {
  auto* page = new QTextBrowser(parent);
  page->document()->setDocumentMargin(1.5 * Spacing(*parent));
  binder.Bind(text, *page);
  return page;
}

}  // namespace

HelpView::HelpView(frmHelp& form, HandlerGate& gate) : form_(form), binder_(gate, kHelpWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakePages(), 1);
  rows->addWidget(MakeButtons());
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
  resize(kCreditsSize * fontMetrics().height());
  binder_.Bind(form, *this);
}

NoticeView::NoticeView(frmNotice& form, HandlerGate& gate)
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint), binder_(gate, kNoticeWordings) {
  SetRole(*this, QAccessible::Notification);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setPalette(LightPalette());
  auto* row = new QHBoxLayout(this);
  auto* text = new LinkLabel(LinkLabel::Kind::kCaption, this);
  binder_.Bind(form.lblNotice, *text);
  row->addWidget(text, 0, Qt::AlignCenter);
  binder_.Bind(form.tmrNotice, timer_);
  binder_.Bind(form, *this);
}

void NoticeView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(Look::kFocusRing);
  painter.setBrush(Look::kLightPanel);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tarnwick
