#include "sky/sky_window.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

#include "controls/choice.h"
#include "controls/keys.h"
#include "controls/save_path.h"
#include "engines/phases.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/operation.h"
#include "sky/coastlines.h"
#include "sky/eclipse_texts.h"

namespace tarnwick {
namespace {

constexpr char kCaption[] = "Sky at a place";

std::string EclipseCaptionOf(const std::optional<EclipseRecord>& record,
                             const PlaceReading& reading) {
  return record ? EclipseTitle(*record, reading) : "No eclipse in this lunation";
}

}  // namespace

frmSky::frmSky(Desktop& desktop, Screen& screen, Session& session, EntrySection& entry,
               frmNotice& notice)
    : ClosableForm(screen, "frmSky", kCaption),
      place(*this, desktop),
      desktop_(desktop),
      session_(session),
      entry_(entry),
      notice_(notice) {
  lblMomentTime[0].SetCaption("Time");
  lblSun[0].SetCaption("Sun");
  lblMoon[0].SetCaption("Moon");
  lblDayHeading[0].SetCaption(kLocalMeanTime);
  lblContactHeading[0].SetCaption(kLocalMeanTime);
  lblFirstCrescent[0].SetCaption("First crescent");
  lblLastCrescent[0].SetCaption("Last crescent");
  for (const std::string_view sought : kSoughtTexts) {
    cboSeenEclipse.AddItem(std::string(sought));
  }
  cboSeenEclipse.SetListIndex(0);
  cboSeenEclipse.SetToolTipText("Which eclipses the two buttons look for, among those seen here");
  cmdPreviousHere.SetToolTipText("Moves the moment to the last one before it that is seen here");
  cmdNextHere.SetToolTipText("Moves the moment to the first one after it that is seen here");
  lblSearching.SetVisible(false);
  tmrMap.SetInterval(1);
  place.on_place = [this] { Refresh(); };
  drwMap.on_point = [this](DrawingPoint point) { Map_Click(point); };
  cmdPreviousHere.on_click = [this] { FindHere(false); };
  cmdNextHere.on_click = [this] { FindHere(true); };
  cmdSaveMap.on_click = [this] { cmdSaveMap_Click(); };
  tmrMap.on_timer = [this] { tmrMap_Timer(); };
  AddShortcut("Page_Up", cmdPreviousHere);
  AddShortcut("Page_Down", cmdNextHere);
}

void frmSky::Form_Load() {
  place.Load();
  if (map_) return;
  const Coastlines coastlines = ReadCoastlines(desktop_.ProgramFolder() / "assets/coastlines.csv");
  if (!coastlines.error.empty()) {
    desktop_.ShowMessage({coastlines.error, kCaption, MessageIcon::kExclamation});
  }
  map_.emplace(coastlines.lines);
}

void frmSky::Form_Activate() { cmdNextHere.SetFocus(); }

// Escape ends a search first.
void frmSky::Form_KeyPress(int& key) {
  if (key == kEscapeKey && blnSearching) {
    GiveUp();
  } else {
    ClosableForm::Form_KeyPress(key);
  }
}

PlaceReading frmSky::Reading() const {
  return {place.Point(), session_.CurrentCalendar(), session_.ReadingOffset()};
}

// The one that is described, else the nearest of the lunation, from the new moon that begins it to
// the one that ends it.
std::optional<EclipseRecord> frmSky::EclipseOnDisplay() const {
  if (const auto& described = session_.DescribedEclipse()) {
    return FindPhaseEvent(described->lunation, described->phase).eclipse;
  }
  const UniversalTime moment = session_.Moment();
  std::optional<EclipseRecord> nearest;
  const std::int32_t lunation = LunationOf(moment);
  for (const PhaseNumber& at : {PhaseNumber{lunation, kNewMoon}, PhaseNumber{lunation, kFullMoon},
                                PhaseNumber{lunation + 1, kNewMoon}}) {
    const EclipseRecord record = FindPhaseEvent(at.lunation, at.phase).eclipse;
    const auto distance = [moment](const EclipseRecord& eclipse) {
      return std::abs(GreatestEclipse(eclipse) - moment);
    };
    if (record.type == kNotEclipsed) continue;
    if (!nearest || distance(record) < distance(*nearest)) nearest = record;
  }
  return nearest;
}

void frmSky::Refresh() {
  const Shown now{session_.Moment(), Reading(), session_.DescribedEclipse()};
  if (!Visible() || now == shown_) return;
  shown_ = now;
  const PlaceReading& reading = now.reading;
  const std::optional<EclipseRecord> eclipse = EclipseOnDisplay();
  ShowMoment(reading);
  ShowDay(reading);
  ShowLunation(reading);
  ShowEclipse(eclipse, reading);
  ShowMap(eclipse, reading);
}

void frmSky::UpdateAvailability() {
  SetEnabled({&cmdPreviousHere, &cmdNextHere, &cboSeenEclipse}, session_.IsIdle());
  SetEnabled({&place.fraPlace, &drwMap}, !session_.IsSearching());
}

void frmSky::ShowMoment(const PlaceReading& reading) {
  const MomentTexts texts = MomentTextsOf(session_.Moment(), reading);
  lblMomentTime[1].SetCaption(texts.time);
  lblSun[1].SetCaption(texts.sun);
  lblMoon[1].SetCaption(texts.moon);
}

void frmSky::ShowDay(const PlaceReading& reading) {
  fraDay.SetCaption("This day, " + LocalDate(session_.Moment(), reading));
  lblDayHeading[1].SetCaption(MainTimeName(reading));
  const auto lines = DayLinesOf(session_.Moment(), reading);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    lblDayEvent[i].SetCaption(lines[i].what);
    lblDayLocalTime[i].SetCaption(lines[i].times.local);
    lblDayMainTime[i].SetCaption(lines[i].times.main);
    lblDayLocalTime[i].SetToolTipText(lines[i].times.dates);
    lblDayMainTime[i].SetToolTipText(lines[i].times.dates);
  }
}

