#include "tools/tables/convert.h"

#include <istream>
#include <ostream>
#include <vector>

#include "calendars/date_processing.h"
#include "calendars/entry_code.h"
#include "calendars/text.h"
#include "lists/csv.h"
#include "moment/accepted_range.h"
#include "moon/moon_data.h"
#include "tools/tables/printer.h"

namespace tarnwick {
namespace {

std::vector<std::string> MomentCells(UniversalTime moment, int offset_minutes) {
  std::vector<std::string> cells{
      TimeOfDayText(SplitCJD(AJDToCJD(moment, offset_minutes)).fraction, false), Cell(moment)};
  for (const Calendar calendar : kDisplayOrder) {
    cells.push_back(CSVCell(DateCell(calendar, moment, offset_minutes)));
  }
  const MoonData moon = MoonDataAt(moment);
  cells.insert(cells.end(),
               {std::to_string(moon.lunation), std::to_string(moon.phase),
                FormatFixed(moon.age, 4, false), FormatFixed(100 * moon.fraction, 1, false)});
  return cells;
}

// What an entry gives: its moment, or why it is refused.
struct ReadEntry {
  UniversalTime moment;
  std::string_view error;
};

ReadEntry Read(std::string_view text, const EntryContext& context) {
  const std::string normalised = UpperCase(Trim(text));
  if (normalised.empty()) return {{}, EntryErrorText(kNoDateGiven)};
  const Entry entry = ParseEntry(normalised, context);
  if (entry.code != kEntryOk) return {{}, EntryErrorText(entry.code)};
  const UniversalTime moment = IsDayCount(*entry.calendar) ? LimitOrMoment(entry.ajd) : entry.ajd;
  return {moment, RangeErrorText(moment)};
}

}  // namespace

std::string ConvertHeader() {
  std::string header = "entry,error,time,ajd";
  for (const Calendar calendar : kDisplayOrder)
    header += "," + std::string(AbbreviationOf(calendar));
  return header + ",lunation,phase,age_days,illuminated";
}

ConvertedEntry ConvertEntry(std::string_view entry, const EntryContext& context) {
  const ReadEntry read = Read(entry, context);
  const bool refused = !read.error.empty();
  std::vector<std::string> cells{CSVCell(entry), CSVCell(read.error)};
  if (refused) {
    constexpr std::size_t kColumns = 17;
    cells.resize(kColumns);
  } else {
    const std::vector<std::string> found = MomentCells(read.moment, context.offset_minutes);
    cells.insert(cells.end(), found.begin(), found.end());
  }
  return {Join(cells), refused};
}

Converted ConvertLines(std::istream& in, std::ostream& out, const EntryContext& context) {
  out << ConvertHeader() << '\n' << std::flush;
  bool refused = false;
  for (std::string line; out.good() && std::getline(in, line);) {
    if (line.ends_with('\r')) line.pop_back();
    const ConvertedEntry converted = ConvertEntry(line, context);
    refused = refused || converted.refused;
    out << converted.row << '\n' << std::flush;
  }
  if (!out.good()) return Converted::kOutputFailed;
  if (in.bad()) return Converted::kInputFailed;
  return refused ? Converted::kSomeRefused : Converted::kAll;
}

}  // namespace tarnwick
