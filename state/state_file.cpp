#include "state/state_file.h"

#include <charconv>
#include <cmath>
#include <system_error>

#include "calendars/text.h"

namespace tarnwick {
namespace {

constexpr char kFolder[] = "Ostrel Systems";
constexpr char kFile[] = "tnwk.usr";
constexpr char kQuote = '"';

// Takes the next line off the text.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

}  // namespace

std::filesystem::path StateFileIn(const std::filesystem::path& user_data_folder) {
  const std::filesystem::path folder = user_data_folder / kFolder;
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return folder / kFile;
}

std::string NumberRecord(std::int16_t number) { return std::to_string(number); }

std::string NumberRecord(double number) {
  char text[400];  // the longest double has 309 digits before its point
  const auto written = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed);
  return {text, written.ptr};
}

std::string TextRecord(std::string_view text) { return kQuote + std::string(text) + kQuote; }

template <class Number>
std::optional<Number> StateReader::Read() {
  const std::string_view line = Trim(TakeLine(rest_));
  Number number = 0;
  const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
  if (error != std::errc() || end != line.data() + line.size()) return std::nullopt;
  return number;
}

std::optional<std::int16_t> StateReader::ReadInteger() { return Read<std::int16_t>(); }

std::optional<double> StateReader::ReadNumber() {
  const auto number = Read<double>();
  return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::string> StateReader::ReadText() {
  const std::size_t begin = rest_.find_first_not_of(" \t");
  if (begin == std::string_view::npos || rest_[begin] != kQuote) return std::nullopt;
  const std::size_t end = rest_.find(kQuote, begin + 1);
  if (end == std::string_view::npos) return std::nullopt;
  std::string text(rest_.substr(begin + 1, end - begin - 1));
  rest_.remove_prefix(end + 1);
  if (!Trim(TakeLine(rest_)).empty()) return std::nullopt;
  return text;
}

}  // namespace tarnwick
