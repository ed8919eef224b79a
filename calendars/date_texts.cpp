#include "calendars/date_texts.h"

#include "calendars/date_processing.h"
#include "calendars/text.h"

namespace tarnwick {
namespace {

DateTexts DayCountTexts(double days, std::string_view abbreviation) {
  const std::string text = FormatFixed(days, 4, true) + " " + std::string(abbreviation);
  return {text, text, ""};
}

DayNumber DayIn(const CalendarRow& row, LocalCJD cjd) {
  return SplitCJD(cjd - row.day_shift).day_number;
}

}  // namespace

DateTexts DateTextsOf(Calendar calendar, UniversalTime moment, int offset_minutes) {
  const CalendarRow& row = RowOf(calendar);
  const LocalCJD cjd = AJDToCJD(moment, offset_minutes);
  if (calendar == kAJD) return DayCountTexts(moment.days, row.abbreviation);
  if (calendar == kCJD) return DayCountTexts(cjd.days, row.abbreviation);
  return row.texts(DayIn(row, cjd));
}

std::string ShortDateText(Calendar calendar, UniversalTime moment, int offset_minutes) {
  const CalendarRow& row = RowOf(calendar);
  if (IsDayCount(calendar)) return "";
  return row.short_form(DayIn(row, AJDToCJD(moment, offset_minutes)));
}

}  // namespace tarnwick
