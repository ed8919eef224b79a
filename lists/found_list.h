// A list of one kind, as rows of texts: found step by step, put in words only where a row is shown.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/calendar_table.h"
#include "engines/instant.h"
#include "lists/calendar_events.h"
#include "lists/finders.h"
#include "lists/icalendar.h"
#include "moon/syzyg.h"

namespace tarnwick {

enum class ListKind { kPhases, kEclipses, kSeenEclipses, kCoincidences, kCrescents, kDays };

// What there is to choose from, in the order of ListKind; and within a kind, empty where there is
// nothing to choose.
std::vector<std::string_view> ListKinds();
std::vector<std::string_view> ListChoices(ListKind kind);

struct ListRequest {
  ListKind kind = ListKind::kPhases;
  std::size_t choice = 0;  // among ListChoices
  Period period;
  EventPlace place;        // of eclipses seen and of crescents
  int offset_minutes = 0;  // of coincidences and days, which are those of a zone
};

// How the rows tell their moments; it may change while they are on display.
struct ListReading {
  Calendar calendar = kCE;  // CE stands for a day count
  int offset_minutes = 0;   // east of Greenwich

  friend bool operator==(const ListReading&, const ListReading&) = default;
};

struct ListColumn {
  std::string_view heading;
  std::string_view longest;  // a text as long as any of its cells is likely to be
  bool right = false;        // numbers stand at the right
  bool in_time = false;      // sorted by it the rows are in the order of time, as they are found
};

// What the main window takes of a row.
struct ListedMoment {
  UniversalTime moment;
  std::optional<PhaseNumber> eclipse = {};  // to be described
};

class FoundList {
 public:
  FoundList() = default;
  FoundList(const FoundList&) = delete;
  FoundList& operator=(const FoundList&) = delete;
  virtual ~FoundList() = default;

  virtual std::vector<ListColumn> Columns() const = 0;

  // Looks at the next candidate, which takes a fraction of a millisecond; whether there may be
  // more.
  virtual bool FindMore() = 0;
  // How much of the period has been looked through, [0:1].
  virtual double Progress() const = 0;

  virtual std::size_t Size() const = 0;
  virtual ListedMoment MomentOf(std::size_t row) const = 0;
  // Whether its rows can stand in a calendar file, as mere days cannot.
  virtual bool HasEvents() const { return true; }
  // The row there; nothing where there are none.
  virtual std::optional<CalendarEvent> EventOf(std::size_t row) const = 0;
  virtual std::string Cell(std::size_t row, std::size_t column,
                           const ListReading& reading) const = 0;
  // By which rows are sorted; what has none comes first.
  virtual double SortKey(std::size_t row, std::size_t column) const = 0;
};

std::unique_ptr<FoundList> MakeList(const ListRequest& request);

}  // namespace tarnwick
