#include "sky/coordinates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "calendars/text.h"

namespace tarnwick {
namespace {

constexpr double kStepsPerDegree = 1e5;
constexpr std::string_view kLetters = "NSEW";

struct Axis {
  std::string_view name;
  std::string_view letters;  // the positive one first
  double limit;
  std::string_view limit_text;
  std::string_view examples;
};
constexpr Axis kLatitude{"A latitude", "NS", 90, "90", "32.54 N, 32 32 24 N or -33.87"};
constexpr Axis kLongitude{"A longitude", "EW", 180, "180", "44.42 E, 44 25 12 E or -88.57"};

// What stands for what in a text: ' ' nothing, 'd' degrees, '\'' minutes, '"' seconds.
struct Spelling {
  std::string_view text;
  char meaning;
};
// One that begins another stands after it.
constexpr Spelling kSpellings[] = {
    {" ", ' '},  {"\t", ' '}, {"\u00A0", ' '}, {"\u202F", ' '}, {",", ','}, {"N", 'N'},
    {"n", 'N'},  {"S", 'S'},  {"s", 'S'},      {"E", 'E'},      {"e", 'E'}, {"W", 'W'},
    {"w", 'W'},  {"+", '+'},  {"-", '-'},      {"−", '-'},      {"°", 'd'}, {"º", 'd'},
    {"''", '"'}, {"’’", '"'}, {"′′", '"'},     {"\"", '"'},     {"″", '"'}, {"”", '"'},
    {"'", '\''}, {"’", '\''}, {"′", '\''},
};

constexpr char kNumber = '0';
constexpr char kNone = '\0';

struct Token {
  char meaning = kNone;  // kNumber, or that of a spelling
  std::string_view text;
};
using Tokens = std::span<const Token>;

bool IsNumber(const Token& token) { return token.meaning == kNumber; }
bool IsLetter(const Token& token) { return kLetters.find(token.meaning) != std::string_view::npos; }

Token FirstToken(std::string_view text) {
  const std::string_view number =
      text.substr(0, std::min(text.find_first_not_of("0123456789."), text.size()));
  if (number != "." && CountOf(number, ".") <= 1 && !number.empty()) return {kNumber, number};
  for (const Spelling& spelling : kSpellings) {
    if (text.starts_with(spelling.text)) return {spelling.meaning, spelling.text};
  }
  return {};
}

// Nothing if there is something in the text that has no meaning.
std::optional<std::vector<Token>> SplitText(std::string_view text) {
  std::vector<Token> tokens;
  while (!text.empty()) {
    const Token token = FirstToken(text);
    if (token.meaning == kNone) return std::nullopt;
    if (token.meaning != ' ') tokens.push_back(token);
    text.remove_prefix(token.text.size());
  }
  return tokens;
}

// Takes the first token away and returns its meaning, if it is one of these.
char Take(Tokens& tokens, std::string_view meanings) {
  if (tokens.empty() || meanings.find(tokens.front().meaning) == std::string_view::npos) {
    return kNone;
  }
  const char meaning = tokens.front().meaning;
  tokens = tokens.subspan(1);
  return meaning;
}

// Takes away degrees, minutes and seconds, as far as they are there.
std::vector<std::string_view> TakeNumbers(Tokens& tokens) {
  std::vector<std::string_view> numbers;
  for (const char* const mark : {"d", "'", "\""}) {
    if (tokens.empty() || !IsNumber(tokens.front())) break;
    numbers.push_back(tokens.front().text);
    tokens = tokens.subspan(1);
    Take(tokens, mark);
  }
  return numbers;
}

std::string FormFault(const Axis& axis) {
  return std::string(axis.name).append(" is written ").append(axis.examples);
}

std::string DecimalsFault() { return "Decimals stand after a point: 32.54"; }

// `numbers` holds one at least.
std::string ReadNumbers(std::span<const std::string_view> numbers, const Axis& axis,
                        double& degrees) {
  double sum = 0;
  double unit = 1;
  for (const std::string_view& text : numbers) {
    const double number = LeadingNumber(text);
    if (&text != &numbers.back() && Contains(text, ".")) {
      return "Only the last of degrees, minutes and seconds has decimals";
    }
    if (unit < 1 && number >= 60) return "Minutes and seconds are below 60";
    sum += number * unit;
    unit /= 60;
  }
  if (sum > axis.limit) {
    return std::string(axis.name).append(" runs from -").append(axis.limit_text) + " to " +
           std::string(axis.limit_text);
  }
  degrees = std::round(sum * kStepsPerDegree) / kStepsPerDegree;
  return {};
}

std::string ReadTokens(Tokens tokens, const Axis& axis, double& value) {
  const char before = Take(tokens, kLetters);
  const char sign = Take(tokens, "+-");
  const std::vector<std::string_view> numbers = TakeNumbers(tokens);
  const char after = Take(tokens, kLetters);
  const bool two_letters = before != kNone && after != kNone;
  if (numbers.empty() || !tokens.empty() || two_letters) return FormFault(axis);

  const char letter = before != kNone ? before : after;
  if (letter != kNone && sign != kNone) return "A sign and a letter do not go together";
  if (letter != kNone && axis.letters.find(letter) == std::string_view::npos) {
    return "A latitude has N or S, a longitude E or W";
  }
  double degrees = 0;
  std::string fault = ReadNumbers(numbers, axis, degrees);
  const bool negative = sign == '-' || letter == axis.letters[1];
  if (fault.empty()) value = negative && degrees > 0 ? -degrees : degrees;
  return fault;
}

std::string Read(std::string_view text, const Axis& axis, double& value) {
  const auto tokens = SplitText(text);
  if (!tokens) return FormFault(axis);
  const bool comma = std::ranges::count(*tokens, ',', &Token::meaning) > 0;
  return comma ? DecimalsFault() : ReadTokens(*tokens, axis, value);
}

// How many tokens belong to the first of two coordinates that no comma parts; all if that cannot be
// told.
std::size_t SizeOfFirst(Tokens tokens) {
  const bool letters_lead = !tokens.empty() && IsLetter(tokens.front());
  const Tokens rest = tokens.subspan(letters_lead ? 1 : 0);
  const auto letter = std::ranges::find_if(rest, IsLetter);
  // Up to the second letter, or with the first.
  if (letter != rest.end()) return static_cast<std::size_t>(letter - rest.begin()) + 1;

  // "33°52" is one coordinate, "33 52" are two.
  const bool one_degree_mark = std::ranges::count(tokens, 'd', &Token::meaning) == 1;
  const bool two_numbers = std::ranges::count_if(tokens, IsNumber) == 2;
  if (letters_lead || one_degree_mark || !two_numbers) return tokens.size();
  const auto first = std::ranges::find_if(tokens, IsNumber);
  const auto second = std::find_if(first + 1, tokens.end(), IsNumber);
  const bool has_sign = (second - 1)->meaning == '+' || (second - 1)->meaning == '-';
  return static_cast<std::size_t>(second - tokens.begin()) - (has_sign ? 1 : 0);
}

std::pair<Tokens, Tokens> SplitPair(Tokens tokens) {
  const auto comma = std::ranges::find(tokens, ',', &Token::meaning);
  if (comma == tokens.end()) {
    const std::size_t size = SizeOfFirst(tokens);
    return {tokens.first(size), tokens.subspan(size)};
  }
  const auto size = static_cast<std::size_t>(comma - tokens.begin());
  return {tokens.first(size), tokens.subspan(size + 1)};
}

bool HasLetterOf(Tokens tokens, const Axis& axis) {
  return std::ranges::any_of(tokens, [&](const Token& token) {
    return axis.letters.find(token.meaning) != std::string_view::npos;
  });
}

std::string Text(double value, const Axis& axis) {
  const double degrees = std::round(std::abs(value) * kStepsPerDegree) / kStepsPerDegree;
  std::array<char, 16> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), degrees, std::chars_format::fixed)
          .ptr;
  const bool negative = value < 0 && degrees > 0;
  return std::string(digits.data(), end) + ' ' + axis.letters[negative ? 1 : 0];
}

}  // namespace

