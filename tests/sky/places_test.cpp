#include "sky/places.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <utility>

namespace tarnwick {
namespace {

using testing::EndsWith;
using testing::StartsWith;

TEST(Places, TableIsRead) {
  const PlaceList list = ParsePlaces(
      "name,latitude,longitude,note\n"
      "Córdoba,37.88,-4.78,\"tables, \"\"Toledan\"\" before\"\r\n"
      "\"Washington, D.C.\",38 53 N,77.04 W,");
  EXPECT_EQ(list.fault, "");
  ASSERT_EQ(list.places.size(), 2U);
  EXPECT_EQ(list.places[0].name, "Córdoba");
  EXPECT_EQ(list.places[0].note, "tables, \"Toledan\" before");
  EXPECT_EQ(list.places[0].latitude, 37.88);
  EXPECT_EQ(list.places[0].longitude, -4.78);
  EXPECT_EQ(list.places[1].name, "Washington, D.C.");
  EXPECT_EQ(list.places[1].longitude, -77.04);
}

TEST(Places, DamagedTableIsRefusedWhole) {
  const std::string good = "name,latitude,longitude,note\nRome,41.90,12.50,the calendar\n";
  const std::pair<std::string, std::string> cases[] = {
      {"", "There is no place in it"},
      {"name,latitude,longitude,note\n", "There is no place in it"},
      {"Rome,41.90,12.50,\n", "Line 1: It is not name,latitude,longitude,note"},
      {good + "Ur,30.96,46.10\n", "Line 3: 4 cells are wanted, not 3"},
      {good + "Ur,30.96,46.10,Moon, god\n", "Line 3: 4 cells are wanted, not 5"},
      {good + "\n", "Line 3: 4 cells are wanted, not 1"},
      {good + "\"Ur,30.96,46.10,\n", "Line 3: A quotation mark is not closed"},
      {good + ",30.96,46.10,\n", "Line 3: The name is missing"},
      {good + "Ur,30.96,46.10,\nRome,41,12,\n", "Line 4: Rome occurs twice"},
      {good + "Ur,130.96,46.10,\n", "Line 3: A latitude runs from -90 to 90"},
      {good + "Ur,30.96,,\n", "Line 3: A longitude is written 44.42 E, 44 25 12 E or -88.57"},
  };
  for (const auto& [text, fault] : cases) {
    const PlaceList list = ParsePlaces(text);
    EXPECT_EQ(list.fault, fault) << text;
    EXPECT_TRUE(list.places.empty()) << text;
  }
}

TEST(Places, FileThatIsNoTableIsNamed) {
  const PlaceList missing = ReadPlaces(TEST_DATA "/no-places.csv");
  EXPECT_THAT(missing.fault, StartsWith("The places cannot be read: "));
  EXPECT_THAT(missing.fault, EndsWith("no-places.csv"));
  EXPECT_TRUE(missing.places.empty());
  EXPECT_THAT(ReadPlaces(TEST_DATA "/log.txt").fault,
              EndsWith("log.txt: Line 1: It is not name,latitude,longitude,note"));
}

TEST(Places, ThoseBesideTheProgramAreWhole) {
  const PlaceList list = ReadPlaces(TEST_PROGRAM_FOLDER "/assets/places.csv");
  ASSERT_EQ(list.fault, "");
  EXPECT_GE(list.places.size(), 140U);
  for (std::size_t i = 0; i < list.places.size(); ++i) {
    const Place& place = list.places[i];
    EXPECT_NE(place.note, "") << place.name;
    // Rounded to a hundredth of a degree.
    EXPECT_EQ(std::round(place.latitude * 100) / 100, place.latitude) << place.name;
    EXPECT_EQ(std::round(place.longitude * 100) / 100, place.longitude) << place.name;
    // Also tells that no name stands twice.
    EXPECT_TRUE(i == 0 || list.places[i - 1].name < place.name) << place.name;
  }
}

}  // namespace
}  // namespace tarnwick
