// The picture of the Moon at a phase: which of the four drawn pictures it is made from, and the
// light on it.
//
// A phase is the illuminated fraction of the disc, 0 to 1, and whether it grows. North is up, the
// lit side is the right one when waxing. Pixels are 0xffRRGGBB, row by row from the top of a square
// picture, `width` a row.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tarnwick {

// The Moon stands in the middle of its picture; its radius as a share of the picture's width.
inline constexpr double kMoonDiscRadius = 0.48;
// The width at which the pictures are drawn.
inline constexpr int kMoonPictureWidth = 640;
// What is around it.
inline constexpr std::uint32_t kMoonSky = 0xff0b1020;

struct MoonPhase {
  double fraction = 1;
  bool waxing = true;
};

// The file of the picture for a phase: "darkmoon.bmp", "1stquarter.bmp", "fullmoon.bmp" or
// "lastquarter.bmp". Unless the phase has a picture of its own, it is the one that DrawTerminator
// changes into a picture of the phase.
std::string_view MoonPictureFile(double fraction, bool waxing);

// Whether the picture of that file shows the phase as it is: within a hundredth of new moon, a
// quarter or full moon.
bool HasOwnPicture(double fraction, bool waxing);

// Changes the picture of MoonPictureFile(fraction, waxing), at any size, into one of the phase. The
// terminator becomes the half-ellipse with the semi-axes |2 fraction - 1| and 1 of the disc's
// radius. What is not the disc stays.
void DrawTerminator(std::span<std::uint32_t> pixels, int width, double fraction, bool waxing);

// Changes a picture of one phase into a picture of another. Nothing that was in the night of the
// first should be lit by the second: the night keeps too little of the Moon's face.
void Relight(std::span<std::uint32_t> pixels, int width, MoonPhase from, MoonPhase to);

}  // namespace tarnwick
