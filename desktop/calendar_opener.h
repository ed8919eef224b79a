// The way to the lunation calendar on the screen: the list of its calendars, and its button.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "lunation_view/calendar_section.h"

namespace tarnwick {

class CalendarOpener final : public Area {
 public:
  CalendarOpener(CalendarSection& section, Binder& binder, QWidget* parent);
};

}  // namespace tarnwick
