// The path of a central eclipse of the Sun: where the Moon's umbra falls upon the Earth.
//
// The axis of the shadow meets the ellipsoid along the centre line, from the instant at which it
// first touches to that at which it leaves. The umbra, or the antumbra beyond its vertex, sweeps
// over a strip on either side; at the limits of the strip totality or annularity lasts for no time
// at all. The cones are those of shadow_axis.h, the Moon's radius for the umbra 0.272281.
//
// Angles are in radians; latitudes are geodetic, longitudes east of Greenwich in [-pi, pi]; the
// places have height 0, and nothing is refracted.
//
// Source: Explanatory Supplement to the Astronomical Almanac, chapter 8. The limits are found on
// the cone itself instead of by the tables of auxiliaries that are usual there.
#pragma once

#include <optional>

#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/shadow_axis.h"
#include "engines/ephemeris/spheroid.h"
#include "engines/ephemeris/vector3.h"
#include "engines/instant.h"
#include "sky/geo_point.h"

namespace tarnwick {

struct GeodeticPlace {
  double latitude = 0;
  double longitude = 0;
};

inline GeoPoint InDegrees(const GeodeticPlace& place) {
  return {place.latitude / kDegree, place.longitude / kDegree};
}

struct TimeSpan {
  UniversalTime begin;
  UniversalTime end;
};

// A place of the centre line at the instant at which the axis is there.
struct CentralPlace {
  GeodeticPlace place;
  double sun_altitude = 0;
  bool total = false;           // or annular
  double duration_seconds = 0;  // of totality or annularity at the place
  // Width of the strip that the shadow sweeps over the plane tangent to the Earth there. It grows
  // without bound towards the horizon and means little for a Sun lower than 10 degrees.
  double width_km = 0;
};

// Where the edge of the umbra, at an instant, lies farthest to the left and to the right of its way
// over the Earth, so that it touches those places and does not pass over them. The northern one is
// on the left, since the shadow goes east as seen from the Sun; near a pole it may yet have the
// lesser latitude.
struct PathLimits {
  std::optional<GeodeticPlace> north;
  std::optional<GeodeticPlace> south;
};

class EclipsePath {
 public:
  // By an instant within minutes of the new moon, and delta T (Terrestrial less Universal Time) in
  // days, which holds for the whole eclipse.
  EclipsePath(TerrestrialTime new_moon, double delta_t);

  // When the axis passes nearest to the Earth's centre.
  UniversalTime Greatest() const { return InUniversalTime(greatest_); }

  // From the first to the last instant at which the axis meets the Earth. Nothing if it never does:
  // in non-central and partial eclipses, and at a new moon without one.
  const std::optional<TimeSpan>& CentralPhase() const { return central_; }

  // From the first to the last touch of umbra or antumbra. Nothing if they miss the Earth. The
  // limits lie within it, though not all along: at either end one begins after the other.
  const std::optional<TimeSpan>& UmbralPhase() const { return umbral_; }

  // The place of the centre line. Nothing outside the central phase.
  std::optional<CentralPlace> CentreAt(UniversalTime instant) const;

  // The limits, of non-central eclipses too. Each is empty where that side of the shadow goes past
  // the Earth.
  PathLimits LimitsAt(UniversalTime instant) const;

 private:
  // The shadow at an instant and shortly before and after, in the frame that turns with the Earth.
  struct ShadowOnItsWay {
    Shadow before;
    Shadow now;
    Shadow after;
  };

  UniversalTime InUniversalTime(double offset) const {
    return UniversalTime(new_moon_ - delta_t_ + offset);
  }
  double OffsetOf(UniversalTime instant) const { return instant.days - (new_moon_ - delta_t_); }

  Shadow ShadowAt(double offset) const;
  ShadowOnItsWay ShadowAround(double offset) const;
  std::optional<TimeSpan> FindCentralPhase() const;
  std::optional<TimeSpan> FindUmbralPhase() const;
  static std::optional<Vector3> StillEdge(const ShadowOnItsWay& shadow, double side);
  double DurationAt(const Vector3& place, double inside) const;

  MoonSunTrack track_;
  double new_moon_;  // AJD, Terrestrial Time
  double delta_t_;
  double greatest_;  // days after new_moon_
  std::optional<TimeSpan> central_;
  std::optional<TimeSpan> umbral_;
};

}  // namespace tarnwick
