#include "desktop/sky_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/drawing_view.h"
#include "desktop/drop_list.h"
#include "desktop/look.h"
#include "desktop/panel.h"
#include "desktop/screen_fit.h"
#include "sky/map_layer.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"cboPlace", 0, "Place"},
    {"txbLatitude", 0, "Latitude"},
    {"txbLongitude", 0, "Longitude"},
    {"lblPlaceNote", 0, "What the place is known for"},
    {"lblMomentTime(0)", 0, "Time"},
    {"lblMomentTime(1)", 0, "Local mean time"},
    {"lblSun", 0, "Sun"},
    {"lblMoon", 0, "Moon"},
    {"lblDayHeading", 0, "Heading"},
    {"lblDayEvent", 0, "Event of the day"},
    {"lblDayLocalTime", 0, "Local mean time"},
    {"lblDayMainTime", 0, "Time as in the main window"},
    {"lblFirstCrescent", 0, "First crescent"},
    {"lblLastCrescent", 0, "Last crescent"},
    {"lblEclipse", 0, "Eclipse"},
    {"lblEclipseSeen", 0, "Seen here"},
    {"lblContactHeading", 0, "Heading"},
    {"lblContact", 0, "Phase of the eclipse"},
    {"lblContactLocalTime", 0, "Local mean time"},
    {"lblContactMainTime", 0, "Time as in the main window"},
    {"lblContactAltitude", 0, "Altitude"},
    {"lblCertainty", 0, "How sure this is"},
    {"fraMap", 0, "Map"},
    {"lblMapTitle", 0, "Title of the map"},
    {"drwMap", 0, "Map"},
    {"lblGreatest", 0, "Greatest eclipse"},
    {"cboSeenEclipse", 0, "Eclipses to look for"},
    {"cmdPreviousHere", 'P', ""},
    {"cmdNextHere", 'N', ""},
    {.control = "lblSearching", .spoken = "", .announced = true},
    {"cmdSaveMap", 'S', ""},
    {"cmdClose", 'C', ""},
};

constexpr Qt::Alignment kTimes = Qt::AlignRight | Qt::AlignVCenter;

constexpr double kMapAspect = 2;
constexpr double kNoteSize = 0.9;
constexpr QSize kUsualSize{84, 54};  // in lines of text
constexpr int kLeastVerdict = 22;    // its width in lines of text
constexpr int kMostVerdict = 34;
constexpr int kVerdictLines = 10;
constexpr int kVisiblePlaces = 24;
constexpr int kCrescentLines = 4;

constexpr char kLongestPlace[] = "Cambridge, Massachusetts";
constexpr char kLongestCoordinate[] = "-88.88888";
constexpr char kLongestSought[] = "umbral lunar eclipse";
constexpr char kLongestEvent[] = "Moon highest";
constexpr char kLongestHeading[] = "local mean time";
constexpr char kLongestTime[] = "08:08 +- 88 min";
constexpr char kLongestContact[] = "penumbral phase begins";
constexpr char kLongestAltitude[] = "on the horizon, azimuth 888.8\u00b0";

// How the layers of the map look, in their order. What lies close together differs in more than its
// colour.
std::vector<LayerLook> MapLooks() {
  std::vector<LayerLook> looks(static_cast<std::size_t>(MapLayer::kCount));
  const auto at = [&](MapLayer layer) -> LayerLook& {
    return looks[static_cast<std::size_t>(layer)];
  };
  at(MapLayer::kNight) = {.area = Look::kMapNight};
  at(MapLayer::kMoonDown) = {.area = Look::kMapShade, .line = Look::kMapEdge, .width = 0.8};
  at(MapLayer::kGraticule) = {.line = Look::kGraticule, .width = 0.8};
  at(MapLayer::kCoast) = {.line = Look::kCoast, .width = 0.9};
  at(MapLayer::kMagnitude) = {.line = Look::kMagnitude, .width = 1.2, .ink = Look::kMagnitude};
  at(MapLayer::kSomeSeen) = {.line = Look::kSeen, .width = 1.6, .dashes = Qt::DashLine};
  at(MapLayer::kWholeSeen) = {.line = Look::kSeen, .width = 2};
  at(MapLayer::kPathIfLess) = {.line = Look::kPathIfLess, .width = 1.2, .dashes = Qt::DashLine};
  at(MapLayer::kPathIfMore) = {.line = Look::kPathIfMore, .width = 1.2, .dashes = Qt::DotLine};
  at(MapLayer::kLimit) = {.line = Look::kPath, .width = 1.2};
  at(MapLayer::kCentralLine) = {.line = Look::kPath, .width = 2.4};
  at(MapLayer::kGreatest) = {.mark = MarkShape::kStar, .ink = Look::kPath};
  at(MapLayer::kPlace) = {.mark = MarkShape::kRing, .ink = Look::kPlace};
  return looks;
}

// A text that stays where it is when others are hidden.
QLabel* MakeText(QWidget* parent) {
  auto* text = new QLabel(parent);
  KeepRoomWhenHidden(*text);
  return text;
}

