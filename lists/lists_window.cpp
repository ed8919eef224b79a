#include "lists/lists_window.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <sstream>
#include <string_view>
#include <utility>

#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "controls/choice.h"
#include "controls/keys.h"
#include "controls/save_path.h"
#include "controls/text_file.h"
#include "engines/date_engine.h"
#include "lists/csv.h"
#include "lists/list_period.h"
#include "moon/phase_cache.h"
#include "navigation/operation.h"

namespace tarnwick {
namespace {

constexpr char kCaption[] = "Lists";
// A day in nine calendars takes some 10 us to put in words, and 150 bytes.
constexpr std::size_t kMostRowsOfFile = 500'000;
constexpr std::size_t kMostRowsOnPaper = 20'000;  // some 500 pages

std::string RowsText(std::size_t count) {
  return FormatFixed(static_cast<double>(count), 0, true) + (count == 1 ? " row" : " rows");
}

}  // namespace

frmLists::frmLists(Desktop& desktop, Screen& screen, Session& session, EntrySection& entry,
                   PlaceSection& place, frmNotice& notice)
    : ClosableForm(screen, "frmLists", kCaption),
      desktop_(desktop),
      session_(session),
      entry_(entry),
      place_(place),
      notice_(notice) {
  cboKind.on_click = [this] { cboKind_Click(); };
  for (const std::string_view kind : ListKinds()) cboKind.AddItem(std::string(kind));
  cboKind.SetListIndex(0);
  cboKind.SetToolTipText("What the list is made of");
  cboChoice.SetToolTipText("Which of them");
  for (TextBox* box : {&txbFrom, &txbTo}) {
    box->SetToolTipText("A date in any of the nine calendars, as in the main window");
    box->on_key_press = [this](int& key) { Period_KeyPress(key); };
  }
  cmdList.on_click = [this] { cmdList_Click(); };
  cmdStopList.on_click = [this] { cmdStopList_Click(); };
  for (std::size_t i = 0; i < kMostColumns; ++i) {
    chkColumn[i].SetVisible(false);
    chkColumn[i].on_click = [this, i] { chkColumn_Click(i); };
  }
  tblList.cell_text = [this](std::size_t row, std::size_t column) { return CellText(row, column); };
  tblList.on_heading_click = [this](std::size_t column) { SortBy(column); };
  tblList.on_take = [this](std::size_t row) { TakeRow(row); };
  tblList.Watch([this](Property changed) {
    if (changed == Property::kSelectedRow || changed == Property::kRows) UpdateAvailability();
  });
  cmdTakeRow.SetToolTipText("Makes the moment of the row the current one; so does Enter");
  cmdTakeRow.on_click = [this] { cmdTakeRow_Click(); };
  cmdSaveCSV.on_click = [this] { cmdSaveCSV_Click(); };
  cmdSaveCalendar.on_click = [this] { cmdSaveCalendar_Click(); };
  cmdSaveCalendar.SetToolTipText("For calendar programs; a row becomes an event of its own");
  cmdPrintList.on_click = [this] { cmdPrintList_Click(); };
  cmdSaveListPDF.on_click = [this] { cmdSaveListPDF_Click(); };
  tmrList.SetInterval(1);
  tmrList.on_timer = [this] { tmrList_Timer(); };
  UpdateAvailability();
}

// The year of the current moment, as long as nothing has been typed.
void frmLists::Form_Load() {
  place_.Load();
  if (!txbFrom.Text().empty()) return;
  const std::string year =
      std::to_string(CivilDateOf(DayOf(session_.Moment(), session_.ReadingOffset()).value).year);
  txbFrom.SetText(year + "-01-01 CE");
  txbTo.SetText(year + "-12-31 CE");
}

void frmLists::Form_Activate() { cboKind.SetFocus(); }

void frmLists::cmdClose_Click() {
  cmdStopList_Click();
  ClosableForm::cmdClose_Click();
}

ListReading frmLists::Reading() const {
  return {session_.CurrentCalendar(), session_.ReadingOffset()};
}

ListKind frmLists::Kind() const { return static_cast<ListKind>(cboKind.ListIndex()); }

void frmLists::UpdateAvailability() {
  const bool busy = blnFinding || blnSaving;
  const bool rows = tblList.RowCount() > 0;
  SetEnabled({&cboKind, &cboChoice, &txbFrom, &txbTo, &cmdList}, !busy);
  cmdStopList.SetEnabled(busy);
  SetEnabled({&fraColumns, &tblList}, !blnSaving);
  cmdTakeRow.SetEnabled(tblList.Selected().has_value() && session_.IsIdle() && !blnSaving);
  SetEnabled({&cmdSaveCSV, &cmdPrintList, &cmdSaveListPDF}, rows && !busy);
  cmdSaveCalendar.SetEnabled(rows && !busy && list_ && list_->HasEvents());
}

void frmLists::cboKind_Click() {
  const std::vector<std::string_view> choices = ListChoices(Kind());
  while (cboChoice.ListCount() > 0) cboChoice.RemoveItem(cboChoice.ListCount() - 1);
  for (const std::string_view choice : choices) cboChoice.AddItem(std::string(choice));
  if (!choices.empty()) cboChoice.SetListIndex(0);
  cboChoice.SetVisible(!choices.empty());
}

void frmLists::Period_KeyPress(int& key) {
  if (key != kEnterKey) return;
  key = 0;
  cmdList_Click();
}

void frmLists::cmdList_Click() {
  ListRequest request;
  const std::string fault =
      ReadListPeriod(txbFrom.Text(), txbTo.Text(),
                     {session_.CurrentCalendar(), session_.ReadingOffset()}, request.period);
  if (!fault.empty()) {
    desktop_.ShowMessage({fault, kCaption, MessageIcon::kExclamation});
    return;
  }
  request.kind = Kind();
  request.choice = static_cast<std::size_t>(std::max(cboChoice.ListIndex(), 0));
  request.place = {place_.Point(), place_.Name()};
  request.offset_minutes = session_.ReadingOffset();
  list_name_ = TitleOf(request);
  lblListTitle.SetCaption(list_name_);
  tblList.SetRowCount(0);
  list_ = MakeList(request);
  reading_ = Reading();
  ShowColumns();
  tblList.SetFocus();  // the button is disabled meanwhile
  blnFinding = true;
  blnCut = false;
  tmrList.SetEnabled(true);
  tmrList_Timer();
}

std::string frmLists::TitleOf(const ListRequest& request) const {
  const bool at_place =
      request.kind == ListKind::kSeenEclipses || request.kind == ListKind::kCrescents;
  std::string title = cboKind.Text();
  if (request.kind == ListKind::kSeenEclipses) title = "Eclipses seen";
  if (cboChoice.ListIndex() > 0) title += ", " + cboChoice.Text();
  if (at_place) title += " at " + place_.Name();
  return title + ", " + std::string(Trim(txbFrom.Text())) + " to " +
         std::string(Trim(txbTo.Text()));
}

void frmLists::cmdStopList_Click() {
  blnStopped = true;
  blnCut = blnCut || blnFinding;
  if (blnFinding) EndFinding();
}

// All of them at first.
void frmLists::ShowColumns() {
  const std::vector<ListColumn> columns = list_->Columns();
  for (std::size_t i = 0; i < kMostColumns; ++i) {
    const bool there = i < columns.size();
    chkColumn[i].SetVisible(there);
    if (!there) continue;
    chkColumn[i].SetCaption(std::string(columns[i].heading));
    chkColumn[i].SetValue(true);
  }
  ShowTable();
}

// Gives the table the columns that are chosen.
void frmLists::ShowTable() {
  const std::vector<ListColumn> columns = list_->Columns();
  std::vector<TableColumn> shown;
  shown_.clear();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!chkColumn[i].Value()) continue;
    shown_.push_back(i);
    shown.push_back(
        {std::string(columns[i].heading), std::string(columns[i].longest), columns[i].right});
  }
  order_ = RowOrder();
  tblList.SetOrder(std::nullopt);
  tblList.SetColumns(std::move(shown));
}

