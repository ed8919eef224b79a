#include "navigation/eclipse_description.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "calendars/date_processing.h"
#include "engines/time_units.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr std::size_t kFirstPhaseLine = 3;
constexpr double kTimeMargin = 1e-8;  // days, so that 59.9999 seconds are not cut to 59

// The line of a phase that lasts from so many minutes before `cjd` until as many after it.
std::string PhaseLine(std::string_view name, double semi_minutes, LocalCJD cjd) {
  const LocalCJD start = cjd - semi_minutes / kMinutesPerDay;
  const auto duration = static_cast<std::int32_t>(std::nearbyint(2 * semi_minutes));
  return std::string(name) + " phase starts " +
         TruncatedTimeText(start.days - std::floor(start.days), false) + " and lasts " +
         EclipseDurationText(duration);
}

}  // namespace

std::vector<std::string> EclipseLines(const EclipseRecord& record, LocalCJD cjd) {
  std::vector<std::string> lines{
      std::string(EclipseTypeText(static_cast<std::int16_t>(record.type))),
      std::string(kLunationText) + std::to_string(record.lunation),
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
  const auto seconds = static_cast<std::int32_t>(kSecondsPerDay * fraction);
  return ClockText(std::min(seconds, kSecondsPerDay - 1), with_seconds);
}

std::string EclipseDurationText(std::int32_t minutes) {
  const std::int32_t days = minutes / kMinutesPerDay;
  const std::int32_t rest = minutes % kMinutesPerDay;
  return (days > 0 ? std::to_string(days) + "d " : "") + std::to_string(rest / kMinutesPerHour) +
         "h " + std::to_string(rest % kMinutesPerHour) + "m";
}

}  // namespace tarnwick
