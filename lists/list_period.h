// The period of a list, as it is typed.
#pragma once

#include <string>
#include <string_view>

#include "calendars/entry_parser.h"
#include "lists/finders.h"

namespace tarnwick {

// Reads the beginning and the end, each as in the entry box. A day without a time counts whole:
// the period begins with it and ends after it. Returns what is wrong, in words, and then leaves
// the period as it was; empty if all is well.
std::string ReadListPeriod(std::string_view from, std::string_view to, const EntryContext& context,
                           Period& period);

}  // namespace tarnwick
