// Eclipses of the Sun.
//
// The shadow of shadow_axis.h sweeps over the ellipsoid of spheroid.h. Greatest eclipse is the
// instant at which the axis passes nearest to the Earth's centre, and gamma that distance.
//
// The eclipse is central when the axis meets the ellipsoid. The line of its places begins and ends
// where the axis touches. What is seen on it depends on the sign of the umbra's radius L2 at the
// ellipsoid. The surface rises towards the Moon steeply from either end of the line, so that L2 is
// greatest at one of the ends and has a single minimum between: annular everywhere if that minimum
// is positive, total everywhere if both ends are negative, annular-total otherwise.
//
// When the axis misses, umbra or antumbra may still graze the ellipsoid. Two convex bodies are
// apart when a plane separates them; for a cone beside the limb it may be taken tangent to the
// cone.
//
// Unit of length: the Earth's equatorial radius. Times are days from the middle of the track.
#include <cmath>

#include "engines/ephemeris/bounded_search.h"
#include "engines/ephemeris/eclipse.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/shadow_axis.h"
#include "engines/ephemeris/spheroid.h"

namespace tarnwick {
namespace {

// No eclipse when the axis passes the Earth's centre farther off: the penumbra reaches to 1.571.
constexpr double kFarthestGamma = 1.7;
// A central line lasts 4.0 hours at most.
constexpr double kHalfCentralLine = 0.12;
// The flattening puts the deepest contact of shadow and ellipsoid up to half a minute off greatest
// eclipse, and makes it deeper than it was then by 1e-5. The bounds are wide of that.
constexpr double kContactShift = 0.003;
constexpr double kContactDeepening = 1e-3;

bool MayMeetEarth(const MoonAndSunVectors& places) {
  if (Dot(places.moon.value, places.sun.value) < 0) return false;
  const MovingVector foot = ShadowAxisFoot(places);
  return Length(foot.value + TimeToClosest(foot) * foot.rate) < kFarthestGamma &&
         std::abs(TimeToClosest(foot)) < MoonSunTrack::kReach;
}

// A new moon whose shadow comes near the Earth.
class Passage {
 public:
  Passage(double middle, const MoonAndSunVectors& places)
      : track_(middle, places),
        earth_(Spheroid::EarthAt(middle)),
        greatest_(track_.ClosestApproach(ShadowAxisFoot)) {}

  double Greatest() const { return greatest_; }
  double Gamma() const;
  EclipseType FindType() const;
  double Magnitude() const;

 private:
  Shadow ShadowAt(double offset) const { return ShadowOf(track_.At(offset)); }
  double AxisExcess(double offset) const { return earth_.ChordOf(ShadowAt(offset).axis).excess; }

  template <class Function>
  double Deepest(const Function& excess) const;
  template <class SelectCone>
  bool Meets(const SelectCone& select) const;

  EclipseType CentralType(double on_line) const;
  EclipseType NonCentralType() const;
  double UmbraRadius(double offset, double Spheroid::Chord::*height) const;

  MoonSunTrack track_;
  Spheroid earth_;
  double greatest_;
};

double Passage::Gamma() const {
  const Vector3 foot = ShadowAt(greatest_).axis.foot;
  return std::copysign(Length(foot), foot.z);
}

// When a measure of the distance between shadow and ellipsoid is least, as far as it takes to know
// whether it falls to 0: greatest eclipse itself unless it stays just above 0 then.
template <class Function>
double Passage::Deepest(const Function& excess) const {
  const double at_greatest = excess(greatest_);
  if (at_greatest <= 0 || at_greatest > kContactDeepening) return greatest_;
  return MinimumBetween(excess, greatest_ - kContactShift, greatest_ + kContactShift);
}

template <class SelectCone>
bool Passage::Meets(const SelectCone& select) const {
  const auto gap = [&](double offset) {
    const Shadow shadow = ShadowAt(offset);
    return earth_.FarthestTangentPlane(shadow.axis, select(shadow)).gap;
  };
  return gap(Deepest(gap)) <= 0;
}

EclipseType Passage::FindType() const {
  const auto axis_excess = [this](double offset) { return AxisExcess(offset); };
  const double deepest = Deepest(axis_excess);
  return axis_excess(deepest) <= 0 ? CentralType(deepest) : NonCentralType();
}

// L2 on the central line: at the upper height, or the middle one at the ends, where the two are one
// and the middle height is the less sensitive to the instant.
double Passage::UmbraRadius(double offset, double Spheroid::Chord::*height) const {
  const Shadow shadow = ShadowAt(offset);
  return RadiusAt(shadow.antumbra, earth_.ChordOf(shadow.axis).*height);
}

EclipseType Passage::CentralType(double on_line) const {
  const auto axis_excess = [this](double offset) { return AxisExcess(offset); };
  const auto umbra = [this](double offset) { return UmbraRadius(offset, &Spheroid::Chord::upper); };
  const double begin = RootBetween(axis_excess, on_line, on_line - kHalfCentralLine);
  const double end = RootBetween(axis_excess, on_line, on_line + kHalfCentralLine);
  const bool annular_begin = UmbraRadius(begin, &Spheroid::Chord::middle) > 0;
  const bool annular_end = UmbraRadius(end, &Spheroid::Chord::middle) > 0;
  if (annular_begin != annular_end) return kCentralAnnularTotalSolar;
  if (!annular_begin) return kCentralTotalSolar;
  const bool annular_between = umbra(MinimumBetween(umbra, begin, end)) > 0;
  return annular_between ? kCentralAnnularSolar : kCentralAnnularTotalSolar;
}

EclipseType Passage::NonCentralType() const {
  const bool annular = Meets([](const Shadow& shadow) { return shadow.antumbra; });
  const bool total = Meets([](const Shadow& shadow) { return Opposite(shadow.antumbra); });
  if (annular && total) return kNonCentralAnnularTotalSolar;
  if (annular) return kNonCentralAnnularSolar;
  if (total) return kNonCentralTotalSolar;
  return Meets([](const Shadow& shadow) { return shadow.penumbra; }) ? kPartialSolar : kNotEclipsed;
}

// On the central line at greatest eclipse, or at the point of the limb nearest to the axis.
double Passage::Magnitude() const {
  const Shadow shadow = ShadowAt(greatest_);
  const Spheroid::Chord chord = earth_.ChordOf(shadow.axis);
  if (chord.excess <= 0) {
    const double l1 = RadiusAt(shadow.penumbra, chord.upper);
    const double l2 = RadiusAt(shadow.antumbra, chord.upper);
    return (l1 - l2) / (l1 + l2);
  }
  const TangentPlane limb = earth_.FarthestTangentPlane(shadow.axis, Cone{});
  const double zeta = earth_.HeightOf(limb, shadow.axis);
  const double l1 = RadiusAt(shadow.penumbra, zeta);
  const double l2 = RadiusAt(shadow.antumbra, zeta);
  return (l1 - limb.gap) / (l1 + l2);
}

}  // namespace

Eclipse SolarEclipseNear(double new_moon, const MoonAndSun& positions) {
  const MoonAndSunVectors places = VectorsOf(positions);
  if (!MayMeetEarth(places)) return {};
  const Passage passage(new_moon, places);
  Eclipse eclipse;
  eclipse.type = passage.FindType();
  if (eclipse.type == kNotEclipsed) return {};
  eclipse.greatest = new_moon + passage.Greatest();
  eclipse.gamma = passage.Gamma();
  eclipse.magnitude = passage.Magnitude();
  return eclipse;
}

}  // namespace tarnwick
