// What screen readers are told of widgets beyond what Qt tells them by itself.
#pragma once

#include <QAccessible>

class QWidget;

namespace tarnwick {

// From now on lists and links have their name and their value apart, and a widget is what SetRole
// says of it. To be called once, before there is a window.
void InstallAccessibles();

// What a widget is that Qt knows only as an area.
void SetRole(QWidget& widget, QAccessible::Role role);

// Has a text that nobody looks at read out: the widget's accessible name.
void Announce(QWidget& widget);

// Tells that a widget has another value, or that it has been checked or unchecked.
void TellOfValue(QWidget& widget, const QString& value);
void TellOfCheck(QWidget& widget);

// Takes what readers are told in the place of Qt, which hands it on only while there is a reader.
using EventListener = void (*)(QAccessibleEvent* event);
void ListenToEvents(EventListener listener);

}  // namespace tarnwick
