// Typing an entry: three bytes choose the calendar, the zone and the time system, the first line
// after them is the date, the second the days to add. What is accepted lies within the limits, and
// its date in each of the nine calendars, typed back, is the same minute; what is refused changes
// nothing.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/calendar_table.h"
#include "calendars/date_texts.h"
#include "controls/form.h"
#include "engines/time_units.h"
#include "fuzz/check.h"
#include "moment/dates_section.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "moment/time_section.h"
#include "moment/time_zone.h"
#include "tools/driver/driver_desktop.h"

namespace tarnwick {
namespace {

constexpr UniversalTime kBefore(2451545.25);
constexpr double kOneMinute = 1.0 / kMinutesPerDay + 1e-8;
constexpr std::size_t kChoices = 3;  // the bytes before the text

// What of the main window reads entries and shows dates.
struct EntryWindow : Form {
  explicit EntryWindow(Screen& screen) : Form(screen, "frmEntry", "Entry") {
    session.hooks.show_moment = [this] { return dates.Show(); };
    session.SetMoment(kBefore);
  }

  DriverDesktop desktop{[](YieldMode) {}, {}};
  Session session;
  EntrySection entry{*this, session, desktop};
  DatesSection dates{*this, session, entry};
  TimeSection time{entry, session};

  // Returns the message that came, empty if there was none.
  std::string Compute(const std::string& date, const std::string& days) {
    entry.txbDate.SetText(date);
    entry.txbPlusMinus.SetText(days);
    entry.cmdCompute.Click();
    const std::vector<Message> messages = desktop.TakeMessages();
    Check(messages.size() <= 1, "one message at most", date);
    return messages.empty() ? "" : messages.front().text;
  }

  std::string DateAndTime() const {
    const Calendar calendar = session.CurrentCalendar();
    const std::string date =
        DateTextsOf(calendar, session.Moment(), session.ReadingOffset()).short_form;
    return IsDayCount(calendar) ? date : date + " " + session.TimeText();
  }
};

constexpr std::string_view kNothingToDo = "Nothing to do!";

void TypeBack(EntryWindow& window, UniversalTime moment, Calendar calendar) {
  window.session.SetMoment(moment);
  window.session.SetCalendar(calendar);
  const std::string text = window.DateAndTime();
  const std::string message = window.Compute(text, "");
  Check(message.empty() || message == kNothingToDo, "what is shown can be typed", text);
  Check(window.session.CurrentCalendar() == calendar, "typed back it is the same calendar", text);
  Check(window.DateAndTime() == text, "typed back it is shown alike", text);
  Check(std::fabs(window.session.Moment() - moment) < kOneMinute, "it is the same minute", text);
}

void Type(EntryWindow& window, Calendar calendar, const std::string& date,
          const std::string& days) {
  window.session.SetCalendar(calendar);
  const std::string message = window.Compute(date, days);
  const UniversalTime moment = window.session.Moment();
  if (!message.empty()) {
    Check(moment == kBefore, "a refused entry leaves the moment", date);
    Check(message == kNothingToDo || window.session.CurrentCalendar() == calendar,
          "a refused entry leaves the calendar", date);
    return;
  }
  Check(moment >= kLowerLimit && moment <= kUpperLimit, "the moment lies within the limits", date);
  for (const Calendar one : kCalendars) TypeBack(window, moment, one);
}

}  // namespace
}  // namespace tarnwick

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  if (size < kChoices) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data) + kChoices, size - kChoices);
  const std::size_t line_end = text.find('\n');
  const std::string_view days =
      line_end == std::string_view::npos ? std::string_view() : text.substr(line_end + 1);

  Screen screen;
  EntryWindow window(screen);
  window.time.SelectZone(TimeZoneOffset(TimeZoneText(data[1] % kTimeZoneCount)));
  if (data[2] % 2 == 1) window.time.optGreenwich.SetValue(true);
  if (data[2] / 2 % 2 == 1) window.entry.optMinus.SetValue(true);
  Type(window, kCalendars[data[0] % kCalendars.size()], std::string(text.substr(0, line_end)),
       std::string(days));
  return 0;
}
