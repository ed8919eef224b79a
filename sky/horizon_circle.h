// Where on the Earth a body is above the horizon at an instant: within a circle about the place
// that has it in the zenith.
//
// In geodetic latitude and longitude that circle is one on a sphere, since altitudes count against
// the geodetic vertical: exactly so for a body far away, to 0.004 degrees for the Moon.
#pragma once

#include <vector>

#include "engines/ephemeris/vector3.h"
#include "sky/geo_point.h"

namespace tarnwick {

struct HorizonCircle {
  GeoPoint zenith;
  double radius = 90;  // degrees, at most 90
};

// Of a body far away, by its centre and without refraction. The vector, in the frame of EarthFrame,
// may have any length.
HorizonCircle GeometricHorizon(const Vector3& body);

// Of the Moon, by its upper limb above the horizon that is seen. The vector goes to it from the
// Earth's centre, in the frame of EarthFrame and in equatorial radii.
HorizonCircle MoonsVisibleHorizon(const Vector3& moon);

bool IsUp(const HorizonCircle& circle, const GeoPoint& point);

// The circle: points a quarter of a degree apart, the last one the same as the first.
std::vector<GeoPoint> EdgeOf(const HorizonCircle& circle);

// The part of an equirectangular map where the body is down, as an area: closed from its last point
// to its first, along the edges of the map too.
std::vector<GeoPoint> AreaBelow(const HorizonCircle& circle);

}  // namespace tarnwick
