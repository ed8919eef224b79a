#include "calendars/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "engines/date_engine.h"

namespace tarnwick {
namespace {

constexpr std::string_view kDigits = "0123456789";

// Two parallel lists; every letter in them takes two bytes.
constexpr std::string_view kAccentedCapitals = "ŠŸÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝ";
constexpr std::string_view kAccentedSmall = "šÿàáâãäåçèéêëìíîïðñòóôõöøùúûüý";
static_assert(kAccentedCapitals.size() == kAccentedSmall.size());

// The place of a two-byte letter in one of the lists, or npos.
std::size_t FindLetter(std::string_view list, std::string_view letter) {
  const bool ascii = static_cast<unsigned char>(letter.front()) < 0x80;
  if (ascii) return std::string_view::npos;
  for (std::size_t place = 0; place < list.size(); place += 2) {
    if (list.substr(place, 2) == letter) return place;
  }
  return std::string_view::npos;
}

std::size_t CountDigits(std::string_view text) {
  return std::min(text.find_first_not_of(kDigits), text.size());
}

// The digits, "." and digits at the start of the text; empty when there is no digit among them.
std::string_view LeadingDecimal(std::string_view text) {
  const std::size_t whole = CountDigits(text);
  if (whole == text.size() || text[whole] != '.') return text.substr(0, whole);
  const std::size_t decimals = CountDigits(text.substr(whole + 1));
  return text.substr(0, whole + decimals == 0 ? 0 : whole + 1 + decimals);
}

// A decimal number without sign: its digits, `point` of them before the point.
struct Decimal {
  std::string digits;
  std::size_t point;
};

// The magnitude of a finite value to 15 significant digits, with a digit before the point at least.
Decimal ToFifteenDigits(double value) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                 std::chars_format::scientific, 14)
                       .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = text.find('e');
  int exponent = 0;
  const std::size_t sign = text[mark + 1] == '+' ? 2 : 1;
  std::from_chars(text.data() + mark + sign, text.data() + text.size(), exponent);

  std::string digits = RemoveChars(text.substr(0, mark), ".");
  if (exponent >= 0) return {digits, static_cast<std::size_t>(exponent) + 1};
  return {std::string(static_cast<std::size_t>(-exponent), '0') + digits, 1};
}

// Adds one in the last digit.
void Increment(Decimal& number) {
  for (auto digit = number.digits.rbegin(); digit != number.digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  number.digits.insert(0, 1, '1');
  ++number.point;
}

// Leaves the given count of decimals, halves away from zero.
void RoundTo(Decimal& number, std::size_t decimals) {
  const std::size_t kept = number.point + decimals;
  const bool up = kept < number.digits.size() && number.digits[kept] >= '5';
  number.digits.resize(kept, '0');
  if (up) Increment(number);
}

}  // namespace

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";
  const std::size_t first = text.find_first_not_of(kWhiteSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}

std::string RemoveChars(std::string_view text, std::string_view set) {
  std::string result(text);
  std::erase_if(result, [set](char c) { return set.find(c) != std::string_view::npos; });
  return result;
}

std::string_view StripLeading(std::string_view text, std::string_view prefix) {
  while (!prefix.empty() && text.starts_with(prefix)) text.remove_prefix(prefix.size());
  return text;
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

std::size_t CountOf(std::string_view text, std::string_view sub) {
  if (sub.empty()) return 0;
  std::size_t count = 0;
  for (std::size_t place = text.find(sub); place != std::string_view::npos;
       place = text.find(sub, place + sub.size())) {
    ++count;
  }
  return count;
}

bool IsSignedNumber(std::string_view text, bool remove_commas) {
  const std::string_view trimmed = Trim(text);
  const auto only_leads = [trimmed](char sign) {
    const std::size_t place = trimmed.find(sign);
    return place == 0 || place == std::string_view::npos;
  };
  const std::string_view allowed = remove_commas ? "0123456789-+.," : "0123456789-+.";
  return !trimmed.empty() && only_leads('-') && only_leads('+') && CountOf(trimmed, ".") <= 1 &&
         trimmed.find_first_not_of(allowed) == std::string_view::npos;
}

std::string AccentCase(std::string_view text, LetterCase letter_case) {
  const bool to_upper = letter_case == LetterCase::kUpper;
  const std::string_view from = to_upper ? kAccentedSmall : kAccentedCapitals;
  const std::string_view to = to_upper ? kAccentedCapitals : kAccentedSmall;
  std::string result(text);
  for (std::size_t place = 0; place + 1 < text.size(); ++place) {
    const std::size_t letter = FindLetter(from, text.substr(place, 2));
    if (letter != std::string_view::npos) result.replace(place, 2, to.substr(letter, 2));
  }
  return result;
}

std::string UpperCase(std::string_view text) {
  std::string result = AccentCase(text, LetterCase::kUpper);
  for (char& c : result) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return result;
}

double LeadingNumber(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::string_view number = LeadingDecimal(text);
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value,
                                      std::chars_format::fixed);
  if (result.ec == std::errc::result_out_of_range) {
    const bool tiny = CountDigits(StripLeading(number, "0")) == 0;
    value = tiny ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

std::string FormatFixed(double value, std::int32_t decimals, bool grouping) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";

  Decimal number = ToFifteenDigits(value);
  RoundTo(number, static_cast<std::size_t>(std::max(decimals, 0)));
  const bool zero = number.digits.find_first_not_of('0') == std::string::npos;
  const std::string_view digits = number.digits;
  std::string text(value < 0 && !zero ? "-" : "");
  text.append(separate_thousands(digits.substr(0, number.point), grouping ? ',' : 0));
  if (decimals > 0) text.append(".").append(digits.substr(number.point));
  return text;
}

std::string PadLeft(std::string_view text, std::int32_t width, char pad) {
  const std::size_t wanted = static_cast<std::size_t>(std::max(width, 0));
  const std::size_t missing = wanted > text.size() ? wanted - text.size() : 0;
  return std::string(missing, pad).append(text);
}

std::string NumericDate(std::initializer_list<DateNumber> numbers, std::string_view end) {
  std::string text;
  for (const auto& [number, width] : numbers) {
    std::array<char, 11> digits;  // and a sign
    const auto last = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    const auto size = static_cast<std::size_t>(last - digits.data());
    if (&number != &numbers.begin()->number) text += '-';
    if (size < width) text.append(width - size, '0');
    text.append(digits.data(), size);
  }
  return text.append(end);
}

std::string TwoDigits(std::int32_t number) { return PadLeft(std::to_string(number), 2, '0'); }

std::string SignedNumberText(std::int32_t number) {
  return std::string(number < 0 ? "" : " ").append(std::to_string(number));
}

std::string_view OrdinalSuffix(std::int32_t number) {
  const std::int32_t last_two = number % 100;
  if (last_two >= 11 && last_two <= 13) return "th";
  switch (number % 10) {
    case 1:
      return "st";
    case 2:
      return "nd";
    case 3:
      return "rd";
    default:
      return "th";
  }
}

std::string OrdinalText(std::int32_t number) {
  return std::to_string(number).append(OrdinalSuffix(number));
}

}  // namespace tarnwick