// A text that may need several lines; `lines` of them have always room.
QLabel* MakeLongText(QWidget* parent, const QFont& font, int lines) {
  QLabel* text = MakeText(parent);
  text->setFont(font);
  text->setText(QString("X\n").repeated(lines).trimmed());
  text->setMinimumHeight(text->sizeHint().height());
  text->clear();
  text->setWordWrap(true);
  text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return text;
}

// Room for a text of a label, which takes a little more than its letters.
void Reserve(QGridLayout& grid, int column, const char* longest) {
  const QFontMetrics font = grid.parentWidget()->fontMetrics();
  grid.setColumnMinimumWidth(column, font.horizontalAdvance(longest) + font.height() / 4);
}

QGridLayout* MakeGrid(const QWidget& window) {
  auto* grid = new QGridLayout;
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(2 * Spacing(window));
  grid->setVerticalSpacing(Spacing(window) / 4);
  return grid;
}

}  // namespace

SkyView::SkyView(frmSky& form, HandlerGate& gate) : form_(form), binder_(gate, kWordings) {
  QVBoxLayout* rows = MakeSections(*this);
  rows->addWidget(MakePlace());
  auto* middle = new QHBoxLayout;
  middle->setSpacing(Spacing(*this));
  auto* facts = new QVBoxLayout;
  facts->setSpacing(Spacing(*this));
  facts->addWidget(MakeMoment());
  facts->addWidget(MakeDay());
  facts->addWidget(MakeLunation(), 1);
  middle->addLayout(facts);
  middle->addWidget(MakeMap(), 1);
  rows->addLayout(middle, 1);
  rows->addWidget(MakeEclipse());
  rows->addWidget(MakeButtons());
  binder_.Bind(form_.tmrMap, map_timer_);
  FitToScreen(*this);
  resize(kUsualSize * fontMetrics().height());
  binder_.Bind(form_, *this);
}

QWidget* SkyView::MakePlace() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.place.fraPlace, *panel);
  QHBoxLayout& row = panel->MakeLine();
  auto* places = new DropList(panel);
  ReserveWidth(*places, kLongestPlace);
  places->setMaxVisibleItems(kVisiblePlaces);
  binder_.Bind(form_.place.cboPlace, *places);
  row.addWidget(places);
  AddCoordinate("La&titude", form_.place.txbLatitude, row);
  AddCoordinate("Lon&gitude", form_.place.txbLongitude, row);
  row.addSpacing(Spacing(*this));
  QLabel* note = MakeLongText(panel, Scaled(font(), kNoteSize), 2);
  note->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  binder_.Bind(form_.place.lblPlaceNote, *note);
  SetTextColor(*note, Look::kCaption);
  row.addWidget(note, 1);
  return panel;
}

void SkyView::AddCoordinate(const QString& caption, TextBox& box, QHBoxLayout& row) {
  QWidget* panel = row.parentWidget();
  row.addSpacing(Spacing(*this));
  auto* text = new QLabel(caption, panel);
  SetTextColor(*text, Look::kCaption);
  row.addWidget(text);
  auto* edit = new QLineEdit(panel);
  const QFontMetrics font = edit->fontMetrics();
  edit->setFixedWidth(font.horizontalAdvance(kLongestCoordinate) + 2 * font.height());
  binder_.Bind(box, *edit);
  text->setBuddy(edit);
  row.addWidget(edit);
}

QLabel* SkyView::AddText(Label& label, const QColor& color, QGridLayout& grid, int row,
                         int column) {
  QLabel* text = MakeText(grid.parentWidget());
  binder_.Bind(label, *text);
  SetTextColor(*text, color);
  grid.addWidget(text, row, column);
  return text;
}

void SkyView::AddPair(ControlArray<Label, 2>& pair, int lines, QGridLayout& grid) {
  const int row = grid.rowCount();
  AddText(pair[0], Look::kCaption, grid, row, 0)->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  QLabel* value = MakeLongText(grid.parentWidget(), font(), lines);
  binder_.Bind(pair[1], *value);
  SetTextColor(*value, Look::kText);
  grid.addWidget(value, row, 1);
  QSizePolicy policy = value->sizePolicy();
  policy.setHorizontalPolicy(QSizePolicy::Ignored);  // the table below says how wide they all are
  value->setSizePolicy(policy);
  grid.setColumnStretch(1, 1);
}

// What there is to say of the Sun, Moon and time.
QWidget* SkyView::MakeMoment() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraMoment, *panel);
  QGridLayout* grid = MakeGrid(*this);
  grid->setVerticalSpacing(Spacing(*this) / 2);
  panel->Content().addLayout(grid);
  AddPair(form_.lblMomentTime, 2, *grid);
  AddPair(form_.lblSun, 1, *grid);
  AddPair(form_.lblMoon, 1, *grid);
  return panel;
}

