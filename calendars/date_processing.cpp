#include "calendars/date_processing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "engines/names.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

using WeekdayNames = std::array<std::string_view, 7>;
constexpr WeekdayNames kWeekdays{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                 "Thursday", "Friday", "Saturday"};
constexpr WeekdayNames kGermanWeekdays{"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                       "Donnerstag", "Freitag", "Samstag"};

using MonthNames = std::array<std::string_view, 12>;
constexpr MonthNames kMonths{"January", "February", "March",     "April",   "May",      "June",
                             "July",    "August",   "September", "October", "November", "December"};
constexpr MonthNames kShortMonths{"Jan.", "Feb.", "Mar.",  "Apr.", "May",  "June",
                                  "July", "Aug.", "Sept.", "Oct.", "Nov.", "Dec."};
constexpr MonthNames kGermanMonths{"Januar",    "Februar", "März",     "April",
                                   "Mai",       "Juni",    "Juli",     "August",
                                   "September", "Oktober", "November", "Dezember"};
constexpr MonthNames kGermanShortMonths{"Jan.", "Feb.", "Mar.",  "Apr.", "May",  "June",
                                        "July", "Aug.", "Sept.", "Okt.", "Nov.", "Dez."};

constexpr std::array<std::string_view, 5> kAnnusNovusDays{"Primidi", "Secundi", "Tertidi",
                                                          "Quartidi", "Quintidi"};

// The record's letter if date texts of its calendar are known, else "G".
std::int32_t FormatLetter(std::int32_t letter) {
  return letter == 'R' || letter == 'J' || letter == 'A' || letter == 'H' ? letter : 'G';
}

void ComputeDayNumber(DateRecord& record) {
  if (record.calendar == 'A' || record.calendar == 'R') {
    annus_novus_date_to_jdn(record);
  } else {
    euro_date_to_jdn(record);
  }
}

std::int32_t ParseDateText(std::string_view text, DateRecord& record) {
  const std::size_t sign = text.starts_with('-') ? 1 : 0;
  if (CountOf(text.substr(sign), "-") < 2) return kDateRejected;

  const std::int32_t status = str_to_date(text, record.calendar, record, '-');
  if (status == kDateUnreadable) return kDateMalformed;
  if (status != kDateRead) return kDateRejected;
  ComputeDayNumber(record);
  return kDateParsed;
}

const MonthNames& MonthTable(bool german, bool abbreviated) {
  if (abbreviated) return german ? kGermanShortMonths : kShortMonths;
  return german ? kGermanMonths : kMonths;
}

std::string_view CalendarName(std::int32_t letter) {
  switch (letter) {
    case 'G':
      return "Common Era";
    case 'J':
      return "Julian";
    case 'A':
      return "Annus Novus";
    default:
      return "";
  }
}

// A field of a clock text, by its place; 0 where the text has no digits. Clocks show at most four.
std::int32_t ClockField(std::string_view text, std::size_t place, std::size_t length) {
  if (place >= text.size()) return 0;
  return static_cast<std::int32_t>(
      LeadingNumber(text.substr(place, std::min<std::size_t>(length, 4))));
}

DateRecord ClockDate(std::string_view text) {
  const bool month_first =
      text.size() > 2 && std::string_view("-/.").find(text[2]) != std::string_view::npos;
  DateRecord date;
  date.year = ClockField(text, month_first ? 6 : 0, 4);
  date.month = ClockField(text, month_first ? 0 : 5, 2);
  date.day = ClockField(text, month_first ? 3 : 8, 2);
  return date;
}

std::int32_t ClockSeconds(std::string_view text) {
  const std::size_t minutes = std::min(text.find(':'), text.size());
  const std::size_t seconds = std::min(text.find(':', minutes + 1), text.size());
  std::int32_t hours = ClockField(text, 0, minutes);
  const bool morning = text.find("AM") != std::string_view::npos;
  const bool afternoon = text.find("PM") != std::string_view::npos;
  if (morning && hours == 12) hours = 0;
  if (afternoon && hours != 12) hours += 12;
  return hours * kSecondsPerHour + ClockField(text, minutes + 1, 2) * kSecondsPerMinute +
         ClockField(text, seconds + 1, 2);
}

double DaysOf(std::int32_t minutes) { return static_cast<double>(minutes) / kMinutesPerDay; }

std::string CountText(std::int32_t count, std::string_view unit) {
  return std::to_string(count).append(unit).append(count == 1 ? "" : "s");
}

struct Duration {
  std::int32_t days;
  std::int32_t hours;
  std::int32_t minutes;
};

std::string LongDurationText(const Duration& duration) {
  std::string text;
  const auto append = [&text](std::int32_t count, std::string_view unit) {
    if (count <= 0) return;
    if (!text.empty()) text += " and ";
    text += CountText(count, unit);
  };
  append(duration.days, " day");
  append(duration.hours, " hour");
  append(duration.minutes, " minute");
  if (CountOf(text, " and") > 1) text.replace(text.find(" and"), 4, 1, ',');
  return text.empty() ? "0 minutes" : text;
}

std::string ShortDurationText(const Duration& duration) {
  std::string text;
  if (duration.days > 0) text += std::to_string(duration.days) + "d ";
  if (duration.hours > 0) text += std::to_string(duration.hours) + "h ";
  if (duration.minutes > 0) text += std::to_string(duration.minutes) + "m ";
  return text.empty() ? "0m" : std::string(Trim(text));
}

}  // namespace

