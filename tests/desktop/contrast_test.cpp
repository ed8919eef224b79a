#include <algorithm>
#include <cmath>

#include "controls/choice.h"
#include "desktop/look.h"
#include "tests/desktop/suites.h"

namespace tarnwick {
namespace {

constexpr int kMostPhases = 7;  // of a lunar eclipse, from P1 to P4

QColor ToQt(Color color) { return {color.red, color.green, color.blue}; }

// As the Web Content Accessibility Guidelines 2.1 define them.
double Luminance(const QColor& color) {
  const auto linear = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

// What is seen where a shade lies over a ground, so many times.
QColor Shaded(const QColor& ground, const QColor& shade, int times) {
  const auto mixed = [&](double under, double over) {
    const double left = std::pow(1 - shade.alphaF(), times);
    return under * left + over * (1 - left);
  };
  return QColor::fromRgbF(static_cast<float>(mixed(ground.redF(), shade.redF())),
                          static_cast<float>(mixed(ground.greenF(), shade.greenF())),
                          static_cast<float>(mixed(ground.blueF(), shade.blueF())));
}

struct Seen {
  const char* name;
  QColor color;
  std::vector<QColor> grounds;  // beside each of which it is seen
};

void VerifyContrast(const std::vector<Seen>& all, double least) {
  for (const Seen& seen : all) {
    for (const QColor& ground : seen.grounds) {
      const double contrast = Contrast(seen.color, ground);
      const QString what = QString("%1 on %2: %3").arg(seen.name, ground.name()).arg(contrast);
      QVERIFY2(contrast >= least, qPrintable(what));
    }
  }
}

}  // namespace

class ContrastTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void textsAreLegible() {
    const QColor row = Look::kCurrentRow;
    VerifyContrast(
        {
            {"text", Look::kText, {Look::kWindow, Look::kPanel, row}},
            {"caption",
             Look::kCaption,
             {Look::kWindow, Look::kPanel, Look::kPanelEdge, Look::kSky}},
            {"selected", ToQt(kSelectedColor), {Look::kWindow, Look::kPanel, row, Look::kSky}},
            {"unselected", ToQt(kUnselectedColor), {Look::kWindow, Look::kPanel, row, Look::kSky}},
            {"disabled", Look::kDisabledText, {Look::kWindow, Look::kPanel, Look::kDisabledButton}},
            {"fact", Look::kLightText, {Look::kLightPanel}},
            {"result", ToQt(kResultColor), {Look::kLightPanel}},
            {"caption of a fact", Look::kLightCaption, {Look::kLightPanel}},
            {"field", Look::kFieldText, {Look::kField, row}},
            {"hint in a field", Look::kPlaceholder, {Look::kField}},
            {"disabled field", Look::kDisabledFieldText, {Look::kDisabledField}},
            {"selection", Look::kSelectionText, {Look::kSelection}},
            {"quiet button",
             Look::kButtonText,
             {Look::kButton, Look::kButtonHover, Look::kButtonPressed}},
            {"accent",
             Look::kButtonText,
             {Look::kAccent, Look::kAccentHover, Look::kAccentPressed}},
            {"event", Look::kEvent, {Look::kSky}},
            {"magnitude on a map", Look::kMagnitude, {Look::kPaper}},
            {"greatest eclipse on a map", Look::kPath, {Look::kPaper}},
            {"place on a map", Look::kPlace, {Look::kPaper}},
            {"tool tip", Look::kToolTipText, {Look::kToolTip}},
        },
        4.5);
  }

  void edgesAndMarksAreSeen() {
    const QColor night = Shaded(Look::kPaper, Look::kMapNight, 1);
    // Where it is down at every phase of its eclipse.
    const QColor moon_down = Shaded(Look::kPaper, Look::kMapShade, kMostPhases);
    VerifyContrast(
        {
            {"edge of a field", Look::kFieldEdge, {Look::kField, Look::kPanel, Look::kWindow}},
            {"arrow of a list", Look::kCaption, {Look::kField}},
            {"arrow of a disabled list", Look::kDisabledText, {Look::kDisabledField}},
            {"chosen option", Look::kChosen, {Look::kField, Look::kPanel}},
            {"tick of a chosen box", Look::kField, {Look::kChosen, Look::kDisabledText}},
            {"chosen row of a list", Look::kSelection, {Look::kField}},
            {"bar of the current row",
             Look::kCurrentBar,
             {Look::kPanel, Look::kField, Look::kCurrentRow}},
            {"mark beside Now", Look::kCheckMark, {Look::kPanel}},
            {"ring",
             Look::kFocusRing,
             {Look::kWindow, Look::kPanel, Look::kCurrentRow, Look::kSky}},
            {"coast", Look::kCoast, {Look::kPaper, night, moon_down}},
            {"magnitude", Look::kMagnitude, {Look::kPaper, night}},
            {"limit of what is seen", Look::kSeen, {Look::kPaper, moon_down}},
            {"path", Look::kPath, {Look::kPaper, night}},
            {"path if delta T is less", Look::kPathIfLess, {Look::kPaper, night}},
            {"path if delta T is more", Look::kPathIfMore, {Look::kPaper, night}},
            {"edge of a map", Look::kMapEdge, {Look::kPaper, Look::kLightPanel}},
            {"ring on the pale ground", Look::kLightFocusRing, {Look::kLightPanel}},
        },
        3);
  }
};

const AddSuite<ContrastTest> added;

}  // namespace tarnwick

#include "contrast_test.moc"
