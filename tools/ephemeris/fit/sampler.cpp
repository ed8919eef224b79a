// Writes apparent geocentric places of Moon and Sun by JPL DE431, in the mean ecliptic and equinox
// of date, without nutation, in ascending order of epochs.
//
// usage: sampler random COUNT SEED [--text]    at epochs drawn evenly over the span of the series
//        sampler every DAYS                    at even intervals over that span
//        sampler phases                        at every phase in it: elongations 0, 90, 180, 270
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
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "engines/ephemeris/positions.h"
#include "tools/ephemeris/fit/de431.h"

namespace {

using tarnwick::De431Body;
using tarnwick::De431Place;
using tarnwick::kKmPerAu;

constexpr double kFirst = 550000, kLast = 3914990;  // JD (TT), the span of the series
constexpr std::uint64_t kMostEpochs = 10'000'000;
constexpr double kQuarter = 7.38;    // days from phase to phase, from 6.5 to 8.3
constexpr double kMeanRate = 12.19;  // of the elongation, degrees a day
constexpr double kClose = 1e-7;      // of a phase's instant, days: a hundredth of a second
constexpr int kMostSteps = 20;

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

Place PlaceAt(double epoch) {
  const auto moon = De431Place(De431Body::kMoon, epoch), sun = De431Place(De431Body::kSun, epoch);
  return {epoch, moon[0], moon[1], moon[2] * kKmPerAu, sun[0], sun[1], sun[2]};
}

// Of the Moon from the Sun, less a multiple of 90 degrees: -45 to 45 degrees.
double ElongationFromPhase(const Place& place) { return std::remainder(place[1] - place[4], 90); }

// At the phase within three days of an epoch: by Newton's method with the mean rate, whose every
// step leaves a sixth of the error at most.
Place PhaseNear(double epoch) {
  for (int step = 0; step < kMostSteps; ++step) {
    const Place place = PlaceAt(epoch);
    const double correction = ElongationFromPhase(place) / kMeanRate;
    if (std::abs(correction) < kClose) return place;
    epoch -= correction;
  }
  throw std::runtime_error("no phase near JD " + std::to_string(epoch));
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

template <class Number>
Number Parse(std::string_view text) {
  Number number{};
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end || !(number > 0))
    throw std::invalid_argument("not a number above 0: " + std::string(text));
  return number;
}

void WriteRandom(std::uint64_t count, std::uint64_t seed, bool as_text) {
  if (count > kMostEpochs) throw std::invalid_argument("too many epochs");
  for (double epoch : DrawEpochs(count, seed)) {
    // The place in a line of text must be that of the epoch as it stands there.
    if (as_text) epoch = std::round(epoch * 100000) / 100000;
    Write(PlaceAt(epoch), as_text);
  }
}

void WriteEvery(double days) {
  if ((kLast - kFirst) / days > kMostEpochs) throw std::invalid_argument("too many epochs");
  for (int i = 0; kFirst + i * days <= kLast; ++i) Write(PlaceAt(kFirst + i * days), false);
}

void WritePhases() {
  Place place = PhaseNear(kFirst + kQuarter);
  while (place[0] <= kLast) {
    Write(place, false);
    place = PhaseNear(place[0] + kQuarter);
  }
}

// Whether the arguments were understood.
bool WriteAsked(const std::vector<std::string_view>& arguments) {
  const std::size_t count = arguments.size();
  const std::string_view what = count > 0 ? arguments[0] : "";
  const bool as_text = count == 4 && arguments[3] == "--text";
  if (what == "random" && (count == 3 || as_text)) {
    WriteRandom(Parse<std::uint64_t>(arguments[1]), Parse<std::uint64_t>(arguments[2]), as_text);
  } else if (what == "every" && count == 2) {
    WriteEvery(Parse<double>(arguments[1]));
  } else if (what == "phases" && count == 1) {
    WritePhases();
  } else {
    return false;
  }
  if (std::fflush(stdout) != 0) throw std::runtime_error("cannot write");
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (!WriteAsked({argv + 1, argv + argc})) {
      std::fputs("usage: sampler random COUNT SEED [--text] | every DAYS | phases\n", stderr);
      return 2;
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "sampler: %s\n", error.what());
    return 1;
  }
  return 0;
}
