// The place that the user has chosen, kept from one run to the next in a file of one line beside
// the state: "32.54 N 44.42 E".
#pragma once

#include <filesystem>
#include <string>

#include "sky/geo_point.h"

namespace tarnwick {

// Where it lies, for a state in that file.
std::filesystem::path PlaceFileBeside(const std::filesystem::path& state_file);

inline constexpr GeoPoint kGreenwich{51.48, 0};

// The place kept; Greenwich if none is, and with what is wrong, in words, if the file cannot be
// read.
struct KeptPlace {
  GeoPoint place = kGreenwich;
  std::string fault;
};
KeptPlace ReadKeptPlace(const std::filesystem::path& file);

// Returns what went wrong, in words, empty if nothing did.
std::string KeepPlace(const std::filesystem::path& file, const GeoPoint& place);

}  // namespace tarnwick
