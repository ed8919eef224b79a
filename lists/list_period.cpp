#include "lists/list_period.h"

#include "calendars/text.h"
#include "moment/session.h"

namespace tarnwick {
namespace {

constexpr double kHalfDay = 0.5;

// A remark is not read, so that a time in it is none.
bool HasTime(std::string_view text, const Entry& entry) {
  return IsDayCount(*entry.calendar) || Contains(text.substr(0, text.find('(')), ":");
}

// Moves the moment by half a day, to an end of the day of which the noon was read.
std::string ReadEnd(std::string_view text, const EntryContext& context, double to_end,
                    UniversalTime& moment) {
  const std::string normalised = UpperCase(Trim(text));
  const Entry entry = ParseEntry(normalised, context);
  if (entry.code != kEntryOk) return std::string(EntryErrorText(entry.code));
  if (entry.ajd < kLowerLimit || entry.ajd > kUpperLimit) {
    return "Lists run from -3200-01-01 CE to 6000-01-01 CE.";
  }
  moment = HasTime(normalised, entry) ? entry.ajd : entry.ajd + to_end;
  return {};
}

}  // namespace

std::string ReadListPeriod(std::string_view from, std::string_view to, const EntryContext& context,
                           Period& period) {
  Period read;
  std::string fault = ReadEnd(from, context, -kHalfDay, read.begin);
  if (fault.empty()) fault = ReadEnd(to, context, kHalfDay, read.end);
  if (fault.empty() && read.begin >= read.end) fault = "A list begins before it ends.";
  if (fault.empty()) period = read;
  return fault;
}

}  // namespace tarnwick
