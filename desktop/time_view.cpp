#include "desktop/time_view.h"

#include <QHBoxLayout>
#include <QLabel>

#include "desktop/bound_widgets.h"
#include "desktop/drop_list.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"optGreenwich", 'G', ""},
    {"optLocal", 'o', ""},
    {"lblTimeZone", 'z', ""},
    {"cboTimeZone", 0, "Time zone"},
};

constexpr char kLongestZone[] = "GMT + 00:00";
constexpr int kVisibleZones = 17;

}  // namespace

TimeView::TimeView(TimeSection& section, Binder& binder, QWidget* parent)
    : Area(Spacing(*parent), parent), section_(section), binder_(binder) {
  binder_.AddWordings(kWordings);
  AddTimeSystem();
  Row().addSpacing(2 * Spacing(*this));
  AddTimeZone();
}

void TimeView::AddTimeSystem() {
  auto* caption = new QLabel(this);
  binder_.Bind(section_.lblTimeSystem, *caption);
  SetTextColor(*caption, Look::kCaption);
  Row().addWidget(caption);
  auto* system = new Area(2 * Spacing(*this), this);
  AddOption(binder_, section_.optGreenwich, *system);
  AddOption(binder_, section_.optLocal, *system);
  Row().addWidget(system);
}

void TimeView::AddTimeZone() {
  auto* zone = new DropList(this);
  auto* caption = new QLabel(this);
  caption->setBuddy(zone);
  binder_.Bind(section_.lblTimeZone, *caption);
  SetTextColor(*caption, Look::kCaption);
  Row().addWidget(caption);

  ReserveWidth(*zone, kLongestZone);
  zone->setMaxVisibleItems(kVisibleZones);
  binder_.Bind(section_.cboTimeZone, *zone);
  Row().addWidget(zone);
}

}  // namespace tarnwick
