#include "moon/moon_data.h"

#include <cmath>
#include <numbers>
#include <string_view>

#include "engines/phase_engine.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

bool HasPositions(UniversalTime moment) {
  double latitude = 0;
  const double longitude = MoonPosition(moment, latitude);
  return longitude != kBeforePositions && longitude != kAfterPositions;
}

double IlluminatedFraction(double elongation) { return (1 - std::cos(elongation)) / 2; }

std::string Counted(std::int64_t number, std::string_view unit) {
  std::string text = std::to_string(number) + " " + std::string(unit);
  if (number != 1) text += 's';
  return text;
}

std::string_view PhaseName(double percent) {
  if (percent < 1) return "Dark";
  if (percent < 45) return "Crescent";
  if (percent < 55) return "Half";
  if (percent < 99) return "Gibbous";
  return "Full";
}

// Next to new and full moon it is left out.
std::string_view WaxingText(double percent, bool waxing) {
  if (percent < 0.05 || percent > 99.95) return {};
  return waxing ? "waxing" : "waning";
}

}  // namespace

double FractionFromPositions(UniversalTime moment) {
  double ignored = 0;
  return IlluminatedFraction(MoonPosition(moment, ignored) - sun_app(moment.days, ignored));
}

// As if the elongation grew evenly from phase to phase.
double FractionFromPhases(UniversalTime moment, std::int32_t lunation, std::int16_t phase) {
  const UniversalTime begin = PhaseTime(lunation, phase);
  const UniversalTime end = phase < kLastQuarter
                                ? PhaseTime(lunation, static_cast<std::int16_t>(phase + 1))
                                : PhaseTime(lunation + 1, kNewMoon);
  const double quarters = phase + (moment - begin) / (end - begin);
  return IlluminatedFraction(quarters * std::numbers::pi / 2);
}

MoonData MoonDataAt(UniversalTime moment) {
  MoonData data;
  data.lunation = LunationOf(moment);
  const UniversalTime new_moon = PhaseTime(data.lunation, kNewMoon);
  data.age = moment - new_moon;
  data.length = PhaseTime(data.lunation + 1, kNewMoon) - new_moon;
  data.phase = GetPhase(data.lunation, moment).phase;
  if (data.phase < 0) return data;
  data.waxing = IsWaxing(data.phase);
  data.fraction = HasPositions(moment) ? FractionFromPositions(moment)
                                       : FractionFromPhases(moment, data.lunation, data.phase);
  return data;
}

std::string AgeText(double age) {
  const auto minutes = static_cast<std::int64_t>(std::floor(age * kMinutesPerDay));
  return Counted(minutes / kMinutesPerDay, "day") + ", " +
         Counted(minutes % kMinutesPerDay / kMinutesPerHour, "hr") + ", " +
         Counted(minutes % kMinutesPerHour, "min");
}

std::string PhaseOfMoonText(double fraction, bool waxing) {
  const double percent = 100 * fraction;
  const std::string text = std::string(PhaseName(percent)) + " moon";
  const std::string change(WaxingText(percent, waxing));
  return change.empty() ? text : text + " (" + change + ")";
}

std::string MoonDescription(const MoonData& moon) {
  if (moon.phase < 0) return "The Moon";
  const double percent = 100 * moon.fraction;
  std::string name(PhaseName(percent));
  name[0] = static_cast<char>(name[0] - 'A' + 'a');
  const std::string change(WaxingText(percent, moon.waxing));
  return "The Moon, " + name + (change.empty() ? "" : ", " + change) + ", " +
         std::to_string(std::lround(percent)) + " % lit";
}

}  // namespace tarnwick
