#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QMessageBox>
#include <QPixmapCache>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "app/main_window.h"
#include "controls/form.h"
#include "desktop/accessible.h"
#include "desktop/calendar_view.h"
#include "desktop/characters.h"
#include "desktop/help_view.h"
#include "desktop/lists_view.h"
#include "desktop/log_preferences_view.h"
#include "desktop/log_window_view.h"
#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/qt_desktop.h"
#include "desktop/screen_fit.h"
#include "desktop/session_end.h"
#include "desktop/sky_view.h"

namespace {

// A handler has failed where none may. What further handlers are still running cannot be trusted,
// so the program ends at once, and says so.
[[noreturn]] void EndWithFault(const std::string& what) {
  std::cerr << "tarnwick: " << what << std::endl;
  QMessageBox box(QMessageBox::Critical, "Tarnwick",
                  "Tarnwick has to end because of a fault in it:\n\n" + tarnwick::ToQt(what));
  box.setTextFormat(Qt::PlainText);
  box.exec();
  std::_Exit(EXIT_FAILURE);
}

// Where Qt finds no display it ends the program by a fault. What it says of displays first is the
// cause.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  static QString cause;
  if (type == QtFatalMsg) {
    std::cerr << "tarnwick: no window can be opened: " << tarnwick::FromQt(cause) << std::endl;
    std::_Exit(EXIT_FAILURE);
  }
  if (!std::string_view(context.category).starts_with("qt.qpa.")) {
    std::cerr << tarnwick::FromQt(qFormatLogMessage(type, context, text)) << std::endl;
  } else if (cause.isEmpty()) {
    cause = text.trimmed();
  }
}

// Where the display is taken away Qt ends the program too, by std::exit. As long as this object
// lives, what Quit would have saved is saved then.
class SaverAtExit {
 public:
  explicit SaverAtExit(tarnwick::frmMain& form) {
    form_ = &form;
    std::atexit([] {
      if (form_ != nullptr) form_->SaveSilently();
    });
  }
  ~SaverAtExit() { form_ = nullptr; }
  SaverAtExit(const SaverAtExit&) = delete;
  SaverAtExit& operator=(const SaverAtExit&) = delete;

 private:
  static inline tarnwick::frmMain* form_ = nullptr;
};

}  // namespace

int main(int argc, char** argv) {
  const QtMessageHandler usual_handler = qInstallMessageHandler(EndWithoutDisplay);
  QApplication application(argc, argv);
  qInstallMessageHandler(usual_handler);
  QApplication::setApplicationName("tarnwick");
  QApplication::setQuitOnLastWindowClosed(false);  // the main window's form ends the program
  QApplication::setDesktopFileName("tarnwick");
  QApplication::setKeyboardInputInterval(1000);  // within which letters make one name in a list
  // Qt would keep drawn parts of controls for every size and palette, up to 10 MB, and never forget
  // the names under which it kept them: some kB each time a file is asked for.
  QPixmapCache::setCacheLimit(0);
  tarnwick::InstallAccessibles();
  tarnwick::ApplyLook();

  tarnwick::HandlerGate gate(EndWithFault);
  tarnwick::QtDesktop desktop(gate);
  const std::filesystem::path icon = desktop.ProgramFolder() / "assets" / "icon" / "tarnwick.png";
  QApplication::setWindowIcon(QIcon(QFileInfo(icon).filePath()));
  tarnwick::Screen screen;
  tarnwick::frmMain form(desktop, screen);
  tarnwick::MainWindowView view(form, gate);
  tarnwick::LogWindowView log_view(form.log.log_window, gate);
  tarnwick::LogPreferencesView log_preferences_view(form.log.log_preferences, gate);
  tarnwick::CalendarView calendar_view(form.calendar.calendar_window, gate);
  tarnwick::SkyView sky_view(form.sky.sky_window, gate);
  tarnwick::ListsView lists_view(form.lists.lists_window, gate);
  tarnwick::HelpView help_view(form.help_window, gate);
  tarnwick::CreditsView credits_view(form.help_window.credits_window, gate);
  tarnwick::NoticeView notice_view(form.notice, gate);
  for (QWidget* window :
       std::initializer_list<QWidget*>{&log_view, &log_preferences_view, &calendar_view, &sky_view,
                                       &lists_view, &help_view, &credits_view, &notice_view}) {
    tarnwick::BelongTo(*window, view);
  }
  gate.Run([&] { form.Load(); });
  const SaverAtExit saver(form);
  tarnwick::SaveAtSessionEnd([&] { form.SaveSilently(); });
  return gate.IsOpen() ? QApplication::exec() : EXIT_SUCCESS;
}
