// The Moon at the current moment: its labels, its picture, delta T.
#include <cmath>
#include <filesystem>
#include <system_error>
#include <utility>

#include "app/main_window.h"
#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "moon/moon_data.h"
#include "moon/moon_picture.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr double kMinutesPerDay = 1440;

std::string DeltaTText(double minutes) {
  if (minutes > kMinutesPerDay) return "More than 24 hours";
  return DurationText(static_cast<std::int32_t>(std::nearbyint(minutes)), true);
}

std::string OneDecimal(double value) { return FormatFixed(value, 1, false); }

}  // namespace

void frmMain::DisplayMoonData() {
  const MoonData moon = MoonDataAt(UniversalTime(dblMoment));
  lblAgeOfMoon[1].SetCaption("[" + std::to_string(moon.lunation) + "] " + AgeText(moon.age) + " (" +
                             OneDecimal(moon.age * 100 / moon.length) + "%)");
  if (moon.phase < 0) {
    ReportPhaseError(moon.phase, "DisplayMoonData");
    return;
  }
  ShowPhaseOfMoon(moon.fraction, moon.waxing);
}

void frmMain::ReportPhaseError(std::int16_t code, const std::string& routine) {
  desktop_.ShowMessage(
      {"Error" + std::to_string(code) + " when calling GetPhase() in " + routine + "().", "Error",
       MessageIcon::kExclamation});
}

void frmMain::ShowPhaseOfMoon(double fraction, bool waxing) {
  lblPhaseOfMoon[1].SetCaption(PhaseOfMoonText(fraction, waxing) + ", " +
                               OneDecimal(100 * fraction) + "%");
  ShowMoonPicture(fraction, waxing);
}

void frmMain::ShowMoonPicture(double fraction, bool waxing) {
  const std::filesystem::path file =
      desktop_.ProgramFolder() / "assets" / MoonPictureFile(fraction, waxing);
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    ReportMissingPicture(file);
    picMoon.SetPicture({});
  } else if (HasOwnPicture(fraction, waxing)) {
    picMoon.SetPicture(file);
  } else {
    picMoon.SetPicture(file, [fraction, waxing](std::span<std::uint32_t> pixels, int width) {
      DrawTerminator(pixels, width, fraction, waxing);
    });
  }
}

// Once in a run: the program is of use without its pictures.
void frmMain::ReportMissingPicture(const std::filesystem::path& file) {
  if (std::exchange(blnPictureReported, true)) return;
  const std::u8string name = file.u8string();
  desktop_.ShowMessage({"Picture not found: " + std::string(name.begin(), name.end()), "Error",
                        MessageIcon::kExclamation});
}

void frmMain::DisplayDeltaT() {
  lblDeltaT[1].SetCaption(DeltaTText(DeltaT(UniversalTime(dblMoment))));
}

}  // namespace tarnwick
