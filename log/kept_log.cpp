#include "log/kept_log.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kEmptyLine = "\r\n\r\n";

}  // namespace

std::string KeptLogText(const ClockReading& now, std::string_view log) {
  std::string text = "==== " + now.date + " " + now.time + " ====";
  text += kEmptyLine;
  for (std::size_t i = 0; i < log.size(); ++i) {
    if (log.substr(i).starts_with(kLineEnd)) continue;  // the line feed will do
    if (log[i] == '\r' || log[i] == '\n') {
      text += kLineEnd;
    } else {
      text += log[i];
    }
  }
  while (!text.ends_with(kEmptyLine)) text += kLineEnd;
  return text;
}

}  // namespace tarnwick
