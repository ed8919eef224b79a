#include "tools/tables/tables.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>
#include <vector>

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/entry_parts.h"
#include "calendars/text.h"
#include "engines/time_units.h"
#include "tools/tables/calendar_files.h"
#include "tools/tables/command_line.h"
#include "tools/tables/convert.h"
#include "tools/tables/moon_tables.h"
#include "tools/tables/printer.h"
#include "tools/tables/sky_tables.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kFirstYear = -3200;
constexpr std::int32_t kLastYear = 6001;

constexpr std::int32_t kFarthestLunation = 70000;  // some 5700 years

constexpr int kFarthestZone = 14 * kMinutesPerHour;

UniversalTime NewYear(std::int32_t year) {
  DateRecord date;
  date.calendar = 'G';
  date.year = year;
  date.month = 1;
  date.day = 1;
  return CJDToAJD(LocalCJD(euro_date_to_jdn(date)), 0);
}

struct Command {
  Syntax syntax;
  int (*run)(const Command& command, const CommandLine& line, const Surroundings& surroundings);
  // Of a table:
  bool (*print)(const GeoPoint& place, const Period& period, Printer& printer) = nullptr;
  bool (*write)(const GeoPoint& place, const Period& period, EventSink& sink) = nullptr;
};

// False for a text that is not such a number as a whole.
template <class Number>
bool Parse(std::string_view text, Number& number) {
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
  return status == std::errc() && end == text.data() + text.size();
}

int Refuse(const Surroundings& surroundings, std::string_view why, const Command& command) {
  surroundings.err << "tarnwick_tables: " << why << "\nusage: " << UsageOf(command.syntax)
                   << "\n'tarnwick_tables " << command.syntax.name << " --help' tells more.\n";
  return kBadArguments;
}

