// How far the beginnings of months and years lie from the new moon and the equinox.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

// Distances in days within one span of years.
struct DriftPoint {
  double year = 0;  // the middle of the span
  double mean = 0;
  double least = 0;
  double largest = 0;
  double deviation = 0;  // standard deviation from the mean
};

struct Drift {
  std::string calendar;
  std::vector<DriftPoint> points;
};

inline constexpr std::int32_t kYearsPerPoint = 100;

// From the nearest new moon to noon (Universal Time) of the first day of each month, by centuries
// from -3200 to 6000, for the calendars whose months follow the Moon.
std::vector<Drift> MonthDrifts();

// From the March equinox of the year to noon of the first day of each year that begins next to it,
// for the calendars whose years follow the Sun.
std::vector<Drift> YearDrifts();

}  // namespace tarnwick
