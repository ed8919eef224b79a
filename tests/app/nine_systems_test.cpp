// Every date on display, typed back, is the same moment again.
#include <gtest/gtest.h>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "moment/time_zone.h"
#include "tests/driver_answers.h"

namespace tarnwick {
namespace {

constexpr double kShown = 0.00011;  // dates are shown with four decimals of a day
constexpr const char* kLabels[] = {
    "lblCommonEraDate",           "lblJulianCalendarDate",     "lblArchetypesDate",
    "lblSarvikDolmerSLCDate",     "lblLTCLunarDate",           "lblKSGDate",
    "lblChronologicalJulianDate", "lblAstronomicalJulianDate", "lblOstrelLWCDate",
};

std::vector<std::string> RunDriver(const std::string& commands) {
  std::vector<std::string> lines;
  std::istringstream answers(DriverAnswers(commands));
  for (std::string line; std::getline(answers, line);) lines.push_back(line);
  return lines;
}

double DisplayedAJD(std::string text) {
  std::erase(text, ',');
  return std::stod(text);
}

TEST(NineSystems, ADisplayedDateTypedBackIsTheSameMinuteInEveryZone) {
  const char* const moments[] = {"-3200-01-02 CE 0:00", "-45-03-15 JC 5:59", "1999-12-31 CE 23:59",
                                 "2024-02-29 CE 6:00", "5999-12-30 CE 18:01"};
  for (const char* const moment : moments) {
    for (const char* const system : {"optLocal", "optGreenwich"}) {
      std::string commands = "start\n";
      for (int zone = 0; zone < kTimeZoneCount; ++zone) {
        commands += "set cboTimeZone " + std::to_string(zone) + "\nclick " + system + "\n";
        for (const char* const label : kLabels) {
          commands += std::string("set txbDate ") + moment +
                      "\nclick cmdCompute\nget lblAstronomicalJulianDate(1)\nclick " + label +
                      "(1)\nclick cmdCompute\nget lblAstronomicalJulianDate(1)\n";
        }
      }
      const auto lines = RunDriver(commands);
      ASSERT_EQ(lines.size(), kTimeZoneCount * std::size(kLabels) * 2);
      for (std::size_t i = 0; i < lines.size(); i += 2) {
        EXPECT_NEAR(DisplayedAJD(lines[i]), DisplayedAJD(lines[i + 1]), kShown)
            << moment << ", " << system << ", zone " << i / 2 / std::size(kLabels) << ", "
            << kLabels[i / 2 % std::size(kLabels)];
      }
    }
  }
}

}  // namespace
}  // namespace tarnwick
