#include "calendars/date_texts.h"

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/day_date.h"
#include "calendars/text.h"

namespace tarnwick {
namespace {

DateTexts EuroTexts(std::int32_t day_number, char letter, const std::string& abbreviation) {
  const DateRecord date = CivilDateOf(day_number, letter);
  const std::string short_form = DateText(date) + " " + abbreviation;
  return {short_form,
          short_form + " (" + WeekdayName(euro_day_of_week(day_number)) + ", " +
              std::string(MonthName(date.month)) + " " + std::to_string(date.day) + ", " +
              YearText(date.year) + ")",
          DayOfYearText(date)};
}

DateTexts ARCTexts(std::int32_t day_number) {
  const ARCDate date = DateOfDay<ARCDate>(day_number);
  return {ARCDateString(date, 1), ARCDateString(date, 2), ARCDateString(date, 4)};
}

DateTexts SDTexts(std::int32_t day_number) {
  const SDDate date = DateOfDay<SDDate>(day_number);
  return {SDDateString(date, 1), SDDateString(date, 2), SDDateString(date, 4)};
}

DateTexts LLTTexts(std::int32_t day_number) {
  const LLTDate date = DateOfDay<LLTDate>(day_number);
  return {LLTDateString(date, 1), LLTDateString(date, 2), LLTDateString(date, 3)};
}

DateTexts KSGTexts(std::int32_t day_number) {
  const KSGDate date = DateOfDay<KSGDate>(day_number);
  return {KSGDateString(date, 1, true), KSGDateString(date, 2, true), KSGDateString(date, 3, true)};
}

DateTexts OLWTexts(std::int32_t day_number) {
  const OLWDate date = DateOfDay<OLWDate>(day_number);
  const std::string short_form = OLWDateString(date, 1);
  return {short_form, short_form + " (" + OLWDateString(date, 2) + ")", ""};
}

DateTexts DayCountTexts(double days, const std::string& abbreviation) {
  const std::string text = FormatFixed(days, 4, true) + " " + abbreviation;
  return {text, text, ""};
}

}  // namespace

DateTexts DateTextsOf(std::int16_t calendar, double ajd, int offset_minutes) {
  const double cjd = AJDToCJD(ajd, offset_minutes);
  const std::int32_t day_number = SplitCJD(cjd).day_number;
  switch (calendar) {
    case kCE:
      return EuroTexts(day_number, 'G', "CE");
    case kJC:
      return EuroTexts(day_number, 'J', "JC");
    case kARC:
      return ARCTexts(day_number);
    case kSD:
      return SDTexts(day_number);
    case kLLT:
      return LLTTexts(day_number);
    case kKSG:
      return KSGTexts(day_number);
    case kOLW:
      return OLWTexts(SplitCJD(cjd - kOLWDayShift).day_number);
    case kCJD:
      return DayCountTexts(cjd, "CJD");
    case kAJD:
      return DayCountTexts(ajd, "AJD");
    default:
      return {};
  }
}

}  // namespace tarnwick
