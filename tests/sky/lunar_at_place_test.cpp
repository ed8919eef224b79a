#include "sky/lunar_at_place.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "engines/phases.h"
#include "engines/time_units.h"
#include "tests/sky/eclipse_rows.h"

namespace tarnwick {
namespace {

const struct {
  std::string name;
  std::optional<BodyAtInstant> LunarAtPlace::*contact;
} kContacts[] = {{"p1", &LunarAtPlace::p1}, {"u1", &LunarAtPlace::u1}, {"u2", &LunarAtPlace::u2},
                 {"u3", &LunarAtPlace::u3}, {"u4", &LunarAtPlace::u4}, {"p4", &LunarAtPlace::p4}};

// Where the Moon only just reaches a limit of the shadow, 0.3" are more than a second, in which the
// sky turns by as much as directions may be off.
constexpr double kGrazing = 0.5;  // s

TEST(LunarAtPlace, MeetsTheReference) {
  ErrorStatistics instants;
  DirectionErrors directions;
  for (const ReferenceRow& row : ReadReferenceData("sky/lunar_local.csv")) {
    SCOPED_TRACE(row.at("place") + " " + row.at("n"));
    const EclipseRecord record = EclipseOf(std::stoi(row.at("n")), kFullMoon);
    EXPECT_EQ(std::to_string(record.type), row.at("type"));
    const LunarAtPlace eclipse =
        LunarEclipseAtPlace(record, CourseOf(record, NumberIn(row, "delta_t")), ObserverOf(row));
    instants.Add(SecondsFrom(eclipse.greatest.instant, row, "ut_greatest"));
    directions.Add(eclipse.greatest.direction, row, "greatest");
    for (const auto& [name, contact] : kContacts) {
      const std::optional<BodyAtInstant>& found = eclipse.*contact;
      ASSERT_EQ(found.has_value(), !row.at("ut_" + name).empty()) << name;
      if (!found) continue;
      const double late = SecondsFrom(found->instant, row, "ut_" + name);
      instants.Add(late);
      if (std::abs(late) < kGrazing) directions.Add(found->direction, row, name);
    }
  }
  instants.Print("contacts", "s");
  directions.Judge();
  EXPECT_LT(instants.Largest(), 3);
}

// What is seen grows as greatest eclipse comes, so that it is told by which contacts are visible,
// if the Moon rises or sets only once.
EclipseType TypeOfVisibleContacts(const EclipseRecord& record, const LunarAtPlace& eclipse) {
  const auto visible = [](const std::optional<BodyAtInstant>& contact) {
    return contact && contact->Visible();
  };
  if (eclipse.greatest.Visible()) return record.type;
  if (visible(eclipse.u2) || visible(eclipse.u3)) return kTotalLunar;
  if (visible(eclipse.u1) || visible(eclipse.u4)) return kPartialLunar;
  if (visible(eclipse.p1) || visible(eclipse.p4)) return kPenumbralLunar;
  return kNotEclipsed;
}

// A total, a partial and a penumbral eclipse all over the Earth: that of 2000 January 21, of 2021
// November 19 and of 2023 May 5.
TEST(LunarAtPlace, TellsTheGreatestThatIsSeen) {
  int counts[kTotalLunar + 1] = {};
  int cut = 0;
  for (const std::int32_t lunation : {0, 270, 288}) {
    const EclipseRecord record = EclipseOf(lunation, kFullMoon);
    const EclipseCourse course = CourseOf(record, 69);
    for (double latitude = -60; latitude <= 60; latitude += 7.5) {
      for (double longitude = -180; longitude < 180; longitude += 5) {
        SCOPED_TRACE(testing::Message() << lunation << " " << latitude << " " << longitude);
        const Observer observer = ObserverAt({latitude, longitude});
        const LunarAtPlace eclipse = LunarEclipseAtPlace(record, course, observer);
        EXPECT_EQ(eclipse.type_seen, TypeOfVisibleContacts(record, eclipse));
        ++counts[eclipse.type_seen];
        if (eclipse.type_seen == kNotEclipsed) continue;
        const double offset = eclipse.seen_at - eclipse.greatest.instant;
        const double magnitude = eclipse.magnitude_seen.umbral;
        if (eclipse.greatest.Visible()) {
          EXPECT_EQ(offset, 0);
          EXPECT_NEAR(magnitude, record.magnitude, 1e-6);
          EXPECT_NEAR(eclipse.magnitude_seen.penumbral, record.penumbral_magnitude, 1e-6);
          continue;
        }
        ++cut;
        EXPECT_NEAR(EclipseFromPlace(course, observer).MoonAt(offset).upper_limb, 0, 1e-7);
        // Contacts are where the magnitude is 0 or 1; they are not quite symmetric.
        EXPECT_GT(magnitude, eclipse.type_seen == kTotalLunar     ? 1 - 0.01
                             : eclipse.type_seen == kPartialLunar ? -0.01
                                                                  : record.magnitude - 3);
        EXPECT_LT(magnitude, eclipse.type_seen == kPenumbralLunar ? 0.01 : record.magnitude);
      }
    }
  }
  EXPECT_GT(cut, 100);
  for (const EclipseType type : {kNotEclipsed, kPenumbralLunar, kPartialLunar, kTotalLunar}) {
    EXPECT_GT(counts[type], 30) << type;
  }
}

}  // namespace
}  // namespace tarnwick
