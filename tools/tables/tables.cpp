#include "tools/tables/tables.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
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
#include "tools/tables/sky_tables.h"
#include "tools/tables/visit.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kFirstYear = -3200;
constexpr std::int32_t kLastYear = 6001;

constexpr std::int32_t kFarthestLunation = 70000;  // some 5700 years

constexpr std::string_view kUsage =
    "usage: tarnwick_tables phases|eclipses|dates FROM TO\n"
    "       tarnwick_tables local|sun_moon|crescents LATITUDE LONGITUDE FROM TO\n"
    "       tarnwick_tables path LUNATION\n"
    "Prints as CSV, from 1 January of the CE year FROM up to but not including that of TO, years\n"
    "-3200 to 6001: every principal phase, eclipse or day; the eclipses that are seen at a place, "
    "its\n"
    "risings and settings, its crescents; or the path of the solar eclipse of a lunation. "
    "Latitudes\n"
    "and longitudes are degrees, north and east positive.\n";

UniversalTime NewYear(std::int32_t year) {
  DateRecord date;
  date.calendar = 'G';
  date.year = year;
  date.month = 1;
  date.day = 1;
  return CJDToAJD(LocalCJD(euro_date_to_jdn(date)), 0);
}

bool PrintPhases(const Period& period, Printer& printer) {
  const std::string header = "lunation,phase,tt,ut";
  if (!printer.Print(period.begin, header)) return false;
  return VisitFound(PhaseFinder(period), [&](const FoundPhase& found) {
    const std::array cells{std::to_string(found.at.lunation), std::to_string(found.at.phase),
                           Cell(found.event.tt), Cell(found.event.ut)};
    return printer.Print(found.event.ut, Join(cells));
  });
}

std::string EclipseRow(const ListedEclipse& found) {
  const EclipseRecord& eclipse = found.record;
  const std::array cells{std::to_string(found.at.lunation),
                         std::to_string(found.at.phase),
                         std::to_string(eclipse.type),
                         std::to_string(eclipse.saros),
                         Cell(TerrestrialTime(eclipse.greatest)),
                         Cell(found.greatest),
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
  return VisitFound(EclipseFinder(period, kAnyEclipseTarget), [&](const ListedEclipse& found) {
    return printer.Print(found.greatest, EclipseRow(found));
  });
}

constexpr std::array kDateColumns{kCE, kJC, kARC, kSD, kLLT, kKSG, kOLW};

bool PrintDates(const Period& period, Printer& printer) {
  std::string header = "day_number,weekday";
  for (const Calendar calendar : kDateColumns)
    header += "," + std::string(AbbreviationOf(calendar));
  if (!printer.Print(period.begin, header)) return false;
  const DayNumber end = DayOf(period.end, 0);
  std::string row;
  for (DayNumber day = DayOf(period.begin, 0); day < end; day = day + 1) {
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

// What stands behind the name of a command.
enum class Takes { kPeriod, kPlaceAndPeriod };

struct Command {
  std::string_view name;
  Takes takes;
  bool (*print)(const GeoPoint& place, const Period& period, Printer& printer);
};

template <bool (*kPrint)(const Period&, Printer&)>
bool Everywhere(const GeoPoint& /*place*/, const Period& period, Printer& printer) {
  return kPrint(period, printer);
}

constexpr Command kCommands[] = {
    {"phases", Takes::kPeriod, Everywhere<PrintPhases>},
    {"eclipses", Takes::kPeriod, Everywhere<PrintEclipses>},
    {"dates", Takes::kPeriod, Everywhere<PrintDates>},
    {"local", Takes::kPlaceAndPeriod, PrintLocalEclipses},
    {"sun_moon", Takes::kPlaceAndPeriod, PrintSunAndMoon},
    {"crescents", Takes::kPlaceAndPeriod, PrintCrescents},
};

const Command* FindCommand(std::string_view name) {
  for (const Command& command : kCommands) {
    if (command.name == name) return &command;
  }
  return nullptr;
}

// False for a text that is not such a number as a whole.
template <class Number>
bool Parse(std::string_view text, Number& number) {
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
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

using Texts = std::span<const std::string_view>;

// Each returns what is wrong, or nothing.

std::string_view ReadPeriod(std::string_view from_text, std::string_view to_text, Period& period) {
  std::int32_t from = 0;
  std::int32_t to = 0;
  if (!Parse(from_text, from) || !Parse(to_text, to)) return "a year is a whole number";
  if (from < kFirstYear || to > kLastYear) return "years run from -3200 to 6001";
  if (from >= to) return "FROM must be before TO";
  period = {NewYear(from), NewYear(to)};
  return {};
}

std::string_view ReadPlace(std::string_view latitude, std::string_view longitude, GeoPoint& place) {
  if (!Parse(latitude, place.latitude) || !Parse(longitude, place.longitude)) {
    return "a latitude or longitude is a number of degrees";
  }
  if (!(std::abs(place.latitude) <= 90)) return "a latitude runs from -90 to 90";
  if (!(std::abs(place.longitude) <= 180)) return "a longitude runs from -180 to 180";
  return {};
}

// Prints by `print`, which returns false when the output takes no more.
template <class Print>
int Finish(const Period& period, std::ostream& out, std::ostream& err, bool shows_progress,
           const Print& print) {
  Printer printer(period, out, shows_progress ? &err : nullptr);
  const bool done = print(printer) && out.flush().good();
  const int error = errno;  // progress may change it
  if (shows_progress) err << "\r     \r";
  return done ? kTablesDone : ReportFailedWrite(err, error);
}

int RunPath(Texts arguments, std::ostream& out, std::ostream& err) {
  std::int32_t lunation = 0;
  if (arguments.size() != 1 || !Parse(arguments[0], lunation)) {
    return Refuse(err, "path needs a lunation, a whole number");
  }
  if (std::abs(lunation) > kFarthestLunation) return Refuse(err, "that lunation is out of range");
  const std::optional<EclipsePath> path = FindPath(lunation);
  if (!path) return Refuse(err, "no umbra meets the Earth at that new moon");
  return Finish({}, out, err, false,
                [&](Printer& printer) { return PrintPath(lunation, *path, printer); });
}

}  // namespace

int RunTables(std::span<const std::string_view> arguments, std::ostream& out, std::ostream& err,
              bool shows_progress) {
  if (arguments.empty()) return Refuse(err, "a command is needed");
  const Texts rest = arguments.subspan(1);
  if (arguments[0] == "path") return RunPath(rest, out, err);
  const Command* command = FindCommand(arguments[0]);
  if (command == nullptr) return Refuse(err, "unknown command " + std::string(arguments[0]));

  GeoPoint place;
  Period period{};
  const bool with_place = command->takes == Takes::kPlaceAndPeriod;
  if (rest.size() != (with_place ? 4U : 2U)) {
    return Refuse(err, with_place ? "a latitude, a longitude and two years are needed"
                                  : "two years are needed");
  }
  std::string_view wrong = with_place ? ReadPlace(rest[0], rest[1], place) : "";
  if (wrong.empty()) wrong = ReadPeriod(rest[rest.size() - 2], rest.back(), period);
  if (!wrong.empty()) return Refuse(err, wrong);
  return Finish(period, out, err, shows_progress,
                [&](Printer& printer) { return command->print(place, period, printer); });
}

}  // namespace tarnwick
