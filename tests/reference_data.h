// Reading of the reference tables in tests/data.
#pragma once

#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnwick {

// One row of a table: the cells by the names of their columns.
using ReferenceRow = std::map<std::string, std::string>;

// The cells of a line; one in quotation marks may hold commas.
inline std::vector<std::string> SplitCells(const std::string& line) {
  std::vector<std::string> cells(1);
  bool quoted = false;
  for (const char c : line) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ',' && !quoted) {
      cells.emplace_back();
    } else {
      cells.back() += c;
    }
  }
  return cells;
}

// The rows of a CSV file whose first line, after comments that begin with "#", names the columns.
// Throws when a row has another number of cells, or when there is no row, so that no test passes
// for want of data.
inline std::vector<ReferenceRow> ReadReferenceData(const std::string& file_name) {
  std::ifstream file(std::string(TEST_DATA "/") + file_name);
  std::string line;
  while (std::getline(file, line) && line.starts_with('#')) {
  }
  const std::vector<std::string> names = SplitCells(line);
  std::vector<ReferenceRow> rows;
  while (std::getline(file, line)) {
    const std::vector<std::string> cells = SplitCells(line);
    if (cells.size() != names.size()) throw std::runtime_error(file_name + ": bad row " + line);
    ReferenceRow row;
    for (std::size_t i = 0; i < cells.size(); ++i) row[names[i]] = cells[i];
    rows.push_back(row);
  }
  if (rows.empty()) throw std::runtime_error(file_name + " has no rows");
  return rows;
}

}  // namespace tarnwick
