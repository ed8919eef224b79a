#include "moment/time_zone.h"

#include <algorithm>
#include <cstdlib>

#include "calendars/text.h"
#include "engines/time_units.h"

namespace tarnwick {

std::string TimeZoneText(int index) {
  const int half_hours = index - kGmtTimeZone;
  if (half_hours == 0) return "GMT";
  const int size = std::abs(half_hours);
  return std::string("GMT") + (half_hours > 0 ? " + " : " - ") + TwoDigits(size / 2) +
         (size % 2 != 0 ? ":30" : ":00");
}

int TimeZoneIndex(int offset_minutes) {
  constexpr int kHalfHour = kMinutesPerHour / 2;
  const int half_hours = (std::abs(offset_minutes) + kHalfHour / 2 - 1) / kHalfHour;
  const int index = kGmtTimeZone + (offset_minutes < 0 ? -half_hours : half_hours);
  return std::clamp(index, 0, kTimeZoneCount - 1);
}

std::int16_t TimeZoneOffset(std::string_view text) {
  constexpr std::size_t kHours = 6;
  constexpr std::size_t kMinutes = 9;
  if (text == "Greenwich" || text.size() < kMinutes) return 0;
  const double minutes = kMinutesPerHour * LeadingNumber(text.substr(kHours, 2)) +
                         LeadingNumber(text.substr(kMinutes));
  const auto offset = static_cast<std::int16_t>(minutes);
  return text.find('-') == std::string_view::npos ? offset : static_cast<std::int16_t>(-offset);
}

}  // namespace tarnwick
