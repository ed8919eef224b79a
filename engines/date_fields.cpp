#include "engines/date_fields.h"

#include <charconv>
#include <system_error>

namespace tarnwick {
namespace {

bool IsDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Reads one field with its sign, if any. False when the number does not fit 32 bits.
bool ReadField(std::string_view text, std::int32_t& value) {
  return std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc{};
}

// Takes the next field off the front of `rest`; `skip` characters, a sign, belong to it in any
// case.
std::string_view TakeField(std::string_view& rest, std::size_t skip, char separator, bool& last) {
  const std::size_t end = rest.find(separator, skip);
  last = end == std::string_view::npos;
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(last ? rest.size() : end + 1);
  return field;
}

}  // namespace

DateFields ParseDateFields(std::string_view text, char separator) {
  DateFields fields;
  fields.has_sign = text.starts_with('-');
  bool too_large = false;
  for (bool last = false; !last; ++fields.count) {
    if (fields.count == DateFields::kMaximum) return fields;
    const std::size_t sign = fields.count == 0 && fields.has_sign ? 1 : 0;
    const std::string_view field = TakeField(text, sign, separator, last);
    if (!IsDigits(field.substr(sign))) return fields;
    if (!ReadField(field, fields.values[fields.count])) too_large = true;
  }
  fields.status = too_large ? FieldsStatus::kTooLarge : FieldsStatus::kFields;
  return fields;
}

}  // namespace tarnwick
