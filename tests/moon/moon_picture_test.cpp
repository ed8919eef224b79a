#include "moon/moon_picture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

namespace tarnwick {
namespace {

constexpr std::uint32_t kWhite = 0xffffffff;
constexpr unsigned kLit =
    0x50;  // in red: the ground at the terminator is brighter, the night darker

// A white full Moon that fills its square to the corners.
std::vector<std::uint32_t> WhiteMoon(int width) {
  return std::vector<std::uint32_t>(static_cast<std::size_t>(width) * width, kWhite);
}

MoonPhase PhaseOfBase(double fraction, bool waxing) {
  const std::string file(MoonPictureFile(fraction, waxing));
  return {file == "darkmoon.bmp" ? 0 : file == "fullmoon.bmp" ? 1 : 0.5, waxing};
}

// What a phase looks like, drawn as the program draws it.
std::vector<std::uint32_t> Draw(int width, double fraction, bool waxing) {
  std::vector<std::uint32_t> pixels = WhiteMoon(width);
  Relight(pixels, width, {1, waxing}, PhaseOfBase(fraction, waxing));
  DrawTerminator(pixels, width, fraction, waxing);
  return pixels;
}

struct Count {
  double disc = 0;
  double lit = 0;
  double lit_right = 0;
};

Count CountPixels(const std::vector<std::uint32_t>& pixels, int width) {
  Count count;
  for (int i = 0; i < width * width; ++i) {
    const int row = i / width;
    const int column = i % width;
    const double x = column + 0.5 - width / 2.0;
    const double y = row + 0.5 - width / 2.0;
    if (std::hypot(x, y) > kMoonDiscRadius * width) continue;
    const bool lit = ((pixels[static_cast<std::size_t>(i)] >> 16U) & 0xffU) >= kLit;
    ++count.disc;
    count.lit += lit;
    count.lit_right += lit && x > 0;
  }
  return count;
}

TEST(MoonPicture, FileFollowsThePhase) {
  struct Pictures {
    const char* waxing;
    const char* waning;
  };
  constexpr Pictures kDark{"darkmoon.bmp", "darkmoon.bmp"};
  constexpr Pictures kHalf{"1stquarter.bmp", "lastquarter.bmp"};
  constexpr Pictures kFull{"fullmoon.bmp", "fullmoon.bmp"};
  const std::tuple<double, Pictures, bool> rows[] = {
      {0, kDark, true},      {0.0099, kDark, true}, {0.01, kHalf, false}, {0.49, kHalf, false},
      {0.4901, kHalf, true}, {0.5099, kHalf, true}, {0.51, kFull, false}, {0.99, kFull, false},
      {0.9901, kFull, true}, {1, kFull, true},
  };
  for (const auto& [fraction, pictures, own] : rows) {
    SCOPED_TRACE(fraction);
    EXPECT_EQ(MoonPictureFile(fraction, true), pictures.waxing);
    EXPECT_EQ(MoonPictureFile(fraction, false), pictures.waning);
    EXPECT_EQ(HasOwnPicture(fraction, true), own);
    EXPECT_EQ(HasOwnPicture(fraction, false), own);
  }
}

TEST(MoonPicture, LitShareIsTheFractionOnTheRightSide) {
  constexpr int kWidth = 200;
  for (const double fraction : {0.0, 0.012, 0.1, 0.25, 0.4, 0.485, 0.5, 0.52, 0.75, 0.98, 1.0}) {
    for (const bool waxing : {true, false}) {
      SCOPED_TRACE(std::to_string(fraction) + (waxing ? " waxing" : " waning"));
      const Count count = CountPixels(Draw(kWidth, fraction, waxing), kWidth);
      EXPECT_NEAR(count.lit / count.disc, fraction, 0.01);
      const double lit_side = waxing ? count.lit_right : count.lit - count.lit_right;
      EXPECT_NEAR(lit_side / count.disc, std::min(fraction, 0.5), 0.01);
    }
  }
}

// Its own mirror image is drawn but once.
TEST(MoonPicture, MiddleRowIsAsBrightAsTheNext) {
  constexpr std::size_t kWidth = 101;
  const std::vector<std::uint32_t> pixels = Draw(kWidth, 0.7, true);
  const auto brightness = [&](std::size_t row) {
    double sum = 0;
    for (std::size_t i = 0; i < kWidth; ++i) {
      sum += (pixels[row * kWidth + i] >> 16U) & 0xffU;
    }
    return sum;
  };
  EXPECT_NEAR(brightness(50) / brightness(49), 1, 0.01);
}

TEST(MoonPicture, SkyStays) {
  constexpr int kWidth = 100;
  constexpr int kPixels = kWidth * kWidth;
  const std::vector<std::uint32_t> pixels = Draw(kWidth, 0.6, true);
  for (const std::size_t corner : {0, kWidth - 1, kPixels - kWidth, kPixels - 1}) {
    EXPECT_EQ(pixels[corner], kWhite);
  }
  std::vector<std::uint32_t> sky(kPixels, kMoonSky);
  DrawTerminator(sky, kWidth, 0.6, true);
  EXPECT_EQ(std::count(sky.begin(), sky.end(), kMoonSky), kPixels);
}

TEST(MoonPicture, AnySizeIsDrawn) {
  for (int width = 0; width <= 5; ++width) {
    for (const double fraction : {0.0, 0.3, 0.5, 0.7, 1.0}) {
      std::vector<std::uint32_t> pixels = WhiteMoon(width);
      DrawTerminator(pixels, width, fraction, true);
      for (const std::uint32_t pixel : pixels) EXPECT_EQ(pixel >> 24U, 0xffU);
    }
  }
}

}  // namespace
}  // namespace tarnwick
