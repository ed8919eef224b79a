#include "lists/found_list.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/text.h"
#include "engines/date_engine.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/clock_error.h"
#include "navigation/target.h"
#include "sky/certainty.h"
#include "sky/crescent.h"
#include "sky/place_time.h"
#include "sky/sky_texts.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 6> kKinds{"Phases of the Moon",
                                                 "Eclipses",
                                                 "Eclipses seen at the place",
                                                 "Coincidences of 1sts of month",
                                                 "First crescents",
                                                 "Days in all calendars"};

Calendar DateCalendar(const ListReading& reading) {
  return IsDayCount(reading.calendar) ? kCE : reading.calendar;
}

// A column of the rows of a kind.
template <class Row>
struct Column {
  ListColumn column;
  std::string (*text)(const Row& row, const ListReading& reading);
  double (*key)(const Row& row);
};

// A list whose rows are kept as they are found. `Kind` has a Row and its columns, a finder, and
// RowOf(), which makes the row of what the finder has found, if it is one.
template <class Kind>
class KeptList final : public FoundList {
 public:
  explicit KeptList(Kind kind) : kind_(std::move(kind)) {}

  std::vector<ListColumn> Columns() const override {
    std::vector<ListColumn> columns;
    columns.reserve(Kind::kColumns.size());
    for (const auto& one : Kind::kColumns) columns.push_back(one.column);
    return columns;
  }
  bool FindMore() override {
    const bool more = kind_.finder.Next();
    if (const auto* found = kind_.finder.Found()) {
      if (auto row = kind_.RowOf(*found)) rows_.push_back(std::move(*row));
    }
    return more;
  }
  double Progress() const override { return kind_.finder.Progress(); }
  std::size_t Size() const override { return rows_.size(); }
  ListedMoment MomentOf(std::size_t row) const override { return Kind::MomentOf(rows_.at(row)); }
  std::optional<CalendarEvent> EventOf(std::size_t row) const override {
    return kind_.EventOfRow(rows_.at(row));
  }
  std::string Cell(std::size_t row, std::size_t column, const ListReading& reading) const override {
    return Kind::kColumns.at(column).text(rows_.at(row), reading);
  }
  double SortKey(std::size_t row, std::size_t column) const override {
    return Kind::kColumns.at(column).key(rows_.at(row));
  }

 private:
  Kind kind_;
  std::vector<typename Kind::Row> rows_;
};

// What several kinds of rows have, and the columns of that.

UniversalTime InstantOf(const FoundPhase& row) { return row.event.ut; }
UniversalTime InstantOf(const ListedEclipse& row) { return row.greatest; }
std::int32_t LunationIn(const FoundPhase& row) { return row.at.lunation; }
std::int32_t LunationIn(const ListedEclipse& row) { return row.at.lunation; }

constexpr ListColumn kDate{"Date", "-2026-11-22 ARC", false, true};
constexpr ListColumn kTime{"Time", "08:08 +- 88 min", false, true};
constexpr ListColumn kLunation{"Lunation", "-64316", true, true};
constexpr ListColumn kEclipse{"Eclipse", "Non-central annular-total solar eclipse"};
constexpr ListColumn kSaros{"Saros", "-188", true};
constexpr ListColumn kJulianDate{"AJD", "2,451,545.0000", true, true};

template <class Row>
std::string DateCell(const Row& row, const ListReading& reading) {
  return ShortDateText(DateCalendar(reading), InstantOf(row), reading.offset_minutes);
}

// As the main window reads it, with how sure it is.
template <class Row>
std::string TimeCell(const Row& row, const ListReading& reading) {
  const double fraction = SplitCJD(AJDToCJD(InstantOf(row), reading.offset_minutes)).fraction;
  return TimeOfDayText(fraction, false) + ClockErrorSuffix(ClockError(InstantOf(row)));
}

template <class Row>
std::string JulianDateCell(const Row& row, const ListReading& /*reading*/) {
  return FormatFixed(InstantOf(row).days, 4, true);
}

