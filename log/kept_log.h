// The file in which logs are kept that were not saved when they were closed.
#pragma once

#include <string>
#include <string_view>

#include "controls/desktop.h"

namespace tarnwick {

// It lies beside the state file.
inline constexpr char kKeptLogName[] = "tnwk-log.txt";

// A log as it is added to that file: under a line with the local date and time, all lines ended by
// CR LF, an empty one at its end.
std::string KeptLogText(const ClockReading& now, std::string_view log);

}  // namespace tarnwick