// One column at least stays.
void frmLists::chkColumn_Click(std::size_t column) {
  const bool any = std::ranges::any_of(
      chkColumn, [](const CheckBox& box) { return box.Visible() && box.Value(); });
  if (!any) {
    chkColumn[column].SetValue(true);
    return;
  }
  if (list_) ShowTable();
}

// Finds for as long as a frame may take; the first rows are there at once.
void frmLists::tmrList_Timer() {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds kSlice{15};
  const Clock::time_point end = Clock::now() + kSlice;
  bool more = true;
  while (more && Clock::now() < end) more = list_->FindMore();
  tblList.SetRowCount(list_->Size());
  if (!more) EndFinding();
  ShowProgress();
}

void frmLists::EndFinding() {
  blnFinding = false;
  tmrList.SetEnabled(false);
  Sort();
  ShowProgress();
  UpdateAvailability();
}

void frmLists::ShowProgress() {
  std::string text = RowsText(tblList.RowCount());
  if (blnFinding) {
    text += ", " + FormatFixed(100 * list_->Progress(), 0, false) + " %";
  } else if (blnCut) {
    text += ", stopped";
  }
  lblProgress.SetCaption(text);
}

// The row of the list behind a row of the table.
std::size_t frmLists::RowAt(std::size_t index) const {
  return order_.RowAt(index, tblList.RowCount());
}

