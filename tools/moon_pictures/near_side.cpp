#include "tools/moon_pictures/near_side.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numbers>

namespace tarnwick {
namespace {

constexpr double kRadian = std::numbers::pi / 180;

// Positions and sizes from the Gazetteer of Planetary Nomenclature (IAU), rounded to what can be
// seen; large maria are made up of several patches.
struct Patch {
  double latitude;   // degrees, north positive
  double longitude;  // degrees, east positive
  double east_west;  // half its extent, degrees of arc
  double north_south;
  double depth;         // 1 is the darkest mare
  double blueness = 0;  // -1 reddish to 1 bluish
};

constexpr Patch kMaria[] = {
    {34, -17, 17.5, 17, 0.86, -0.2},    // Imbrium
    {44.5, -31, 4.5, 4, 0.88, -0.2},    // Sinus Iridum
    {33, -39, 9, 9, 0.82, 0},           //
    {23, -36, 8, 7, 0.82, 0.1},         //
    {27.5, 18, 11, 10, 0.84, -0.3},     // Serenitatis
    {18.5, 25, 5, 4, 0.9, 0.4},         //
    {10, 27, 10, 8.5, 1.0, 1},          // Tranquillitatis
    {8, 36, 9.5, 8.5, 0.98, 0.9},       //
    {2, 24, 5, 4, 0.9, 0.7},            //
    {1.5, 43, 5, 3.5, 0.8, 0.3},        //
    {-4, 27, 4, 5, 0.66, 0.3},          // Sinus Asperitatis
    {-10, 31, 3, 3, 0.66, 0},           //
    {18, 38, 4.5, 4, 0.7, 0.3},         // Sinus Amoris
    {17, 59, 8.7, 6.8, 0.98, 0.1},      // Crisium
    {-2, 51, 9, 8, 0.86, 0.2},          // Fecunditatis
    {-7, 51.5, 8, 7, 0.84, 0.2},        //
    {-13, 52, 6, 7.5, 0.82, 0.2},       //
    {4, 66, 3, 2.5, 0.6, 0},            // Spumans, Undarum
    {-15, 34.5, 6, 6, 0.84, 0},         // Nectaris
    {-20, -15, 9.5, 9, 0.86, 0},        // Nubium
    {-28, -19, 6, 4, 0.74, 0},          //
    {-10, -23, 8, 7, 0.86, 0},          // Cognitum
    {-24, -39, 6.6, 6.8, 0.94, 0},      // Humorum
    {-16, -38, 5, 4, 0.66, 0},          //
    {-32, -28, 5, 2.2, 0.6, 0},         // Epidemiarum
    {20, -56, 15, 16, 0.88, 0.3},       // Procellarum
    {38, -58, 12, 11, 0.82, 0.1},       //
    {4, -47, 15, 14, 0.86, 0.2},        //
    {-7, -43, 12, 9, 0.84, 0.2},        //
    {54, -55, 8, 4.5, 0.66, 0},         // Sinus Roris
    {8, -31, 9, 8, 0.76, 0.1},          // Insularum
    {-2, -31, 9, 7, 0.8, 0.1},          //
    {0, -20, 6, 5, 0.6, 0.1},           //
    {12, -9, 5, 4.5, 0.82, 0.2},        // Sinus Aestuum
    {13, 4, 4.6, 4.2, 0.76, 0.1},       // Vaporum
    {2, -1, 6.5, 2.6, 0.6, 0.1},        // Sinus Medii
    {57, -32, 12, 3.4, 0.76, -0.1},     // Frigoris
    {59.5, -6, 11, 3.5, 0.78, -0.1},    //
    {57, 16, 10, 3.5, 0.76, -0.1},      //
    {53, 32, 8, 3.4, 0.66, -0.1},       //
    {38, 30, 6, 4, 0.6, 0},             // Lacus Somniorum
    {45, 27, 2.6, 2.4, 0.56, 0},        // Lacus Mortis
    {57, 80, 4.5, 4.5, 0.66, 0},        // Humboldtianum
    {13, 85, 4, 7, 0.6, 0},             // Marginis
    {-2, 86, 5, 6, 0.62, 0},            // Smythii
    {-40, 88, 9, 10, 0.42, 0},          // Australe
    {51.6, -9.4, 2.0, 1.9, 1.15, 0},    // Plato
    {-5.3, -68.4, 3.2, 3.6, 1.15, 0},   // Grimaldi
    {-3, -74.5, 1.8, 2, 0.7, 0},        // Riccioli
    {53.6, 56.5, 2.1, 2.1, 0.8, 0},     // Endymion
    {-44.5, -54.5, 2.6, 2.6, 0.35, 0},  // Schickard
};

struct Crater {
  double latitude;
  double longitude;
  double glow;    // strength of the bright patch
  double radius;  // of the patch, degrees of arc
  int rays;
  double reach;  // of its rays, degrees of arc
  double ray_strength;
};

constexpr Crater kBrightCraters[] = {
    {-43.3, -11.4, 0.30, 2.2, 19, 60, 0.26},  // Tycho
    {9.6, -20.1, 0.32, 2.2, 19, 14, 0.20},    // Copernicus
    {8.1, -38.0, 0.34, 1.8, 15, 10, 0.20},    // Kepler
    {23.7, -47.4, 0.56, 1.7, 11, 8, 0.18},    // Aristarchus
    {16.1, 46.8, 0.34, 1.3, 6, 9, 0.16},      // Proclus
    {-8.9, 61.0, 0.20, 2.2, 9, 12, 0.14},     // Langrenus
    {-33.5, 54.0, 0.26, 1.8, 9, 16, 0.16},    // Stevinus
    {-24.6, -63.8, 0.24, 1.4, 9, 14, 0.16},   // Byrgius
    {73.5, -10.1, 0.24, 2.0, 10, 22, 0.16},   // Anaxagoras
    {61.8, 50.3, 0.22, 1.4, 9, 16, 0.14},     // Thales
    {7.6, -77.0, 0.22, 1.4, 9, 14, 0.14},     // Olbers
    {16.2, 16.0, 0.28, 1.0, 0, 0, 0},         // Menelaus
    {14.5, 9.1, 0.24, 1.1, 0, 0, 0},          // Manilius
    {2.8, 17.3, 0.24, 1.0, 0, 0, 0},          // Dionysius
    {31.8, 29.8, 0.16, 1.2, 0, 0, 0},         // Posidonius
    {-11.4, 26.4, 0.10, 1.6, 0, 0, 0},        // Theophilus
    {27.7, 11.8, 0.12, 0.9, 0, 0, 0},         // Linne
    {-17.5, 4.5, 0.12, 1.6, 0, 0, 0},         // Werner and neighbours
};

// Where the sky stands above a place.
struct Frame {
  Vector3 up;
  Vector3 east;
  Vector3 north;
};

Frame FrameOf(double latitude, double longitude) {
  const double lat = latitude * kRadian;
  const double lon = longitude * kRadian;
  return {{std::cos(lat) * std::sin(lon), std::sin(lat), std::cos(lat) * std::cos(lon)},
          {std::cos(lon), 0, -std::sin(lon)},
          {-std::sin(lat) * std::sin(lon), std::cos(lat), -std::sin(lat) * std::cos(lon)}};
}

template <class Feature, std::size_t count>
std::array<Frame, count> FramesOf(const Feature (&features)[count]) {
  std::array<Frame, count> frames;
  std::transform(
      std::begin(features), std::end(features), frames.begin(),
      [](const Feature& feature) { return FrameOf(feature.latitude, feature.longitude); });
  return frames;
}

const auto kMariaFrames = FramesOf(kMaria);
const auto kCraterFrames = FramesOf(kBrightCraters);

// A place as seen from another: degrees of arc to the east and to the north.
struct Offset {
  double east = 0;
  double north = 0;
};

Offset OffsetFrom(const Frame& origin, Vector3 place) {
  const double east = Dot(place, origin.east);
  const double north = Dot(place, origin.north);
  const double sine = std::hypot(east, north);
  const double arc = std::atan2(sine, Dot(place, origin.up)) / kRadian;
  const double scale = arc / std::max(sine, 1e-9);
  return {east * scale, north * scale};
}

// 0 up to `low`, 1 from `high` on.
double Step(double low, double high, double value) {
  const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
  return t * t * (3 - 2 * t);
}

struct Mare {
  double depth = 0;
  double blueness = 0;
};

// Shores are ragged: `wander` moves them, in degrees of arc.
Mare MareAt(Vector3 place, double wander) {
  Mare mare;
  for (std::size_t i = 0; i < std::size(kMaria); ++i) {
    const Patch& patch = kMaria[i];
    const Offset offset = OffsetFrom(kMariaFrames[i], place);
    const double size = std::sqrt(patch.east_west * patch.north_south);
    const double from_shore =
        (1 - std::hypot(offset.east / patch.east_west, offset.north / patch.north_south)) * size +
        wander * std::min(1.0, size / 6);
    const double shore = std::min(1.0, size / 3);
    const double depth = patch.depth * Step(-shore, shore, from_shore);
    if (depth > mare.depth) mare = {depth, patch.blueness * depth};
  }
  return mare;
}

// The rays of a crater at a distance from it, and in a direction; both in radians.
double RaysAt(const Crater& crater, std::int32_t number, double distance, double direction) {
  double light = 0;
  for (std::int32_t ray = 0; ray < crater.rays; ++ray) {
    const auto random = [&](std::uint32_t salt) { return HashNoise(number, ray, 0, salt); };
    const double toward = (ray + 0.85 * random(11)) * 2 * std::numbers::pi / crater.rays;
    const double reach = crater.reach * kRadian * (0.25 + 0.75 * random(12) * random(15));
    const double width = (0.30 + 0.022 * crater.reach) * (0.5 + random(13)) * kRadian;
    const double turn = std::remainder(direction - toward, 2 * std::numbers::pi);
    if (std::abs(turn) > std::numbers::pi / 2) continue;
    const double aside =
        std::sin(turn) * std::sin(distance) / (width * (0.3 + 1.4 * distance / reach));
    light += std::exp(-aside * aside) * (1 - Step(0.3, 1.0, distance / reach)) *
             (0.5 + 0.5 * random(14));
  }
  return std::min(light, 1.1) * crater.ray_strength;
}

double GlowAt(Vector3 place) {
  const double patchy = 0.1 + 1.6 * FractalNoise(18 * place, 3, 61);
  double light = 0;
  for (std::size_t i = 0; i < std::size(kBrightCraters); ++i) {
    const Crater& crater = kBrightCraters[i];
    const Offset offset = OffsetFrom(kCraterFrames[i], place);
    const double arc = std::hypot(offset.east, offset.north);
    const double patch = arc / crater.radius;
    light += crater.glow * std::exp(-patch * patch);
    if (crater.rays == 0 || arc > crater.reach) continue;
    const double near = Step(0.5, 2.2, patch);  // the patch itself is bright enough
    light += near * patchy *
             RaysAt(crater, static_cast<std::int32_t>(i), arc * kRadian,
                    std::atan2(offset.east, offset.north));
  }
  return light;
}

// A bowl with a rim; `from_middle` in radii.
double BowlHeight(double from_middle) {
  if (from_middle > 1.6) return 0;
  const double rim = std::exp(-std::pow((from_middle - 1) / 0.22, 2));
  return 0.6 * rim - (1 - Step(0.5, 1.0, from_middle));
}

// Craters scattered over a grid of cells, `fineness` of them to the Moon's radius.
double CraterField(Vector3 place, double fineness, std::uint32_t salt) {
  const Vector3 at = fineness * place;
  double height = 0;
  for (int step = 0; step < 27; ++step) {
    const auto cell = [&](double value, int offset) {
      return static_cast<std::int32_t>(std::floor(value)) + offset - 1;
    };
    const std::int32_t x = cell(at.x, step % 3);
    const std::int32_t y = cell(at.y, step / 3 % 3);
    const std::int32_t z = cell(at.z, step / 9);
    const auto random = [&](std::uint32_t use) { return HashNoise(x, y, z, salt + use); };
    const Vector3 middle{x + random(1), y + random(2), z + random(3)};
    const double distance = Length(at - middle);
    if (distance > 0.96) continue;  // beyond the slopes of the largest
    const double radius = 0.12 + 0.48 * random(4) * random(5) * random(6);
    height += radius * BowlHeight(distance / radius);
  }
  return height / fineness;
}

}  // namespace

Ground GroundAt(Vector3 place) {
  const double coarse = FractalNoise(5 * place, 4, 1) - 0.5;
  const double fine = FractalNoise(18 * place, 4, 2) - 0.5;
  const Mare mare = MareAt(place, 12 * coarse + 9 * fine);

  const double highland = 0.74 + 0.22 * coarse + 0.34 * fine + 0.06 * Step(-0.1, 0.8, -place.y);
  const double flow = FractalNoise(6 * place, 4, 3) - 0.5;
  const double lava = 0.37 + 0.30 * flow + 0.16 * fine;
  Ground ground;
  ground.brightness = std::lerp(highland, lava, mare.depth) + GlowAt(place);
  ground.blueness = mare.blueness;
  ground.roughness = 1 - 0.8 * std::min(mare.depth, 1.0);
  return ground;
}

double HeightAt(Vector3 place) {
  return CraterField(place, 10, 101) + CraterField(place, 20, 201) + CraterField(place, 36, 301) +
         0.03 * FractalNoise(14 * place, 4, 401);
}

}  // namespace tarnwick
