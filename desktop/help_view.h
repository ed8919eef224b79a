// The help, the credits and the short notices on the screen.
#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/binder.h"
#include "help/help_window.h"
#include "help/notice.h"

namespace tarnwick {

// The help on the screen: the list of its pages, and the page chosen.
class HelpView final : public QWidget {
 public:
  HelpView(frmHelp& form, HandlerGate& gate);

  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  QWidget* MakePages();
  QWidget* MakeButtons();

  frmHelp& form_;
  Binder binder_;
};

class CreditsView final : public QWidget {
 public:
  CreditsView(frmCredits& form, HandlerGate& gate);

 private:
  Binder binder_;
};

// A notice that lies over a window, as large as its text.
class NoticeView final : public QWidget {
 public:
  NoticeView(frmNotice& form, HandlerGate& gate);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // The middle of the lower edge is where the form has it.
  QRect PlaceFor(const QRect& wanted) const;

  frmNotice& form_;
  HandlerGate& gate_;
  Binder binder_;
  QTimer timer_;
};

}  // namespace tarnwick
