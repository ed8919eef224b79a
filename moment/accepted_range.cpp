#include "moment/accepted_range.h"

#include <cmath>

namespace tarnwick {
namespace {

// Half the last decimal of a day count on display, and a little for the last bits of a sum.
constexpr double kHalfADecimal = 0.00005 + 1e-8;

}  // namespace

std::string_view RangeErrorText(UniversalTime moment) {
  if (moment > kUpperLimit) return "Resulting date is later than 6000-01-01 CE.";
  // The spelling belongs to the text.
  if (!(moment >= kLowerLimit)) return "Resultng date is earlier than -3200-01-01 CE.";
  return "";
}

bool IsShownAlike(UniversalTime a, UniversalTime b) { return std::fabs(a - b) <= kHalfADecimal; }

UniversalTime LimitOrMoment(UniversalTime read) {
  for (const UniversalTime limit : {kLowerLimit, kUpperLimit}) {
    if (IsShownAlike(read, limit)) return limit;
  }
  return read;
}

}  // namespace tarnwick
