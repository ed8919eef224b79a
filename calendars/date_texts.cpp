#include "calendars/date_texts.h"

#include "calendars/date_processing.h"
#include "calendars/text.h"

namespace tarnwick {
namespace {

DateTexts DayCountTexts(double days, std::string_view abbreviation) {
  const std::string text = FormatFixed(days, 4, true) + " " + std::string(abbreviation);
  return {text, text, ""};
}

}  // namespace

DateTexts DateTextsOf(Calendar calendar, double ajd, int offset_minutes) {
  const CalendarRow& row = RowOf(calendar);
  const double cjd = AJDToCJD(ajd, offset_minutes);
  if (IsDayCount(calendar)) return DayCountTexts(calendar == kAJD ? ajd : cjd, row.abbreviation);
  return row.texts(SplitCJD(cjd - row.day_shift).day_number);
}

}  // namespace tarnwick
