#include "sky/sky_texts.h"

#include <optional>
#include <string_view>
#include <vector>

#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "engines/phases.h"
#include "moon/syzyg.h"
#include "sky/crescent.h"
#include "sky/rise_set.h"

namespace tarnwick {
namespace {

// Risings go with the day, not with the clock: nothing is said of how sure that is.
constexpr double kNoError = 0;

std::string Degrees(double radians) { return FormatFixed(radians / kDegree, 1, false) + "\u00b0"; }

std::string NameOf(const SkyDayEvent& event) {
  const std::string body = event.body == Body::kSun ? "Sun" : "Moon";
  switch (event.event) {
    case SkyEvent::kRising:
      return body + " rises";
    case SkyEvent::kSetting:
      return body + " sets";
    case SkyEvent::kTransit:
      break;
  }
  return body + " highest";
}

TimedLine LineOf(const SkyDayEvent& event, const std::vector<UniversalTime>& instants,
                 const PlaceReading& reading) {
  TimedLine result{NameOf(event), {}};
  for (const UniversalTime instant : instants) {
    const PlaceTimes times = PlaceTimesOf(instant, reading, false, kNoError);
    const bool further = !result.times.local.empty();
    result.times.local += (further ? ", " : "") + times.local;
    result.times.main += (further ? ", " : "") + times.main;
    result.times.dates += (further ? "\n" : "") + times.dates;
  }
  if (instants.empty()) result.times.local = result.times.main = "-";
  return result;
}

std::string_view MeaningOf(char visibility) {
  constexpr std::array<std::string_view, 6> kMeanings{
      "easily visible",
      "visible under perfect conditions",
      "perhaps with optical aid",
      "only with optical aid",
      "not visible with a telescope",
      "not visible",
  };
  return kMeanings[static_cast<std::size_t>(visibility - 'A')];
}

std::string ClassText(const Crescent& crescent) {
  const std::optional<char> visibility = crescent.Class();
  if (!visibility) return "none";
  return std::string(MeaningOf(*visibility)) + " (" + *visibility + ")";
}

// Evenings after a conjunction and mornings before it: what differs between them.
struct Side {
  std::string_view time_of_day;
  std::string_view sun;
  std::string_view moon;
};
constexpr Side kEvening{"evening", "sunset", "moonset"};
constexpr Side kMorning{"morning", "sunrise", "moonrise"};

std::string DayOfCrescent(const Crescent& crescent, const Side& side, const PlaceReading& reading) {
  return std::string(side.time_of_day) + " of " + LocalDate(*crescent.sun, reading);
}

std::string LocalTime(UniversalTime instant, const PlaceReading& reading) {
  return PlaceTimesOf(instant, reading, false, kNoError).local;
}

std::string DetailsOf(const Crescent& crescent, const Side& side, const PlaceReading& reading) {
  if (!crescent.sun) return "no " + std::string(side.sun);
  std::string text = DayOfCrescent(crescent, side, reading) + ": " + std::string(side.sun) + " " +
                     LocalTime(*crescent.sun, reading);
  if (!crescent.moon) return text + ", no " + std::string(side.moon);
  text += ", " + std::string(side.moon) + " " + LocalTime(*crescent.moon, reading);
  if (const auto& at_best = crescent.quantities) {
    text += ", best " + LocalTime(at_best->best, reading) + ", arc of vision " +
            Degrees(at_best->arcv) + ", width " + FormatFixed(at_best->width, 2, false) + "', q " +
            FormatFixed(at_best->q, 3, false);
  }
  return text + ": " + ClassText(crescent);
}

std::string NamedText(const Crescents& crescents, const Side& side, const PlaceReading& reading) {
  const NamedCrescents named = NameCrescents(crescents);
  std::string text;
  for (const auto& index : {named.maybe_seen, named.seen}) {
    if (!index) continue;
    const Crescent& crescent = crescents[*index];
    text += (text.empty() ? "" : "; ") + DayOfCrescent(crescent, side, reading) + ", " +
            ClassText(crescent);
  }
  return text.empty() ? "not seen within three days of the new moon" : text;
}

CrescentText TextOf(const Crescents& crescents, const Side& side, const PlaceReading& reading) {
  CrescentText text{NamedText(crescents, side, reading), {}};
  for (const Crescent& crescent : crescents) {
    text.details += (text.details.empty() ? "" : "\n") + DetailsOf(crescent, side, reading);
  }
  return text;
}

}  // namespace

std::string DirectionText(const BodyAtInstant& body) {
  constexpr double kOnHorizon = 0.001 * kDegree;  // the upper limb, as instants are found
  const double altitude = body.direction.altitude;
  if (altitude < 0 && body.upper_limb > -kOnHorizon)
    return "on the horizon, azimuth " + Degrees(body.direction.azimuth);
  if (altitude < 0) return Degrees(-altitude) + " below the horizon";
  return Degrees(altitude) + " high, azimuth " + Degrees(body.direction.azimuth);
}

MomentTexts MomentTextsOf(UniversalTime moment, const PlaceReading& reading) {
  const double delta_t = DeltaTDays(moment);
  const EclipseCourse course(TerrestrialTime(moment.days + delta_t), delta_t);
  const Observer observer = ObserverAt(reading.place);
  const EclipseFromPlace sky(course, observer);
  const PlaceTimes times = PlaceTimesOf(moment, reading, true, kNoError);
  return {times.local + " " + kLocalMeanTime + "\n" + times.main + " " + MainTimeName(reading),
          DirectionText(sky.SunAt(0)), DirectionText(sky.MoonAt(0))};
}

std::array<TimedLine, kDayEvents.size()> DayLinesOf(UniversalTime moment,
                                                    const PlaceReading& reading) {
  const DayNumber day = SplitCJD(LocalMeanTime(moment, reading.place)).day_number;
  const UniversalTime midnight = FromLocalMeanTime(LocalCJD(day.value), reading.place);
  const SkyDay sky(midnight, DeltaTDays(midnight));
  const Observer observer = ObserverAt(reading.place);
  std::array<TimedLine, kDayEvents.size()> lines;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const SkyDayEvent& event = kDayEvents[i];
    lines[i] = LineOf(event, sky.Find(event.body, event.event, observer), reading);
  }
  return lines;
}

CrescentText FirstCrescentText(std::int32_t lunation, const PlaceReading& reading) {
  const double delta_t = DeltaTDays(PhaseTime(lunation, kNewMoon));
  return TextOf(EveningsAfter(lunation, ObserverAt(reading.place), delta_t), kEvening, reading);
}

CrescentText LastCrescentText(std::int32_t lunation, const PlaceReading& reading) {
  const std::int32_t next = lunation + 1;
  const double delta_t = DeltaTDays(PhaseTime(next, kNewMoon));
  return TextOf(MorningsBefore(next, ObserverAt(reading.place), delta_t), kMorning, reading);
}

}  // namespace tarnwick
