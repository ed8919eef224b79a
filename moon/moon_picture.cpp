#include "moon/moon_picture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarnwick {
namespace {

// How bright each colour is; 1 is the full Moon. The values are those of the pixels, which follow
// the eye rather than the physics.
using Light = std::array<double, 3>;  // blue, green, red

constexpr Light kEarthshine{0.25, 0.20, 0.165};
constexpr double kTerminatorLight = 0.28;  // on the lit side
// Where the picture was enlarged its limb is blurred: so far beyond the disc, of its radius, may
// light have come.
constexpr double kLimbBlur = 0.02;

bool IsQuarter(double fraction) { return fraction > 0.49 && fraction < 0.51; }

// A disc in the plane of the picture: x to the right, y down, both in pixels from the centre.
class Disc {
 public:
  explicit Disc(int width) : width_(width), radius_(kMoonDiscRadius * width) {}

  double FromCentre(int index) const { return index + 0.5 - width_ / 2.0; }
  bool Covers(double x, double y) const {
    return std::hypot(x, y) < radius_ * (1 + kLimbBlur) + 0.5;
  }
  // `edge` is the width of the terminator, in pixels.
  Light LightAt(double x, double y, MoonPhase phase, double edge) const;

 private:
  int width_;
  double radius_;
};

// How much of a pixel lies on the lit side. The terminator is x = shape * sqrt(radius^2 - y^2) with
// the lit side at the right. On the limb a pixel is as those just inside it, so that no edge shows
// along the limb of a full or a new Moon.
double LitShare(double x, double y, double radius, double shape, double edge) {
  const double inside = std::max(radius - edge / 2, radius / 2);
  const double pull = std::min(inside / std::max(std::hypot(x, y), 1e-9), 1.0);
  const double half_chord = std::sqrt(radius * radius - pull * pull * y * y);
  const double slope = shape * pull * y / half_chord;
  const double distance = (pull * x - shape * half_chord) / std::hypot(1.0, slope);
  return std::clamp(0.5 + distance / edge, 0.0, 1.0);
}

// The sunlight that a ground like the Moon's sends back (the law of Lommel and Seeliger), which
// leaves a full Moon as bright at the limb as in the middle. Arguments: the cosines of the angles
// at which the Sun and the observer stand from the zenith.
double Sunlight(double sun, double observer) {
  if (sun <= 0) return kTerminatorLight;
  const double reflected = std::min(2 * sun / (sun + observer), 1.0);
  return kTerminatorLight + (1 - kTerminatorLight) * std::pow(reflected, 0.6);
}

Light Disc::LightAt(double x, double y, MoonPhase phase, double edge) const {
  const double sunward = phase.waxing ? x : -x;
  const double lit = LitShare(sunward, y, radius_, 1 - 2 * phase.fraction, edge);
  // Beyond the limb the light is that of the limb, where the Moon is seen edge-on, but just seen.
  const double reach = std::max(std::hypot(x, y), radius_);
  const double right = sunward / reach;
  const double observer = std::sqrt(std::max(1 - (x * x + y * y) / (reach * reach), 1e-4));
  const double cosine = 2 * phase.fraction - 1;  // of the angle Sun - Moon - observer
  const double sun = right * std::sqrt(std::max(1 - cosine * cosine, 0.0)) + observer * cosine;

  Light light;
  std::transform(kEarthshine.begin(), kEarthshine.end(), light.begin(),
                 [&](double night) { return std::lerp(night, Sunlight(sun, observer), lit); });
  return light;
}

// What a pixel has beyond the sky is the Moon's light, and changes with it.
std::uint32_t Changed(std::uint32_t pixel, const Light& before, const Light& after) {
  std::uint32_t changed = pixel & 0xff000000U;
  for (unsigned i = 0; i < before.size(); ++i) {
    const unsigned shift = 8 * i;
    const double sky = (kMoonSky >> shift) & 0xffU;
    const double value = (pixel >> shift) & 0xffU;
    const double lit = sky + (value - sky) * after[i] / before[i];
    changed |= static_cast<std::uint32_t>(std::lround(std::clamp(lit, 0.0, 255.0))) << shift;
  }
  return changed;
}

MoonPhase PhaseOfPicture(std::string_view file, bool waxing) {
  if (file == "darkmoon.bmp") return {0, waxing};
  return {file == "fullmoon.bmp" ? 1 : 0.5, waxing};
}

}  // namespace

std::string_view MoonPictureFile(double fraction, bool waxing) {
  if (fraction < 0.01) return "darkmoon.bmp";
  if (fraction >= 0.5 && !IsQuarter(fraction)) return "fullmoon.bmp";
  return waxing ? "1stquarter.bmp" : "lastquarter.bmp";
}

bool HasOwnPicture(double fraction, bool /*waxing*/) {
  return fraction < 0.01 || IsQuarter(fraction) || fraction > 0.99;
}

void DrawTerminator(std::span<std::uint32_t> pixels, int width, double fraction, bool waxing) {
  const MoonPhase drawn = PhaseOfPicture(MoonPictureFile(fraction, waxing), waxing);
  Relight(pixels, width, drawn, {fraction, waxing});
}

void Relight(std::span<std::uint32_t> pixels, int width, MoonPhase from, MoonPhase to) {
  if (width <= 0) return;
  const Disc disc(width);
  // An enlarged picture has the terminator that was drawn, as wide as a pixel of the drawing.
  const double drawn_edge = std::max(static_cast<double>(width) / kMoonPictureWidth, 1.0);
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const double x = disc.FromCentre(static_cast<int>(i) % width);
    const double y = disc.FromCentre(static_cast<int>(i) / width);
    if (!disc.Covers(x, y)) continue;
    pixels[i] = Changed(pixels[i], disc.LightAt(x, y, from, drawn_edge), disc.LightAt(x, y, to, 1));
  }
}

}  // namespace tarnwick
