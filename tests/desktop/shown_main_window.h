// The whole main window on the screen, for the tests of its views.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QTest>
#include <vector>

#include "desktop/main_window_view.h"
#include "tools/driver/driver_desktop.h"

namespace tarnwick {

struct MainWindow {
  MainWindow() {
    desktop.SetClock({"2024-03-05", "12:34:56", 0});
    gate.Run([&] { form.Load(); });
  }

  template <class Widget>
  Widget& Find(const Control& control) {
    return *qobject_cast<Widget*>(view.WidgetOf(control));
  }

  HandlerGate gate{[](const std::string& what) { QFAIL(what.c_str()); }};
  DriverDesktop desktop{[](YieldMode) {}, QCoreApplication::applicationDirPath().toStdString()};
  Screen screen;
  frmMain form{desktop, screen};
  MainWindowView view{form, gate};
};

// The widgets that show a text, each of which knows how much room it needs for it.
inline std::vector<QWidget*> TextWidgets(const QWidget& window) {
  std::vector<QWidget*> found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool text = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                      qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget);
    if (text && widget->isVisible()) found.push_back(widget);
  }
  return found;
}

inline int TextRoom(const QComboBox& list) {
  QStyleOptionComboBox option;
  option.initFrom(&list);
  return list.style()
      ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list)
      .width();
}

// A list does not ask for the room of its items, so that it stays as wide as it is.
inline void VerifyItemsFit(const QComboBox& list) {
  for (int i = 0; i < list.count(); ++i) {
    const QString text = list.itemText(i);
    QVERIFY2(list.fontMetrics().horizontalAdvance(text) <= TextRoom(list), qPrintable(text));
  }
}

// What scrolls in a window, or the window itself.
inline const QWidget& ContentOf(const QWidget& window) {
  const auto* area = window.findChild<QScrollArea*>();
  return area == nullptr ? window : *area->widget();
}

// What has no room in the window scrolls.
inline void VerifyNothingIsClipped(const QWidget& window) {
  const QWidget& content = ContentOf(window);
  for (const QWidget* widget : TextWidgets(window)) {
    const QByteArray name = widget->objectName().toUtf8();
    const QSize needed = widget->minimumSizeHint();
    QVERIFY2(widget->width() >= needed.width(), name);
    QVERIFY2(widget->height() >= needed.height(), name);
    const QRect place(widget->mapTo(&content, QPoint()), widget->size());
    QVERIFY2(content.rect().contains(place), name);
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) VerifyItemsFit(*list);
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label != nullptr && label->wordWrap()) {
      QVERIFY2(label->heightForWidth(label->width()) <= label->height(), name);
    }
  }
}

}  // namespace tarnwick
