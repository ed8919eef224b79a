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
  std::vector<QColor> colors;
  std::vector<QColor> grounds;  // beside each of which each of them is seen
};

void VerifyContrast(const std::vector<Seen>& all, double least) {
  for (const auto& [colors, grounds] : all) {
    for (const QColor& color : colors) {
      for (const QColor& ground : grounds) {
        const double contrast = Contrast(color, ground);
        const QString what = QString("%1 on %2: %3").arg(color.name(), ground.name()).arg(contrast);
        QVERIFY2(contrast >= least, qPrintable(what));
      }
    }
  }
}

}  // namespace

class ContrastTest : public QObject, private Look {
  Q_OBJECT

 private Q_SLOTS:
  void textsAreLegible() {
    VerifyContrast(
        {
            {{kText, ToQt(kSelectedColor), ToQt(kUnselectedColor)}, {kWindow, kPanel, kCurrentRow}},
            {{kCaption, ToQt(kSelectedColor), ToQt(kUnselectedColor), kEvent}, {kSky}},
            {{kCaption}, {kWindow, kPanel, kPanelEdge}},
            {{kDisabledText}, {kWindow, kPanel, kDisabledButton}},
            {{kLightText, ToQt(kResultColor), kLightCaption}, {kLightPanel}},
            {{kFieldText}, {kField, kCurrentRow}},
            {{kPlaceholder}, {kField}},
            {{kDisabledFieldText}, {kDisabledField}},
            {{kSelectionText}, {kSelection}},
            {{kButtonText}, {kButton, kButtonHover, kButtonPressed}},
            {{kButtonText}, {kAccent, kAccentHover, kAccentPressed}},
            {{kMagnitude, kPath, kPlace}, {kPaper}},
            {{kToolTipText}, {kToolTip}},
        },
        4.5);
  }

  void edgesAndMarksAreSeen() {
    const QColor night = Shaded(kPaper, kMapNight, 1);
    // Where it is down at every phase of its eclipse.
    const QColor moon_down = Shaded(kPaper, kMapShade, kMostPhases);
    VerifyContrast(
        {
            {{kFieldEdge}, {kField, kPanel, kWindow}},
            {{kCaption}, {kField}},                // the arrow of a list
            {{kDisabledText}, {kDisabledField}},   // of a disabled one
            {{kField}, {kChosen, kDisabledText}},  // the tick of a chosen box
            {{kChosen}, {kField, kPanel}},
            {{kSelection}, {kField}},
            {{kCurrentBar}, {kPanel, kField, kCurrentRow}},
            {{kCheckMark}, {kPanel}},
            {{kFocusRing}, {kWindow, kPanel, kCurrentRow, kSky}},
            {{kCoast}, {kPaper, night, moon_down}},
            {{kMagnitude, kPath, kPathIfLess, kPathIfMore}, {kPaper, night}},
            {{kSeen}, {kPaper, moon_down}},
            {{kMapEdge}, {kPaper, kLightPanel}},
            {{kLightFocusRing}, {kLightPanel}},
        },
        3);
  }
};

const AddSuite<ContrastTest> added;

}  // namespace tarnwick

#include "contrast_test.moc"
