#pragma once

#include <cstdint>
#include <string>

namespace tarnwick {

// How one calendar shows a moment.
struct DateTexts {
  std::string short_form;  // "2003-12-31 CE": what the history and the entry box take
  std::string long_form;   // "2003-12-31 CE (Wednesday, December 31, 2003)": the label's caption
  std::string tool_tip;  // "The 31st day of December in the year 2003 ..."; empty if there is none
};

// The texts of a moment (AJD, Universal Time) in a calendar of the calendar table, read at
// `offset_minutes` east of Greenwich.
DateTexts DateTextsOf(std::int16_t calendar, double ajd, int offset_minutes);

}  // namespace tarnwick
