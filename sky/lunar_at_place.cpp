#include "sky/lunar_at_place.h"

#include <cmath>

#include "engines/time_units.h"
#include "sky/visibility.h"

namespace tarnwick {
namespace {

using Contact = std::optional<BodyAtInstant>;

// The two contacts of a phase with that semi-duration, where there is such a phase.
void FindContacts(const EclipseFromPlace& view, double semi_duration_minutes, Contact& begin,
                  Contact& end) {
  if (semi_duration_minutes <= 0) return;
  const double offset = semi_duration_minutes / kMinutesPerDay;
  begin = view.MoonAt(-offset);
  end = view.MoonAt(offset);
}

EclipseType TypeAt(const EclipseRecord& record, double offset) {
  const double minutes = std::abs(offset) * kMinutesPerDay;
  if (minutes < record.total_minutes) return kTotalLunar;
  if (minutes < record.umbral_minutes) return kPartialLunar;
  return kPenumbralLunar;
}

// The visible instant of the eclipse next to greatest eclipse.
std::optional<double> NearestVisible(const EclipseRecord& record, const EclipseFromPlace& view) {
  const auto height = [&](double offset) { return view.MoonAt(offset).upper_limb; };
  const double end = record.penumbral_minutes / kMinutesPerDay;
  const std::optional<double> before = FirstVisible(height, 0, -end);
  const std::optional<double> after = FirstVisible(height, 0, end);
  if (!before || !after) return before ? before : after;
  return -*before < *after ? before : after;
}

}  // namespace

std::string_view NameOfLunar(EclipseType type_seen) {
  switch (type_seen) {
    case kPenumbralLunar:
      return "penumbral";
    case kPartialLunar:
      return "partial";
    case kTotalLunar:
      return "total";
    default:
      return kNotSeen;
  }
}

LunarAtPlace LunarEclipseAtPlace(const EclipseRecord& record, const EclipseCourse& course,
                                 const Observer& observer) {
  const EclipseFromPlace view(course, observer);
  LunarAtPlace eclipse;
  eclipse.greatest = view.MoonAt(0);
  FindContacts(view, record.penumbral_minutes, eclipse.p1, eclipse.p4);
  FindContacts(view, record.umbral_minutes, eclipse.u1, eclipse.u4);
  FindContacts(view, record.total_minutes, eclipse.u2, eclipse.u3);
  const std::optional<double> visible = NearestVisible(record, view);
  if (!visible) return eclipse;
  eclipse.type_seen = TypeAt(record, *visible);
  eclipse.magnitude_seen = LunarMagnitudesOf(course.At(*visible));
  eclipse.seen_at = course.InstantAt(*visible);
  return eclipse;
}

}  // namespace tarnwick