std::int32_t ParseDateString(std::string_view text, DateRecord& record) {
  record.calendar = FormatLetter(record.calendar);
  const std::int32_t result = ParseDateText(Trim(text), record);
  record.valid = result == kDateParsed ? 1 : 0;
  return result;
}

std::string WeekdayName(std::int32_t weekday, bool padded, std::int32_t language) {
  std::string name(NameOf(language == kGerman ? kGermanWeekdays : kWeekdays, weekday, 0));
  constexpr std::size_t kWidth = std::string_view("Wednesday").size();
  if (padded && !name.empty() && name.size() < kWidth) name.resize(kWidth, ' ');
  return name;
}

std::string_view MonthName(std::int32_t month, std::int32_t language, bool abbreviated) {
  if (month == 13) return "Intercalarius";
  return NameOf(MonthTable(language == kGerman, abbreviated), month);
}

std::string_view AnnusNovusDayName(std::int32_t day) {
  if (day < 1) return {};
  return kAnnusNovusDays[static_cast<std::size_t>((day - 1) % 5)];
}

std::string YearText(std::int32_t year) {
  const bool long_year = year > 9999 || year < -9999;
  return long_year ? separate_thousands(std::to_string(year), ',') : std::to_string(year);
}

std::string DateText(const DateRecord& record) {
  return YearText(record.year) + "-" + NumericDate({{record.month, 2}, {record.day, 2}});
}

std::string DayOfYearText(const DateRecord& record) {
  const bool annus_novus = record.calendar == 'A';
  return std::string("The ")
      .append(OrdinalText(record.day))
      .append(" day of ")
      .append(MonthName(record.month))
      .append(" in the year ")
      .append(annus_novus ? std::to_string(record.year) : YearText(record.year))
      .append(" in the ")
      .append(CalendarName(record.calendar))
      .append(" Calendar");
}

std::string ClockText(std::int32_t seconds, bool with_seconds) {
  const std::int32_t minutes = seconds / kSecondsPerMinute;
  const std::string text =
      TwoDigits(minutes / kMinutesPerHour) + ":" + TwoDigits(minutes % kMinutesPerHour);
  return with_seconds ? text + ":" + TwoDigits(seconds % kSecondsPerMinute) : text;
}

std::string TimeOfDayText(double fraction, bool with_seconds) {
  if (!(fraction >= 0 && fraction <= 1)) return "XX:XX:XX";
  const auto rounded = static_cast<std::int32_t>(std::lround(fraction * kSecondsPerDay));
  return ClockText(std::min(rounded, kSecondsPerDay - 1), with_seconds);
}

std::string DurationText(std::int32_t minutes, bool long_form) {
  const Duration duration{minutes / kMinutesPerDay, minutes % kMinutesPerDay / kMinutesPerHour,
                          minutes % kMinutesPerHour};
  return long_form ? LongDurationText(duration) : ShortDurationText(duration);
}

UniversalTime NowAsAJD(std::string_view date_text, std::string_view time_text,
                       std::int32_t offset_minutes) {
  DateRecord date = ClockDate(date_text);
  const double fraction = static_cast<double>(ClockSeconds(time_text)) / kSecondsPerDay;
  return CJDToAJD(LocalCJD(euro_date_to_jdn(date) + fraction), offset_minutes);
}

LocalCJD AJDToCJD(UniversalTime ajd, std::int32_t offset_minutes) {
  return LocalCJD(ajd.days + 0.5 + DaysOf(offset_minutes));
}

UniversalTime CJDToAJD(LocalCJD cjd, std::int32_t offset_minutes) {
  return UniversalTime(cjd.days - 0.5 - DaysOf(offset_minutes));
}

UniversalTime NoonOf(DayNumber day_number, std::int32_t offset_minutes) {
  return CJDToAJD(LocalCJD(day_number.value + 0.5), offset_minutes);
}

DayAndTime SplitCJD(LocalCJD cjd) {
  auto day_number = CheckedFloor<std::int32_t>(cjd.days);
  long seconds = std::lround((cjd.days - day_number) * kSecondsPerDay);
  if (seconds == kSecondsPerDay) {
    day_number = CheckedAdd(day_number, 1);
    seconds = 0;
  }
  return {DayNumber(day_number), static_cast<double>(seconds) / kSecondsPerDay};
}

DayNumber DayOf(UniversalTime moment, std::int32_t offset_minutes) {
  return SplitCJD(AJDToCJD(moment, offset_minutes)).day_number;
}

}  // namespace tarnwick
