#include "desktop/accessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QVariant>

#include "desktop/link_label.h"
#include "desktop/platform.h"

namespace tarnwick {
namespace {

constexpr char kRole[] = "accessibleRole";

class AreaAccessible : public QAccessibleWidget {
 public:
  explicit AreaAccessible(QWidget* widget) : QAccessibleWidget(widget) {}

  QAccessible::Role role() const override {
    const QVariant role = widget()->property(kRole);
    if (role.isValid()) return static_cast<QAccessible::Role>(role.toInt());
    return widget()->isWindow() ? QAccessible::Window : QAccessibleWidget::role();
  }
};

// The value of a list as a text, which readers take that know no other value than a number.
class ValueText : public QAccessibleTextInterface {
 public:
  explicit ValueText(const QAccessibleInterface& shown) : shown_(shown) {}

  QString text(int begin, int end) const override { return Value().mid(begin, end - begin); }
  int characterCount() const override { return static_cast<int>(Value().size()); }
  QString attributes(int /*offset*/, int* begin, int* end) const override {
    *begin = 0;
    *end = characterCount();
    return {};
  }
  QRect characterRect(int /*offset*/) const override { return shown_.rect(); }
  int offsetAtPoint(const QPoint& /*point*/) const override { return 0; }

  // There is no caret, and nothing can be selected.
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int /*position*/) override {}
  int selectionCount() const override { return 0; }
  void selection(int /*index*/, int* begin, int* end) const override { *begin = *end = 0; }
  void addSelection(int /*begin*/, int /*end*/) override {}
  void removeSelection(int /*index*/) override {}
  void setSelection(int /*index*/, int /*begin*/, int /*end*/) override {}
  void scrollToSubstring(int /*begin*/, int /*end*/) override {}

 private:
  QString Value() const { return shown_.text(QAccessible::Value); }

  const QAccessibleInterface& shown_;
};

// Something with a name and a value that a press of it does something with.
class ValueAccessible : public QAccessibleWidget {
 public:
  ValueAccessible(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Value() : QAccessibleWidget::text(kind);
  }

  QStringList actionNames() const override {
    return QStringList{PressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    if (name != PressAction()) {
      QAccessibleWidget::doAction(name);
    } else if (widget()->isEnabled()) {
      Press();
    }
  }

 protected:
  virtual QString Value() const = 0;

 private:
  virtual QString PressAction() const = 0;
  virtual void Press() = 0;
};

// Qt's own gives a list its value for a name, and what it is only if a label stands beside it.
class ListAccessible final : public ValueAccessible {
 public:
  explicit ListAccessible(QComboBox* list)
      : ValueAccessible(list, QAccessible::ComboBox), list_(*list) {}

  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(list_.view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child->object() == list_.view() ? 0 : -1;
  }
  QAccessible::State state() const override {
    QAccessible::State state = ValueAccessible::state();
    const bool open = list_.view()->isVisible();
    state.expandable = true;
    state.expanded = open;
    state.collapsed = !open;
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(&text_);
    return ValueAccessible::interface_cast(type);
  }

 private:
  QString Value() const override { return list_.currentText(); }
  QString PressAction() const override { return QAccessibleActionInterface::showMenuAction(); }
  void Press() override { list_.showPopup(); }

  QComboBox& list_;
  ValueText text_{*this};
};

class LinkAccessible final : public ValueAccessible {
 public:
  explicit LinkAccessible(LinkLabel* link)
      : ValueAccessible(link, QAccessible::Button), link_(*link) {}

  QString text(QAccessible::Text kind) const override {
    QString text = ValueAccessible::text(kind);
    if (kind != QAccessible::Description || platform::ReadersKnowValues()) return text;
    return text.isEmpty() || Value().isEmpty() ? Value() + text : Value() + "\n" + text;
  }
  // One that the keyboard does not reach is read, not worked.
  QAccessible::Role role() const override {
    return link_.focusPolicy() == Qt::NoFocus ? QAccessible::StaticText : ValueAccessible::role();
  }
  QAccessible::State state() const override {
    QAccessible::State state = ValueAccessible::state();
    state.checkable = link_.isCheckable();
    state.checked = link_.isChecked();
    return state;
  }

 private:
  // What is its name already is no value.
  QString Value() const override {
    QString shown = link_.text().replace("&&", "&");
    return shown == link_.accessibleName() ? QString() : shown;
  }
  QString PressAction() const override { return QAccessibleActionInterface::pressAction(); }
  void Press() override { link_.click(); }

  LinkLabel& link_;
};

EventListener tell = QAccessible::updateAccessibility;

// Qt asks for every class of an object, the most special first, and takes what it is given.
QAccessibleInterface* AccessibleOf(const QString& class_name, QObject* object) {
  if (class_name == LinkLabel::staticMetaObject.className()) {
    return new LinkAccessible(static_cast<LinkLabel*>(object));
  }
  if (class_name == "QComboBox") return new ListAccessible(static_cast<QComboBox*>(object));
  if (class_name == "QWidget") return new AreaAccessible(static_cast<QWidget*>(object));
  return nullptr;
}

}  // namespace

void InstallAccessibles() { QAccessible::installFactory(AccessibleOf); }

void ListenToEvents(EventListener listener) { tell = listener; }

void SetRole(QWidget& widget, QAccessible::Role role) { widget.setProperty(kRole, role); }

void Announce(QWidget& widget) {
  if (!widget.isVisible() || widget.accessibleName().isEmpty()) return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(&widget, widget.accessibleName());
#else
  QAccessibleEvent event(&widget, QAccessible::Alert);
#endif
  tell(&event);
}

void TellOfValue(QWidget& widget, const QString& value) {
  QAccessibleValueChangeEvent event(&widget, value);
  tell(&event);
}

void TellOfCheck(QWidget& widget) {
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(&widget, changed);
  tell(&event);
}

}  // namespace tarnwick
