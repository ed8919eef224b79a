#include "tools/moon_pictures/moon_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "tools/moon_pictures/near_side.h"

namespace tarnwick {
namespace {

constexpr int kSamples = 3;  // each way in a pixel

using Shades = std::array<double, 3>;  // blue, green, red; 0 to 255

Shades Sky() { return {kMoonSky & 0xffU, (kMoonSky >> 8U) & 0xffU, (kMoonSky >> 16U) & 0xffU}; }

// Slopes that lean to the Sun are brighter, those that lean away darker, the more so the lower the
// Sun stands. The full Moon is flat: its Sun stands behind us, and no shadow is seen.
double ReliefAt(Vector3 place, Vector3 sun) {
  constexpr double kStep = 0.004;
  const double altitude = Dot(place, sun);
  const double aside = std::abs(sun.x);
  if (altitude < 0 || aside < 0.01) return 0;
  const Vector3 level = sun - altitude * place;
  const double length = Length(level);
  const Vector3 ahead = place + kStep / std::max(length, 0.01) * level;
  const double slope = (HeightAt(ahead) - HeightAt(place)) / kStep;
  const double strength = aside * length / (altitude + 0.2);
  return std::clamp(-0.18 * slope * strength, -0.4, 0.25);
}

Shades ColorAt(Vector3 place, Vector3 sun) {
  const Ground ground = GroundAt(place);
  const double limb = 0.86 + 0.14 * std::sqrt(place.z);
  const double relief = 1 + ground.roughness * ReliefAt(place, sun);
  const double light = 250 * std::clamp(ground.brightness * limb * relief, 0.0, 1.0);
  const double blue = 0.035 * ground.blueness;
  return {light * (0.925 + blue), light * (0.965 + blue / 3), light * (1 - blue)};
}

// The direction of the Sun. Its angle from the Earth's follows from the fraction that it lights.
Vector3 SunAt(MoonPhase phase) {
  const double cosine = 2 * phase.fraction - 1;
  const double sine = std::sqrt(1 - cosine * cosine);
  return {phase.waxing ? sine : -sine, 0, cosine};
}

// A point in the plane of the picture, in radii to the right and up from the middle of the disc.
Shades SampleAt(double x, double y, Vector3 sun) {
  const double beyond = 1 - x * x - y * y;
  return beyond < 0 ? Sky() : ColorAt({x, y, std::sqrt(beyond)}, sun);
}

// The mean of the samples of a pixel.
std::uint32_t PixelAt(int width, int column, int row, Vector3 sun) {
  const double radius = kMoonDiscRadius * width;
  Shades sum{};
  const auto offset = [&](int pixel, int sample) {
    return (pixel + (sample + 0.5) / kSamples - width / 2.0) / radius;
  };
  for (int j = 0; j < kSamples; ++j) {
    for (int i = 0; i < kSamples; ++i) {
      const Shades sample = SampleAt(offset(column, i), -offset(row, j), sun);
      for (std::size_t c = 0; c < sum.size(); ++c) sum[c] += sample[c];
    }
  }
  std::uint32_t pixel = 0xff000000U;
  for (unsigned c = 0; c < sum.size(); ++c) {
    pixel |= static_cast<std::uint32_t>(std::lround(sum[c] / (kSamples * kSamples))) << (8 * c);
  }
  return pixel;
}

}  // namespace

std::vector<std::uint32_t> DrawMoon(int width, MoonPhase phase) {
  const Vector3 sun = SunAt(phase);
  std::vector<std::uint32_t> pixels;
  for (int row = 0; row < width; ++row) {
    for (int column = 0; column < width; ++column) {
      pixels.push_back(PixelAt(width, column, row, sun));
    }
  }
  Relight(pixels, width, {1, true}, phase);
  return pixels;
}

}  // namespace tarnwick
