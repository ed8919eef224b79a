#include "moment/moon_section.h"

#include <cmath>
#include <span>

#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "controls/choice.h"
#include "engines/time_units.h"
#include "moon/clock_error.h"
#include "moon/moon_data.h"
#include "moon/moon_picture.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

std::string DeltaTText(double minutes) {
  if (minutes > kMinutesPerDay) return "More than 24 hours";
  return DurationText(static_cast<std::int32_t>(std::nearbyint(minutes)), true);
}

// The caption and the value of a label have one tool tip.
void Explain(ValueLabel& label, const std::string& text) {
  label[0].SetToolTipText(text);
  label[1].SetToolTipText(text);
}

std::string OneDecimal(double value) { return FormatFixed(value, 1, false); }

}  // namespace

MoonSection::MoonSection(Form& form, Session& session, Desktop& desktop, PictureFiles& pictures)
    : picMoon(form, "picMoon"),
      lblPhaseOfMoon(form, "lblPhaseOfMoon"),
      lblAgeOfMoon(form, "lblAgeOfMoon"),
      lblDeltaT(form, "lblDeltaT"),
      session_(session),
      desktop_(desktop),
      pictures_(pictures) {
  lblPhaseOfMoon[0].SetCaption("Phase");
  lblAgeOfMoon[0].SetCaption("Age");
  lblDeltaT[0].SetCaption("Delta T");
  Explain(
      lblPhaseOfMoon,
      "How much of the Moon's disc is lit, and whether that grows (waxing) or shrinks (waning)");
  for (ValueLabel* label : {&lblPhaseOfMoon, &lblAgeOfMoon, &lblDeltaT}) {
    (*label)[1].SetForeColor(kResultColor);
  }
}

void MoonSection::Show() {
  DisplayMoonData();
  DisplayDeltaT();
}

void MoonSection::DisplayMoonData() {
  const MoonData moon = MoonDataAt(session_.Moment());
  const std::string lunation = "[" + std::to_string(moon.lunation) + "]";
  const std::string share = "(" + OneDecimal(moon.age * 100 / moon.length) + "%)";
  lblAgeOfMoon[1].SetCaption(lunation + " " + AgeText(moon.age) + " " + share);
  Explain(lblAgeOfMoon, lunation + " numbers the lunation from that of 2000-01-06; " + share +
                            " is how much of it has passed");
  picMoon.SetDescription(MoonDescription(moon));
  if (moon.phase < 0) {
    ReportPhaseError(desktop_, moon.phase, "DisplayMoonData");
    return;
  }
  lblPhaseOfMoon[1].SetCaption(PhaseOfMoonText(moon.fraction, moon.waxing) + ", " +
                               OneDecimal(100 * moon.fraction) + "%");
  ShowPicture(moon.fraction, moon.waxing);
}

void MoonSection::ShowPicture(double fraction, bool waxing) {
  const std::filesystem::path file = pictures_.Find(MoonPictureFile(fraction, waxing));
  if (file.empty() || HasOwnPicture(fraction, waxing)) {
    picMoon.SetPicture(file);
    return;
  }
  picMoon.SetPicture(file, [fraction, waxing](std::span<std::uint32_t> pixels, int width) {
    DrawTerminator(pixels, width, fraction, waxing);
  });
}

void MoonSection::DisplayDeltaT() {
  lblDeltaT[1].SetCaption(DeltaTText(DeltaT(session_.Moment())));
  const std::int32_t year = CivilDateOf(DayOf(session_.Moment(), 0).value).year;
  Explain(lblDeltaT,
          "Terrestrial less Universal Time, kept by the turning Earth; its standard error in " +
              YearText(year) + " is " + ErrorText(ClockError(session_.Moment())));
}

void ReportPhaseError(Desktop& desktop, std::int16_t code, const std::string& routine) {
  desktop.ShowMessage(
      {"Error" + std::to_string(code) + " when calling GetPhase() in " + routine + "().", "Error",
       MessageIcon::kExclamation});
}

}  // namespace tarnwick
