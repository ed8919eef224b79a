#include "sky/chosen_place.h"

#include <cstddef>
#include <optional>
#include <system_error>

#include "calendars/text.h"
#include "controls/save_path.h"
#include "controls/text_file.h"
#include "sky/coordinates.h"

namespace tarnwick {
namespace {

constexpr char kPlaceFileName[] = "tnwk-place.usr";
constexpr std::size_t kMostBytes = 1000;

}  // namespace

std::filesystem::path PlaceFileBeside(const std::filesystem::path& state_file) {
  return state_file.parent_path() / kPlaceFileName;
}

KeptPlace ReadKeptPlace(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error) && !error) return {};
  KeptPlace kept;
  const std::optional<std::string> text = ReadTextFile(file, kMostBytes);
  GeoPoint read;
  const std::string fault =
      text ? ReadCoordinates(Trim(*text), read.latitude, read.longitude) : "it cannot be read";
  if (fault.empty()) {
    kept.place = read;
  } else {
    kept.fault = "The place that was kept is lost: " + PathText(file) + ": " + fault;
  }
  return kept;
}

std::string KeepPlace(const std::filesystem::path& file, const GeoPoint& place) {
  return WriteTextFile(file, CoordinatesText(place.latitude, place.longitude) + "\r\n");
}

}  // namespace tarnwick
