#include "sky/certainty.h"

#include <cmath>

#include "calendars/date_processing.h"
#include "engines/date_engine.h"
#include "engines/ephemeris/delta_t.h"
#include "engines/time_units.h"
#include "moon/moon_data.h"
#include "moon/syzyg.h"
#include "sky/eclipse_course.h"
#include "sky/lunar_at_place.h"
#include "sky/solar_at_place.h"

namespace tarnwick {
namespace {

std::string Seen(std::string_view kind) {
  return kind == kNotSeen ? "not seen" : std::string(kind);
}

std::string_view KindSeen(const EclipseRecord& record, const Observer& observer, double larger_by) {
  const EclipseCourse course = CourseOfEclipse(record, larger_by);
  return IsLunarEclipse(record.type)
             ? NameOfLunar(LunarEclipseAtPlace(record, course, observer).type_seen)
             : NameOf(SolarEclipseAtPlace(course, observer).kind_seen);
}

}  // namespace

double ClockError(UniversalTime instant) {
  return DeltaTError(CivilDateOf(DayOf(instant, 0).value).year + 0.5);
}

std::string ClockErrorSuffix(double seconds) {
  if (seconds < kSecondsPerMinute) return {};
  return " +- " + std::to_string(std::lround(seconds / kSecondsPerMinute)) + " min";
}

Certainty CertaintyOf(const EclipseRecord& record, const Observer& observer) {
  const double error = ClockError(GreatestEclipse(record));
  return {KindSeen(record, observer, 0), KindSeen(record, observer, -error),
          KindSeen(record, observer, error), error};
}

std::string CertaintyText(const Certainty& certainty) {
  const auto [kind, if_less, if_more, error] = certainty;
  const std::string less = ErrorText(error) + " less";
  const std::string more = ErrorText(error) + " more";
  std::string text = Seen(kind);
  if (if_less != kind) text += "; " + Seen(if_less) + " if delta T is " + less;
  if (if_more == kind) return text;
  if (if_less == kind) return text + "; " + Seen(if_more) + " if delta T is " + more;
  if (if_less == if_more) return text + " or more";
  return text + "; " + Seen(if_more) + " if it is " + more;
}

}  // namespace tarnwick
