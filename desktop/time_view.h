// The time system and the time zone on the screen.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "moment/time_section.h"

namespace tarnwick {

class TimeView final : public Area {
 public:
  TimeView(TimeSection& section, Binder& binder, QWidget* parent);

 private:
  void AddTimeSystem();
  void AddTimeZone();

  TimeSection& section_;
  Binder& binder_;
};

}  // namespace tarnwick
