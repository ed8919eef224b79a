#include "moon/moon_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

namespace tarnwick {
namespace {

// How bright each colour is; 1 is the full Moon. The values are those of the pixels, which follow
// the eye rather than the physics.
using Factors = std::array<float, 3>;  // blue, green, red

constexpr Factors kEarthshine{0.25F, 0.20F, 0.165F};
constexpr float kTerminatorLight = 0.28F;  // on the lit side
// Where the picture was enlarged its limb is blurred: so far beyond the disc, of its radius, may
// light have come.
constexpr double kLimbBlur = 0.02;

bool IsQuarter(double fraction) { return fraction > 0.49 && fraction < 0.51; }

// The sunlight that a ground like the Moon's sends back (the law of Lommel and Seeliger), which
// leaves a full Moon as bright at the limb as in the middle. It comes from a table, since a power
// for each pixel would take most of the time of a drawing.
class Sunlight {
 public:
  Sunlight() {
    for (std::size_t i = 0; i < of_reflected_.size(); ++i) {
      const double eased = std::pow(static_cast<double>(i) / kSteps, 0.6);
      of_reflected_[i] = static_cast<float>(std::lerp(kTerminatorLight, 1.0, eased));
    }
  }

  // The cosines of the angles at which the Sun and the observer stand from the zenith.
  float At(float sun, float observer) const {
    if (sun <= 0) return kTerminatorLight;
    const float reflected = std::min(2 * sun / (sun + observer), 1.0F);
    return of_reflected_[static_cast<std::size_t>(reflected * kSteps)];
  }

 private:
  static constexpr int kSteps = 4096;
  std::array<float, kSteps + 1> of_reflected_{};
};

const Sunlight& TheSunlight() {
  static const Sunlight sunlight;
  return sunlight;
}

// A place on the disc, in radii from its centre, x to the right and y down. Beyond the limb the
// light is that of the limb, where the Moon is seen edge-on, but just seen.
struct Spot {
  Spot(float x, float y)
      : from_centre(std::sqrt(x * x + y * y)),
        right(x / std::max(from_centre, 1.0F)),
        observer(std::sqrt(std::max(1 - from_centre * from_centre, 1e-4F))) {}

  float from_centre;
  float right;
  float observer;  // the cosine of the angle at which the observer stands from the zenith
};

// The light of a phase on one row of the disc after another.
class PhaseLight {
 public:
  // `edge` is the width of the terminator, in radii.
  PhaseLight(MoonPhase phase, double edge)
      : side_(phase.waxing ? 1.0F : -1.0F),
        sharpness_(static_cast<float>(1 / edge)),
        inside_(std::max(1 - static_cast<float>(edge / 2), 0.5F)),
        cosine_(static_cast<float>(2 * phase.fraction - 1)),
        sine_(std::sqrt(std::max(1 - cosine_ * cosine_, 0.0F))) {}

  void StartRow(float y) {
    y_ = y;
    terminator_ = TerminatorAt(std::clamp(y, -inside_, inside_));
  }

  // How much of a pixel of the row lies on the lit side. On the limb it is as those just inside it,
  // so that no edge shows along the limb of a full or a new Moon.
  float LitShare(float x, const Spot& spot) const {
    if (spot.from_centre <= inside_) return Share(side_ * x, terminator_);
    const float pull = inside_ / spot.from_centre;
    return Share(side_ * pull * x, TerminatorAt(pull * y_));
  }

  // What its lit part is like.
  float SunlightAt(const Spot& spot) const {
    if (cosine_ == 1) return 1;  // of a full Moon
    return sunlight_.At(side_ * spot.right * sine_ + spot.observer * cosine_, spot.observer);
  }

 private:
  // The terminator is x = -cosine * sqrt(1 - y^2), with the lit side at the right.
  struct Terminator {
    float x;
    float steepness;  // the distance from it, of a step to the right
  };
  Terminator TerminatorAt(float y) const {
    const float half_chord = std::sqrt(1 - y * y);
    const float slope = -cosine_ * y / half_chord;
    return {-cosine_ * half_chord, 1 / std::sqrt(1 + slope * slope)};
  }
  float Share(float sunward, const Terminator& terminator) const {
    const float distance = (sunward - terminator.x) * terminator.steepness;
    return std::clamp(0.5F + distance * sharpness_, 0.0F, 1.0F);
  }

