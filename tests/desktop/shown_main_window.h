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

  // Shows whatever can be shown, each at its longest.
  void FillWithLongestTexts() {
    form.dates.lblOstrelLWCDate[1].SetCaption(
        "9000-13-3-3 OLW (Daythree in Weekthree of De Quincy, 9000)");
    form.moon.lblAgeOfMoon[1].SetCaption("[-64316] 29 days, 23 hrs, 59 mins (100.0%)");
    form.search.lblActualEclipseData.SetCaption(
        "Total lunar eclipse\r\nLunation number = -64316\r\nSaros number = 100\r\n"
        "Penumbral phase starts 20:58 and lasts 6h 28m.\r\n"
        "Umbral phase starts 20:58 and lasts 3h 58m.\r\n"
        "Total phase starts 20:58 and lasts 1h 48m.\r\n");
    form.history.cboHistory.AddItem("5003-10-2-1 OLW 09:55 (Greenwich; local = GMT+05:30)");
    form.move.fraStopPauseResume.SetVisible(true);
    form.move.cmdPauseResume.SetCaption("Resume");
    form.search.lblSearching.SetVisible(true);
    QCoreApplication::processEvents();
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
  }
}

}  // namespace tarnwick
