// The saved state as a list of records, each of which knows how it is written and how it is taken
// up again.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "controls/controls.h"
#include "state/state_file.h"

namespace tarnwick {

struct StateRecord {
  // As it stands in the file.
  std::function<std::string()> write;
  // Takes it up from the file as the user's choice; false if it is no such record, or one that
  // cannot be chosen.
  std::function<bool(StateReader& reader)> read;
};

StateRecord RecordOf(ComboBox& list);
StateRecord RecordOf(CheckBox& box);
// Of a pair of option buttons, as -1 or 0 for the first.
StateRecord RecordOf(OptionButton& first, OptionButton& other);

// The whole file.
std::string StateText(std::span<const StateRecord> records);

// Takes up record after record, until one fails.
void ReadState(std::span<const StateRecord> records, std::string_view text);

}  // namespace tarnwick
