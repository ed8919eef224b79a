// How the windows look: every colour of the program, and the measures that follow from the font.
#pragma once

#include <QColor>
#include <QPalette>

class QComboBox;
class QWidget;

namespace tarnwick {

struct Look {
  // Dark slate: the window and the panels that hold what the user chooses and reads most.
  static constexpr QColor kWindow{0x22, 0x2c, 0x37};
  static constexpr QColor kPanel{0x2d, 0x3a, 0x48};
  static constexpr QColor kPanelEdge{0x3b, 0x4b, 0x5c};
  static constexpr QColor kText{0xd6, 0xdd, 0xe4};
  static constexpr QColor kCaption{0xa4, 0xb5, 0xc6};  // says what stands beside it
  static constexpr QColor kDisabledText{0xa0, 0xad, 0xba};

  // Light: the Moon and the results.
  static constexpr QColor kLightPanel{0xf1, 0xf4, 0xf8};
  static constexpr QColor kLightPanelEdge{0xd3, 0xdc, 0xe6};
  static constexpr QColor kLightText{0x00, 0x00, 0x80};
  static constexpr QColor kLightCaption{0x4d, 0x5d, 0x6e};

  // What can be written in or pressed.
  static constexpr QColor kField{0xf7, 0xf9, 0xfb};
  static constexpr QColor kFieldText{0x17, 0x21, 0x2b};
  static constexpr QColor kPlaceholder{0x5c, 0x6b, 0x7a};
  static constexpr QColor kDisabledField{0xc3, 0xcc, 0xd5};
  static constexpr QColor kDisabledFieldText{0x40, 0x4d, 0x5a};
  static constexpr QColor kButton{0x43, 0x56, 0x69};
  static constexpr QColor kDisabledButton{0x31, 0x3e, 0x4c};
  static constexpr QColor kOption{0x5c, 0x72, 0x89};  // the ground of option buttons, check boxes
  static constexpr QColor kButtonText{0xff, 0xff, 0xff};
  // Light, since the outline of what has the focus is drawn in a shade of it.
  static constexpr QColor kSelection{0x7d, 0xb8, 0xe8};
  static constexpr QColor kSelectionText{0x17, 0x21, 0x2b};
  static constexpr QColor kFocusRing{0x7d, 0xb8, 0xe8};
  static constexpr QColor kCheckMark{0x8a, 0xdb, 0x96};

  // The lunation calendar.
  static constexpr QColor kSky{0x0b, 0x10, 0x20};  // as around the Moon in its pictures
  static constexpr QColor kEvent{0xe8, 0xc9, 0x7a};

  static constexpr QColor kToolTip{0xff, 0xfb, 0xe6};
  static constexpr QColor kToolTipText{0x22, 0x2c, 0x37};
};

// Gives the program its style and palette, the same on every desktop.
void ApplyLook();

// The palette of the light panels and what they hold.
QPalette LightPalette();

// The distance between widgets of a group; twice that lies between groups.
int Spacing(const QWidget& widget);

// Gives the widget's texts one colour, whatever panel they stand on; an invalid one takes that
// back.
void SetTextColor(QWidget& widget, const QColor& color);

// Makes a list wide enough for a text, whatever it holds.
void ReserveWidth(QComboBox& list, const QString& longest);

// Leaves the room of a hidden widget empty, so that nothing moves when it appears.
void KeepRoomWhenHidden(QWidget& widget);

}  // namespace tarnwick
