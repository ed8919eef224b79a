// The window of a form.
#include <QShortcut>
#include <QWidget>
#include <string>

#include "controls/keys.h"
#include "desktop/binder.h"
#include "desktop/characters.h"
#include "desktop/event_hook.h"
#include "desktop/mirror.h"
#include "desktop/twips.h"

namespace tarnwick {
namespace {

// Where the frame of the window is, and how large what is inside.
Rectangle BoundsOf(const QWidget& window) { return ToTwips({window.pos(), window.size()}); }

// A maximised window has its place from the system.
void ShowBounds(const Form& form, QWidget& window) {
  const Rectangle bounds = form.Bounds();  // a copy: each step below is reported to the form
  const bool placed = bounds.width > 0 && bounds.height > 0 && bounds != BoundsOf(window);
  if (!placed || window.isMaximized()) return;
  const QRect place = ToPixels(bounds);
  window.move(place.topLeft());
  window.resize(place.size());
}

void ShowMinimised(const Form& form, QWidget& window) {
  if (form.Minimised() != window.isMinimized()) {
    window.setWindowState(window.windowState() ^ Qt::WindowMinimized);
  }
}

void ShowActive(const Form& form, QWidget& window) {
  if (!form.IsActive() || !window.isVisible() || window.isActiveWindow()) return;
  window.raise();
  window.activateWindow();
}

void ReportState(Form& form, const QWidget& window) {
  if (window.isMinimized() == form.Minimised()) return;
  if (window.isMinimized()) {
    form.Minimise();
  } else {
    form.Show();
  }
}

// What the user has done with the window itself.
void Report(QEvent::Type type, Form& form, const QWidget& window) {
  switch (type) {
    case QEvent::Close:
      form.Close();
      break;
    case QEvent::WindowActivate:
      form.Activate();
      break;
    case QEvent::WindowStateChange:
      ReportState(form, window);
      break;
    case QEvent::Move:
      form.SetBounds(BoundsOf(window));
      break;
    case QEvent::Resize:
      form.SetBounds(BoundsOf(window));
      form.Resize(form.Bounds().width, form.Bounds().height);
      break;
    default:
      break;
  }
}

}  // namespace

// They reach the form from wherever the focus is, lists included.
QShortcut* Binder::BindKeys(Form& form, std::string_view keys, QWidget& window) {
  auto* shortcut = new QShortcut(ToKeySequence(keys), &window);
  QObject::connect(shortcut, &QShortcut::activated, &window,
                   [&form, keys = std::string(keys), &gate = gate_] {
                     gate.Run([&] { form.PressKeys(keys); });
                   });
  return shortcut;
}

void Binder::Bind(Form& form, QWidget& window) {
  window.setObjectName(ToQt(form.Name()));
  Mirror(form, Property::kCaption, window, [&] { window.setWindowTitle(ToQt(form.Caption())); });
  Mirror(form, Property::kBounds, window, [&] { ShowBounds(form, window); });
  Mirror(form, Property::kMinimised, window, [&] { ShowMinimised(form, window); });
  Mirror(form, Property::kVisible, window, [&] { window.setVisible(form.Visible()); });
  Mirror(form, Property::kFocus, window, [&] { ShowActive(form, window); });

  new EventHook(window, [&form, &window, &gate = gate_](QEvent& event) {
    gate.Run([&] { Report(event.type(), form, window); });
    if (event.type() != QEvent::Close) return false;
    event.ignore();  // the form decides whether it goes
    return true;
  });
  // Held down, Escape would close one window after the other.
  BindKeys(form, kEscapeName, window)->setAutoRepeat(false);
  for (const Shortcut& shortcut : form.Shortcuts()) BindKeys(form, shortcut.keys, window);
}

}  // namespace tarnwick
