#include "sky/solar_at_place.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <tuple>

#include "engines/ephemeris/shadow_axis.h"
#include "engines/phases.h"
#include "sky/visibility.h"
#include "tests/sky/eclipse_rows.h"

namespace tarnwick {
namespace {

const struct {
  std::string name;
  std::optional<BodyAtInstant> SolarAtPlace::*contact;
} kContacts[] = {{"c1", &SolarAtPlace::c1},
                 {"c2", &SolarAtPlace::c2},
                 {"c3", &SolarAtPlace::c3},
                 {"c4", &SolarAtPlace::c4}};

// The reference is a solution on JPL DE431. A contact may be off by 0.2 s and by what the Moon
// takes for 0.6" towards it.
TEST(SolarAtPlace, MeetsTheReference) {
  ErrorStatistics maximum, contacts, partial, central, obscuration;
  DirectionErrors directions;
  for (const ReferenceRow& row : ReadReferenceData("sky/solar_local.csv")) {
    SCOPED_TRACE(row.at("place") + " " + row.at("n"));
    const EclipseRecord record = EclipseOf(std::stoi(row.at("n")), kNewMoon);
    const SolarAtPlace eclipse =
        SolarEclipseAtPlace(CourseOf(record, NumberIn(row, "delta_t")), ObserverOf(row));
    EXPECT_EQ(NameOf(eclipse.kind), row.at("kind"));
    ErrorStatistics& magnitude = eclipse.kind > SolarKind::kPartial ? central : partial;
    magnitude.Add(eclipse.magnitude - NumberIn(row, "magnitude"));
    obscuration.Add(eclipse.obscuration - NumberIn(row, "obscuration"));
    maximum.Add(SecondsFrom(eclipse.maximum.instant, row, "ut_max"));
    directions.Add(eclipse.maximum.direction, row, "max");
    for (const auto& [name, contact] : kContacts) {
      const std::optional<BodyAtInstant>& found = eclipse.*contact;
      ASSERT_EQ(found.has_value(), !row.at("ut_" + name).empty()) << name;
      if (!found) continue;
      const double rate = NumberIn(row, "rate_" + name);
      contacts.Add(SecondsFrom(found->instant, row, "ut_" + name) / (0.2 + 0.6 / rate));
      directions.Add(found->direction, row, name);
      const double limb = NumberIn(row, "alt_" + name) + NumberIn(row, "sd_sun") / 3600 + 34.0 / 60;
      EXPECT_EQ(found->Visible(), limb > 0);
    }
  }
  maximum.Print("maximum", "s");
  contacts.Print("contacts", "of the tolerance");
  partial.Print("partial magnitude", "");
  central.Print("central magnitude", "");
  obscuration.Print("obscuration", "");
  directions.Judge();
  EXPECT_LT(maximum.Largest(), 1.5);
  EXPECT_LT(partial.Largest(), 0.0004);
  EXPECT_LT(central.Largest(), 0.00003);
  EXPECT_LT(obscuration.Largest(), 0.0004);
  EXPECT_LT(contacts.Largest(), 1);
}

// The greatest kind that the Sun shows above the horizon, and its magnitude, looked for in steps of
// 20 seconds.
struct Seen {
  SolarKind kind = SolarKind::kNone;
  double magnitude = 0;
};

Seen SeenAt(const EclipseFromPlace& view, double offset) {
  const MoonAndSunVectors places = view.At(offset);
  const double s = std::asin(SunRadius() / Length(places.sun.value));
  const double m1 = std::asin(kPenumbralMoonRadius / Length(places.moon.value));
  const double m2 = std::asin(kUmbralMoonRadius / Length(places.moon.value));
  const double d = std::acos(Dot(Unit(places.sun.value), Unit(places.moon.value)));
  if (d >= s + m1 || !view.SunAt(offset).Visible()) return {};
  if (d >= std::abs(m2 - s)) return {SolarKind::kPartial, (s + m1 - d) / (2 * s)};
  return {m2 > s ? SolarKind::kTotal : SolarKind::kAnnular, m2 / s};
}

Seen GreatestSeen(const EclipseFromPlace& view) {
  Seen greatest;
  for (double offset = -0.14; offset < 0.14; offset += 20.0 / kSecondsPerDay) {
    const Seen seen = SeenAt(view, offset);
    if (std::tie(seen.kind, seen.magnitude) > std::tie(greatest.kind, greatest.magnitude)) {
      greatest = seen;
    }
  }
  return greatest;
}

// Over the Antarctic in summer (2003 November 23), near the Arctic in winter (2019 January 6) and
// in summer (2021 June 10), over middle latitudes (2024 April 8).
TEST(SolarAtPlace, TellsTheGreatestThatIsSeen) {
  int whole = 0;
  int cut = 0;
  int hidden = 0;
  ErrorStatistics errors;
  for (const std::int32_t lunation : {48, 235, 265, 300}) {
    const EclipseCourse course = CourseOf(EclipseOf(lunation, kNewMoon), 69);
    for (double latitude = -87.5; latitude < 90; latitude += 12.5) {
      for (double longitude = -180; longitude < 180; longitude += 7.5) {
        SCOPED_TRACE(testing::Message() << lunation << " " << latitude << " " << longitude);
        const Observer observer = ObserverAt({latitude, longitude});
        const SolarAtPlace eclipse = SolarEclipseAtPlace(course, observer);
        const Seen expected = GreatestSeen({course, observer});
        EXPECT_EQ(NameOf(eclipse.kind_seen), NameOf(expected.kind));
        errors.Add(eclipse.magnitude_seen - expected.magnitude);
        if (eclipse.kind == SolarKind::kNone) continue;
        const bool at_maximum = eclipse.seen_at == eclipse.maximum.instant;
        whole += at_maximum ? 1 : 0;
        hidden += eclipse.kind_seen == SolarKind::kNone ? 1 : 0;
        if (at_maximum || eclipse.kind_seen == SolarKind::kNone) continue;
        ++cut;
        const double seen_at = eclipse.seen_at - course.InstantAt(0);
        EXPECT_NEAR(EclipseFromPlace(course, observer).SunAt(seen_at).upper_limb, 0, 1e-7);
      }
    }
  }
  errors.Print("greatest magnitude seen", "");
  EXPECT_LT(errors.Largest(), 0.008);  // the centres move by 15" in a step
  EXPECT_GT(whole, 100);
  EXPECT_GT(cut, 40);
  EXPECT_GT(hidden, 100);
}

TEST(Visibility, FindsTheFirstVisibleInstant) {
  // Heights at 0, 1 and 2, with a parabola through them.
  const std::tuple<double, double, double, std::optional<double>> cases[] = {
      {1, 0, -1, 0},               // visible at once
      {-1, 0, 1, 1},               // rises
      {-4, -4.5, 4, 1.6498731},    // goes on sinking first
      {-1, -2, -1, std::nullopt},  // stays below
      {-1, -0.5, -2, std::nullopt},
      {-3, 1, -3, 0.5},  // rises and sets
  };
  for (const auto& [begin, middle, end, visible] : cases) {
    const double slope = middle - begin;
    const double bend = (end - 2 * middle + begin) / 2;
    const auto height = [b = begin, slope, bend](double x) {
      return b + x * slope + x * (x - 1) * bend;
    };
    const std::optional<double> found = FirstVisible(height, 0, 2);
    ASSERT_EQ(found.has_value(), visible.has_value());
    EXPECT_NEAR(found.value_or(0), visible.value_or(0), 1e-6);
  }
}

}  // namespace
}  // namespace tarnwick
