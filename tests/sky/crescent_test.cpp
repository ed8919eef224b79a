#include "sky/crescent.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "tests/sky/reference_row.h"

namespace tarnwick {
namespace {

struct QuantityErrors {
  void Add(const CrescentQuantities& found, const ReferenceRow& row) {
    const double height = NumberIn(row, "moon_alt") * kDegree;
    arcl.Add(found.arcl / kDegree - NumberIn(row, "arcl"));
    arcv.Add(found.arcv / kDegree - NumberIn(row, "arcv"));
    daz.Add(std::remainder(found.daz / kDegree - NumberIn(row, "daz"), 360) * std::cos(height));
    width.Add(found.width - NumberIn(row, "w"));
    q.Add(found.q - NumberIn(row, "q"));
  }

  void Judge() const {
    arcl.Print("ARCL", "degrees");
    arcv.Print("ARCV", "degrees");
    daz.Print("DAZ x cos(altitude)", "degrees");
    width.Print("W'", "arcminutes");
    q.Print("q", "");
    EXPECT_LT(arcl.Largest(), 0.0003);
    EXPECT_LT(arcv.Largest(), 0.001);
    EXPECT_LT(daz.Largest(), 0.001);
    EXPECT_LT(width.Largest(), 0.0001);
    EXPECT_LT(q.Largest(), 0.0002);
  }

  ErrorStatistics arcl, arcv, daz, width, q;
};

TEST(Crescents, AreThoseOfTheReference) {
  const struct {
    std::string file, number, sun, moon;
    Crescents (*find)(std::int32_t lunation, const Observer& observer, double delta_t);
  } kTables[] = {
      {"sky/crescent.csv", "evening", "ut_sunset", "ut_moonset", EveningsAfter},
      {"sky/crescent_morning.csv", "morning", "ut_sunrise", "ut_moonrise", MorningsBefore},
  };
  for (const auto& table : kTables) {
    EventErrors sun;
    EventErrors moon;
    QuantityErrors errors;
    for (const ReferenceRow& row : ReadReferenceData(table.file)) {
      SCOPED_TRACE(row.at("place") + " " + row.at("n") + " " + row.at(table.number));
      const auto number = static_cast<std::size_t>(std::abs(std::stoi(row.at(table.number))));
      const Crescent found =
          table.find(std::stoi(row.at("n")), ObserverOf(row), DeltaTOf(row)).at(number - 1);
      sun.Add(found.sun, row, table.sun, "rate_sun");
      moon.Add(found.moon, row, table.moon, "rate_moon");
      // No q of the tables lies so near a limit that the class might be another.
      const std::optional<char> visibility = found.Class();
      EXPECT_EQ(visibility ? std::string(1, *visibility) : "", row.at("class"));
      ASSERT_EQ(found.quantities.has_value(), !row.at("q").empty());
      if (found.quantities) errors.Add(*found.quantities, row);
    }
    sun.Judge(table.sun);
    moon.Judge(table.moon);
    errors.Judge();
  }
}

// Of class B, C or F, or without a moonset.
Crescent CrescentOf(char visibility) {
  Crescent crescent;
  if (visibility == '-') return crescent;
  crescent.moon = UniversalTime(2451545);
  if (visibility == 'F') return crescent;
  crescent.quantities = CrescentQuantities{};
  crescent.quantities->q = visibility == 'B' ? 0.1 : -0.1;
  return crescent;
}

TEST(NameCrescents, NamesTheNearestToTheConjunction) {
  const struct {
    std::string classes;
    std::optional<std::size_t> seen, maybe_seen;
  } kCases[] = {
      {"FBB", 1, {}}, {"CBB", 1, 0}, {"-CB", 2, 1}, {"BCB", 0, {}}, {"CCF", {}, 0}, {"--F", {}, {}},
  };
  for (const auto& c : kCases) {
    const NamedCrescents named = NameCrescents(
        {CrescentOf(c.classes[0]), CrescentOf(c.classes[1]), CrescentOf(c.classes[2])});
    EXPECT_EQ(named.seen, c.seen) << c.classes;
    EXPECT_EQ(named.maybe_seen, c.maybe_seen) << c.classes;
  }
}

}  // namespace
}  // namespace tarnwick
