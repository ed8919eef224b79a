// Prints tables of phases, eclipses and dates for readers who want a whole one.
#include <chrono>
#include <iostream>
#include <string_view>
#include <vector>

#include "desktop/terminal.h"
#include "engines/time_units.h"
#include "tools/tables/tables.h"

namespace {

tarnwick::UniversalTime Now() {
  constexpr double kEpoch = 2440587.5;  // 1970-01-01
  const std::chrono::duration<double> since = std::chrono::system_clock::now().time_since_epoch();
  return tarnwick::UniversalTime(kEpoch + since.count() / tarnwick::kSecondsPerDay);
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  tarnwick::KeepLineEnds();
  const std::vector<std::string_view> arguments(argv + 1, argv + argc);
  return tarnwick::RunTables(
      arguments, {std::cin, std::cout, std::cerr, tarnwick::ErrorsGoToTerminal(), Now()});
}