template <class Row>
double InstantKey(const Row& row) {
  return InstantOf(row).days;
}

template <class Row>
std::string LunationCell(const Row& row, const ListReading& /*reading*/) {
  return std::to_string(LunationIn(row));
}

template <class Row>
double LunationKey(const Row& row) {
  return LunationIn(row);
}

struct PhaseKind {
  using Row = FoundPhase;

  static std::string PhaseCell(const Row& row, const ListReading& /*reading*/) {
    return std::string(PhaseText(row.at.phase));
  }
  static double PhaseKey(const Row& row) { return row.at.phase; }

  static constexpr std::array<Column<Row>, 5> kColumns{{
      {kDate, DateCell<Row>, InstantKey<Row>},
      {kTime, TimeCell<Row>, InstantKey<Row>},
      {{"Phase", "Last quarter"}, PhaseCell, PhaseKey},
      {kLunation, LunationCell<Row>, LunationKey<Row>},
      {kJulianDate, JulianDateCell<Row>, InstantKey<Row>},
  }};

  static ListedMoment MomentOf(const Row& row) { return {row.event.ut}; }
  static std::optional<Row> RowOf(const FoundPhase& found) { return found; }
  static CalendarEvent EventOfRow(const Row& row) { return EventOf(row); }
  PhaseFinder finder;
};

// Of rows with an eclipse.

const ListedEclipse& EclipseIn(const ListedEclipse& row) { return row; }
const ListedEclipse& EclipseIn(const ListedSeenEclipse& row) { return row.eclipse; }

template <class Row>
std::string TypeCell(const Row& row, const ListReading& /*reading*/) {
  return std::string(EclipseTypeText(static_cast<std::int16_t>(EclipseIn(row).record.type)));
}

template <class Row>
double TypeKey(const Row& row) {
  return EclipseIn(row).record.type;
}

template <class Row>
std::string SarosCell(const Row& row, const ListReading& /*reading*/) {
  return std::to_string(EclipseIn(row).record.saros);
}

template <class Row>
double SarosKey(const Row& row) {
  return EclipseIn(row).record.saros;
}

struct EclipseKind {
  using Row = ListedEclipse;

  static std::string MagnitudeCell(const Row& row, const ListReading& /*reading*/) {
    return FormatFixed(row.record.magnitude, 4, false);
  }
  static double MagnitudeKey(const Row& row) { return row.record.magnitude; }
  static std::string GammaCell(const Row& row, const ListReading& /*reading*/) {
    return FormatFixed(row.record.gamma, 4, false);
  }
  static double GammaKey(const Row& row) { return row.record.gamma; }

  static constexpr std::array<Column<Row>, 8> kColumns{{
      {kDate, DateCell<Row>, InstantKey<Row>},
      {kTime, TimeCell<Row>, InstantKey<Row>},
      {kEclipse, TypeCell<Row>, TypeKey<Row>},
      {kSaros, SarosCell<Row>, SarosKey<Row>},
      {{"Magnitude", "-0.0000", true}, MagnitudeCell, MagnitudeKey},
      {{"Gamma", "-0.0000", true}, GammaCell, GammaKey},
      {kLunation, LunationCell<Row>, LunationKey<Row>},
      {kJulianDate, JulianDateCell<Row>, InstantKey<Row>},
  }};

  static ListedMoment MomentOf(const Row& row) { return {row.greatest, row.at}; }
  static std::optional<Row> RowOf(const ListedEclipse& found) { return found; }
  static CalendarEvent EventOfRow(const Row& row) { return EventOf(row); }
  EclipseFinder finder;
};

// By the instant at which the most is seen.
UniversalTime InstantOf(const ListedSeenEclipse& row) { return row.here.Instant(); }

// An eclipse seen, with the place that sees it.
struct SeenEclipseRow : ListedSeenEclipse {
  GeoPoint place;
};

struct SeenEclipseKind {
  using Row = SeenEclipseRow;

