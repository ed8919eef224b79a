#include "lists/csv.h"

#include <string_view>

namespace tarnwick {
namespace {

void AddCell(std::string_view cell, std::string& text) {
  if (cell.find_first_of(",\"\r\n") == std::string_view::npos) {
    text += cell;
    return;
  }
  text += '"';
  for (const char c : cell) text.append(c == '"' ? 2 : 1, c);
  text += '"';
}

}  // namespace

void AddCSVLine(std::span<const std::string> cells, std::string& text) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) text += ',';
    AddCell(cells[i], text);
  }
  text += "\r\n";
}

}  // namespace tarnwick
