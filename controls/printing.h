// What is to be printed, without a word of how: the port Desktop prints it, or saves it as PDF.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "controls/table.h"

namespace tarnwick {

enum class PaperSize { kA4, kLetter };

constexpr std::string_view PaperName(PaperSize paper) {
  return paper == PaperSize::kA4 ? "A4" : "Letter";
}

// A table of any length: title and headings stand on every page, and its columns share the width.
// A cell is asked for when its page is printed.
struct PrintedTable {
  std::string title;
  std::vector<TableColumn> columns;
  std::size_t row_count = 0;
  std::function<std::string(std::size_t row, std::size_t column)> cell;
};

// The Moon as a disc: which part of it is lit, 0 to 1, from which side.
struct PrintedMoon {
  double lit = 0;
  bool from_right = false;
};

struct PrintedCell {
  PrintedMoon moon;
  std::string main;
  std::string small;   // below it
  std::string events;  // what happens there, a line each; too long a line is broken
};

// A page of cells in rows, all of one size. Nothing stands where there is no cell.
struct PrintedGrid {
  std::string title;
  std::string subtitle;
  std::vector<std::string> headings;              // of the columns
  std::vector<std::optional<PrintedCell>> cells;  // row by row, whole rows
  std::string note;                               // below
};

// Pages of such grids, each made when it is printed.
struct PrintedGrids {
  std::string title;
  std::size_t page_count = 0;
  std::function<PrintedGrid(std::size_t page)> page;
};

using PrintedDocument = std::variant<PrintedTable, PrintedGrids>;

inline const std::string& TitleOf(const PrintedDocument& document) {
  return std::visit([](const auto& printed) -> const std::string& { return printed.title; },
                    document);
}

}  // namespace tarnwick
