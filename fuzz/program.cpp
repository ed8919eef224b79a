// The whole program by the driver's commands, one a line, so that an input that fails is a script
// for tarnwick_driver. In the end it quits, and the next start shows what it showed.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>

#include "calendars/text.h"
#include "fuzz/check.h"
#include "fuzz/checked_driver.h"
#include "fuzz/command_lines.h"
#include "moment/session.h"

namespace tarnwick {
namespace {

// Only files of the run's own are written, and no command goes on for ever.
std::string Harmless(const std::string& line) {
  constexpr std::string_view kTick = "tick ";
  constexpr std::size_t kMostDigits = 2;
  if (line.find("file") != std::string::npos) {
    return "answer file " + (ScratchFolder() / "saved").string();
  }
  const std::size_t tick = line.find(kTick);
  if (tick == std::string::npos) return line;
  const std::size_t number = line.find_first_of("0123456789", tick + kTick.size());
  if (number == std::string::npos) return line;
  return line.substr(0, number + kMostDigits);
}

// What the next start shows again.
constexpr const char* kKept[] = {"lblAstronomicalJulianDate(1)",
                                 "lblTime(1)",
                                 "lblCommonEraDate(1)",
                                 "lblJulianCalendarDate(1)",
                                 "lblArchetypesDate(1)",
                                 "lblSarvikDolmerSLCDate(1)",
                                 "lblLTCLunarDate(1)",
                                 "lblKSGDate(1)",
                                 "lblOstrelLWCDate(1)",
                                 "lblChronologicalJulianDate(1)",
                                 "lblOstrelLWCDate(1).Selected",
                                 "lblActualEclipseData",
                                 "optGreenwich",
                                 "optMoveDirection(0)",
                                 "optPlus",
                                 "optNext",
                                 "cboTimeZone",
                                 "cboMoveStep",
                                 "cboRefreshPeriod",
                                 "cboMonthCalendar",
                                 "chkRepeatedly",
                                 "chkLog",
                                 "frmLogPreferences.optLogFormat(0)",
                                 "frmLogPreferences.chkIncludeOLWC"};

// No command of the driver, but one that its answers show the place of.
constexpr std::string_view kMark = "#";

// Asks for all that is kept, quits, starts and asks again.
std::string Restart() {
  std::string questions(kMark);
  for (const char* const name : kKept) questions += std::string("\nget ") + name;
  return "click cmdStop\nstart\n" + questions + "\nclose frmMain\nstart\n" + questions + "\n";
}

// A move may end one step beyond the limits, where the next start does not begin.
bool IsWithinLimits(std::string_view ajd) {
  const UniversalTime moment(LeadingNumber(RemoveChars(ajd, ",")));
  return moment >= kLowerLimit && moment <= kUpperLimit;
}

void CheckRestart(std::string_view answers) {
  const std::string mark = "error: unknown command: " + std::string(kMark) + "\n";
  const std::size_t second = answers.rfind(mark);
  const std::size_t first = answers.rfind(mark, second - 1);
  const std::string_view after = answers.substr(second + mark.size());
  const std::string_view before = answers.substr(first + mark.size(), second - first - mark.size());
  if (IsWithinLimits(before)) CheckAlike(before, after, "the next start shows what was shown");
}

}  // namespace
}  // namespace tarnwick

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t max_size, unsigned int seed) {
  using namespace tarnwick;
  Random random(seed);
  Lines lines = LinesOf(data, size);
  MutateLines(lines, random);
  return WriteLines(lines, data, max_size);
}

// The beginning of the one and the end of the other.
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* first, std::size_t first_size,
                                                 const std::uint8_t* second,
                                                 std::size_t second_size, std::uint8_t* out,
                                                 std::size_t max_out_size, unsigned int seed) {
  using namespace tarnwick;
  Random random(seed);
  Lines lines = LinesOf(first, first_size);
  const Lines others = LinesOf(second, second_size);
  if (lines.empty() || others.empty()) return WriteLines(others, out, max_out_size);
  lines.resize(1 + random() % lines.size());
  lines.insert(lines.end(), others.begin() + static_cast<std::ptrdiff_t>(random() % others.size()),
               others.end());
  return WriteLines(lines, out, max_out_size);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  for (const auto& file : std::filesystem::directory_iterator(ScratchFolder())) {
    std::filesystem::remove(file);
  }
  std::string commands = "statefile " + (ScratchFolder() / "state.usr").string() + "\nstart\n";
  for (const std::string& line : LinesOf(data, size)) commands += Harmless(line) + "\n";
  std::ostringstream answers;
  RunChecked(commands + Restart(), answers);
  CheckRestart(answers.str());
  return 0;
}
