#include "lists/icalendar.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>

#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "controls/product.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLongestLine = 75;  // octets, without its end

// Within the line that begins at `from`, so that no character of UTF-8 is cut.
std::size_t EndOfPiece(std::string_view line, std::size_t from, std::size_t longest) {
  constexpr auto kIsWithin = [](char octet) { return (octet & 0xC0) == 0x80; };
  if (line.size() - from <= longest) return line.size();
  std::size_t end = from + longest;
  while (end > from + 1 && kIsWithin(line[end])) --end;
  return end;
}

// A content line, folded: what goes on begins with a blank.
void WriteLine(std::ostream& out, std::string_view line) {
  std::size_t end = EndOfPiece(line, 0, kLongestLine);
  out << line.substr(0, end);
  while (end < line.size()) {
    const std::size_t begin = end;
    end = EndOfPiece(line, begin, kLongestLine - 1);
    out << kLineEnd << ' ' << line.substr(begin, end - begin);
  }
  out << kLineEnd;
}

// A value of the type TEXT.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char character : text) {
    if (character == '\r') continue;
    if (character == '\\' || character == ';' || character == ',') escaped += '\\';
    if (character == '\n') {
      escaped += "\\n";
    } else {
      escaped += character;
    }
  }
  return escaped;
}

std::string Padded(std::int32_t number, std::int32_t width) {
  return PadLeft(std::to_string(number), width, '0');
}

std::optional<std::string> DateOf(DayNumber day) {
  constexpr std::int32_t kFirstYear = 1;
  constexpr std::int32_t kLastYear = 9999;
  const DateRecord date = CivilDateOf(day.value);
  if (date.year < kFirstYear || date.year > kLastYear) return std::nullopt;
  return Padded(date.year, 4) + Padded(date.month, 2) + Padded(date.day, 2);
}

std::optional<std::string> DateTimeOf(UniversalTime instant) {
  const DayAndTime split = SplitCJD(AJDToCJD(instant, 0));
  const auto date = DateOf(split.day_number);
  if (!date) return std::nullopt;
  const auto seconds = static_cast<std::int32_t>(std::lround(split.fraction * kSecondsPerDay));
  return *date + 'T' + Padded(seconds / kSecondsPerHour, 2) +
         Padded(seconds / kSecondsPerMinute % kMinutesPerHour, 2) +
         Padded(seconds % kSecondsPerMinute, 2) + 'Z';
}

// The property DTSTART.
std::optional<std::string> StartOf(const CalendarEvent& event) {
  if (const auto* day = std::get_if<DayNumber>(&event.when)) {
    const auto date = DateOf(*day);
    return date ? std::optional("DTSTART;VALUE=DATE:" + *date) : std::nullopt;
  }
  const auto instant = DateTimeOf(std::get<UniversalTime>(event.when));
  return instant ? std::optional("DTSTART:" + *instant) : std::nullopt;
}

}  // namespace

CalendarWriter::CalendarWriter(std::ostream& out, UniversalTime stamp)
    : out_(out), stamp_("DTSTAMP:" + DateTimeOf(stamp).value_or("00010101T000000Z")) {
  WriteLine(out_, "BEGIN:VCALENDAR");
  WriteLine(out_, "VERSION:2.0");
  WriteLine(out_, std::string("PRODID:-//Tarnwick//") + kProgramTitle + "//EN");
  WriteLine(out_, "CALSCALE:GREGORIAN");
}

bool CalendarWriter::Add(const CalendarEvent& event) {
  const auto start = StartOf(event);
  if (!start) return false;
  WriteLine(out_, "BEGIN:VEVENT");
  WriteLine(out_, "UID:" + Escaped(event.uid));
  WriteLine(out_, stamp_);
  WriteLine(out_, *start);
  WriteLine(out_, "SUMMARY:" + Escaped(event.summary));
  if (!event.description.empty()) WriteLine(out_, "DESCRIPTION:" + Escaped(event.description));
  WriteLine(out_, "TRANSP:TRANSPARENT");
  WriteLine(out_, "END:VEVENT");
  return true;
}

void CalendarWriter::End() { WriteLine(out_, "END:VCALENDAR"); }

}  // namespace tarnwick
