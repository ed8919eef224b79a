#include "lists/calendar_events.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/text.h"
#include "engines/phases.h"
#include "moon/clock_error.h"
#include "sky/coordinates.h"
#include "sky/eclipse_texts.h"
#include "sky/place_time.h"
#include "sky/sky_texts.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, kPhaseCount> kPhaseNames{"New moon", "First quarter",
                                                                "Full moon", "Last quarter"};

std::string Uid(std::string_view what) { return std::string(what) + "@tarnwick.example"; }

// "296-2".
std::string NumberText(const PhaseNumber& at) {
  return std::to_string(at.lunation) + "-" + std::to_string(at.phase);
}

std::string CoordinatesOf(const EventPlace& place) {
  return CoordinatesText(place.point.latitude, place.point.longitude);
}

std::string NameOf(const EventPlace& place) {
  return place.name.empty() ? CoordinatesOf(place) : place.name;
}

std::string PlaceLine(const EventPlace& place) {
  return place.name.empty() ? CoordinatesOf(place) : place.name + ", " + CoordinatesOf(place);
}

// Part of an identifier: "32.54N44.42E".
std::string PlaceMark(const EventPlace& place) { return RemoveChars(CoordinatesOf(place), " "); }

// A line with the Julian date of a day, if that is the one that people wrote then.
std::string JulianLine(DayNumber day) {
  return day < kGregorianReform ? "\nJulian calendar: " + ShortDateText(kJC, NoonOf(day, 0), 0)
                                : "";
}

// "2024-01-25 CE 17:54:02 GMT", "-500-03-05 CE 14:30 +- 6 min GMT".
std::string InstantText(UniversalTime instant) {
  const PlaceReading greenwich;
  return ShortDateText(kCE, instant, 0) + " " +
         PlaceTimesOf(instant, greenwich, true, ClockError(instant)).main + " " +
         MainTimeName(greenwich);
}

// A day by the Julian calendar as long as that was the only one.
PlaceReading ReadingAt(const EventPlace& place, UniversalTime instant) {
  return {place.point, DayOf(instant, 0) < kGregorianReform ? kJC : kCE, 0};
}

std::string LineOf(const TimedLine& line, const PlaceReading& reading) {
  return line.what + " " + line.times.local + " " + kLocalMeanTime + ", " + line.times.main + " " +
         MainTimeName(reading) + ": " + line.detail;
}

}  // namespace

CalendarEvent EventOf(const FoundPhase& found) {
  return {Uid("phase-" + NumberText(found.at)), found.event.ut,
          std::string(kPhaseNames[static_cast<std::size_t>(found.at.phase)]),
          InstantText(found.event.ut) + JulianLine(DayOf(found.event.ut, 0)) + "\nLunation " +
              std::to_string(found.at.lunation)};
}

CalendarEvent EventOf(const ListedEclipse& found) {
  const PlaceReading greenwich;
  return {Uid("eclipse-" + NumberText(found.at)), found.greatest,
          std::string(EclipseTypeText(static_cast<std::int16_t>(found.record.type))),
          EclipseTitle(found.record, greenwich) + "\n" + GreatestText(found.record, greenwich)};
}

CalendarEvent EventOf(const ListedSeenEclipse& found, const EventPlace& place) {
  const EclipseHere& here = found.here;
  const PlaceReading reading = ReadingAt(place, found.eclipse.greatest);
  const EclipseTexts texts = EclipseTextsOf(found.eclipse.record, reading);
  std::string description =
      EclipseTitle(found.eclipse.record, reading) + "\n" + PlaceLine(place) + "\n" + texts.seen;
  for (const TimedLine& contact : texts.contacts) description += "\n" + LineOf(contact, reading);
  const std::string summary =
      here.solar ? "Solar eclipse seen as " + std::string(NameOf(here.solar->kind_seen))
                 : "Lunar eclipse seen as " + std::string(NameOfLunar(here.lunar->type_seen));
  return {Uid("eclipse-" + NumberText(found.eclipse.at) + "-" + PlaceMark(place)), here.Instant(),
          summary + " at " + NameOf(place), description + "\n" + texts.certainty};
}

std::optional<CalendarEvent> EventOf(const FoundCrescents& found, const EventPlace& place) {
  const auto index = TellingCrescent(found.evenings);
  if (!index) return std::nullopt;
  const Crescent& crescent = found.evenings[*index];
  const CrescentText text = FirstCrescentText(found.lunation, ReadingAt(place, found.new_moon));
  return CalendarEvent{
      Uid("crescent-" + std::to_string(found.lunation) + "-" + PlaceMark(place)),
      SplitCJD(LocalMeanTime(*crescent.sun, place.point)).day_number,
      "First crescent at " + NameOf(place) + " (" + *crescent.Class() + ")",
      PlaceLine(place) + ", times by local mean time\n" + text.named + "\n" + text.details};
}

CalendarEvent EventOfCoincidence(DayNumber day) {
  std::string description;
  for (const Calendar calendar : {kSD, kARC, kLLT, kKSG}) {
    description += (description.empty() ? "" : "\n") + ShortDateText(calendar, NoonOf(day, 0), 0);
  }
  return {Uid("coincidence-" + std::to_string(day.value)), day,
          "First of the month in SD, ARC, LLT and KSG", description + JulianLine(day)};
}

}  // namespace tarnwick
