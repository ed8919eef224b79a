// How the windows look: every colour of the program, and the measures that follow from the font.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

class QComboBox;
class QPainter;
class QWidget;

namespace tarnwick {

struct Look {
  // Night: the window and the panels that hold what the user chooses and reads most.
  static constexpr QColor kWindow{0x17, 0x1e, 0x27};
  static constexpr QColor kPanel{0x21, 0x2b, 0x36};
  static constexpr QColor kPanelEdge{0x2e, 0x3b, 0x49};
  static constexpr QColor kText{0xd6, 0xdd, 0xe4};
  static constexpr QColor kCaption{0x9f, 0xb1, 0xc3};  // says what stands beside it
  static constexpr QColor kDisabledText{0x89, 0x98, 0xa9};
  static constexpr QColor kDisabledEdge{0x3a, 0x4a, 0x5c};

  // The row of the current calendar, with a bar that is seen without colour too.
  static constexpr QColor kCurrentRow{0x2d, 0x3f, 0x53};
  static constexpr QColor kCurrentBar{0xe8, 0xc9, 0x7a};

  // Pale: the facts about the Moon and the eclipse.
  static constexpr QColor kLightPanel{0xd5, 0xdd, 0xe6};
  static constexpr QColor kLightPanelEdge{0xd5, 0xdd, 0xe6};
  static constexpr QColor kLightText{0x00, 0x00, 0x80};
  static constexpr QColor kLightCaption{0x47, 0x55, 0x65};
  static constexpr QColor kLightFocusRing{0x2c, 0x67, 0xab};

  // What can be written in or chosen from.
  static constexpr QColor kField{0x11, 0x17, 0x1e};
  static constexpr QColor kFieldEdge{0x6f, 0x85, 0x9b};
  static constexpr QColor kFieldText{0xff, 0xff, 0xff};
  static constexpr QColor kPlaceholder{0x8b, 0x9a, 0xab};
  static constexpr QColor kDisabledField{0x1b, 0x23, 0x2c};
  static constexpr QColor kDisabledFieldText = kDisabledText;
  static constexpr QColor kChosen{0xff, 0xff, 0xff};  // the mark of an option that is chosen
  static constexpr QColor kSelection{0x2c, 0x67, 0xab};
  static constexpr QColor kSelectionText{0xff, 0xff, 0xff};

  // What can be pressed: quiet, but for the one command that a section is there for.
  static constexpr QColor kButton{0x3a, 0x4a, 0x5c};
  static constexpr QColor kButtonEdge{0x4d, 0x60, 0x75};
  static constexpr QColor kButtonHover{0x46, 0x59, 0x6e};
  static constexpr QColor kButtonPressed{0x2f, 0x3d, 0x4d};
  static constexpr QColor kAccent{0x2c, 0x67, 0xab};
  static constexpr QColor kAccentEdge{0x4a, 0x86, 0xcc};
  static constexpr QColor kAccentHover{0x35, 0x73, 0xba};
  static constexpr QColor kAccentPressed{0x24, 0x57, 0x92};
  static constexpr QColor kDisabledButton = kPanel;
  static constexpr QColor kButtonText{0xff, 0xff, 0xff};

  static constexpr QColor kFocusRing{0x8c, 0xc8, 0xff};
  static constexpr QColor kCheckMark{0x8a, 0xdb, 0x96};

  // The sky, nowhere darker than around the Moon in its pictures.
  static constexpr QColor kSky{0x0b, 0x10, 0x20};
  static constexpr QColor kSkyGlow{0x12, 0x19, 0x31};
  static constexpr QColor kEvent{0xe8, 0xc9, 0x7a};  // of the lunation calendar

  // Maps, as on paper, so that they are read in print too. The shade lies over the paper, several
  // times where several areas overlap.
  static constexpr QColor kPaper{0xfa, 0xf8, 0xf2};
  static constexpr QColor kMapShade{0x28, 0x3a, 0x66, 0x10};
  static constexpr QColor kMapNight{0x28, 0x3a, 0x66, 0x24};
  static constexpr QColor kMapEdge{0x6c, 0x78, 0x86};
  static constexpr QColor kGraticule{0xd8, 0xd4, 0xc8};
  static constexpr QColor kCoast{0x5f, 0x5b, 0x4e};
  static constexpr QColor kMagnitude{0x1c, 0x6b, 0x4c};
  static constexpr QColor kSeen{0x1d, 0x50, 0x9c};
  static constexpr QColor kPath{0xa8, 0x1e, 0x1e};
  static constexpr QColor kPathIfLess{0x7a, 0x36, 0x9c};
  static constexpr QColor kPathIfMore{0x8f, 0x4e, 0x00};
  static constexpr QColor kPlace{0x00, 0x00, 0x80};

  static constexpr QColor kToolTip = kField;
  static constexpr QColor kToolTipText = kText;
};

// Gives the program its style and palette, the same on every desktop.
void ApplyLook();

// The palette of the light panels and what they hold.
QPalette LightPalette();

// The palette of a command that its section is there for.
QPalette AccentPalette();

// The distance between widgets of a group; twice that lies between groups.
int Spacing(const QWidget& widget);

// How many pixels a unit of the screen has where the painter paints. A saved image
// is painted on something finer than the screen.
double PixelRatioOf(const QPainter& painter);

// The font at another size.
QFont Scaled(const QFont& font, double factor);

// The font for the title of a map or a table.
QFont TitleFont(const QFont& usual);

// Gives the widget's texts one colour, whatever panel they stand on; an invalid one takes that
// back.
void SetTextColor(QWidget& widget, const QColor& color);

// Makes a list wide enough for a text, whatever it holds.
void ReserveWidth(QComboBox& list, const QString& longest);

// Leaves the room of a hidden widget empty, so that nothing moves when it appears.
void KeepRoomWhenHidden(QWidget& widget);

}  // namespace tarnwick
