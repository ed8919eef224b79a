// The Moon at the moment in its sky, and the facts about it on a pale ground below.
#pragma once

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

  Binder& binder_;
  QWidget* facts_ = nullptr;
};

}  // namespace tarnwick
