#include "desktop/log_window_view.h"

#include <QFont>
#include <QPlainTextEdit>
#include <QPushButton>

#include "desktop/bound_widgets.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"txbText", 0, "Log"},  {"cmdClear", 'l', ""}, {"cmdCopyToClipboard", 'C', ""},
    {"cmdSaveAs", 'S', ""}, {"cmdClose", 'o', ""},
};

// The buttons stand side by side, even with the longest caption of the one that changes.
constexpr QSize kSmallest{810, 240};

QFont FixedPitch(const QFont& like) {
  QFont font = like;
  font.setFamily("Courier New");
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  return font;
}

}  // namespace

LogWindowView::LogWindowView(frmLog& form, HandlerGate& gate) : binder_(gate, kWordings) {
  setMinimumSize(kSmallest);
  AddText(form.txbText);
  AddButton(form.cmdClear);
  AddButton(form.cmdCopyToClipboard);
  AddButton(form.cmdSaveAs);
  AddButton(form.cmdClose);
  binder_.Bind(form, *this);
}

void LogWindowView::AddText(TextBox& text) {
  auto* edit = new QPlainTextEdit(this);
  edit->setFont(FixedPitch(edit->font()));
  edit->setTabChangesFocus(true);
  binder_.Bind(text, *edit);
  binder_.BindPlace(text, *edit);
}

void LogWindowView::AddButton(Button& button) {
  binder_.BindPlace(button, *MakeButton(binder_, button, this));
}

}  // namespace tarnwick
