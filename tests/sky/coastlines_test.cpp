#include "sky/coastlines.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numbers>
#include <string>

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

using testing::EndsWith;
using testing::IsEmpty;

// The copy beside the programs, where they look for it.
const fs::path kTable = fs::path(TEST_PROGRAM_FOLDER) / "assets" / "coastlines.csv";

// Whether a coast has a point so near, in degrees.
bool IsNear(const Coastlines& coastlines, const GeoPoint& place, double degrees) {
  const double parallel = std::cos(place.latitude * std::numbers::pi / 180);
  return std::ranges::any_of(coastlines.lines, [&](const auto& line) {
    return std::ranges::any_of(line, [&](const GeoPoint& point) {
      return std::hypot(point.latitude - place.latitude,
                        (point.longitude - place.longitude) * parallel) < degrees;
    });
  });
}

TEST(Coastlines, TheTableHoldsCoastsAndNoEdgesOfTheMap) {
  const Coastlines table = ReadCoastlines(kTable);
  ASSERT_EQ(table.error, "");
  std::size_t points = 0;
  for (const auto& line : table.lines) {
    points += line.size();
    for (auto a = line.begin(), b = a + 1; b != line.end(); ++a, ++b) {
      EXPECT_LT(std::abs(a->latitude - b->latitude), 20) << a->latitude << ' ' << a->longitude;
      EXPECT_LT(std::abs(a->longitude - b->longitude), 20) << a->latitude << ' ' << a->longitude;
      EXPECT_LT(std::min(std::abs(a->longitude), std::abs(b->longitude)), 180) << a->latitude;
      EXPECT_GT(std::max(a->latitude, b->latitude), -90) << a->longitude;
    }
  }
  EXPECT_GT(table.lines.size(), 100U);
  EXPECT_GT(points, 4000U);
  EXPECT_LT(points, 10'000U);  // a map is drawn in an instant
}

TEST(Coastlines, CoastsLieWhereTheyAre) {
  const Coastlines table = ReadCoastlines(kTable);
  struct {
    const char* name;
    GeoPoint place;
    bool at_the_sea;
  } const places[] = {
      {"Gibraltar", {36.14, -5.35}, true},
      {"Cape Town", {-33.92, 18.42}, true},
      {"Cape Comorin", {8.08, 77.55}, true},
      {"Tierra del Fuego", {-55.98, -67.27}, true},
      {"East Cape of Chukotka", {66.08, -169.65}, true},
      {"Tokyo Bay", {35.45, 139.78}, true},
      {"Reykjavik", {64.15, -21.94}, true},
      {"South Pole", {-90, 0}, false},
      {"Urumqi", {43.83, 87.62}, false},
      {"Timbuktu", {16.77, -3.01}, false},
      {"amid the Pacific", {-30, -120}, false},
  };
  for (const auto& [name, place, at_the_sea] : places) {
    EXPECT_EQ(IsNear(table, place, at_the_sea ? 1.5 : 4), at_the_sea) << name;
  }
}

TEST(Coastlines, LinesAreToldApart) {
  const Coastlines table = ParseCoastlines(
      "# a comment\r\nlatitude,longitude\r\n-1.5,2\r\n90,-180\r\n\r\n0,0\r\n-90,180\r\n0,1\r\n");
  ASSERT_EQ(table.error, "");
  ASSERT_EQ(table.lines.size(), 2U);
  EXPECT_EQ(table.lines[0].size(), 2U);
  EXPECT_EQ(table.lines[1].size(), 3U);
  EXPECT_EQ(table.lines[0][0].latitude, -1.5);
  EXPECT_EQ(table.lines[0][0].longitude, 2);
}

TEST(Coastlines, DamageIsToldWithItsLine) {
  const std::string head = "# of the coasts\nlatitude,longitude\n";
  const struct {
    std::string text;
    std::string error;
  } cases[] = {
      {"", "line 1: no columns follow"},
      {"longitude,latitude\n1,2\n3,4\n",
       "line 1: neither a comment nor the columns \"latitude,longitude\""},
      {head, "line 3: a coastline of fewer than two points"},
      {head + "1,2\n3,4\n\n\n5,6\n7,8\n", "line 6: a coastline of fewer than two points"},
      {head + "1,2\n3,4\n\n5,6\n", "line 7: a coastline of fewer than two points"},
      {head + "1,2\n3,4\n5,6", "line 5: breaks off"},
      {head + "1,2\n3\n", "line 4: not a latitude and a longitude"},
      {head + "1,2\n3,4,5\n", "line 4: not a latitude and a longitude"},
      {head + "1,2\n3 N,4\n", "line 4: not a latitude and a longitude"},
      {head + "1,2\n90.01,4\n", "line 4: not a latitude and a longitude"},
      {head + "1,2\n3,-180.01\n", "line 4: not a latitude and a longitude"},
      {head + "1,2\nnan,4\n", "line 4: not a latitude and a longitude"},
  };
  for (const auto& [text, error] : cases) {
    const Coastlines table = ParseCoastlines(text);
    EXPECT_EQ(table.error, error) << text;
    EXPECT_THAT(table.lines, IsEmpty()) << text;
  }
}

TEST(Coastlines, TheFileIsNamed) {
  const fs::path file = fs::path(testing::TempDir()) / "damaged-coastlines.csv";
  fs::remove(file);
  EXPECT_THAT(ReadCoastlines(file).error,
              EndsWith("damaged-coastlines.csv is missing or cannot be read."));
  std::ofstream(file, std::ios::binary) << "GIF89a\n";
  EXPECT_THAT(ReadCoastlines(file).error,
              EndsWith("damaged-coastlines.csv, line 1: neither a comment nor the columns "
                       "\"latitude,longitude\"."));
  fs::remove(file);
}

}  // namespace
}  // namespace tarnwick
