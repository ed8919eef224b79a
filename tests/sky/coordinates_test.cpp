#include "sky/coordinates.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace tarnwick {
namespace {

TEST(Coordinates, LatitudesAndLongitudesAreReadAsTheyAreTyped) {
  using Cases = std::vector<std::pair<std::string, double>>;
  const Cases cases = {
      {"  32.54n ", 32.54},
      {"5.", 5},
      {"32°32'24\" N", 32.54},
      {"32º 32’ 24’’N", 32.54},
      {"32°\u00A032′\u202F24″ N", 32.54},
      {"N 32 32.4", 32.54},
      {"s32", -32},
      {"-33.87", -33.87},
      {"−33 52 12", -33.87},
      {"+.5", 0.5},
      {"0 0 59.99", 0.01666},
      {"90", 90},
      {"90 0 0 S", -90},
      {"12.3456789", 12.34568},
  };
  for (const auto& [text, latitude] : cases) {
    double value = 1000;
    EXPECT_EQ(ReadLatitude(text, value), "") << text;
    EXPECT_EQ(value, latitude) << text;
  }
  const Cases longitudes = {{"44.42 E", 44.42},
                            {"W 88 34 12", -88.57},
                            {"151.2", 151.2},
                            {"-180", -180},
                            {"180 0 E", 180}};
  for (const auto& [text, longitude] : longitudes) {
    double value = 1000;
    EXPECT_EQ(ReadLongitude(text, value), "") << text;
    EXPECT_EQ(value, longitude) << text;
  }
}

TEST(Coordinates, PairsAreReadInOneText) {
  const std::tuple<std::string, double, double> cases[] = {
      {"32.54N44.42E", 32.54, 44.42},
      {"32 32 24 N 44 25 12 E", 32.54, 44.42},
      {"N 32°32'24\" E 44°25'12\"", 32.54, 44.42},
      {"44°25'12\" E, 32°32'24\" N", 32.54, 44.42},
      {"E 44.42 N 32.54", 32.54, 44.42},
      {"-33.87,151.2", -33.87, 151.2},
      {"33 52 S, 151.2", -33.86667, 151.2},
      {"52 13", 52, 13},
      {"40.7° −74°", 40.7, -74},
      {"32.54 N 44.42", 32.54, 44.42},
  };
  for (const auto& [text, latitude, longitude] : cases) {
    double read_latitude = 1000;
    double read_longitude = 1000;
    EXPECT_EQ(ReadCoordinates(text, read_latitude, read_longitude), "") << text;
    EXPECT_EQ(read_latitude, latitude) << text;
    EXPECT_EQ(read_longitude, longitude) << text;
  }
}

TEST(Coordinates, WhatIsRefusedIsToldAndChangesNothing) {
  using Reader = std::string (*)(std::string_view, double&, double&);
  const Reader north = [](std::string_view text, double& value, double&) {
    return ReadLatitude(text, value);
  };
  const Reader east = [](std::string_view text, double&, double& value) {
    return ReadLongitude(text, value);
  };
  const Reader both = ReadCoordinates;
  struct Case {
    std::string fault;
    Reader read;
    std::vector<std::string> texts;
  };
  const Case cases[] = {
      {"A latitude runs from -90 to 90", north, {"90.000001", "90 0 1 S", std::string(400, '9')}},
      {"A latitude runs from -90 to 90", both, {"144.42, 20"}},
      {"A longitude runs from -180 to 180", east, {"-180.1"}},
      {"A longitude runs from -180 to 180", both, {"44.42, 200"}},
      {"Minutes and seconds are below 60", north, {"32 60 N", "32 0 60"}},
      {"Minutes and seconds are below 60", both, {"32 32 24 N 44 75 12 E"}},
      {"Only the last of degrees, minutes and seconds has decimals", north, {"32.5 3", "3 2.5 1"}},
      {"A sign and a letter do not go together", north, {"-33.87 S"}},
      {"A latitude has N or S, a longitude E or W", north, {"32.54 E"}},
      {"A latitude has N or S, a longitude E or W", east, {"32.54 N"}},
      {"A latitude has N or S, a longitude E or W", both, {"32.54 N 44.42 S"}},
      {"Decimals stand after a point: 32.54", north, {"32,54 N"}},
      {"Decimals stand after a point: 32.54", both, {"32,54 N 44,42 E"}},
      {"A latitude is written 32.54 N, 32 32 24 N or -33.87",
       north,
       {"", "N", ".", "32.54.1", "1e1", "N 32 N", "--32", "1 2 3 4", "32' 24\"", "nan", "32\xC2"}},
      {"A longitude is written 44.42 E, 44 25 12 E or -88.57", east, {"Babylon"}},
      {"A longitude is written 44.42 E, 44 25 12 E or -88.57", both, {"32.54 N 44.42 E 1"}},
      {"Latitude and longitude are written 32.54 N 44.42 E or -33.87, 151.2",
       both,
       {" ", "32.54 N", "32.54,", "32 32 44 25", "33°52", "Babylon"}},
  };
  for (const auto& [fault, read, texts] : cases) {
    for (const std::string& text : texts) {
      double latitude = 1;
      double longitude = 2;
      EXPECT_EQ(read(text, latitude, longitude), fault) << text;
      EXPECT_EQ(latitude, 1) << text;
      EXPECT_EQ(longitude, 2) << text;
    }
  }
}

TEST(Coordinates, WhatIsWrittenIsReadAsTheSame) {
  EXPECT_EQ(CoordinatesText(32.54, 44.42), "32.54 N 44.42 E");
  EXPECT_EQ(CoordinatesText(-33.866666, -180), "33.86667 S 180 W");
  EXPECT_EQ(CoordinatesText(-0.000001, 0.00001), "0 N 0.00001 E");
  for (int second = -90 * 3600; second <= 90 * 3600; second += 997) {
    double latitude = 0;
    double longitude = 0;
    ASSERT_EQ(ReadLatitude(std::to_string(second / 3600.0), latitude), "") << second;
    ASSERT_EQ(ReadLongitude(std::to_string(second / -1800.0), longitude), "") << second;
    double latitude_again = 1000;
    double longitude_again = 1000;
    const std::string text = CoordinatesText(latitude, longitude);
    EXPECT_EQ(ReadCoordinates(text, latitude_again, longitude_again), "") << text;
    EXPECT_EQ(latitude_again, latitude) << text;
    EXPECT_EQ(longitude_again, longitude) << text;
  }
}

}  // namespace
}  // namespace tarnwick
