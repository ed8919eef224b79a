// Whole tables of phases, eclipses and dates as CSV, by the routines that the program itself uses.
#pragma once

#include <iosfwd>
#include <span>
#include <string_view>

namespace tarnwick {

// Exit statuses of the tool.
inline constexpr int kTablesDone = 0;
inline constexpr int kCannotWrite = 1;
inline constexpr int kBadArguments = 2;

// Runs `phases`, `eclipses` or `dates FROM TO`: every principal phase, every eclipse (by its
// greatest phase) or every day from 1 January of the CE year FROM, 0h Universal Time, up to but not
// including that of TO; `local`, `sun_moon` or `crescents LATITUDE LONGITUDE FROM TO`, the tables
// of sky_tables.h; or `path LUNATION`. Years are -3200 to 6001. Writes the table to `out` and stops
// as soon as that fails, quietly if it is a pipe that nobody reads any more; complaints go to
// `err`, and progress if it `shows_progress`.
int RunTables(std::span<const std::string_view> arguments, std::ostream& out, std::ostream& err,
              bool shows_progress);

}  // namespace tarnwick
