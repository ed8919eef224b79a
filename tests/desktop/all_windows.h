// Every window of the program, as it starts.
#pragma once

#include "desktop/calendar_view.h"
#include "desktop/help_view.h"
#include "desktop/lists_view.h"
#include "desktop/log_preferences_view.h"
#include "desktop/log_window_view.h"
#include "desktop/sky_view.h"
#include "tests/desktop/shown_main_window.h"

namespace tarnwick {

struct AllWindows {
  MainWindow main;
  LogWindowView log{main.form.log.log_window, main.gate};
  LogPreferencesView preferences{main.form.log.log_preferences, main.gate};
  CalendarView calendar{main.form.calendar.calendar_window, main.gate};
  SkyView sky{main.form.sky.sky_window, main.gate};
  ListsView lists{main.form.lists.lists_window, main.gate};
  HelpView help{main.form.help_window, main.gate};
  CreditsView credits{main.form.help_window.credits_window, main.gate};
  NoticeView notice{main.form.notice, main.gate};
};

}  // namespace tarnwick
