// Documents on paper: dark on white, texts as texts, lines and the Moon as curves. A text that is
// too long for its place is set smaller, so that none is cut.
#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>

#include "controls/printing.h"

class QPagedPaintDevice;

namespace tarnwick {

// What would take more pages at once is refused.
inline constexpr std::size_t kMostPages = 2000;

// Takes paper and margins for a device, and turns the paper where the document is wide.
void ArrangePaper(const PrintedDocument& document, PaperSize paper, QPagedPaintDevice& device);

// How many pages a document takes on the paper of a device; one at least.
std::size_t CountPages(const PrintedDocument& document, QPagedPaintDevice& device);

// Pages that are counted from 1, both ends included.
struct PageRange {
  std::size_t first = 1;
  std::size_t last = std::numeric_limits<std::size_t>::max();
};

// Paints those pages of a document that lie in a range. Before each `keep_painting` is asked, and
// told how many have been painted and how many there are to be. Returns what went wrong, empty if
// nothing did.
std::string PaintPages(
    const PrintedDocument& document, const PageRange& range, QPagedPaintDevice& device,
    const std::function<bool(std::size_t done, std::size_t count)>& keep_painting);

}  // namespace tarnwick
