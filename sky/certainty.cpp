#include "sky/certainty.h"

#include "moon/clock_error.h"
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
