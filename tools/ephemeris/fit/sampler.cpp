// Writes apparent geocentric places of Moon and Sun by JPL DE431, in the mean ecliptic and equinox
// of date, without nutation, at random epochs in ascending order.
//
// usage: sampler COUNT SEED [--text]
//
// Seven numbers a place: JD (TT); longitude and latitude in degrees and distance in km of the Moon;
// longitude and latitude in degrees and distance in au of the Sun. As doubles, or as rounded text.

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <stdexcept>
#include <string>
#include <swephexp.h>
#include <system_error>
#include <vector>

namespace {

constexpr double kFirst = 550000, kLast = 3914990;  // JD (TT), the span of the series
constexpr double kKmPerAu = 149597870.7;
constexpr int kPlanetFile = 0, kMoonFile = 1;
constexpr std::uint64_t kMostEpochs = 10'000'000;

using Place = std::array<double, 7>;

// The standard says what the engine yields, but not what its distributions do: so the same seed
// gives the same epochs everywhere only without them.
std::vector<double> DrawEpochs(std::size_t count, std::uint64_t seed) {
  std::mt19937_64 engine(seed);
  std::vector<double> epochs(count);
  for (double& epoch : epochs) {
    const double fraction = static_cast<double>(engine() >> 11) * 0x1p-53;
    epoch = kFirst + fraction * (kLast - kFirst);
  }
  std::sort(epochs.begin(), epochs.end());
  return epochs;
}

// Whether the data file that answered last holds DE431 at this epoch.
bool IsDe431(int file, double epoch) {
  double start = 0, end = 0;
  int number = 0;
  const char* path = swe_get_current_file_data(file, &start, &end, &number);
  return path != nullptr && number == 431 && start <= epoch && epoch <= end;
}

// Longitude and latitude in degrees, distance in au. Throws where another ephemeris answers: the
// library takes one that it computes itself where a file is missing.
std::array<double, 3> PlaceOf(int body, double epoch) {
  std::array<double, 6> place{};
  std::array<char, AS_MAXCH> message{};
  const int asked = SEFLG_SWIEPH | SEFLG_NONUT;
  const int answered = swe_calc(epoch, body, asked, place.data(), message.data());
  const bool moon_is_de431 = body != SE_MOON || IsDe431(kMoonFile, epoch);
  if (answered != asked || !moon_is_de431 || !IsDe431(kPlanetFile, epoch))
    throw std::runtime_error("no DE431 at JD " + std::to_string(epoch) + ": " + message.data());
  return {place[0], place[1], place[2]};
}

Place PlaceAt(double epoch) {
  const auto moon = PlaceOf(SE_MOON, epoch), sun = PlaceOf(SE_SUN, epoch);
  return {epoch, moon[0], moon[1], moon[2] * kKmPerAu, sun[0], sun[1], sun[2]};
}

void Write(const Place& place, bool as_text) {
  bool written = false;
  if (as_text) {
    written = std::printf("%.5f,%.6f,%.6f,%.2f,%.6f,%.6f,%.8f\n", place[0], place[1], place[2],
                          place[3], place[4], place[5], place[6]) > 0;
  } else {
    written = std::fwrite(place.data(), sizeof(place), 1, stdout) == 1;
  }
  if (!written) throw std::runtime_error("cannot write");
}

std::uint64_t ParseNumber(const char* text) {
  std::uint64_t number = 0;
  const char* end = text + std::strlen(text);
  const auto result = std::from_chars(text, end, number);
  if (result.ec != std::errc() || result.ptr != end)
    throw std::invalid_argument(std::string("not a number: ") + text);
  return number;
}

void WritePlaces(std::uint64_t count, std::uint64_t seed, bool as_text) {
  if (count > kMostEpochs) throw std::invalid_argument("too many epochs");
  for (double epoch : DrawEpochs(count, seed)) {
    // The place in a line of text must be that of the epoch as it stands there.
    if (as_text) epoch = std::round(epoch * 100000) / 100000;
    Write(PlaceAt(epoch), as_text);
  }
  if (std::fflush(stdout) != 0) throw std::runtime_error("cannot write");
}

}  // namespace

int main(int argc, char** argv) {
  const bool as_text = argc == 4 && std::strcmp(argv[3], "--text") == 0;
  if (argc != 3 && !as_text) {
    std::fputs("usage: sampler COUNT SEED [--text]\n", stderr);
    return 2;
  }
  try {
    swe_set_ephe_path(nullptr);
    WritePlaces(ParseNumber(argv[1]), ParseNumber(argv[2]), as_text);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "sampler: %s\n", error.what());
    return 1;
  }
  swe_close();
  return 0;
}
