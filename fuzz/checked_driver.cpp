#include "fuzz/checked_driver.h"

#include <cmath>
#include <istream>
#include <random>
#include <streambuf>
#include <string_view>
#include <utility>

#include "app/main_window.h"
#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/entry_parser.h"
#include "calendars/text.h"
#include "engines/time_units.h"
#include "fuzz/check.h"
#include "moment/time_zone.h"
#include "tools/driver/driver.h"

namespace tarnwick {
namespace {

constexpr int kMostHistory = 8;
constexpr double kLastDecimal = 0.0001;  // of a day count on display
// In days. Farther beyond the limits a clock can lead, but not every calendar reads its dates.
constexpr double kWithinReach = 1e6;

// The dates are no better known than the day counts on display: to their last decimal.
class DateChecks {
 public:
  explicit DateChecks(const frmMain& main)
      : dates_(main.dates),
        offset_(main.time.optGreenwich.Value() ? 0 : TimeZoneOffset(main.time.cboTimeZone.Text())),
        ajd_(Read(kAJD)) {}

  void Run() const {
    Check(std::isfinite(ajd_.days), "the moment is finite", Caption(kAJD));
    if (ajd_ < kLowerLimit - kWithinReach || ajd_ > kUpperLimit + kWithinReach) return;
    Check(std::fabs(Read(kCJD) - ajd_) <= kLastDecimal, "the day counts agree", Caption(kCJD));
    int selected = 0;
    for (const Calendar calendar : kCalendars) {
      if (!IsDayCount(calendar)) CheckDay(calendar);
      if (!dates_.LabelOf(calendar)[1].Selected()) continue;
      ++selected;
      CheckTime(calendar);
    }
    Check(selected == 1, "one calendar is current");
  }

 private:
  const std::string& Caption(Calendar calendar) const {
    return dates_.LabelOf(calendar)[1].Caption();
  }

  // A day count's moment; of any other date noon, as its calendar counts the day.
  UniversalTime Read(Calendar calendar) const {
    const Entry entry = ParseEntry(UpperCase(Caption(calendar)), {calendar, offset_});
    Check(entry.code == kEntryOk && entry.calendar == calendar, "a date on display can be read",
          Caption(calendar));
    return entry.ajd;
  }

  void CheckDay(Calendar calendar) const {
    const double since_midnight = ajd_ - Read(calendar) + 0.5;
    Check(since_midnight >= -kLastDecimal && since_midnight <= 1 + kLastDecimal,
          "the moment lies in the day on display", Caption(calendar));
  }

  void CheckTime(Calendar current) const {
    constexpr double kHalfADay = kMinutesPerDay / 2.0;
    const std::string& caption = dates_.lblTime[1].Caption();
    const double shown = LeadingNumber(caption) * kMinutesPerHour +
                         LeadingNumber(std::string_view(caption).substr(caption.find(':') + 1));
    const double passed =
        (AJDToCJD(ajd_, offset_) - RowOf(current).day_shift).days * kMinutesPerDay - shown;
    // Less than a minute, whole days apart.
    const double beyond = std::remainder(passed - 0.5, 2 * kHalfADay);
    Check(std::fabs(beyond) <= 0.5 + kLastDecimal * kMinutesPerDay, "the time is that of the day",
          caption);
  }

  const DatesSection& dates_;
  int offset_;
  UniversalTime ajd_;
};

void CheckEnabled(const Control& control, bool enabled) {
  Check(control.Enabled() == enabled, "what can be used follows from what is going on",
        control.Name());
}

void CheckAvailability(const frmMain& main, bool moving) {
  const bool paused = moving && main.move.cmdPauseResume.Caption() == "Resume";
  for (const Control* control : std::initializer_list<const Control*>{
           &main.entry.fraConvert, &main.entry.txbDate, &main.entry.txbPlusMinus,
           &main.entry.cmdCompute, &main.entry.cmdClearDate, &main.move.fraMove, &main.move.cmdMove,
           &main.search.fraSearch, &main.search.cmdSearch, &main.history.fraHistory,
           &main.log.chkLog, &main.log.cmdLogPreferences, &main.cmdReset, &main.cmdHelp,
           &main.cmdQuit}) {
    CheckEnabled(*control, !moving);
  }
  CheckEnabled(main.log.cmdViewLog, !moving && !main.log.log_window.IsEmpty());
  if (moving) {
    CheckEnabled(main.log.cmdLogThisResult, false);
    CheckEnabled(main.cmdSaveState, false);
  }
  CheckEnabled(main.move.cmdStop, true);
  CheckEnabled(main.move.cmdPauseResume, true);
  CheckEnabled(main.move.cboRefreshPeriod, !moving || paused);
  CheckEnabled(main.Clock, moving ? !paused : main.picCheck.Visible());
  Check(main.move.fraStopPauseResume.Visible() == moving, "Stop is there while there is a move");
  Check(moving || main.move.cmdPauseResume.Caption() == "Pause", "no move pauses at rest");
  Check(!main.search.lblSearching.Visible(), "no search is shown that does not run");
}

void CheckHistory(const ComboBox& history) {
  Check(history.ListCount() >= 1 && history.ListCount() <= kMostHistory, "the history's length");
  Check(history.CanSelect(history.ListIndex()), "the history's selection");
}

// What the main window reads its dates from, and they themselves.
std::string DatesOf(const frmMain& main) {
  std::string text = main.dates.AllDatesText() + main.time.cboTimeZone.Text();
  text += main.time.optGreenwich.Value() ? "G" : "L";
  for (const Calendar calendar : kCalendars) {
    text += main.dates.LabelOf(calendar)[1].Selected() ? "1" : "0";
  }
  return text;
}

// Hands the driver one line after another. When it asks for the next it is done with the last.
class CheckedCommands : public std::streambuf {
 public:
  explicit CheckedCommands(const std::string& commands) : rest_(commands) {}

  void Watch(const Driver& driver) { driver_ = &driver; }

 protected:
  int_type underflow() override {
    if (const frmMain* main = driver_->MainWindow()) CheckWindow(*main);
    if (!TakeLine()) return traits_type::eof();
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_.front());
  }

 private:
  void CheckWindow(const frmMain& main) {
    CheckAvailability(main, driver_->IsInsideHandler());
    CheckHistory(main.history.cboHistory);
    std::string dates = DatesOf(main);
    if (dates == checked_dates_) return;
    DateChecks(main).Run();
    checked_dates_ = std::move(dates);
  }

  bool TakeLine() {
    if (rest_.empty()) {
      line_ = "click cmdStop\n";
      return driver_->IsInsideHandler();
    }
    const std::size_t end = rest_.find('\n');
    line_ = std::string(rest_.substr(0, end)) + "\n";
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return true;
  }

  std::string_view rest_;
  std::string line_;
  std::string checked_dates_;
  const Driver* driver_ = nullptr;
};

struct TemporaryFolder {
  TemporaryFolder()
      : path(std::filesystem::temp_directory_path() /
             ("tarnwick-fuzz-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(path);
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path path;
};

}  // namespace

void RunChecked(const std::string& commands, std::ostream& output) {
  CheckedCommands lines(commands);
  std::istream input(&lines);
  Driver driver(input, output, FUZZ_PROGRAM_FOLDER);
  lines.Watch(driver);
  driver.Run();
}

const std::filesystem::path& ScratchFolder() {
  static const TemporaryFolder folder;
  return folder.path;
}

}  // namespace tarnwick
