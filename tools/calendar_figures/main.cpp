// Draws the figures of docs/calendars.md into a folder and prints the numbers of its tables.
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <string>

#include "tools/calendar_figures/drift.h"
#include "tools/calendar_figures/svg.h"

namespace {

using tarnwick::Drift;
using tarnwick::DriftPoint;

void PrintTable(const std::string& heading, const std::vector<Drift>& drifts) {
  std::cout << heading << "\ncalendar  century      mean     least   largest  deviation\n"
            << std::fixed << std::setprecision(2);
  for (const Drift& drift : drifts) {
    for (const DriftPoint& point : drift.points) {
      std::cout << std::setw(8) << drift.calendar << std::setw(9) << static_cast<int>(point.year)
                << std::setw(10) << point.mean << std::setw(10) << point.least << std::setw(10)
                << point.largest << std::setw(11) << point.deviation << '\n';
    }
  }
}

bool Write(const std::filesystem::path& file, const std::string& text) {
  std::ofstream out(file, std::ios::binary);
  out << text;
  return out.flush().good();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: tarnwick_calendar_figures FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder(argv[1]);
  const auto months = tarnwick::MonthDrifts();
  const auto years = tarnwick::YearDrifts();
  PrintTable("From the new moon to the first noon of the month, days", months);
  PrintTable("From the March equinox to the first noon of the year, days", years);
  const bool written =
      Write(folder / "calendars-moon.svg",
            tarnwick::DriftFigure(months, "First noon of the month, mean and range by centuries",
                                  "days after the new moon")) &&
      Write(folder / "calendars-sun.svg",
            tarnwick::DriftFigure(years, "First noon of the year, mean and range by centuries",
                                  "days after the March equinox"));
  if (!written) std::cerr << "cannot write to " << folder << '\n';
  return written ? 0 : 1;
}
