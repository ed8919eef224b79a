#include "tools/tables/tables.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <ostream>
#include <string>
#include <system_error>

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/text.h"
#include "engines/phases.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "tools/tables/printer.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kFirstYear = -3200;
constexpr std::int32_t kLastYear = 6001;

constexpr std::string_view kUsage =
    "usage: tarnwick_tables phases|eclipses|dates FROM TO\n"
    "Prints every principal phase, eclipse or day from 1 January of the CE year FROM up to but\n"
    "not including that of TO, as CSV. Years -3200 to 6001.\n";

UniversalTime NewYear(std::int32_t year) {
  DateRecord date;
  date.calendar = 'G';
  date.year = year;
  date.month = 1;
  date.day = 1;
  return CJDToAJD(LocalCJD(euro_date_to_jdn(date)), 0);
}

// Calls visit(lunation, phase, event) for the phases of the lunations that touch the period, in
// order, until it returns false.
template <class Visit>
bool VisitPhases(const Period& period, std::int16_t step, const Visit& visit) {
  const std::int32_t last = LunationOf(period.end) + 1;
  for (std::int32_t lunation = LunationOf(period.begin) - 1; lunation <= last; ++lunation) {
    for (std::int16_t phase = 0; phase < kPhaseCount;
         phase = static_cast<std::int16_t>(phase + step)) {
      if (!visit(lunation, phase, FindPhaseEvent(lunation, phase))) return false;
    }
  }
  return true;
}

bool PrintPhases(const Period& period, Printer& printer) {
  const std::string header = "lunation,phase,tt,ut";
  if (!printer.Print(period.begin, header)) return false;
  return VisitPhases(period, 1, [&](std::int32_t lunation, std::int16_t phase, const auto& event) {
    if (!Contains(period, event.ut)) return true;
    const std::array cells{std::to_string(lunation), std::to_string(phase), Cell(event.tt),
                           Cell(event.ut)};
    return printer.Print(event.ut, Join(cells));
  });
}

std::string EclipseRow(std::int32_t lunation, std::int16_t phase, const EclipseRecord& eclipse,
                       UniversalTime ut) {
  const std::array cells{std::to_string(lunation),
                         std::to_string(phase),
                         std::to_string(eclipse.type),
                         std::to_string(eclipse.saros),
                         Cell(TerrestrialTime(eclipse.greatest)),
                         Cell(ut),
                         FormatFixed(eclipse.gamma, 5, false),
                         FormatFixed(eclipse.magnitude, 5, false),
                         Optional(eclipse.penumbral_magnitude, 5),
                         Optional(eclipse.penumbral_minutes, 3),
                         Optional(eclipse.umbral_minutes, 3),
                         Optional(eclipse.total_minutes, 3)};
  return Join(cells);
}

bool PrintEclipses(const Period& period, Printer& printer) {
  const std::string header =
      "lunation,phase,type,saros,tt,ut,gamma,magnitude,penumbral_magnitude,penumbral,umbral,total";
  if (!printer.Print(period.begin, header)) return false;
  return VisitPhases(period, 2, [&](std::int32_t lunation, std::int16_t phase, const auto& event) {
    const EclipseRecord& eclipse = event.eclipse;
    if (eclipse.type == kNotEclipsed) return true;
    const UniversalTime ut = GreatestEclipse(eclipse);
    if (!Contains(period, ut)) return true;
    return printer.Print(ut, EclipseRow(lunation, phase, eclipse, ut));
  });
}

constexpr std::array kDateColumns{kCE, kJC, kARC, kSD, kLLT, kKSG, kOLW};

// The civil day at Greenwich that contains a moment.
DayNumber DayOf(UniversalTime moment) { return SplitCJD(AJDToCJD(moment, 0)).day_number; }

bool PrintDates(const Period& period, Printer& printer) {
  std::string header = "day_number,weekday";
  for (const Calendar calendar : kDateColumns)
    header += "," + std::string(AbbreviationOf(calendar));
  if (!printer.Print(period.begin, header)) return false;
  const DayNumber end = DayOf(period.end);
  std::string row;
  for (DayNumber day = DayOf(period.begin); day < end; day = day + 1) {
    const UniversalTime noon = NoonOf(day, 0);
    row = std::to_string(day.value) + ',' + std::to_string(euro_day_of_week(day.value));
    for (const Calendar calendar : kDateColumns) {
      const std::string text = ShortDateText(calendar, noon, 0);
      row += ',';
      row.append(text, 0, text.find(' '));  // without the abbreviation
    }
    if (!printer.Print(noon, row)) return false;
  }
  return true;
}

struct Command {
  std::string_view name;
  bool (*print)(const Period& period, Printer& printer);
};
constexpr Command kCommands[] = {
    {"phases", PrintPhases}, {"eclipses", PrintEclipses}, {"dates", PrintDates}};

const Command* FindCommand(std::string_view name) {
  for (const Command& command : kCommands) {
    if (command.name == name) return &command;
  }
  return nullptr;
}

// False for a text that is not a whole number.
bool ParseYear(std::string_view text, std::int32_t& year) {
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), year);
  return status == std::errc() && end == text.data() + text.size();
}

int Refuse(std::ostream& err, std::string_view why) {
  err << "tarnwick_tables: " << why << '\n' << kUsage;
  return kBadArguments;
}

// Whoever closes the pipe has read enough; any other error is told.
int ReportFailedWrite(std::ostream& err, int error) {
  if (error != EPIPE) {
    err << "tarnwick_tables: cannot write the table: " << std::generic_category().message(error)
        << '\n';
  }
  return kCannotWrite;
}

}  // namespace

int RunTables(std::span<const std::string_view> arguments, std::ostream& out, std::ostream& err,
              bool shows_progress) {
  if (arguments.size() != 3) return Refuse(err, "a command and two years are needed");
  const Command* command = FindCommand(arguments[0]);
  if (command == nullptr) return Refuse(err, "unknown command " + std::string(arguments[0]));
  std::int32_t from = 0;
  std::int32_t to = 0;
  if (!ParseYear(arguments[1], from) || !ParseYear(arguments[2], to)) {
    return Refuse(err, "a year is a whole number");
  }
  if (from < kFirstYear || to > kLastYear) return Refuse(err, "years run from -3200 to 6001");
  if (from >= to) return Refuse(err, "FROM must be before TO");

  const Period period{NewYear(from), NewYear(to)};
  Printer printer(period, out, shows_progress ? &err : nullptr);
  const bool done = command->print(period, printer) && out.flush().good();
  const int error = errno;  // progress may change it
  if (shows_progress) err << "\r     \r";
  return done ? kTablesDone : ReportFailedWrite(err, error);
}

}  // namespace tarnwick
