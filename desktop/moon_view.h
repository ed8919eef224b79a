// The Moon at the moment in its sky, and the facts about it on a pale ground below.
#pragma once

#include <QImage>

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "moment/moon_section.h"

class QGridLayout;

namespace tarnwick {

class MoonView final : public Panel {
 public:
  MoonView(MoonSection& section, Binder& binder, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* MakeFacts(MoonSection& section);
  void AddRow(ValueLabel& label, QGridLayout& rows);
  QImage PaintedGround(double ratio) const;

  Binder& binder_;
  QWidget* facts_ = nullptr;
  // The glow takes longer than all else in the window: it is kept as long as nothing moves.
  QImage ground_;
  int facts_top_ = 0;
};

}  // namespace tarnwick