  const Sunlight& sunlight_ = TheSunlight();
  float side_;  // on which it is lit: 1 for the right one
  float sharpness_;
  float inside_;  // so far from the centre no pixel reaches beyond the limb
  float cosine_;  // of the angle Sun - Moon - observer
  float sine_;
  float y_ = 0;
  Terminator terminator_{};
};

// What a pixel has beyond the sky is the Moon's light, and changes with it.
std::uint32_t Changed(std::uint32_t pixel, const Factors& factors) {
  std::uint32_t changed = pixel & 0xff000000U;
  for (unsigned i = 0; i < factors.size(); ++i) {
    const unsigned shift = 8 * i;
    const auto sky = static_cast<float>((kMoonSky >> shift) & 0xffU);
    const auto value = static_cast<float>((pixel >> shift) & 0xffU);
    // Half a step is added, since the conversion cuts off what is behind the point.
    const float lit = std::clamp(sky + (value - sky) * factors[i] + 0.5F, 0.5F, 255.5F);
    changed |= static_cast<std::uint32_t>(lit) << shift;
  }
  return changed;
}

// How much brighter each colour of a place becomes; nothing where it stays in the night.
std::optional<Factors> FactorsAt(float x, const Spot& spot, const PhaseLight& from,
                                 const PhaseLight& to) {
  const float before = from.LitShare(x, spot);
  const float after = to.LitShare(x, spot);
  if (before <= 0 && after <= 0) return std::nullopt;
  const float sun_before = before > 0 ? from.SunlightAt(spot) : 0;
  const float sun_after = after > 0 ? to.SunlightAt(spot) : 0;
  Factors factors{};
  if (before >= 1 && after >= 1) {  // most of the disc: alike for every colour
    factors.fill(sun_after / sun_before);
    return factors;
  }
  for (std::size_t i = 0; i < factors.size(); ++i) {
    const float night = kEarthshine[i];
    factors[i] = (night + (sun_after - night) * after) / (night + (sun_before - night) * before);
  }
  return factors;
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
  const double radius = kMoonDiscRadius * width;
  const auto scale = static_cast<float>(1 / radius);
  const auto from_centre = [&](int index) {
    return (static_cast<float>(2 * index + 1 - width)) / 2 * scale;
  };
  // An enlarged picture has the terminator that was drawn, as wide as a pixel of the drawing.
  const double drawn_edge = std::max(static_cast<double>(width) / kMoonPictureWidth, 1.0);
  PhaseLight before(from, drawn_edge / radius);
  PhaseLight after(to, 1 / radius);
  const double reach = 1 + kLimbBlur + 0.5 / radius;
  const int height = static_cast<int>(pixels.size()) / width;
  // The light is the same above and below the middle.
  for (int row = 0; 2 * row < height; ++row) {
    const float y = from_centre(row);
    if (std::abs(y) >= reach) continue;
    before.StartRow(y);
    after.StartRow(y);
    std::uint32_t* const above = pixels.data() + std::ptrdiff_t{row} * width;
    std::uint32_t* const below = pixels.data() + std::ptrdiff_t{height - 1 - row} * width;
    const double half_chord = radius * std::sqrt(reach * reach - y * y);
    const int first = std::max(static_cast<int>(std::ceil(width / 2.0 - half_chord - 0.5)), 0);
    for (int i = first; i < width - first; ++i) {
      if (above[i] == kMoonSky && below[i] == kMoonSky) continue;
      const float x = from_centre(i);
      const auto factors = FactorsAt(x, Spot(x, y), before, after);
      if (!factors) continue;
      above[i] = Changed(above[i], *factors);
      if (above != below) below[i] = Changed(below[i], *factors);
    }
  }
}

}  // namespace tarnwick