void frmSky::ShowLunation(const PlaceReading& reading) {
  const std::int32_t lunation = LunationOf(session_.Moment());
  const auto show = [](ControlArray<Label, 2>& label, const CrescentText& text) {
    label[1].SetCaption(text.named);
    label[0].SetToolTipText(text.details);
    label[1].SetToolTipText(text.details);
  };
  fraLunation.SetCaption("This lunation, " + std::to_string(lunation));
  show(lblFirstCrescent, FirstCrescentText(lunation, reading));
  show(lblLastCrescent, LastCrescentText(lunation, reading));
}

void frmSky::ShowEclipse(const std::optional<EclipseRecord>& record, const PlaceReading& reading) {
  lblEclipse.SetCaption(EclipseCaptionOf(record, reading));
  const EclipseTexts texts = record ? EclipseTextsOf(*record, reading) : EclipseTexts();
  lblEclipseSeen.SetCaption(texts.seen);
  lblCertainty.SetCaption(texts.certainty);
  ShowContacts(texts.contacts);
  lblContactHeading[1].SetCaption(MainTimeName(reading));
}

void frmSky::ShowContacts(const std::vector<TimedLine>& contacts) {
  for (Label& heading : lblContactHeading) heading.SetVisible(!contacts.empty());
  for (std::size_t i = 0; i < kContactRows; ++i) {
    const bool shown = i < contacts.size();
    const TimedLine line = shown ? contacts[i] : TimedLine();
    lblContact[i].SetCaption(line.what);
    lblContactLocalTime[i].SetCaption(line.times.local);
    lblContactMainTime[i].SetCaption(line.times.main);
    lblContactAltitude[i].SetCaption(line.detail);
    for (Label* label : {&lblContact[i], &lblContactLocalTime[i], &lblContactMainTime[i],
                         &lblContactAltitude[i]}) {
      label->SetVisible(shown);
      label->SetEnabled(line.seen);
      label->SetToolTipText(line.times.dates);
    }
  }
}

void frmSky::ShowMap(const std::optional<EclipseRecord>& record, const PlaceReading& reading) {
  lblGreatest.SetCaption(record ? GreatestText(*record, reading) : "");
  lblMapTitle.SetCaption(record ? EclipseTitle(*record, reading)
                                : "Night on " + MainDateAndTime(session_.Moment(), reading));
  drwMap.SetDescription("Map of the Earth: " + lblMapTitle.Caption() + ". " +
                        lblGreatest.Caption());
  map_->SetPlace(place.Point(), place.Name());
  if (record) {
    map_->ShowEclipse(*record);
  } else {
    map_->ShowNight(session_.Moment());
  }
  tmrMap.SetEnabled(!map_->Finished());
  if (map_->Finished()) drwMap.SetContent(map_->Content());
}

// What was shown stays until the new map is whole.
void frmSky::tmrMap_Timer() {
  if (map_->Step()) return;
  tmrMap.SetEnabled(false);
  drwMap.SetContent(map_->Content());
}

void frmSky::FinishMap() {
  while (!map_->Finished()) tmrMap_Timer();
}

// As exactly as anybody can point.
void frmSky::Map_Click(DrawingPoint point) {
  constexpr double kStepsPerDegree = 10;
  const auto rounded = [](double degrees) {
    return std::round(degrees * kStepsPerDegree) / kStepsPerDegree;
  };
  const GeoPoint at = PlaceOnMap(point);
  place.Choose({rounded(at.latitude), rounded(at.longitude)});
}

void frmSky::cmdSaveMap_Click() {
  const std::string title = cmdSaveMap.Caption();
  const std::string& map = lblMapTitle.Caption();
  const std::string name = FileNameOf(map.substr(0, map.find(" ("))) + ".png";
  const auto file = AskWhereToSave(desktop_, title, name);
  if (!file) return;
  FinishMap();
  notice_.TellOfSaving(desktop_, *this, "the map", title, desktop_.SaveImage(fraMap, *file));
}

void frmSky::FindHere(bool forward) {
  CarryOut(session_, desktop_, kCaption, [this, forward] {
    session_.SetClockRunning(false);
    Control* const focus = Focus();
    const std::optional<SeenEclipse> found = Search(forward);
    if (focus != nullptr) focus->SetFocus();  // the search has disabled it meanwhile
    if (session_.IsEnding() || !found) return;
    const std::int32_t type = FindPhaseEvent(found->at.lunation, found->at.phase).eclipse.type;
    TakeFound(session_, desktop_, entry_, {found->instant, type, found->at},
              std::string("Search for ") + (forward ? "next " : "previous ") +
                  cboSeenEclipse.Text() + " seen at " + place.Name() + ".");
  });
}

std::optional<SeenEclipse> frmSky::Search(bool forward) {
  const ActivityScope searching(session_, Activity::kSearching);
  blnSearching = true;
  lblSearching.SetVisible(true);
  const auto found = FindSeenEclipse(static_cast<SoughtEclipse>(cboSeenEclipse.ListIndex()),
                                     ObserverAt(place.Point()), session_.Moment(), forward, [this] {
                                       desktop_.Yield(YieldMode::kPoll);
                                       return blnSearching && !session_.IsEnding();
                                     });
  lblSearching.SetVisible(false);
  const bool given_up = !blnSearching;
  blnSearching = false;
  if (!found && !given_up && !session_.IsEnding()) {
    notice_.ShowOver(*this, "There is none between the years -3200 and 6000.");
  }
  return found;
}

}  // namespace tarnwick
