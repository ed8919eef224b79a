// String and number routines that the calendars and the windows share. Texts are UTF-8; positions
// and lengths are bytes. None of them throws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnwick {

enum class LetterCase { kUpper, kLower };

// The text without ASCII white space at its two ends.
std::string_view Trim(std::string_view text);

// The text without any of the characters of `set` (single bytes).
std::string RemoveChars(std::string_view text, std::string_view set);

// The text after every leading repetition of the prefix: StripLeading("007", "0") is "7". An empty
// prefix removes nothing.
std::string_view StripLeading(std::string_view text, std::string_view prefix);

// Whether `part` occurs in the text.
bool Contains(std::string_view text, std::string_view part);

// How often `sub` occurs in the text, counted without overlap; 0 for an empty `sub`.
std::size_t CountOf(std::string_view text, std::string_view sub);

// Whether the trimmed text passes as a signed number: not empty, the first "-" and the first "+"
// (if any) at its beginning, at most one ".", and else nothing but digits. Commas are passed over
// when `remove_commas` is set. Only the first sign is looked at, so "-1-" passes, and so does "-".
bool IsSignedNumber(std::string_view text, bool remove_commas);

// Changes the case of the accented letters of Western European languages (those of
// "ŠŸÀÁÂÃÄÅÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝ" and their small forms); everything else stays, bytes that are
// not UTF-8 included.
std::string AccentCase(std::string_view text, LetterCase letter_case);

// Capitals for the ASCII letters and those of AccentCase; everything else stays.
std::string UpperCase(std::string_view text);

// The number at the start of the text: an optional sign, digits, one "." and digits, without
// exponent or leading blanks. 0 when there is none; plus or minus infinity when it has more digits
// than a double can hold; never NaN.
double LeadingNumber(std::string_view text);

// The value with a fixed count of decimals: "2,451,545.0000". It is first taken to 15 significant
// digits, then rounded with halves away from zero, so that 0.15 with one decimal gives 0.2 although
// the double lies below. With `grouping` a "," stands between the thousands. A value that rounds to
// zero has no sign. Decimals below 0 count as 0. Not finite: "inf", "-inf" or "nan".
std::string FormatFixed(double value, std::int32_t decimals, bool grouping);

// The text filled up on its left with `pad` to the width; unchanged when it is that long already,
// or when the width is negative.
std::string PadLeft(std::string_view text, std::int32_t width, char pad);

// A number of a date, filled up with zeros on its left to the width.
struct DateNumber {
  std::int32_t number = 0;
  std::size_t width = 0;
};

// The numbers of a date with "-" between them, and what follows: "1-105-13-11 KSG".
std::string NumericDate(std::initializer_list<DateNumber> numbers, std::string_view end = "");

// A month or day number with at least two digits: 7 gives "07".
std::string TwoDigits(std::int32_t number);

// The number with a blank before it unless it is negative: " 105", " 0", "-3".
std::string SignedNumberText(std::int32_t number);

// "st", "nd", "rd" or "th", as it follows the number in English.
std::string_view OrdinalSuffix(std::int32_t number);

// The number as an English ordinal: "1st", "11th", "22nd".
std::string OrdinalText(std::int32_t number);

}  // namespace tarnwick
