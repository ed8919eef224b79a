// What tarnwick_tables prints, for its tests.
#pragma once

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/reference_data.h"
#include "tools/tables/tables.h"

namespace tarnwick {

using TableArguments = std::vector<std::string_view>;

struct ToolRun {
  int status = 0;
  std::string out;
  std::string err;
};

inline constexpr UniversalTime kStamp(2460375.0);  // noon of 2024-03-05

inline ToolRun RunTool(const TableArguments& arguments, const std::string& input = "",
                       bool shows_progress = false) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunTables(arguments, {in, out, err, shows_progress, kStamp});
  return {status, out.str(), err.str()};
}

inline std::string Print(const TableArguments& arguments) {
  const ToolRun run = RunTool(arguments);
  EXPECT_EQ(run.status, kTablesDone);
  EXPECT_EQ(run.err, "");
  return run.out;
}

// The rows of the table, their cells by the names in its header line.
inline std::vector<ReferenceRow> Table(const TableArguments& arguments) {
  std::istringstream lines(Print(arguments));
  std::string line;
  std::getline(lines, line);
  const std::vector<std::string> names = SplitCells(line);
  std::vector<ReferenceRow> rows;
  while (std::getline(lines, line)) {
    const std::vector<std::string> cells = SplitCells(line);
    EXPECT_EQ(cells.size(), names.size()) << line;
    ReferenceRow& row = rows.emplace_back();
    for (std::size_t i = 0; i < std::min(cells.size(), names.size()); ++i) row[names[i]] = cells[i];
  }
  return rows;
}

}  // namespace tarnwick
