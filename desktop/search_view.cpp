#include "desktop/search_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/drop_list.h"
#include "desktop/look.h"
#include "desktop/mirror.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"cboTarget", 0, "Target of the search"},
    {"optNext", 'x', ""},
    {"optPrevious", 'i', ""},
    {"cmdSearch", 'S', ""},
    {.control = "lblSearching", .spoken = "", .announced = true},
    {"lblActualEclipseData", 0, "Eclipse"},
};

constexpr char kLongestTarget[] = "Coincidence of 1sts of month";
constexpr int kVisibleTargets = 16;
constexpr char kLongestText[] =
    "Non-central annular-total solar eclipse\n"
    "Lunation number = -64316\n"
    "Saros number = 100\n"
    "Penumbral phase starts 00:00 and lasts 6h 00m.\n"
    "Umbral phase starts 00:00 and lasts 4h 00m.\n"
    "Total phase starts 00:00 and lasts 2h 00m.";

}  // namespace

SearchView::SearchView(SearchSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent), section_(section), binder_(binder) {
  binder_.AddWordings(kWordings);
  SetTitle(ToQt(section_.fraSearch.Caption()));
  Content().addWidget(MakeFrame());

  auto* searching = new QLabel(this);
  KeepRoomWhenHidden(*searching);
  binder_.Bind(section_.lblSearching, *searching);
  Content().addWidget(searching);
  Content().addStretch();
}

QWidget* SearchView::MakeFrame() {
  const int space = Spacing(*this);
  auto* frame = new QWidget(this);
  binder_.Bind(section_.fraSearch, *frame);
  auto* rows = new QVBoxLayout(frame);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(space);

  auto* targets = new DropList(frame);
  ReserveWidth(*targets, kLongestTarget);
  targets->setMaxVisibleItems(kVisibleTargets);
  binder_.Bind(section_.cboTarget, *targets);
  rows->addWidget(targets);

  auto* command = new QHBoxLayout;
  command->setSpacing(space);
  auto* direction = new Area(2 * space, frame);
  AddOption(binder_, section_.optNext, *direction);
  AddOption(binder_, section_.optPrevious, *direction);
  command->addWidget(direction);
  command->addStretch();
  command->addWidget(MakeButton(binder_, section_.cmdSearch, frame, ButtonRole::kAccent));
  rows->addLayout(command);
  return frame;
}

EclipseView::EclipseView(SearchSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kLight, parent) {
  SetTitle("Eclipse");
  auto* text = new QLabel(this);
  text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  auto* place = new QGridLayout;
  place->addWidget(text, 0, 0);
  // Room for any eclipse, so that nothing moves when one is found.
  text->setText(kLongestText);
  text->setMinimumSize(text->sizeHint());
  binder.Bind(section.lblActualEclipseData, *text);
  auto* empty = new QLabel("What a search for an eclipse finds is described here.", this);
  empty->setWordWrap(true);
  SetTextColor(*empty, Look::kLightCaption);
  place->addWidget(empty, 0, 0, Qt::AlignTop);
  Label& label = section.lblActualEclipseData;
  Mirror(label, Property::kCaption, *empty,
         [&label, empty] { empty->setVisible(label.Caption().empty()); });
  Content().addLayout(place, 1);
}

}  // namespace tarnwick