  static std::string LocalTimeCell(const Row& row, const ListReading& reading) {
    const PlaceReading at_place{row.place, DateCalendar(reading), reading.offset_minutes};
    return PlaceTimesOf(InstantOf(row), at_place, false, ClockError(InstantOf(row))).local;
  }
  static std::string SeenCell(const Row& row, const ListReading& /*reading*/) {
    return std::string(row.here.solar ? NameOf(row.here.solar->kind_seen)
                                      : NameOfLunar(row.here.lunar->type_seen));
  }
  static double SeenKey(const Row& row) {
    return row.here.solar ? static_cast<double>(row.here.solar->kind_seen)
                          : static_cast<double>(row.here.lunar->type_seen);
  }
  static double MagnitudeKey(const Row& row) {
    return row.here.solar ? row.here.solar->magnitude_seen : row.here.lunar->magnitude_seen.umbral;
  }
  static std::string MagnitudeCell(const Row& row, const ListReading& /*reading*/) {
    return FormatFixed(MagnitudeKey(row), 3, false);
  }
  // Of Sun or Moon at the maximum, in degrees.
  static double AltitudeKey(const Row& row) {
    const BodyAtInstant& body = row.here.solar ? row.here.solar->maximum : row.here.lunar->greatest;
    return body.direction.altitude / kDegree;
  }
  static std::string AltitudeCell(const Row& row, const ListReading& /*reading*/) {
    return FormatFixed(AltitudeKey(row), 1, false);
  }
  static std::string SureCell(const Row& row, const ListReading& /*reading*/) {
    return CertaintyText(CertaintyOf(row.eclipse.record, ObserverAt(row.place)));
  }

  static constexpr std::array<Column<Row>, 10> kColumns{{
      {kDate, DateCell<Row>, InstantKey<Row>},
      {kTime, TimeCell<Row>, InstantKey<Row>},
      {{"Local time", "08:08 +- 88 min", false, true}, LocalTimeCell, InstantKey<Row>},
      {kEclipse, TypeCell<Row>, TypeKey<Row>},
      {{"Seen as", "penumbral"}, SeenCell, SeenKey},
      {{"Magnitude", "-0.000", true}, MagnitudeCell, MagnitudeKey},
      {{"Altitude", "-88.8", true}, AltitudeCell, AltitudeKey},
      {kSaros, SarosCell<Row>, SarosKey<Row>},
      {kJulianDate, JulianDateCell<Row>, InstantKey<Row>},
      {{"How sure", "total; partial if delta T is 310 s more"}, SureCell, SeenKey},
  }};

  static ListedMoment MomentOf(const Row& row) { return {InstantOf(row), row.eclipse.at}; }
  std::optional<Row> RowOf(const ListedSeenEclipse& found) const { return Row{found, place.point}; }
  CalendarEvent EventOfRow(const Row& row) const { return EventOf(row, place); }
  SeenEclipseFinder finder;
  EventPlace place;
};

// The first evening of a lunation on which the crescent may be seen.
struct CrescentRow {
  std::int32_t lunation = 0;
  UniversalTime new_moon;
  UniversalTime sunset;
  CrescentQuantities quantities;
  char visibility = 'F';
  GeoPoint place;
};

UniversalTime InstantOf(const CrescentRow& row) { return row.quantities.best; }
std::int32_t LunationIn(const CrescentRow& row) { return row.lunation; }

struct CrescentKind {
  using Row = CrescentRow;