std::string frmLists::CellText(std::size_t index, std::size_t column) const {
  return list_->Cell(RowAt(index), shown_.at(column), reading_);
}

void frmLists::Refresh() {
  if (!Visible() || !list_ || reading_ == Reading()) return;
  reading_ = Reading();
  tblList.Renew();
}

// By the column; by the same one again, the other way round.
void frmLists::SortBy(std::size_t column) {
  if (!list_ || column >= shown_.size()) return;
  const auto& order = tblList.SortedBy();
  const bool again = order && order->column == column;
  tblList.SetOrder(Table::Order{column, again && !order->descending});
  Sort();
}

// The selected row stays selected, wherever it goes.
void frmLists::Sort() {
  const auto& order = tblList.SortedBy();
  if (!order) return;
  const auto selected = tblList.Selected();
  const std::size_t row = selected ? RowAt(*selected) : 0;
  order_ = RowOrder(*list_, shown_.at(order->column), order->descending);
  tblList.Renew();
  for (std::size_t i = 0; selected && i < tblList.RowCount(); ++i) {
    if (RowAt(i) != row) continue;
    tblList.Select(i);
    return;
  }
}

void frmLists::TakeRow(std::size_t index) {
  if (!session_.IsIdle() || blnSaving) return;
  const ListedMoment taken = list_->MomentOf(RowAt(index));
  CarryOut(session_, desktop_, kCaption, [&] {
    session_.SetClockRunning(false);
    FoundMoment found{taken.moment};
    if (const auto& eclipse = taken.eclipse) {
      found.eclipse = eclipse;
      found.eclipse_type = FindPhaseEvent(eclipse->lunation, eclipse->phase).eclipse.type;
    }
    TakeFound(session_, desktop_, entry_, found, "Taken from a list");
  });
}

void frmLists::cmdTakeRow_Click() {
  if (const auto selected = tblList.Selected()) TakeRow(*selected);
}

// Lets events in now and then while rows are put in words; false once the user has stopped it.
bool frmLists::KeepSaving(std::size_t done) {
  constexpr std::size_t kBetweenYields = 500;
  if (done % kBetweenYields != 0) return true;
  lblProgress.SetCaption(RowsText(done) + " of " + RowsText(tblList.RowCount()) + " written");
  desktop_.Yield(YieldMode::kPoll);
  return !blnStopped && !session_.IsEnding();
}

