// The places that the user can choose from.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// Geodetic latitude and longitude in degrees, north and east positive, and what the place is known
// for.
struct Place {
  std::string name;
  double latitude = 0;
  double longitude = 0;
  std::string note;
};

// Either places, in the order of the file, or what is wrong, in words.
struct PlaceList {
  std::vector<Place> places;
  std::string fault;
};

// Reads a table in UTF-8, a line for each place below the line "name,latitude,longitude,note"; a
// cell in quotation marks may hold commas and, doubled, quotation marks. Latitudes and longitudes
// are written as coordinates.h tells. There must be a place, and no name twice; the fault names the
// line.
PlaceList ParsePlaces(std::string_view text);

// The same from a file of at most 200,000 bytes; the fault names the file.
PlaceList ReadPlaces(const std::filesystem::path& file);

}  // namespace tarnwick