std::string ReadLatitude(std::string_view text, double& latitude) {
  return Read(text, kLatitude, latitude);
}

std::string ReadLongitude(std::string_view text, double& longitude) {
  return Read(text, kLongitude, longitude);
}

std::string ReadCoordinates(std::string_view text, double& latitude, double& longitude) {
  constexpr char kForm[] = "Latitude and longitude are written 32.54 N 44.42 E or -33.87, 151.2";
  const auto tokens = SplitText(text);
  if (!tokens) return kForm;
  if (std::ranges::count(*tokens, ',', &Token::meaning) > 1) return DecimalsFault();
  auto [first, second] = SplitPair(*tokens);
  if (first.empty() || second.empty()) return kForm;
  if (HasLetterOf(first, kLongitude) && HasLetterOf(second, kLatitude)) std::swap(first, second);

  double read_latitude = 0;
  std::string fault = ReadTokens(first, kLatitude, read_latitude);
  if (fault.empty()) fault = ReadTokens(second, kLongitude, longitude);
  if (fault.empty()) latitude = read_latitude;
  return fault;
}

std::string LatitudeText(double latitude) { return Text(latitude, kLatitude); }

std::string LongitudeText(double longitude) { return Text(longitude, kLongitude); }

std::string CoordinatesText(double latitude, double longitude) {
  return LatitudeText(latitude) + ' ' + LongitudeText(longitude);
}

}  // namespace tarnwick
