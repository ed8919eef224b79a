// The figures of docs/calendars.md as SVG.
#pragma once

#include <string>
#include <vector>

#include "tools/calendar_figures/drift.h"

namespace tarnwick {

// A figure of several drifts over the years: a line for each calendar's mean and a band from its
// least to its largest distance. `title` stands above, `axis` beside the days.
std::string DriftFigure(const std::vector<Drift>& drifts, const std::string& title,
                        const std::string& axis);

}  // namespace tarnwick
