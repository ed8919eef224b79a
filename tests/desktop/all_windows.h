// Every window of the program, open.
#pragma once

#include "desktop/calendar_view.h"
#include "desktop/help_view.h"
#include "desktop/lists_view.h"
#include "desktop/log_preferences_view.h"
#include "desktop/log_window_view.h"
#include "desktop/screen_fit.h"
#include "desktop/sky_view.h"
#include "tests/desktop/longest_texts.h"
#include "tests/desktop/shown_main_window.h"

namespace tarnwick {

inline QRect Available() { return QGuiApplication::primaryScreen()->availableGeometry(); }

struct AllWindows {
  AllWindows() {
    main.view.move(Available().bottomRight() - QPoint(200, 100));
    for (QWidget* window : Secondary()) BelongTo(*window, main.view);
    BelongTo(notice, main.view);
    main.form.log.chkLog.SetValue(true);
    main.form.move.cmdMove.Click();
    for (Button* opener :
         {&main.form.log.cmdViewLog, &main.form.log.cmdLogPreferences,
          &main.form.calendar.cmdDisplayCalendar, &main.form.sky.cmdSky, &main.form.lists.cmdLists,
          &main.form.cmdHelp, &main.form.help_window.cmdCredits}) {
      opener->Click();
    }
    for (QWidget* window : All()) QVERIFY(QTest::qWaitForWindowExposed(window));
  }

  void FillWithLongestTexts() {
    tarnwick::FillWithLongestTexts(main.form);
    tarnwick::FillWithLongestTexts(main.form.sky.sky_window);
    tarnwick::FillWithLongestTexts(main.form.lists.lists_window);
    QTest::qWait(10);  // for the layouts, one inside the other
  }

  QList<QWidget*> Secondary() {
    return {&log, &preferences, &calendar, &sky, &lists, &help, &credits};
  }
  QList<QWidget*> All() { return Secondary() << &main.view; }

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
