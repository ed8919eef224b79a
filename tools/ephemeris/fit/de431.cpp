#include "tools/ephemeris/fit/de431.h"

#include <stdexcept>
#include <string>
#include <swephexp.h>

namespace tarnwick {
namespace {

constexpr int kPlanetFile = 0, kMoonFile = 1;

// Whether the data file that answered last holds DE431 at this instant.
bool IsDe431(int file, double ajd_tt) {
  double start = 0, end = 0;
  int number = 0;
  const char* path = swe_get_current_file_data(file, &start, &end, &number);
  return path != nullptr && number == 431 && start <= ajd_tt && ajd_tt <= end;
}

}  // namespace

std::array<double, 3> De431Place(De431Body body, double ajd_tt) {
  std::array<double, 6> place{};
  std::array<char, AS_MAXCH> message{};
  const bool moon = body == De431Body::kMoon;
  const int asked = SEFLG_SWIEPH | SEFLG_NONUT;
  const int answered =
      swe_calc(ajd_tt, moon ? SE_MOON : SE_SUN, asked, place.data(), message.data());
  const bool moon_is_de431 = !moon || IsDe431(kMoonFile, ajd_tt);
  if (answered != asked || !moon_is_de431 || !IsDe431(kPlanetFile, ajd_tt))
    throw std::runtime_error("no DE431 at JD " + std::to_string(ajd_tt) + ": " + message.data());
  return {place[0], place[1], place[2]};
}

}  // namespace tarnwick
