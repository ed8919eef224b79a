// An eclipse in words.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engines/instant.h"
#include "engines/phase_engine.h"

namespace tarnwick {

// Stands before the number of the lunation, on a line of its own.
inline constexpr std::string_view kLunationText = "Lunation number = ";

// The lines that describe an eclipse whose greatest phase is at `cjd`: type, lunation, saros, and
// for a lunar eclipse the beginning and duration of each of its phases.
std::vector<std::string> EclipseLines(const EclipseRecord& record, LocalCJD cjd);

// The caption of the label: a line each, those of the phases with a full stop, all with CR LF.
std::string EclipseCaption(const std::vector<std::string>& lines);

// All in one line, joined by commas, for the log.
std::string EclipseSentence(const std::vector<std::string>& lines);

// Hours and minutes of a fraction of the day, truncated: "21:05"; "XX:XX:XX" outside 0 to 1.
std::string TruncatedTimeText(double fraction, bool with_seconds);

// Whole minutes as "1d 2h 5m", "0h 45m".
std::string EclipseDurationText(std::int32_t minutes);

}  // namespace tarnwick
