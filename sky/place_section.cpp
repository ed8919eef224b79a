#include "sky/place_section.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "controls/keys.h"
#include "controls/save_path.h"
#include "sky/chosen_place.h"
#include "sky/coordinates.h"

namespace tarnwick {
namespace {

constexpr char kTitle[] = "Place";
constexpr char kNoNote[] = "A place of your own";

bool LiesAt(const Place& place, const GeoPoint& point) {
  return place.latitude == point.latitude && place.longitude == point.longitude;
}

}  // namespace

PlaceSection::PlaceSection(Form& form, Desktop& desktop)
    : fraPlace(form, "fraPlace", kTitle), desktop_(desktop) {
  cboPlace.SetToolTipText("The place whose sky is shown");
  txbLatitude.SetToolTipText("North or south, -90 to 90: 32.54 N, 32 32 24 N, -33.87; then Enter");
  txbLongitude.SetToolTipText(
      "East or west of Greenwich, -180 to 180: 44.42 E, 44 25 12 E, -0.13; then Enter");
  cboPlace.on_click = [this] { cboPlace_Click(); };
  txbLatitude.on_key_press =
      txbLongitude.on_key_press = [this](int& key) { Coordinates_KeyPress(key); };
}

void PlaceSection::Load() {
  if (!txbLatitude.Text().empty()) return;
  PlaceList list = ReadPlaces(desktop_.ProgramFolder() / "assets" / "places.csv");
  if (!list.fault.empty()) Tell(list.fault);
  places_ = std::move(list.places);
  for (const Place& place : places_) cboPlace.AddItem(place.name);
  const auto state = desktop_.StateFile();
  const KeptPlace kept = state ? ReadKeptPlace(PlaceFileBeside(*state)) : KeptPlace();
  if (!kept.fault.empty()) Tell(kept.fault);
  place_ = kept.place;
  Show();
}

std::string PlaceSection::Name() const {
  return cboPlace.ListIndex() < 0 ? CoordinatesText(place_.latitude, place_.longitude)
                                  : cboPlace.Text();
}

void PlaceSection::Choose(const GeoPoint& place) {
  place_ = place;
  Show();
  Keep();
  on_place();
}

void PlaceSection::Show() {
  const auto listed = [this](const Place& place) { return LiesAt(place, place_); };
  const int selected = cboPlace.ListIndex();
  if (selected < 0 || !listed(places_[static_cast<std::size_t>(selected)])) {
    const auto found = std::ranges::find_if(places_, listed);
    cboPlace.SetListIndex(found == places_.end() ? -1 : static_cast<int>(found - places_.begin()));
  }
  const int index = cboPlace.ListIndex();
  lblPlaceNote.SetCaption(index < 0 ? kNoNote : places_[static_cast<std::size_t>(index)].note);
  txbLatitude.SetText(LatitudeText(place_.latitude));
  txbLongitude.SetText(LongitudeText(place_.longitude));
}

// Runs when the place on display is shown in the list, too, where there is nothing to do.
void PlaceSection::cboPlace_Click() {
  const int index = cboPlace.ListIndex();
  if (index < 0) return;
  const Place& place = places_[static_cast<std::size_t>(index)];
  if (!LiesAt(place, place_)) Choose({place.latitude, place.longitude});
}

void PlaceSection::Coordinates_KeyPress(int& key) {
  if (key != kEnterKey) return;
  key = 0;
  TakeCoordinates();
}

void PlaceSection::TakeCoordinates() {
  GeoPoint place;
  const std::string fault = ReadBoxes(place);
  if (fault.empty()) {
    Choose(place);
  } else {
    Tell(fault);
  }
}

// Either box may hold both coordinates, as they are pasted from elsewhere.
std::string PlaceSection::ReadBoxes(GeoPoint& place) const {
  for (const TextBox* box : {&txbLatitude, &txbLongitude}) {
    if (ReadCoordinates(box->Text(), place.latitude, place.longitude).empty()) return {};
  }
  std::string fault = ReadLatitude(txbLatitude.Text(), place.latitude);
  if (fault.empty()) fault = ReadLongitude(txbLongitude.Text(), place.longitude);
  return fault;
}

void PlaceSection::Keep() const {
  const auto state = desktop_.StateFile();
  if (!state) return;
  const std::string error = KeepPlace(PlaceFileBeside(*state), place_);
  if (!error.empty()) ReportSaveError(desktop_, "the place", kTitle, error);
}

void PlaceSection::Tell(const std::string& fault) const {
  desktop_.ShowMessage({fault, kTitle, MessageIcon::kExclamation});
}

}  // namespace tarnwick
