// Tables for spreadsheets (RFC 4180).
#pragma once

#include <span>
#include <string>

namespace tarnwick {

// Adds a line to a text: cells between commas, those that need it in quotation marks, CR LF.
void AddCSVLine(std::span<const std::string> cells, std::string& text);

}  // namespace tarnwick
