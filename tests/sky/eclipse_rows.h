// Reading of the reference rows of eclipses at places.
#pragma once

#include <cmath>
#include <string>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "engines/time_units.h"
#include "sky/eclipse_course.h"
#include "tests/error_statistics.h"
#include "tests/reference_data.h"
#include "tests/sky/reference_row.h"

namespace tarnwick {

inline EclipseRecord EclipseOf(std::int32_t lunation, std::int32_t phase) {
  EclipseRecord record;
  syzyg(lunation, phase, record);
  return record;
}

// By delta T in seconds.
inline EclipseCourse CourseOf(const EclipseRecord& record, double delta_t) {
  return {TerrestrialTime(record.greatest), delta_t / kSecondsPerDay};
}

inline double SecondsFrom(UniversalTime found, const ReferenceRow& row, const std::string& column) {
  return (found.days - NumberIn(row, column)) * kSecondsPerDay;
}

// Errors of directions, in degrees.
struct DirectionErrors {
  void Add(const Horizontal& found, const ReferenceRow& row, const std::string& suffix) {
    const double height = NumberIn(row, "alt_" + suffix);
    altitude.Add(found.altitude / kDegree - height);
    if (!row.contains("az_" + suffix)) return;
    const double turn = found.azimuth / kDegree - NumberIn(row, "az_" + suffix);
    azimuth.Add(std::remainder(turn, 360) * std::cos(height * kDegree));
  }
  void Judge() const {
    altitude.Print("altitude", "degrees");
    azimuth.Print("azimuth x cos(altitude)", "degrees");
    EXPECT_LT(altitude.Largest(), 0.004);
    EXPECT_LT(azimuth.Largest(), 0.005);
  }
  ErrorStatistics altitude;
  ErrorStatistics azimuth;
};

}  // namespace tarnwick
