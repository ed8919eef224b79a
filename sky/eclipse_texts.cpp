#include "sky/eclipse_texts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/text.h"
#include "engines/date_engine.h"
#include "engines/time_units.h"
#include "moon/clock_error.h"
#include "moon/syzyg.h"
#include "sky/certainty.h"
#include "sky/coordinates.h"
#include "sky/eclipse_path.h"
#include "sky/lunar_at_place.h"
#include "sky/solar_at_place.h"

namespace tarnwick {
namespace {

constexpr double kLeastForWidth = 10 * kDegree;  // a lower Sun draws the shadow out without bound

// "(-584, 585 BCE)": historians know no year 0.
std::string HistoriansYear(std::int32_t year) {
  return " (" + YearText(year) + ", " + std::to_string(1 - year) + " BCE)";
}

std::string DateOfEclipse(UniversalTime instant, int offset_minutes) {
  const DayNumber day = DayOf(instant, offset_minutes);
  if (day >= kGregorianReform) return ShortDateText(kCE, instant, offset_minutes);
  const std::int32_t year = CivilDateOf(day.value, 'J').year;
  return ShortDateText(kJC, instant, offset_minutes) + (year < 1 ? HistoriansYear(year) : "");
}

// One instant of an eclipse, before it is put into words.
struct Contact {
  std::string_view what;
  BodyAtInstant body;
  bool seen;
};

void Add(std::vector<Contact>& contacts, std::string_view what,
         const std::optional<BodyAtInstant>& contact) {
  if (contact) contacts.push_back({what, *contact, contact->Visible()});
}

// The instant at which the most is seen, if that is not the maximum: when the body rises or sets.
void AddMostSeen(std::vector<Contact>& contacts, const BodyAtInstant& most_seen,
                 UniversalTime maximum, std::string_view at_rising, std::string_view at_setting) {
  if (most_seen.instant == maximum) return;
  contacts.push_back({most_seen.instant > maximum ? at_rising : at_setting, most_seen, true});
}

std::vector<TimedLine> LinesOf(std::vector<Contact> contacts, const PlaceReading& reading,
                               double error) {
  std::ranges::sort(contacts, {}, [](const Contact& contact) { return contact.body.instant; });
  std::vector<TimedLine> lines;
  lines.reserve(contacts.size());
  for (const Contact& contact : contacts) {
    lines.push_back({std::string(contact.what),
                     PlaceTimesOf(contact.body.instant, reading, true, error),
                     DirectionText(contact.body), contact.seen});
  }
  return lines;
}

// "below the horizon" at the beginning or the end, while the most is seen between.
std::string HiddenEnds(const std::optional<BodyAtInstant>& begin,
                       const std::optional<BodyAtInstant>& end) {
  std::string text;
  if (begin && !begin->Visible()) text += "; begins below the horizon";
  if (end && !end->Visible()) text += "; ends below the horizon";
  return text;
}

std::string Magnitude(double magnitude) { return "magnitude " + FormatFixed(magnitude, 3, false); }

// Nothing of a total eclipse, which covers it all.
std::string CoveredText(const SolarAtPlace& eclipse) {
  if (eclipse.kind == SolarKind::kTotal) return "";
  return ", " + FormatFixed(100 * eclipse.obscuration, 1, false) + " % of the Sun covered";
}

std::string SeenText(const SolarAtPlace& eclipse) {
  if (eclipse.kind == SolarKind::kNone) return "No eclipse here: the Moon's shadow passes by";
  if (eclipse.kind_seen == SolarKind::kNone) return "Not seen here: the Sun is below the horizon";
  const std::string seen = "Seen here as " + std::string(NameOf(eclipse.kind_seen)) + ", " +
                           Magnitude(eclipse.magnitude_seen);
  const UniversalTime maximum = eclipse.maximum.instant;
  if (eclipse.seen_at == maximum) {
    return seen + CoveredText(eclipse) + HiddenEnds(eclipse.c1, eclipse.c4);
  }
  return seen + (eclipse.seen_at > maximum ? " at sunrise" : " at sunset") + "; " +
         (eclipse.kind == eclipse.kind_seen ? "" : std::string(NameOf(eclipse.kind)) + ", ") +
         Magnitude(eclipse.magnitude) + " below the horizon";
}

std::string SeenText(const LunarAtPlace& eclipse, const EclipseRecord& record) {
  if (eclipse.type_seen == kNotEclipsed) return "Not seen here: the Moon is below the horizon";
  const bool penumbral = eclipse.type_seen == kPenumbralLunar;
  const std::string seen =
      "Seen here as " + std::string(NameOfLunar(eclipse.type_seen)) +
      (penumbral ? ", penumbral " : ", umbral ") +
      Magnitude(penumbral ? eclipse.magnitude_seen.penumbral : eclipse.magnitude_seen.umbral);
  const UniversalTime greatest = eclipse.greatest.instant;
  if (eclipse.seen_at == greatest) {
    return seen +
           (penumbral ? HiddenEnds(eclipse.p1, eclipse.p4) : HiddenEnds(eclipse.u1, eclipse.u4));
  }
  const std::string when = eclipse.seen_at > greatest ? " at moonrise" : " at moonset";
  if (eclipse.type_seen == record.type) return seen + when;
  return seen + when + "; " + std::string(NameOfLunar(record.type)) + " below the horizon";
}

std::vector<Contact> ContactsOf(const SolarAtPlace& eclipse, const EclipseFromPlace& view,
                                UniversalTime course_middle) {
  if (eclipse.kind == SolarKind::kNone) return {};
  const bool total = eclipse.kind == SolarKind::kTotal;
  std::vector<Contact> contacts;
  Add(contacts, "maximum", eclipse.maximum);
  Add(contacts, "partial phase begins", eclipse.c1);
  Add(contacts, total ? "totality begins" : "annularity begins", eclipse.c2);
  Add(contacts, total ? "totality ends" : "annularity ends", eclipse.c3);
  Add(contacts, "partial phase ends", eclipse.c4);
  if (eclipse.kind_seen != SolarKind::kNone) {
    AddMostSeen(contacts, view.SunAt(eclipse.seen_at - course_middle), eclipse.maximum.instant,
                "most seen, at sunrise", "most seen, at sunset");
  }
  return contacts;
}

std::vector<Contact> ContactsOf(const LunarAtPlace& eclipse, const EclipseFromPlace& view) {
  std::vector<Contact> contacts;
  Add(contacts, "greatest eclipse", eclipse.greatest);
  Add(contacts, "penumbral phase begins", eclipse.p1);
  Add(contacts, "partial phase begins", eclipse.u1);
  Add(contacts, "total phase begins", eclipse.u2);
  Add(contacts, "total phase ends", eclipse.u3);
  Add(contacts, "partial phase ends", eclipse.u4);
  Add(contacts, "penumbral phase ends", eclipse.p4);
  if (eclipse.type_seen != kNotEclipsed) {
    const UniversalTime greatest = eclipse.greatest.instant;
    AddMostSeen(contacts, view.MoonAt(eclipse.seen_at - greatest), greatest,
                "most seen, at moonrise", "most seen, at moonset");
  }
  return contacts;
}

std::string SureText(const Certainty& certainty) {
  if (certainty.error < 1) return "The clock is sure to the second";
  const std::string sure = "The clock is sure to +- " + ErrorText(certainty.error);
  if (certainty.if_less == certainty.kind && certainty.if_more == certainty.kind) {
    return sure + ", which changes nothing of what is seen here";
  }
  return sure + ". Here: " + CertaintyText(certainty);
}

std::string DurationOf(double seconds) {
  const auto whole = static_cast<std::int32_t>(std::lround(seconds));
  return std::to_string(whole / kSecondsPerMinute) + " min " +
         std::to_string(whole % kSecondsPerMinute) + " s";
}

std::string PlaceText(double latitude, double longitude) {
  const auto rounded = [](double radians) { return std::round(radians / kDegree * 100) / 100; };
  return CoordinatesText(rounded(latitude), rounded(longitude));
}

}  // namespace

std::string EclipseTitle(const EclipseRecord& record, const PlaceReading& reading) {
  return std::string(EclipseTypeText(static_cast<std::int16_t>(record.type))) + " of " +
         DateOfEclipse(GreatestEclipse(record), reading.offset_minutes) + ", saros " +
         std::to_string(record.saros);
}

EclipseTexts EclipseTextsOf(const EclipseRecord& record, const PlaceReading& reading) {
  const Observer observer = ObserverAt(reading.place);
  const EclipseCourse course = CourseOfEclipse(record);
  const EclipseFromPlace view(course, observer);
  const Certainty certainty = CertaintyOf(record, observer);
  EclipseTexts texts;
  texts.certainty = SureText(certainty);
  if (IsLunarEclipse(record.type)) {
    const LunarAtPlace eclipse = LunarEclipseAtPlace(record, course, observer);
    texts.seen = SeenText(eclipse, record);
    texts.contacts = LinesOf(ContactsOf(eclipse, view), reading, certainty.error);
  } else {
    const SolarAtPlace eclipse = SolarEclipseAtPlace(course, observer);
    texts.seen = SeenText(eclipse);
    texts.contacts =
        LinesOf(ContactsOf(eclipse, view, course.InstantAt(0)), reading, certainty.error);
  }
  return texts;
}

std::string GreatestText(const EclipseRecord& record, const PlaceReading& reading) {
  const TerrestrialTime greatest(record.greatest);
  const PlaceTimes times =
      PlaceTimesOf(GreatestEclipse(record), reading, true, ClockError(GreatestEclipse(record)));
  const std::string when = "Greatest eclipse at " + times.main + " " + MainTimeName(reading);
  if (IsLunarEclipse(record.type)) {
    return when + ", " +
           (record.type == kPenumbralLunar ? "penumbral " + Magnitude(record.penumbral_magnitude)
                                           : "umbral " + Magnitude(record.magnitude));
  }
  const EclipsePath path(greatest, DeltaTDays(greatest));
  const std::optional<CentralPlace> centre = path.CentreAt(path.Greatest());
  if (!centre) return when + ", " + Magnitude(record.magnitude);
  const bool has_width = centre->sun_altitude >= kLeastForWidth;
  return when + ", " + PlaceText(centre->place.latitude, centre->place.longitude) + ": " +
         (centre->total ? "total for " : "annular for ") + DurationOf(centre->duration_seconds) +
         (has_width ? ", path " + FormatFixed(centre->width_km, 0, false) + " km wide" : "");
}

}  // namespace tarnwick
