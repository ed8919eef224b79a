// The place whose sky is shown: chosen from a list, by its latitude and longitude, or on a map, and
// kept from one run to the next.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "sky/geo_point.h"
#include "sky/places.h"

namespace tarnwick {

class PlaceSection {
 public:
  PlaceSection(Form& form, Desktop& desktop);

  Frame fraPlace;
  ComboBox cboPlace{fraPlace, "cboPlace"};       // nothing is selected at a place of no name
  TextBox txbLatitude{fraPlace, "txbLatitude"};  // read by Enter, as is the longitude
  TextBox txbLongitude{fraPlace, "txbLongitude"};
  Label lblPlaceNote{fraPlace, "lblPlaceNote"};  // what the place is known for

  // Another place has been chosen.
  std::function<void()> on_place = [] {};

  // Reads the list of places and the place kept, and tells the user of what cannot be read; once.
  void Load();

  const GeoPoint& Point() const { return place_; }
  // "Babylon", or where it lies: "32.54 N 44.42 E".
  std::string Name() const;
  void Choose(const GeoPoint& place);

 private:
  void cboPlace_Click();
  void Coordinates_KeyPress(int& key);
  void TakeCoordinates();
  std::string ReadBoxes(GeoPoint& place) const;
  void Show();
  void Keep() const;
  void Tell(const std::string& fault) const;

  Desktop& desktop_;
  std::vector<Place> places_;  // in the order of the list
  GeoPoint place_;
};

}  // namespace tarnwick
