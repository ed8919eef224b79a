#include "sky/places.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <sstream>
#include <utility>

#include "controls/save_path.h"
#include "controls/text_file.h"
#include "sky/coordinates.h"

namespace tarnwick {
namespace {

constexpr std::string_view kHeader = "name,latitude,longitude,note";
constexpr std::size_t kCells = 4;
constexpr std::size_t kMostBytes = 200'000;

// Nothing if a quotation mark is not closed.
std::optional<std::vector<std::string>> SplitCells(std::string_view line) {
  std::vector<std::string> cells(1);
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (quoted && line.substr(i).starts_with("\"\"")) {
      cells.back() += line[++i];
    } else if (line[i] == '"') {
      quoted = !quoted;
    } else if (line[i] == ',' && !quoted) {
      cells.emplace_back();
    } else {
      cells.back() += line[i];
    }
  }
  if (quoted) return std::nullopt;
  return cells;
}

// Returns what is wrong with the line, in words, empty if nothing is.
std::string AddPlace(std::string_view line, std::vector<Place>& places) {
  const auto cells = SplitCells(line);
  if (!cells) return "A quotation mark is not closed";
  if (cells->size() != kCells) {
    return std::to_string(kCells) + " cells are wanted, not " + std::to_string(cells->size());
  }
  Place place{.name = (*cells)[0], .note = (*cells)[3]};
  if (place.name.empty()) return "The name is missing";
  if (std::ranges::find(places, place.name, &Place::name) != places.end()) {
    return place.name + " occurs twice";
  }
  std::string fault = ReadLatitude((*cells)[1], place.latitude);
  if (fault.empty()) fault = ReadLongitude((*cells)[2], place.longitude);
  if (fault.empty()) places.push_back(std::move(place));
  return fault;
}

}  // namespace

PlaceList ParsePlaces(std::string_view text) {
  std::vector<Place> places;
  std::istringstream lines{std::string(text)};
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (line.ends_with('\r')) line.pop_back();
    std::string fault;
    if (number > 1) fault = AddPlace(line, places);
    if (number == 1 && line != kHeader) fault = std::string("It is not ").append(kHeader);
    if (!fault.empty()) return {{}, "Line " + std::to_string(number) + ": " + fault};
  }
  if (places.empty()) return {{}, "There is no place in it"};
  return {std::move(places), {}};
}

PlaceList ReadPlaces(const std::filesystem::path& file) {
  const std::string name = PathText(file);
  const auto text = ReadTextFile(file, kMostBytes);
  if (!text) return {{}, "The places cannot be read: " + name};
  PlaceList list = ParsePlaces(*text);
  if (!list.fault.empty()) list.fault = name + ": " + list.fault;
  return list;
}

}  // namespace tarnwick
