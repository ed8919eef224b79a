#include "lists/icalendar.h"

#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "calendars/date_processing.h"
#include "engines/date_engine.h"
#include "lists/calendar_events.h"
#include "lists/finders.h"
#include "navigation/target.h"

namespace tarnwick {
namespace {

constexpr UniversalTime kStamp(2460375.0);  // noon of 2024-03-05

std::string FileOf(const CalendarEvent& event) {
  std::ostringstream out;
  CalendarWriter writer(out, kStamp);
  EXPECT_TRUE(writer.Add(event));
  writer.End();
  return out.str();
}

TEST(ICalendar, WritesAFileLineByLine) {
  EXPECT_EQ(FileOf({"a-1", UniversalTime(2460310.646146), "Moon; \\ sun, \"x\"", "one\ntwo"}),
            "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tarnwick//Tarnwick 18.0//EN\r\n"
            "CALSCALE:GREGORIAN\r\nBEGIN:VEVENT\r\nUID:a-1\r\nDTSTAMP:20240305T120000Z\r\n"
            "DTSTART:20240101T033027Z\r\nSUMMARY:Moon\\; \\\\ sun\\, \"x\"\r\n"
            "DESCRIPTION:one\\ntwo\r\nTRANSP:TRANSPARENT\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
}

TEST(ICalendar, WritesStartsAsUTCOrWholeDays) {
  const std::pair<decltype(CalendarEvent::when), std::string> cases[] = {
      {UniversalTime(2460310.5 - 0.4 / 86400), "DTSTART:20240101T000000Z"},
      {UniversalTime(2460310.5 - 0.6 / 86400), "DTSTART:20231231T235959Z"},
      {UniversalTime(1721425.5), "DTSTART:00010101T000000Z"},
      {DayNumber(2460311), "DTSTART;VALUE=DATE:20240101"},
      {DayNumber(1721426), "DTSTART;VALUE=DATE:00010101"},
  };
  for (const auto& [when, line] : cases) {
    EXPECT_NE(FileOf({"a", when, "b", ""}).find("\r\n" + line + "\r\n"), std::string::npos) << line;
  }
}

TEST(ICalendar, LeavesOutWhatItCannotHold) {
  std::ostringstream out;
  CalendarWriter writer(out, kStamp);
  const std::string head = out.str();
  EXPECT_FALSE(writer.Add({"a", UniversalTime(1721425.5 - 1.0 / 86400), "b", ""}));
  EXPECT_FALSE(writer.Add({"a", DayNumber(1721425), "b", ""}));
  EXPECT_FALSE(writer.Add({"a", DayNumber(5373485), "b", ""}));  // 10000-01-01
  EXPECT_EQ(out.str(), head);
}

// Whatever the length, no line exceeds 75 octets, no character is cut, and unfolding gives it back.
TEST(ICalendar, FoldsLongLines) {
  for (const std::string letter : {"x", "\u00b0", "\u2014", "\U0001F315"}) {
    for (std::size_t count = 1; count < 200; ++count) {
      std::string text;
      for (std::size_t i = 0; i < count; ++i) text += letter;
      const std::string file = FileOf({"a", DayNumber(2460311), text, ""});
      std::string unfolded;
      std::istringstream lines(file);
      for (std::string line; std::getline(lines, line);) {
        ASSERT_TRUE(line.ends_with('\r'));
        line.pop_back();
        ASSERT_LE(line.size(), 75U);
        const bool goes_on = line.starts_with(' ');
        const std::size_t first = goes_on ? 1 : 0;
        ASSERT_NE(line[first] & 0xC0, 0x80) << line;
        unfolded += (goes_on ? "" : "\n") + line.substr(first);
      }
      ASSERT_NE(unfolded.find("\nSUMMARY:" + text + "\n"), std::string::npos) << count;
    }
  }
}

Period YearsFrom(std::int32_t year, std::int32_t years) {
  DateRecord begin{year, 1, 1};
  DateRecord end{year + years, 1, 1};
  return {CJDToAJD(LocalCJD(euro_date_to_jdn(begin)), 0),
          CJDToAJD(LocalCJD(euro_date_to_jdn(end)), 0)};
}

template <class Finder, class Make>
void AddEvents(Finder finder, const Make& make, std::vector<CalendarEvent>& events) {
  while (finder.Next()) {
    if (!finder.Found()) continue;
    const std::optional<CalendarEvent> event = make(*finder.Found());
    if (event) events.push_back(*event);
  }
}

std::vector<CalendarEvent> EventsOf(const Period& period, const EventPlace& place) {
  std::vector<CalendarEvent> events;
  const auto anywhere = [](const auto& found) { return EventOf(found); };
  const auto there = [&](const auto& found) { return EventOf(found, place); };
  AddEvents(PhaseFinder(period), anywhere, events);
  AddEvents(EclipseFinder(period, kAnyEclipseTarget), anywhere, events);
  AddEvents(SeenEclipseFinder(period, place.point, SoughtEclipse::kAny), there, events);
  AddEvents(CrescentFinder(period, place.point), there, events);
  AddEvents(CoincidenceFinder(period, 0), EventOfCoincidence, events);
  return events;
}

TEST(CalendarEvents, HaveUidsOfTheirOwnThatStay) {
  const EventPlace babylon{{32.54, 44.42}};
  std::set<std::string> uids;
  std::size_t count = 0;
  const Period period = YearsFrom(2000, 20);
  for (const EventPlace& place : {babylon, EventPlace{{-33.87, 151.2}, "Sydney"}}) {
    for (const CalendarEvent& event : EventsOf(period, place)) {
      // Those of no place come with both.
      if (place.name.empty() || event.uid.find("S151.2E") != std::string::npos) ++count;
      uids.insert(event.uid);
    }
  }
  EXPECT_GT(count, 1500U);
  EXPECT_EQ(uids.size(), count);
  // However the place is called, and whatever else is listed.
  const std::vector<CalendarEvent> some = EventsOf(YearsFrom(2010, 1), {babylon.point, "Babel"});
  EXPECT_GT(some.size(), 60U);
  for (const CalendarEvent& event : some) EXPECT_TRUE(uids.contains(event.uid)) << event.uid;
}

// The event of a year whose identifier begins like that.
CalendarEvent EventIn(std::int32_t year, const std::string& uid, const EventPlace& place) {
  for (CalendarEvent& event : EventsOf(YearsFrom(year, 1), place)) {
    if (event.uid.starts_with(uid)) return event;
  }
  ADD_FAILURE() << uid;
  return {};
}

TEST(CalendarEvents, SayWhatHappens) {
  const EventPlace babylon{{32.54, 44.42}, "Babylon"};
  struct Named {
    std::int32_t year;
    const char* uid;
    const char* summary;
  };
  const std::pair<Named, std::vector<std::string>> cases[] = {
      {{2024, "phase-297-2", "Full moon"}, {"2024-01-25 CE 17:54:0", "Lunation 297"}},
      {{1066, "phase--11552-0", "New moon"}, {"1066-01-05 CE", "\nJulian calendar: 1065-12-30 JC"}},
      {{-500, "phase--30921-1", "First quarter"}, {"-500-01-04 CE 06:07 +- 7 min GMT"}},
      {{2018, "eclipse-229-2@", "Total lunar eclipse"}, {"2018-07-27 CE, saros 129", "1.60"}},
      {{2018, "eclipse-229-2-32.54N44.42E@", "Lunar eclipse seen as total at Babylon"},
       {"\nBabylon, 32.54 N 44.42 E\n", "Seen here as total", "total phase ends",
        "The clock is sure"}},
      {{-135, "eclipse--26403-0-32.54N44.42E@", "Solar eclipse seen as total at Babylon"},
       {"of -135-04-15 JC (-135, 136 BCE)", " +- ", "delta T"}},
      {{2024, "crescent-300-32.54N44.42E@", "First crescent at Babylon (A)"},
       {"evening of 2024-04-09 CE, easily visible (A)"}},
      {{2000, "coincidence-2451639@", "First of the month in SD, ARC, LLT and KSG"},
       {"-01 SD\n", "-01 ARC\n", "-01-1 LLT\n", "-01 KSG"}},
  };
  for (const auto& [named, told] : cases) {
    const CalendarEvent event = EventIn(named.year, named.uid, babylon);
    EXPECT_EQ(event.summary, named.summary);
    for (const std::string& part : told) {
      EXPECT_NE(event.description.find(part), std::string::npos) << part << event.description;
    }
  }
}

}  // namespace
}  // namespace tarnwick
