// The time zones of the list: every half hour from GMT - 12:00 to GMT + 12:00.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

inline constexpr int kTimeZoneCount = 49;
inline constexpr int kGmtTimeZone = 24;

// The list item of a zone, 0 to 48: "GMT - 12:00", ... "GMT", ... "GMT + 12:00".
std::string TimeZoneText(int index);

// The list item of the zone nearest to so many minutes east of Greenwich, halves towards GMT.
int TimeZoneIndex(int offset_minutes);

// Minutes east of Greenwich that a list item stands for.
std::int16_t TimeZoneOffset(std::string_view text);

}  // namespace tarnwick
