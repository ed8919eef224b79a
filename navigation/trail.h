// The moments that have been shown, to go back to and forward again as a browser does.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

#include "calendars/calendar_table.h"
#include "engines/instant.h"
#include "moon/syzyg.h"

namespace tarnwick {

// A moment, and how it was shown.
struct Visit {
  UniversalTime moment;
  Calendar calendar = kCE;
  bool greenwich = false;
  std::int16_t zone_offset = 0;        // minutes east of Greenwich
  std::optional<PhaseNumber> eclipse;  // that was described
  friend bool operator==(const Visit&, const Visit&) = default;
};

class Trail {
 public:
  static constexpr std::size_t kCapacity = 100;

  // Puts a visit behind the one on display and drops those that were ahead of it; the oldest goes
  // where there are too many. The one on display is not added again.
  void Add(const Visit& visit);

  bool CanGoBack() const { return place_ > 0; }
  bool CanGoForward() const { return place_ + 1 < visits_.size(); }
  // The visit before or after the one on display, which is on display from now on. There must be
  // one.
  const Visit& GoBack() { return visits_[--place_]; }
  const Visit& GoForward() { return visits_[++place_]; }

 private:
  std::deque<Visit> visits_;
  std::size_t place_ = 0;  // of the one on display
};

}  // namespace tarnwick
