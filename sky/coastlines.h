// The coastlines on which maps are drawn: assets/coastlines.csv, made by tools/coastlines.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "sky/geo_point.h"

namespace tarnwick {

// Polylines of at least two points each. Either there are lines, or the error says in words what
// is wrong with the table; never both.
struct Coastlines {
  GeoLines lines;
  std::string error;
};

// Reads the text of a table: comments that begin with "#", the line "latitude,longitude", then a
// point a line, with a blank line between two polylines. Every line ends, the last one too, so that
// a file cut short is noticed. The error: "line 7: not a latitude and a longitude".
Coastlines ParseCoastlines(std::string_view text);

// Reads the file of a table. The error is a sentence for the user and names the file in UTF-8.
Coastlines ReadCoastlines(const std::filesystem::path& file);

}  // namespace tarnwick
