#include "desktop/moon_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/picture_view.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"picMoon", 0, "The Moon at the moment"},
    {"lblPhaseOfMoon(1)", 0, "Phase of the Moon"},
    {"lblAgeOfMoon(1)", 0, "Age of the Moon"},
    {"lblDeltaT(1)", 0, "Delta T"},
};

// As high as the dates beside it, with the texts.
constexpr int kPictureLines = 9;
constexpr char kLongestAge[] = "[-64316] 29 days, 23 hrs, 59 mins (100.0%)";

}  // namespace

MoonView::MoonView(MoonSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kLight, parent), binder_(binder) {
  binder_.AddWordings(kWordings);
  SetTitle("Moon");
  auto* picture = new PictureView(kPictureLines, this);
  binder_.Bind(section.picMoon, *picture);
  Content().addWidget(picture, 1);

  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(2 * Spacing(*this));
  rows->setVerticalSpacing(Spacing(*this) / 2);
  rows->setColumnStretch(1, 1);
  rows->setColumnMinimumWidth(1, fontMetrics().horizontalAdvance(kLongestAge) + Spacing(*this));
  AddRow(section.lblPhaseOfMoon, *rows);
  AddRow(section.lblAgeOfMoon, *rows);
  AddRow(section.lblDeltaT, *rows);
  Content().addLayout(rows);
  Content().addStretch();
}

void MoonView::AddRow(ValueLabel& label, QGridLayout& rows) {
  const int row = rows.rowCount();
  auto* caption = new QLabel(this);
  binder_.Bind(label[0], *caption);
  SetTextColor(*caption, Look::kLightCaption);
  rows.addWidget(caption, row, 0);

  auto* value = new QLabel(this);
  binder_.Bind(label[1], *value);
  rows.addWidget(value, row, 1);
}

}  // namespace tarnwick
