// The numeric date text that all calendars share: whole numbers joined by a separator, with an
// optional "-" before the first of them ("-3200-01-01", "1-105-13-11").
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick {

enum class FieldsStatus {
  kFields,    // the text has the shape, and every number fits 32 bits
  kBadShape,  // something else than plain digits, an empty field, too many fields, no text
  kTooLarge,  // the shape is right, but a number does not fit 32 bits
};

struct DateFields {
  static constexpr std::size_t kMaximum = 5;

  FieldsStatus status = FieldsStatus::kBadShape;
  std::size_t count = 0;                        // how many fields the text has, [1:5]
  bool has_sign = false;                        // the text begins with "-"
  std::array<std::int32_t, kMaximum> values{};  // in the order of the text; the sign applied
};

// Cuts a date text into its numbers. Nothing but digits, the separators between the fields and the
// one leading "-" is taken: no blanks, no "+". "-0" is 0 with has_sign set.
//   ParseDateFields("-3200-01-01", '-')  ->  3 fields -3200, 1, 1
//   ParseDateFields("2003-12-", '-')     ->  kBadShape
// `count`, `has_sign` and `values` mean something only when the status is kFields.
DateFields ParseDateFields(std::string_view text, char separator);

}  // namespace tarnwick
