// Lunations on paper: a page each, alone or with the others of its year.
#pragma once

#include <cstdint>
#include <string>

#include "controls/printing.h"
#include "lunation_view/lunation_grid.h"

namespace tarnwick {

// The page of a lunation, laid out as in its window: the Moon of each day as it stands at noon, and
// the events with their times.
PrintedGrid PrintedPageOf(const LunationGrid& grid, const GridReading& reading);

// One lunation after the other, both ends included.
struct LunationSpan {
  std::int32_t first = 0;
  std::int32_t last = 0;
};

// The lunations of the year that the title of a lunation names, the year being that to which most
// of their days belong. The range of lunations cuts it short;
// it is the lunation alone where no calendar is named.
LunationSpan LunationsOfYear(std::int32_t lunation, const GridReading& reading);

// A page for each lunation.
PrintedGrids PrintedLunations(std::string title, const LunationSpan& span,
                              const GridReading& reading);

}  // namespace tarnwick