bool frmLists::IsTooLong(std::size_t most, const std::string& what) {
  if (tblList.RowCount() <= most) return false;
  desktop_.ShowMessage({"This list has " + RowsText(tblList.RowCount()) + ". " + what + " takes " +
                            RowsText(most) + " at most: choose a shorter period.",
                        kCaption, MessageIcon::kExclamation});
  return true;
}

// Nothing if the user has stopped it.
std::optional<std::string> frmLists::MakeCSV() {
  std::string text = "\xef\xbb\xbf";  // tells spreadsheets that it is UTF-8
  std::vector<std::string> cells;
  for (const TableColumn& column : tblList.Columns()) cells.push_back(column.heading);
  AddCSVLine(cells, text);
  for (std::size_t row = 0; row < tblList.RowCount(); ++row) {
    if (!KeepSaving(row)) return std::nullopt;
    for (std::size_t column = 0; column < cells.size(); ++column) {
      cells[column] = CellText(row, column);
    }
    AddCSVLine(cells, text);
  }
  return text;
}

bool frmLists::SaveText(const Button& command, const std::string& ending,
                        const std::function<std::optional<std::string>()>& make) {
  if (IsTooLong(kMostRowsOfFile, "A file")) return false;
  const std::string& title = command.Caption();
  const auto file = AskWhereToSave(desktop_, title, FileNameOf(list_name_) + ending);
  if (!file) return false;
  blnStopped = false;
  blnSaving = true;
  UpdateAvailability();
  const std::optional<std::string> text = make();
  blnSaving = false;
  UpdateAvailability();
  ShowProgress();
  if (!text) return false;
  const std::string error = WriteTextFile(*file, *text);
  notice_.TellOfSaving(desktop_, *this, "the list", title, error);
  return error.empty();
}

void frmLists::cmdSaveCSV_Click() {
  SaveText(cmdSaveCSV, ".csv", [this] { return MakeCSV(); });
}

void frmLists::cmdSaveCalendar_Click() {
  std::size_t left_out = 0;
  const bool saved = SaveText(cmdSaveCalendar, ".ics", [&] { return MakeCalendar(left_out); });
  if (!saved || left_out == 0) return;
  desktop_.ShowMessage({RowsText(left_out) +
                            " had to be left out: a calendar file holds the years " +
                            "1 to 9999 only.",
                        cmdSaveCalendar.Caption(), MessageIcon::kInformation});
}

std::optional<std::string> frmLists::MakeCalendar(std::size_t& left_out) {
  const ClockReading now = desktop_.ReadClock();
  std::ostringstream text;
  CalendarWriter calendar(text, NowAsAJD(now.date, now.time, now.offset_minutes));
  for (std::size_t row = 0; row < tblList.RowCount(); ++row) {
    if (!KeepSaving(row)) return std::nullopt;
    const std::optional<CalendarEvent> event = list_->EventOf(RowAt(row));
    if (!event || !calendar.Add(*event)) ++left_out;
  }
  calendar.End();
  return text.str();
}

PrintedTable frmLists::Printed() const {
  return {list_name_, tblList.Columns(), tblList.RowCount(),
          [this](std::size_t row, std::size_t column) { return CellText(row, column); }};
}

void frmLists::cmdPrintList_Click() {
  if (IsTooLong(kMostRowsOnPaper, "Paper")) return;
  const std::string error = desktop_.Print(Printed(), desktop_.UsualPaper());
  if (!error.empty()) {
    desktop_.ShowMessage({error, cmdPrintList.Caption(), MessageIcon::kExclamation});
  }
}

void frmLists::cmdSaveListPDF_Click() {
  if (IsTooLong(kMostRowsOnPaper, "Paper")) return;
  const std::string& title = cmdSaveListPDF.Caption();
  const auto file = AskWhereToSave(desktop_, title, FileNameOf(list_name_) + ".pdf");
  if (!file) return;
  notice_.TellOfSaving(desktop_, *this, "the list", title,
                       desktop_.SavePDF(Printed(), *file, desktop_.UsualPaper()));
}

}  // namespace tarnwick