int RefuseCommand(const Surroundings& surroundings, std::string_view why) {
  surroundings.err << "tarnwick_tables: " << why
                   << "\nusage: tarnwick_tables COMMAND ...\n"
                      "'tarnwick_tables --help' names the commands.\n";
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

std::string_view ReadCalendar(std::string_view text, Calendar& calendar) {
  const auto found = CalendarIndex(UpperCase(text));
  if (!found) return "a calendar is one of CE, JC, ARC, SD, LLT, KSG, OLW, CJD and AJD";
  calendar = *found;
  return {};
}

std::string_view ReadZone(std::string_view text, int& offset_minutes) {
  constexpr std::string_view kForm = "+HH:MM";
  int hours = 0;
  int minutes = 0;
  const bool has_form = text.size() == kForm.size() && (text[0] == '+' || text[0] == '-') &&
                        IsDigit(text[1]) && Parse(text.substr(1, 2), hours) && text[3] == ':' &&
                        IsDigit(text[4]) && Parse(text.substr(4), minutes) &&
                        minutes < kMinutesPerHour;
  if (!has_form) return "a zone is +HH:MM east or -HH:MM west of Greenwich";
  offset_minutes = hours * kMinutesPerHour + minutes;
  if (offset_minutes > kFarthestZone) return "zones run from -14:00 to +14:00";
  if (text[0] == '-') offset_minutes = -offset_minutes;
  return {};
}

// Writes by `write`, which returns false when the output takes no more.
template <class Write>
int Finish(const Surroundings& surroundings, const Write& write) {
  const bool done = write() && surroundings.out.flush().good();
  const int error = errno;  // progress may change it
  if (surroundings.shows_progress) surroundings.err << "\r     \r";
  return done ? kTablesDone : ReportFailedWrite(surroundings.err, error);
}

// What lies before the year 1 is not in the file: the user is told.
void ReportLeftOut(std::ostream& err, int count) {
  if (count == 0) return;
  err << "tarnwick_tables: left out, since calendar files begin with the year 1: " << count
      << (count == 1 ? " event\n" : " events\n");
}

int RunTable(const Command& command, const CommandLine& line, const Surroundings& surroundings) {
  GeoPoint place;
  Period period{};
  const std::vector<std::string_view>& operands = line.operands;
  const bool with_place = operands.size() > 2;
  std::string_view wrong = with_place ? ReadPlace(operands[0], operands[1], place) : "";
  if (wrong.empty()) wrong = ReadPeriod(operands[operands.size() - 2], operands.back(), period);
  if (!wrong.empty()) return Refuse(surroundings, wrong, command);

  const Progress progress(period, surroundings.shows_progress ? &surroundings.err : nullptr);
  if (!line.Has("--ics")) {
    Printer printer(surroundings.out, progress);
    return Finish(surroundings, [&] { return command.print(place, period, printer); });
  }
  EventSink sink(surroundings.out, surroundings.now, progress);
  const int status = Finish(surroundings, [&] {
    const bool done = command.write(place, period, sink);
    sink.End();
    return done;
  });
  if (status == kTablesDone) ReportLeftOut(surroundings.err, sink.LeftOut());
  return status;
}

int RunPath(const Command& command, const CommandLine& line, const Surroundings& surroundings) {
  std::int32_t lunation = 0;
  if (!Parse(line.operands[0], lunation)) {
    return Refuse(surroundings, "a lunation is a whole number", command);
  }
  if (std::abs(lunation) > kFarthestLunation) {
    return Refuse(surroundings, "that lunation is out of range", command);
  }
  const std::optional<EclipsePath> path = FindPath(lunation);
  if (!path) return Refuse(surroundings, "no umbra meets the Earth at that new moon", command);
  Printer printer(surroundings.out, Progress({}, nullptr));
  return Finish(surroundings, [&] { return PrintPath(lunation, *path, printer); });
}

int RunConvert(const Command& command, const CommandLine& line, const Surroundings& surroundings) {
  EntryContext context;
  std::string_view wrong =
      ReadCalendar(line.ValueOr("--calendar", AbbreviationOf(kCE)), context.current_calendar);
  if (wrong.empty()) wrong = ReadZone(line.ValueOr("--zone", "+00:00"), context.offset_minutes);
  if (!wrong.empty()) return Refuse(surroundings, wrong, command);
  switch (ConvertLines(surroundings.in, surroundings.out, context)) {
    case Converted::kAll:
      return kTablesDone;
    case Converted::kSomeRefused:
      return kEntryRefused;
    case Converted::kInputFailed:
      surroundings.err << "tarnwick_tables: cannot read standard input\n";
      return kCannotRead;
    case Converted::kOutputFailed:
      break;
  }
  return ReportFailedWrite(surroundings.err, errno);
}

constexpr std::string_view kFromAbout = "the first CE year, -3200 to 6000";
constexpr std::string_view kToAbout = "the CE year that ends the table and is not in it, to 6001";
constexpr std::string_view kLatitudeAbout = "degrees, north positive, -90 to 90";
constexpr std::string_view kLongitudeAbout = "degrees, east positive, -180 to 180";

constexpr std::array<Operand, 2> kPeriodOperands{{{"FROM", kFromAbout}, {"TO", kToAbout}}};
constexpr std::array<Operand, 4> kPlaceOperands{{{"LATITUDE", kLatitudeAbout},
                                                 {"LONGITUDE", kLongitudeAbout},
                                                 {"FROM", kFromAbout},
                                                 {"TO", kToAbout}}};
constexpr std::array<Operand, 1> kPathOperands{
    {{"LUNATION", "its number, counted from the new moon of 2000-01-06 as 0"}}};

constexpr std::array<Option, 1> kTableOptions{
    {{"--ics", "", "prints a calendar file (iCalendar) instead"}}};
constexpr std::array<Option, 2> kConvertOptions{
    {{"--calendar", "ABBREVIATION", "of entries that name none: CE, JC, ... (otherwise CE)"},
     {"--zone", "+HH:MM", "how times are read, east of Greenwich (otherwise +00:00)"}}};

constexpr std::string_view kTimes =
    "Years begin at 0h Universal Time. Instants are AJD, in Terrestrial (tt) and Universal Time\n"
    "(ut); phases are 0 new moon, 1 first quarter, 2 full moon, 3 last quarter.\n";
constexpr std::string_view kPlaceTimes =
    "Years begin at 0h Universal Time. Instants are AJD in Universal Time, angles degrees.\n";

constexpr Command kCommands[] = {
    {{"phases", "the principal phases of the Moon", kTimes, kPeriodOperands, kTableOptions},
     RunTable,
     PrintPhases,
     WritePhases},
    {{"eclipses", "the eclipses, by their greatest phase", kTimes, kPeriodOperands, kTableOptions},
     RunTable,
     PrintEclipses,
     WriteEclipses},
    {{"dates", "the days in seven calendars", "", kPeriodOperands, {}}, RunTable, PrintDates},
    {{"local", "the eclipses that are seen at a place", kPlaceTimes, kPlaceOperands, kTableOptions},
     RunTable,
     PrintLocalEclipses,
     WriteLocalEclipses},
    {{"sun_moon",
      "risings, transits and settings at a place, day by day",
      kPlaceTimes,
      kPlaceOperands,
      {}},
     RunTable,
     PrintSunAndMoon},
    {{"crescents", "the crescents of a place, three evenings and mornings of each Moon",
      "The calendar file has the evening on which each Moon is seen first.\n", kPlaceOperands,
      kTableOptions},
     RunTable,
     PrintCrescents,
     WriteCrescents},
    {{"path",
      "the path of the solar eclipse of a lunation, minute by minute",
      kPlaceTimes,
      kPathOperands,
      {}},
     RunPath},
    {{"convert",
      "the entries that standard input has, one a line, in all calendars",
      "An entry is a date and perhaps a time, as the entry box takes them: 2003-12-31 CE 15:55.\n"
      "A row is written before the next entry is read. A refused entry has its message in the\n"
      "column error; then the status is 1.\n",
      {},
      kConvertOptions},
     RunConvert},
};

std::vector<const Syntax*> AllSyntaxes() {
  std::vector<const Syntax*> all;
  for (const Command& command : kCommands) all.push_back(&command.syntax);
  return all;
}

const Command* FindCommand(std::string_view name) {
  for (const Command& command : kCommands) {
    if (command.syntax.name == name) return &command;
  }
  return nullptr;
}

int Tell(const Surroundings& surroundings, std::string_view help) {
  return Finish(surroundings, [&] { return (surroundings.out << help).good(); });
}

}  // namespace

int RunTables(Texts arguments, const Surroundings& surroundings) {
  if (arguments.empty()) return RefuseCommand(surroundings, "a command is needed");
  if (arguments[0] == kHelpOption.name) return Tell(surroundings, HelpOf(AllSyntaxes()));
  const Command* command = FindCommand(arguments[0]);
  if (command == nullptr) {
    return RefuseCommand(surroundings, "unknown command '" + std::string(arguments[0]) + "'");
  }
  const CommandLine line = ReadCommandLine(command->syntax, arguments.subspan(1));
  if (line.Has(kHelpOption.name)) return Tell(surroundings, HelpOf(command->syntax));
  if (!line.fault.empty()) return Refuse(surroundings, line.fault, *command);
  return command->run(*command, line, surroundings);
}

}  // namespace tarnwick
