#include "lists/csv.h"

#include <cstddef>

namespace tarnwick {

std::string CSVCell(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string cell = "\"";
  for (const char c : text) cell.append(c == '"' ? 2 : 1, c);
  return cell + '"';
}

void AddCSVLine(std::span<const std::string> cells, std::string& text) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    if (i > 0) text += ',';
    text += CSVCell(cells[i]);
  }
  text += "\r\n";
}

}  // namespace tarnwick
