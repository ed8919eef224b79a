#include "sky/coastlines.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <system_error>
#include <utility>

#include "calendars/text.h"
#include "controls/save_path.h"
#include "controls/text_file.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLargestFile = 1'000'000;  // bytes; the table has 70,000
constexpr std::string_view kColumns = "latitude,longitude";

// A number in [-limit, limit] that is all of the text.
std::optional<double> ReadDegrees(std::string_view text, double limit) {
  double degrees = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), degrees);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && std::abs(degrees) <= limit ? std::optional(degrees) : std::nullopt;
}

std::optional<GeoPoint> ReadPoint(std::string_view line) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos) return std::nullopt;
  const auto latitude = ReadDegrees(line.substr(0, comma), 90);
  const auto longitude = ReadDegrees(line.substr(comma + 1), 180);
  if (!latitude || !longitude) return std::nullopt;
  return GeoPoint{*latitude, *longitude};
}

// Takes up a table line by line. Take and End give back what is wrong, empty if nothing is.
class TableReader {
 public:
  std::string Take(std::string_view line) {
    if (!columns_read_) return TakeHeading(line);
    if (line.empty()) return EndPolyline();
    const std::optional<GeoPoint> point = ReadPoint(line);
    if (!point) return "not a latitude and a longitude";
    polyline_.push_back(*point);
    return {};
  }

  // What follows the last line.
  std::string End() { return columns_read_ ? EndPolyline() : "no columns follow"; }

  std::vector<std::vector<GeoPoint>> TakeLines() { return std::move(lines_); }

 private:
  std::string TakeHeading(std::string_view line) {
    columns_read_ = line == kColumns;
    if (columns_read_ || line.starts_with('#')) return {};
    return "neither a comment nor the columns \"" + std::string(kColumns) + "\"";
  }

  std::string EndPolyline() {
    if (polyline_.size() < 2) return "a coastline of fewer than two points";
    lines_.push_back(std::exchange(polyline_, {}));
    return {};
  }

  bool columns_read_ = false;
  std::vector<GeoPoint> polyline_;
  std::vector<std::vector<GeoPoint>> lines_;
};

// Hands the lines to the reader until one is wrong; gives back what is, and in `number` which.
std::string ReadLines(std::string_view text, TableReader& reader, int& number) {
  for (number = 1; !text.empty(); ++number) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return "breaks off";
    std::string error = reader.Take(Trim(text.substr(0, end)));
    if (!error.empty()) return error;
    text.remove_prefix(end + 1);
  }
  return reader.End();
}

}  // namespace

Coastlines ParseCoastlines(std::string_view text) {
  TableReader reader;
  int number = 0;
  const std::string error = ReadLines(text, reader, number);
  if (!error.empty()) return {{}, "line " + std::to_string(number) + ": " + error};
  return {reader.TakeLines(), {}};
}

Coastlines ReadCoastlines(const std::filesystem::path& file) {
  const std::string told = "Coastlines not read: " + PathText(file);
  const std::optional<std::string> text = ReadTextFile(file, kLargestFile);
  if (!text) return {{}, told + " is missing or cannot be read."};
  Coastlines coastlines = ParseCoastlines(*text);
  if (!coastlines.error.empty()) coastlines.error = told + ", " + coastlines.error + ".";
  return coastlines;
}

}  // namespace tarnwick
