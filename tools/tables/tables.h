// Whole tables of phases, eclipses and dates, and entries converted line by line, by the routines
// that the program itself uses.
#pragma once

#include <iosfwd>
#include <span>
#include <string_view>

#include "engines/instant.h"

namespace tarnwick {

// Exit statuses of the tool.
inline constexpr int kTablesDone = 0;
inline constexpr int kCannotWrite = 1;
inline constexpr int kCannotRead = 1;
inline constexpr int kEntryRefused = 1;
inline constexpr int kBadArguments = 2;

// What the tool is run with. `out` must write bytes as they are.
struct Surroundings {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool shows_progress = false;  // on `err`
  UniversalTime now;            // that calendar files are stamped with
};

// Runs the command line `arguments`, which --help explains: a table as CSV or as calendar file
// (calendar_files.h), or the conversion of entries (convert.h). Writes to `out` and stops as soon
// as that fails, quietly if it is a pipe that nobody reads any more; complaints go to `err`.
int RunTables(std::span<const std::string_view> arguments, const Surroundings& surroundings);

}  // namespace tarnwick
