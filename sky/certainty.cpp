#include "sky/certainty.h"

#include "moon/clock_error.h"
#include "moon/syzyg.h"
#include "sky/eclipse_course.h"

namespace tarnwick {
namespace {

std::string Seen(SolarKind kind) {
  return kind == SolarKind::kNone ? "not seen" : std::string(NameOf(kind));
}

SolarKind KindSeen(const EclipseRecord& record, const Observer& observer, double larger_by) {
  return SolarEclipseAtPlace(CourseOfEclipse(record, larger_by), observer).kind_seen;
}

}  // namespace

SolarCertainty CertaintyOf(const EclipseRecord& record, const Observer& observer) {
  const double error = ClockError(GreatestEclipse(record));
  return {KindSeen(record, observer, 0), KindSeen(record, observer, -error),
          KindSeen(record, observer, error), error};
}

std::string CertaintyText(const SolarCertainty& certainty) {
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