  static PlaceReading At(const Row& row, const ListReading& reading) {
    return {row.place, DateCalendar(reading), reading.offset_minutes};
  }
  static std::string EveningCell(const Row& row, const ListReading& reading) {
    return LocalDate(row.sunset, At(row, reading));
  }
  static std::string BestCell(const Row& row, const ListReading& reading) {
    return PlaceTimesOf(InstantOf(row), At(row, reading), false, 0).local;
  }
  static std::string ClassCell(const Row& row, const ListReading& /*reading*/) {
    return std::string(1, row.visibility);
  }
  static double ClassKey(const Row& row) { return row.visibility; }
  static std::string MeaningCell(const Row& row, const ListReading& /*reading*/) {
    return std::string(CrescentClassText(row.visibility));
  }
  static std::string QuantityCell(const Row& row, const ListReading& /*reading*/) {
    return FormatFixed(row.quantities.q, 3, false);
  }
  static double QuantityKey(const Row& row) { return row.quantities.q; }
  // Of the Moon at the best time, in hours.
  static double AgeKey(const Row& row) { return (InstantOf(row) - row.new_moon) * kHoursPerDay; }
  static std::string AgeCell(const Row& row, const ListReading& /*reading*/) {
    return FormatFixed(AgeKey(row), 1, false);
  }

  static constexpr std::array<Column<Row>, 8> kColumns{{
      {{"Evening of", "-2026-11-22 ARC", false, true}, EveningCell, InstantKey<Row>},
      {{"Best time", "local 08:08", false, true}, BestCell, InstantKey<Row>},
      {{"Class", "Class", false}, ClassCell, ClassKey},
      {{"What that means", "visible under perfect conditions"}, MeaningCell, ClassKey},
      {{"q", "-0.000", true}, QuantityCell, QuantityKey},
      {{"Age (h)", "88.8", true}, AgeCell, AgeKey},
      {kLunation, LunationCell<Row>, LunationKey<Row>},
      {kJulianDate, JulianDateCell<Row>, InstantKey<Row>},
  }};

  static ListedMoment MomentOf(const Row& row) { return {row.quantities.best}; }
  std::optional<Row> RowOf(const FoundCrescents& found) const {
    const std::optional<std::size_t> first = TellingCrescent(found.evenings);
    if (!first) return std::nullopt;
    const Crescent& crescent = found.evenings.at(*first);
    return Row{found.lunation,       found.new_moon,    *crescent.sun,
               *crescent.quantities, *crescent.Class(), place.point};
  }
  std::optional<CalendarEvent> EventOfRow(const Row& row) const {
    return EventOf(CrescentsAbout(row.lunation, ObserverAt(place.point)), place);
  }
  CrescentFinder finder;
  EventPlace place;
};

// Days, in all calendars: found by counting, so that none is kept.

constexpr ListColumn kWeekday{"Weekday", "Wednesday"};

std::vector<ListColumn> DayColumns() {
  std::vector<ListColumn> columns{kWeekday};
  for (const Calendar calendar : kDisplayOrder) {
    const bool count = IsDayCount(calendar);
    columns.push_back(
        {AbbreviationOf(calendar), count ? "2,451,545.0000 CJD" : "-5018-05-2-8 OLW", count, true});
  }
  return columns;
}

std::string DayCell(DayNumber day, std::size_t column, int offset_minutes) {
  if (column == 0) return WeekdayName(euro_day_of_week(day.value));
  return DateTextsOf(kDisplayOrder.at(column - 1), NoonOf(day, offset_minutes), offset_minutes)
      .short_form;
}

double DayKey(DayNumber day, std::size_t column) {
  return column == 0 ? euro_day_of_week(day.value) : day.value;
}

class CoincidenceList final : public FoundList {
 public:
  CoincidenceList(const Period& period, int offset_minutes)
      : finder_(period, offset_minutes), offset_minutes_(offset_minutes) {}

  std::vector<ListColumn> Columns() const override { return DayColumns(); }
  bool FindMore() override {
    const bool more = finder_.Next();
    if (const DayNumber* day = finder_.Found()) days_.push_back(*day);
    return more;
  }
  double Progress() const override { return finder_.Progress(); }
  std::size_t Size() const override { return days_.size(); }
  ListedMoment MomentOf(std::size_t row) const override {
    return {NoonOf(days_.at(row), offset_minutes_)};
  }
  std::optional<CalendarEvent> EventOf(std::size_t row) const override {
    return EventOfCoincidence(days_.at(row));
  }
  std::string Cell(std::size_t row, std::size_t column,
                   const ListReading& /*reading*/) const override {
    return DayCell(days_.at(row), column, offset_minutes_);
  }
  double SortKey(std::size_t row, std::size_t column) const override {
    return DayKey(days_.at(row), column);
  }

