// What the sections of the main window share: the current moment, how moments are read, the eclipse
// on display and what the program is doing. It knows no control; what follows from a change it asks
// for by its hooks.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "calendars/calendar_table.h"
#include "engines/instant.h"
#include "moment/accepted_range.h"
#include "moon/syzyg.h"

namespace tarnwick {

inline constexpr std::int32_t kNoEclipse = -10000000;  // no lunation has that number

enum class Activity {
  kIdle,
  kMoving,  // a repeated move makes its steps
  kPaused,  // and waits for the user to go on with it
  kSearching,
};

// What the log takes of an operation.
struct Logged {
  std::string result;       // the entry of the history
  std::string operation;    // what was done: "Convert date"
  std::string description;  // of the eclipse found, in one line
};

// What an operation has led to, for history and log.
struct Outcome {
  std::string summary;  // the moment in the current calendar, in short form
  std::string operation;
  std::string description = {};
  std::int16_t eclipse_type = 0;  // of the phase found, 0 if it is no eclipse
  bool only_if_new = false;       // to be logged only if the history took it
};

class Session {
 public:
  // Wired once, by the window that makes the sections; until then they do nothing.
  struct Hooks {
    // Shows the moment everywhere; gives it back in the current calendar, in short form.
    std::function<std::string()> show_moment = [] { return std::string(); };
    // Enters an outcome in the history, then in the log.
    std::function<void(const Outcome& outcome)> finish = [](const Outcome& /*outcome*/) {};
    // Enters a result in the log alone.
    std::function<void(const Logged& result)> log = [](const Logged& /*result*/) {};
    // Put the focus where the user goes on: to the date box, to the button Move.
    std::function<void()> focus_on_date = [] {};
    std::function<void()> focus_on_move = [] {};
    // The moment on display, though no operation has led to it, is one to come back to.
    std::function<void()> remember = [] {};
    // What has changed: the activity, the current calendar, the eclipse on display or the way in
    // which its times are read, the clock.
    std::function<void()> activity_changed = [] {};
    std::function<void()> calendar_changed = [] {};
    std::function<void()> eclipse_changed = [] {};
    std::function<void()> clock_changed = [] {};
  };
  Hooks hooks;

  UniversalTime Moment() const { return dblMoment; }
  void SetMoment(UniversalTime moment) { dblMoment = moment; }
  // The calendar last entered or clicked.
  Calendar CurrentCalendar() const { return intCalendar; }
  void SetCalendar(Calendar calendar);

  // How moments are read: the zone chosen, in minutes east of Greenwich, and whether Greenwich time
  // takes its place.
  bool IsGreenwich() const { return greenwich_; }
  void SetGreenwich(bool greenwich);
  std::int16_t ZoneOffset() const { return zone_offset_; }
  void SetZoneOffset(std::int16_t minutes) { zone_offset_ = minutes; }
  int ReadingOffset() const { return greenwich_ ? 0 : zone_offset_; }
  // The moment as it is read, and its time of day as the current calendar counts the day,
  // "15:55".
  LocalCJD LocalMoment() const;
  std::string TimeText() const;

  // The eclipse that is described on display, by its syzygy.
  const std::optional<PhaseNumber>& DescribedEclipse() const { return described_eclipse_; }
  void DescribeEclipse(std::optional<PhaseNumber> syzygy);
  // The eclipse that a search has found last, which the next one passes over: another one may be
  // described meanwhile, recalled from the history.
  PhaseNumber FoundEclipse() const { return {lngEclipseLunation, intEclipsePhase}; }
  // Describes an eclipse that is also the one found last.
  void TakeEclipse(const PhaseNumber& syzygy);
  // Both are gone.
  void ClearEclipse();

  Activity CurrentActivity() const { return activity_; }
  void SetActivity(Activity activity);
  bool IsIdle() const { return activity_ == Activity::kIdle; }
  bool IsMoving() const { return activity_ == Activity::kMoving || IsPaused(); }
  bool IsPaused() const { return activity_ == Activity::kPaused; }
  bool IsSearching() const { return activity_ == Activity::kSearching; }
  // The program ends: whatever runs stops at its next pass.
  bool IsEnding() const { return blnEnding; }
  void End();

  // The moment is the present one and follows the computer's clock.
  bool IsClockRunning() const { return blnClockRunning; }
  void SetClockRunning(bool running);

  bool blnRestoring = false;         // the saved state is being restored
  bool blnRestoringHistory = false;  // an entry of the history is being recalled

 private:
  UniversalTime dblMoment;
  Calendar intCalendar = kCE;
  bool greenwich_ = false;
  std::int16_t zone_offset_ = 0;
  std::optional<PhaseNumber> described_eclipse_;
  std::int32_t lngEclipseLunation = kNoEclipse;
  std::int16_t intEclipsePhase = 0;
  Activity activity_ = Activity::kIdle;
  bool blnEnding = false;
  bool blnClockRunning = false;
};

// A flag that is set within a scope.
class ScopedFlag {
 public:
  explicit ScopedFlag(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~ScopedFlag() { flag_ = before_; }
  ScopedFlag(const ScopedFlag&) = delete;
  ScopedFlag& operator=(const ScopedFlag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

// An activity that ends with its scope, however that is left.
class ActivityScope {
 public:
  ActivityScope(Session& session, Activity activity) : session_(session) {
    session_.SetActivity(activity);
  }
  ~ActivityScope() { session_.SetActivity(Activity::kIdle); }
  ActivityScope(const ActivityScope&) = delete;
  ActivityScope& operator=(const ActivityScope&) = delete;

 private:
  Session& session_;
};

}  // namespace tarnwick
