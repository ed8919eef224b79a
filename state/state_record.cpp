#include "state/state_record.h"

#include <cstdint>
#include <optional>

namespace tarnwick {
namespace {

constexpr std::int16_t kTrue = -1;

}  // namespace

StateRecord RecordOf(ComboBox& list) {
  return {[&list] { return NumberRecord(static_cast<std::int16_t>(list.ListIndex())); },
          [&list](StateReader& reader) {
            const auto index = reader.ReadInteger();
            if (!index || *index < 0 || !list.CanSelect(*index)) return false;
            list.SetListIndex(*index);
            return true;
          }};
}

StateRecord RecordOf(CheckBox& box) {
  return {[&box] { return NumberRecord(std::int16_t{box.Value()}); },
          [&box](StateReader& reader) {
            const auto value = reader.ReadInteger();
            if (!value || (*value != 0 && *value != 1)) return false;
            box.SetValue(*value == 1);
            return true;
          }};
}

StateRecord RecordOf(OptionButton& first, OptionButton& other) {
  return {[&first] { return NumberRecord(first.Value() ? kTrue : std::int16_t{0}); },
          [&first, &other](StateReader& reader) {
            const auto value = reader.ReadInteger();
            if (!value || (*value != kTrue && *value != 0)) return false;
            (*value == kTrue ? first : other).SetValue(true);
            return true;
          }};
}

std::string StateText(std::span<const StateRecord> records) {
  std::string text;
  for (const StateRecord& record : records) text += record.write() + "\r\n";
  return text;
}

void ReadState(std::span<const StateRecord> records, std::string_view text) {
  StateReader reader(text);
  for (const StateRecord& record : records) {
    if (!record.read(reader)) return;
  }
}

}  // namespace tarnwick
