// The sky at a place on the screen: what is seen there at the left, the map at the right.
#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/binder.h"
#include "sky/sky_window.h"

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace tarnwick {

class SkyView final : public QWidget {
 public:
  SkyView(frmSky& form, HandlerGate& gate);

  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  QWidget* MakePlace();
  void AddCoordinate(const QString& caption, TextBox& box, QHBoxLayout& row);
  QWidget* MakeMoment();
  QWidget* MakeDay();
  QWidget* MakeLunation();
  QWidget* MakeEclipse();
  QWidget* MakeVerdict(QWidget* panel);
  QWidget* MakeContacts(QWidget* panel);
  QWidget* MakeMap();
  QWidget* MakeButtons();

  // Texts for the next row of a grid.
  QLabel* AddText(Label& label, const QColor& color, QGridLayout& grid, int row, int column);
  // A caption and its value, which has always room for so many lines.
  void AddPair(ControlArray<Label, 2>& pair, int lines, QGridLayout& grid);

  frmSky& form_;
  Binder binder_;
  QTimer map_timer_;
};

}  // namespace tarnwick
