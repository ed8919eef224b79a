#include "desktop/lists_view.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/drop_list.h"
#include "desktop/look.h"
#include "desktop/panel.h"
#include "desktop/screen_fit.h"
#include "desktop/table_view.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"cboKind", 0, "What to list"},
    {"cboChoice", 0, "Which of them"},
    {"lblFrom", 'f', ""},
    {"txbFrom", 0, "From"},
    {"lblTo", 't', ""},
    {"txbTo", 0, "To"},
    {"cmdList", 'M', ""},
    {"cmdStopList", 'S', ""},
    {"chkColumn", 0, "Column"},
    {"lblListTitle", 0, "Title of the list"},
    {"tblList", 0, "List"},
    {"lblProgress", 0, "Progress"},
    {"cmdTakeRow", 'u', ""},
    {"cmdSaveCSV", 'V', ""},
    {"cmdSaveCalendar", 'i', ""},
    {"cmdSaveListPDF", 'D', ""},
    {"cmdPrintList", 'P', ""},
    {"cmdClose", 'C', ""},
};

constexpr QSize kUsualSize{78, 50};  // in lines of text
constexpr QSize kLeastTable{30, 10};
constexpr int kVisibleChoices = 16;

constexpr char kLongestKind[] = "Coincidences of 1sts of months";
constexpr char kLongestChoice[] = "Umbral lunar eclipses";
constexpr char kLongestDate[] = "-5011-13-3-3 OLW 08:08";

// As high as with a text, so that its first one moves nothing.
void KeepHeightWithoutText(QLabel& label) {
  QLabel with_text("X");
  with_text.setFont(label.font());
  label.setFixedHeight(with_text.sizeHint().height());
}

}  // namespace

ListsView::ListsView(frmLists& form, HandlerGate& gate) : form_(form), binder_(gate, kWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakeWhat());
  rows->addWidget(MakeColumns());
  rows->addWidget(MakeTitle());
  rows->addWidget(MakeTable(), 1);
  rows->addWidget(MakeProgress());
  rows->addWidget(MakeButtons());
  binder_.Bind(form_.tmrList, timer_);
  FitToScreen(*this);
  resize(kUsualSize * fontMetrics().height());
  binder_.Bind(form_, *this);
}

QWidget* ListsView::MakeWhat() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraWhat, *panel);
  QHBoxLayout& row = panel->MakeLine();
  AddChoice(form_.cboKind, kLongestKind, row);
  AddChoice(form_.cboChoice, kLongestChoice, row);
  AddDate(form_.lblFrom, form_.txbFrom, row);
  AddDate(form_.lblTo, form_.txbTo, row);
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdList, panel, ButtonRole::kAccent));
  QPushButton* stop = MakeButton(binder_, form_.cmdStopList, panel);
  KeepRoomWhenHidden(*stop);
  row.addWidget(stop);
  return panel;
}

void ListsView::AddChoice(ComboBox& list, const QString& longest, QHBoxLayout& row) {
  auto* choices = new DropList(row.parentWidget());
  ReserveWidth(*choices, longest);
  KeepRoomWhenHidden(*choices);
  choices->setMaxVisibleItems(kVisibleChoices);
  binder_.Bind(list, *choices);
  row.addWidget(choices);
}

void ListsView::AddDate(Label& caption, TextBox& box, QHBoxLayout& row) {
  auto* text = new QLabel(row.parentWidget());
  auto* edit = new QLineEdit(row.parentWidget());
  text->setBuddy(edit);
  binder_.Bind(caption, *text);
  SetTextColor(*text, Look::kCaption);
  const QFontMetrics font = edit->fontMetrics();
  edit->setFixedWidth(font.horizontalAdvance(kLongestDate) + 2 * font.height());
  binder_.Bind(box, *edit);
  row.addWidget(text);
  row.addWidget(edit);
}

QWidget* ListsView::MakeColumns() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraColumns, *panel);
  QHBoxLayout& row = panel->MakeLine();
  row.setSpacing(2 * Spacing(*this));
  for (CheckBox& column : form_.chkColumn) {
    auto* check = new QCheckBox(panel);
    binder_.Bind(column, *check);
    row.addWidget(check);
  }
  row.addStretch();
  row.addStrut(QCheckBox("X").sizeHint().height());  // where all are hidden
  return panel;
}

QWidget* ListsView::MakeTitle() {
  auto* title = new QLabel(this);
  title->setFont(TitleFont(font()));
  KeepHeightWithoutText(*title);
  KeepRoomWhenHidden(*title);
  binder_.Bind(form_.lblListTitle, *title);
  return title;
}

QWidget* ListsView::MakeTable() {
  auto* table = new TableView(this);
  table->setMinimumSize(kLeastTable * fontMetrics().height());
  binder_.Bind(form_.tblList, *table);
  return table;
}

QWidget* ListsView::MakeProgress() {
  auto* progress = new QLabel(this);
  KeepHeightWithoutText(*progress);
  KeepRoomWhenHidden(*progress);
  binder_.Bind(form_.lblProgress, *progress);
  SetTextColor(*progress, Look::kCaption);
  return progress;
}

QWidget* ListsView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  row.addWidget(MakeButton(binder_, form_.cmdTakeRow, area));
  row.addStretch();
  for (Button* button : {&form_.cmdSaveCSV, &form_.cmdSaveCalendar, &form_.cmdSaveListPDF,
                         &form_.cmdPrintList, &form_.cmdClose}) {
    row.addWidget(MakeButton(binder_, *button, area));
  }
  return area;
}

}  // namespace tarnwick
