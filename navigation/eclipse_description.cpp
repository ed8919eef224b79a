#include "navigation/eclipse_description.h"

#include <cmath>
#include <cstddef>
#include <string_view>

#include "calendars/text.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr std::size_t kFirstPhaseLine = 3;
constexpr double kMinutesPerDay = 24 * 60;
constexpr std::int32_t kSecondsPerDay = 24 * 60 * 60;
constexpr double kTimeMargin = 1e-8;  // days, so that 59.9999 seconds are not cut to 59
constexpr std::int32_t kPenumbralLunar = 8;
constexpr std::int32_t kPartialLunar = 9;
constexpr std::int32_t kTotalLunar = 10;

// The line of a phase that lasts from so many minutes before `cjd` until as many after it.
std::string PhaseLine(std::string_view name, double semi_minutes, double cjd) {
  const double start = cjd - semi_minutes / kMinutesPerDay;
  const auto duration = static_cast<std::int32_t>(std::nearbyint(2 * semi_minutes));
  return std::string(name) + " phase starts " +
         TruncatedTimeText(start - std::floor(start), false) + " and lasts " +
         EclipseDurationText(duration);
}

}  // namespace

std::vector<std::string> EclipseLines(const EclipseRecord& record, double cjd) {
  std::vector<std::string> lines{
      std::string(EclipseTypeText(static_cast<std::int16_t>(record.type))),
      "Lunation number = " + std::to_string(record.lunation),
      "Saros number = " + std::to_string(record.saros)};
  if (record.type >= kPenumbralLunar) {
    lines.push_back(PhaseLine("Penumbral", record.penumbral_minutes, cjd));
  }
  if (record.type >= kPartialLunar) {
    lines.push_back(PhaseLine("Umbral", record.umbral_minutes, cjd));
  }
  if (record.type == kTotalLunar) {
    lines.push_back(PhaseLine("Total", record.total_minutes, cjd));
  }
  return lines;
}

std::string EclipseCaption(const std::vector<std::string>& lines) {
  std::string caption;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    caption += lines[i] + (i < kFirstPhaseLine ? "\r\n" : ".\r\n");
  }
  return caption;
}

std::string EclipseSentence(const std::vector<std::string>& lines) {
  std::string sentence;
  for (const std::string& line : lines) sentence += (sentence.empty() ? "" : ", ") + line;
  return sentence + ".";
}

std::string TruncatedTimeText(double fraction, bool with_seconds) {
  if (!(fraction >= 0 && fraction < 1)) return "XX:XX:XX";
  if (fraction != 0 && fraction < 1 - kTimeMargin) fraction += kTimeMargin;
  auto seconds = static_cast<std::int32_t>(kSecondsPerDay * fraction);
  if (seconds == kSecondsPerDay) seconds = kSecondsPerDay - 1;
  std::string text = TwoDigits(seconds / 3600) + ":" + TwoDigits(seconds / 60 % 60);
  return with_seconds ? text + ":" + TwoDigits(seconds % 60) : text;
}

std::string EclipseDurationText(std::int32_t minutes) {
  constexpr std::int32_t kDay = 24 * 60;
  const std::string days = minutes >= kDay ? std::to_string(minutes / kDay) + "d " : "";
  const std::int32_t rest = minutes % kDay;
  return days + std::to_string(rest / 60) + "h " + std::to_string(rest % 60) + "m";
}

}  // namespace tarnwick
