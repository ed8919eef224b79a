#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <ostream>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "calendars/entry_code.h"
#include "tests/tools/printed_table.h"

namespace tarnwick {
namespace {

constexpr char kHeader[] =
    "entry,error,time,ajd,CE,JC,ARC,SD,LLT,KSG,OLW,CJD,AJD,lunation,phase,age_days,illuminated\n";

std::string RefusedRow(std::string_view entry, std::string_view error) {
  return std::string(entry) + "," + std::string(error) + std::string(15, ',') + "\n";
}

// The cell of the only row.
std::string CellOf(const ToolRun& run, std::size_t column) {
  const std::size_t begin = run.out.find('\n') + 1;
  return SplitCells(run.out.substr(begin, run.out.find('\n', begin) - begin)).at(column);
}

// The nine dates are those that the window shows for the entry (tests/flows/date_labels.flow).
TEST(Convert, WritesAnEntryInAllCalendars) {
  const ToolRun run = RunTool({"convert"}, "2003-12-31 CE 15:55\r\n");
  EXPECT_EQ(run.status, kTablesDone);
  EXPECT_TRUE(run.out.starts_with(
      kHeader + std::string("2003-12-31 CE 15:55,,15:55,2453005.1631944,2003-12-31,2003-12-18,"
                            "4700-12-08,33-23-10-09,103-11-03-2,1-98-06-08,5003-10-2-1,"
                            "2453005.6632,2453005.1632,49,1,8.")))
      << run.out;
}

TEST(Convert, ReadsEntriesByCalendarAndZone) {
  constexpr std::size_t kTime = 2;
  constexpr std::size_t kAJDColumn = 3;
  constexpr std::size_t kCEColumn = 4;
  const std::tuple<TableArguments, const char*, std::size_t, const char*> cases[] = {
      {{"convert"}, "2003-12-31", kAJDColumn, "2453005.0000000"},
      {{"convert", "--zone", "+02:30"}, "2003-12-31 ce 14:30", kAJDColumn, "2453005.0000000"},
      {{"convert", "--zone=-05:00"}, "2003-12-31 CE 20:00", kAJDColumn, "2453005.5416667"},
      {{"convert", "--zone", "-05:00"}, "2453005.0 AJD", kTime, "07:00"},
      {{"convert", "--zone", "+02:30"}, "5003-10-2-1 OLW 01:00", kTime, "07:00"},
      {{"convert", "--calendar", "jc"}, "2003-12-18", kCEColumn, "2003-12-31"},
      {{"convert", "--calendar", "CJD"}, "2453005", kAJDColumn, "2453004.5000000"},
      {{"convert", "--calendar", "SD"}, "2003-12-31 CE (Wednesday)", kCEColumn, "2003-12-31"},
      // what is shown at the lower limit can be typed back
      {{"convert"}, "552282.99996 AJD", kAJDColumn, "552283.0000000"},
  };
  for (const auto& [arguments, entry, column, expected] : cases) {
    EXPECT_EQ(CellOf(RunTool(arguments, entry), column), expected) << entry;
  }
}

TEST(Convert, TellsWhyAnEntryIsRefused) {
  const ToolRun run = RunTool(
      {"convert"}, "2003-02-29 CE\n\nsay \"2,3\"\n2000-01-01 XY\n-3201-01-01 CE\n6000-01-02 CE\n");
  EXPECT_EQ(run.status, kEntryRefused);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(
      run.out,
      kHeader + RefusedRow("2003-02-29 CE", EntryErrorText(kInvalidCE)) +
          RefusedRow("", "No date given.") +
          RefusedRow("\"say \"\"2,3\"\"\"", "Invalid date entry.") +
          RefusedRow("2000-01-01 XY",
                     "\"Calendar must be specified (one of CE, JC, ARC, SD, LLT, OLW, CJD and "
                     "AJD).\"") +
          RefusedRow("-3201-01-01 CE", "Resultng date is earlier than -3200-01-01 CE.") +
          RefusedRow("6000-01-02 CE", "Resulting date is later than 6000-01-01 CE."));
}

// Hands out a line only after the row for the one before has been flushed.
class Dialogue : public std::streambuf {
 public:
  explicit Dialogue(std::vector<std::string> lines) : lines_(std::move(lines)) {}

  // The other side: where the rows go.
  class Rows : public std::stringbuf {
   public:
    int flushed = 0;

   protected:
    int sync() override {
      ++flushed;
      return 0;
    }
  } rows;

 protected:
  int_type underflow() override {
    EXPECT_EQ(rows.flushed, next_ + 1);
    if (next_ >= static_cast<int>(lines_.size())) return traits_type::eof();
    std::string& line = lines_[static_cast<std::size_t>(next_++)];
    setg(line.data(), line.data(), line.data() + line.size());
    return traits_type::to_int_type(line[0]);
  }

 private:
  std::vector<std::string> lines_;
  int next_ = 0;
};

TEST(Convert, AnswersEachLineBeforeItReadsTheNext) {
  Dialogue dialogue({"2003-12-31 CE\n", "nonsense\n", "2004-01-01 CE\n"});
  std::istream in(&dialogue);
  std::ostream out(&dialogue.rows);
  std::ostringstream err;
  EXPECT_EQ(RunTables(TableArguments{"convert"}, {in, out, err, false, kStamp}), kEntryRefused);
  EXPECT_EQ(std::ranges::count(dialogue.rows.str(), '\n'), 4);
}

}  // namespace
}  // namespace tarnwick