 private:
  CoincidenceFinder finder_;
  int offset_minutes_;
  std::vector<DayNumber> days_;
};

class DayList final : public FoundList {
 public:
  DayList(const Period& period, int offset_minutes)
      : first_(DayOf(period.begin, offset_minutes)),
        count_(DayOf(period.end - kMoment, offset_minutes) - first_ + 1),
        offset_minutes_(offset_minutes) {}

  std::vector<ListColumn> Columns() const override { return DayColumns(); }
  bool FindMore() override { return false; }
  double Progress() const override { return 1; }
  std::size_t Size() const override { return static_cast<std::size_t>(count_); }
  ListedMoment MomentOf(std::size_t row) const override {
    return {NoonOf(Day(row), offset_minutes_)};
  }
  bool HasEvents() const override { return false; }
  std::optional<CalendarEvent> EventOf(std::size_t /*row*/) const override { return std::nullopt; }
  std::string Cell(std::size_t row, std::size_t column,
                   const ListReading& /*reading*/) const override {
    return DayCell(Day(row), column, offset_minutes_);
  }
  double SortKey(std::size_t row, std::size_t column) const override {
    return DayKey(Day(row), column);
  }

 private:
  static constexpr double kMoment = 1.0 / kSecondsPerDay;  // the period ends before its end

  DayNumber Day(std::size_t row) const { return first_ + static_cast<std::int32_t>(row); }

  DayNumber first_;
  std::int32_t count_;
  int offset_minutes_;
};

std::optional<std::int16_t> PhaseOfChoice(std::size_t choice) {
  if (choice == 0) return std::nullopt;
  return static_cast<std::int16_t>(choice - 1);
}

}  // namespace

std::vector<std::string_view> ListKinds() { return {kKinds.begin(), kKinds.end()}; }

std::vector<std::string_view> ListChoices(ListKind kind) {
  std::vector<std::string_view> choices;
  if (kind == ListKind::kPhases) {
    choices.emplace_back("All phases");
    for (std::int16_t phase = 0; phase < kPhaseCount; ++phase) choices.push_back(PhaseText(phase));
  }
  if (kind == ListKind::kSeenEclipses) choices.assign(kSoughtTexts.begin(), kSoughtTexts.end());
  for (int target = kAnyEclipseTarget; kind == ListKind::kEclipses && target < kSameSarosTarget;
       ++target) {
    choices.push_back(kTargets.at(static_cast<std::size_t>(target)).text);
  }
  return choices;
}

std::unique_ptr<FoundList> MakeList(const ListRequest& request) {
  const Period& period = request.period;
  switch (request.kind) {
    case ListKind::kPhases:
      return std::make_unique<KeptList<PhaseKind>>(
          PhaseKind{PhaseFinder(period, PhaseOfChoice(request.choice))});
    case ListKind::kEclipses:
      return std::make_unique<KeptList<EclipseKind>>(
          EclipseKind{EclipseFinder(period, kAnyEclipseTarget + static_cast<int>(request.choice))});
    case ListKind::kSeenEclipses:
      return std::make_unique<KeptList<SeenEclipseKind>>(
          SeenEclipseKind{SeenEclipseFinder(period, request.place.point,
                                            static_cast<SoughtEclipse>(request.choice)),
                          request.place});
    case ListKind::kCoincidences:
      return std::make_unique<CoincidenceList>(period, request.offset_minutes);
    case ListKind::kCrescents:
      return std::make_unique<KeptList<CrescentKind>>(
          CrescentKind{CrescentFinder(period, request.place.point), request.place});
    case ListKind::kDays:
      break;
  }
  return std::make_unique<DayList>(period, request.offset_minutes);
}

}  // namespace tarnwick
