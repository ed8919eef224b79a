// Tables for spreadsheets (RFC 4180).
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarnwick {

// A cell, in quotation marks if it needs them.
std::string CSVCell(std::string_view text);

// Adds a line to a text: cells between commas, CR LF.
void AddCSVLine(std::span<const std::string> cells, std::string& text);

}  // namespace tarnwick
