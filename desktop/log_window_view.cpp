#include "desktop/log_window_view.h"

#include <QFont>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/event_hook.h"
#include "desktop/look.h"
#include "desktop/panel.h"
#include "desktop/screen_fit.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"txbText", 0, "Log"},  {"cmdClear", 'l', ""}, {"cmdCopyToClipboard", 'C', ""},
    {"cmdSaveAs", 'S', ""}, {"cmdClose", 'o', ""},
};

constexpr QSize kLeastText{30, 10};  // in lines of text

QFont FixedPitch(const QFont& like) {
  QFont font = like;
  font.setFamily("Courier New");
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  return font;
}

}  // namespace

LogWindowView::LogWindowView(frmLog& form, HandlerGate& gate)
    : form_(form), binder_(gate, kWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakeText(), 1);
  rows->addWidget(MakeButtons());
  FitToScreen(*this);
  binder_.Bind(form_, *this);
}

QWidget* LogWindowView::MakeText() {
  auto* edit = new QPlainTextEdit(this);
  edit->setFont(FixedPitch(edit->font()));
  edit->setTabChangesFocus(true);
  edit->setMinimumSize(kLeastText * fontMetrics().height());
  edit->document()->setDocumentMargin(Spacing(*this));
  binder_.Bind(form_.txbText, *edit);
  // The caret has been set before the window had its size.
  new EventHook(*this, [edit](QEvent& event) {
    if (event.type() != QEvent::Show && event.type() != QEvent::WindowActivate) return false;
    QMetaObject::invokeMethod(edit, &QPlainTextEdit::ensureCursorVisible, Qt::QueuedConnection);
    return false;
  });
  return edit;
}

QWidget* LogWindowView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  row.addWidget(MakeButton(binder_, form_.cmdClear, area));
  row.addWidget(MakeButton(binder_, form_.cmdCopyToClipboard, area));
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdSaveAs, area));
  row.addWidget(MakeButton(binder_, form_.cmdClose, area));
  return area;
}

}  // namespace tarnwick