QWidget* SkyView::MakeDay() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraDay, *panel);
  QGridLayout* grid = MakeGrid(*this);
  grid->setVerticalSpacing(Spacing(*this) / 2);
  panel->Content().addLayout(grid);
  grid->setColumnStretch(0, 1);
  Reserve(*grid, 0, kLongestEvent);
  for (int i = 0; i < 2; ++i) {
    Reserve(*grid, i + 1, kLongestHeading);
    AddText(form_.lblDayHeading[static_cast<std::size_t>(i)], Look::kCaption, *grid, 0, i + 1)
        ->setAlignment(kTimes);
  }
  for (std::size_t i = 0; i < kDayRows; ++i) {
    const int row = static_cast<int>(i) + 1;
    AddText(form_.lblDayEvent[i], Look::kCaption, *grid, row, 0);
    AddText(form_.lblDayLocalTime[i], Look::kText, *grid, row, 1)->setAlignment(kTimes);
    AddText(form_.lblDayMainTime[i], Look::kText, *grid, row, 2)->setAlignment(kTimes);
  }
  return panel;
}

QWidget* SkyView::MakeLunation() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraLunation, *panel);
  QGridLayout* grid = MakeGrid(*this);
  panel->Content().addLayout(grid);
  grid->setVerticalSpacing(Spacing(*this));
  for (auto* crescent : {&form_.lblFirstCrescent, &form_.lblLastCrescent}) {
    AddPair(*crescent, kCrescentLines, *grid);
  }
  panel->Content().addStretch();
  return panel;
}

QWidget* SkyView::MakeEclipse() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraEclipse, *panel);
  auto* row = new QHBoxLayout;
  row->setSpacing(4 * Spacing(*this));
  panel->Content().addLayout(row);

  row->addWidget(MakeVerdict(panel), 1000);  // as wide as it may be, then the rest stays empty
  row->addWidget(MakeContacts(panel));
  row->addStretch(1);
  return panel;
}

// Wide enough that it needs little more height than the contacts, and with room for that.
QWidget* SkyView::MakeVerdict(QWidget* panel) {
  auto* verdict = new QWidget(panel);
  verdict->setMinimumWidth(kLeastVerdict * fontMetrics().height());
  verdict->setMaximumWidth(kMostVerdict * fontMetrics().height());
  verdict->setMinimumHeight(kVerdictLines * fontMetrics().lineSpacing() + 2 * Spacing(*this));
  auto* rows = new QVBoxLayout(verdict);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(Spacing(*this));
  for (Label* label : {&form_.lblEclipse, &form_.lblEclipseSeen, &form_.lblCertainty}) {
    QLabel* text = MakeLongText(verdict, font(), 1);
    binder_.Bind(*label, *text);
    rows->addWidget(text);
  }
  rows->addStretch();
  return verdict;
}

QWidget* SkyView::MakeContacts(QWidget* panel) {
  auto* table = new QWidget(panel);
  QGridLayout* grid = MakeGrid(*this);
  table->setLayout(grid);
  int column = 0;
  for (const char* longest : {kLongestContact, kLongestTime, kLongestTime, kLongestAltitude}) {
    Reserve(*grid, column++, longest);
  }
  for (int i = 0; i < 2; ++i) {
    AddText(form_.lblContactHeading[static_cast<std::size_t>(i)], Look::kCaption, *grid, 0, i + 1)
        ->setAlignment(kTimes);
  }
  for (std::size_t i = 0; i < kContactRows; ++i) {
    const int row = static_cast<int>(i) + 1;
    AddText(form_.lblContact[i], Look::kCaption, *grid, row, 0);
    AddText(form_.lblContactLocalTime[i], Look::kText, *grid, row, 1)->setAlignment(kTimes);
    AddText(form_.lblContactMainTime[i], Look::kText, *grid, row, 2)->setAlignment(kTimes);
    AddText(form_.lblContactAltitude[i], Look::kText, *grid, row, 3);
  }
  grid->setRowStretch(grid->rowCount(), 1);
  return table;
}

QWidget* SkyView::MakeMap() {
  auto* panel = new Panel(Panel::Ground::kLight, this);
  binder_.Bind(form_.fraMap, static_cast<QWidget&>(*panel));  // its title is a label of its own
  QLabel* title = MakeLongText(panel, TitleFont(font()), 1);
  binder_.Bind(form_.lblMapTitle, *title);
  panel->Content().addWidget(title);
  auto* map = new DrawingView(kMapAspect, MapLooks(), panel);
  binder_.Bind(form_.drwMap, *map);
  panel->Content().addWidget(map, 1);
  QLabel* greatest = MakeLongText(panel, font(), 2);
  binder_.Bind(form_.lblGreatest, *greatest);
  panel->Content().addWidget(greatest);
  return panel;
}

QWidget* SkyView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  auto* sought = new DropList(area);
  ReserveWidth(*sought, kLongestSought);
  binder_.Bind(form_.cboSeenEclipse, *sought);
  row.addWidget(sought);
  row.addWidget(MakeButton(binder_, form_.cmdPreviousHere, area));
  row.addWidget(MakeButton(binder_, form_.cmdNextHere, area));
  QLabel* searching = MakeText(area);
  binder_.Bind(form_.lblSearching, *searching);
  row.addWidget(searching);
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdSaveMap, area));
  row.addWidget(MakeButton(binder_, form_.cmdClose, area));
  return area;
}

}  // namespace tarnwick
