// What a screen reader is told of every control, and what of it can be copied.
#include "desktop/accessible.h"

#include <QAction>
#include <QMessageBox>
#include <algorithm>

#include "calendars/calendar_table.h"
#include "desktop/platform.h"
#include "desktop/qt_desktop.h"
#include "tests/desktop/all_windows.h"
#include "tests/desktop/suites.h"
#include "tests/desktop/when_modal.h"

namespace tarnwick {
namespace {

QWidget* WindowOf(const Form& form) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == form.Name().c_str()) return window;
  }
  return nullptr;
}

QAccessibleInterface& Told(QWidget& widget) {
  return *QAccessible::queryAccessibleInterface(&widget);
}

QString NameOf(QWidget& widget) { return Told(widget).text(QAccessible::Name); }

bool Fits(const Control& control, QAccessible::Role role) {
  if (dynamic_cast<const Frame*>(&control)) return role == QAccessible::Grouping;
  if (dynamic_cast<const Button*>(&control)) return role == QAccessible::Button;
  if (dynamic_cast<const CheckBox*>(&control)) return role == QAccessible::CheckBox;
  if (dynamic_cast<const OptionButton*>(&control)) return role == QAccessible::RadioButton;
  if (dynamic_cast<const TextBox*>(&control)) return role == QAccessible::EditableText;
  if (dynamic_cast<const Picture*>(&control)) return role == QAccessible::Graphic;
  if (dynamic_cast<const Drawing*>(&control)) return role == QAccessible::Graphic;
  if (dynamic_cast<const Table*>(&control)) return role == QAccessible::Table;
  if (dynamic_cast<const ComboBox*>(&control)) {
    return role == QAccessible::ComboBox || role == QAccessible::List;
  }
  return role == QAccessible::StaticText || role == QAccessible::Button ||
         role == QAccessible::EditableText;
}

bool IsChecked(const Control& control) {
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) return check->Value();
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->Value();
  const auto* label = dynamic_cast<const Label*>(&control);
  return label != nullptr && label->Selected();
}

// What the program has told readers of since the last time.
struct Event {
  QAccessible::Event type;
  QString name;
};
std::vector<Event> events;

void NoteEvent(QAccessibleEvent* event) {
  const auto* widget = qobject_cast<QWidget*>(event->object());
  if (widget != nullptr) events.push_back({event->type(), widget->accessibleName()});
}

int CountOf(QAccessible::Event type, const QString& name) {
  return static_cast<int>(std::count_if(events.begin(), events.end(), [&](const Event& event) {
    return event.type == type && event.name == name;
  }));
}

}  // namespace

class AccessibleTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyControlHasNameRoleAndState() {
    AllWindows windows;
    windows.FillWithLongestTexts();
    windows.main.form.notice.ShowOver(windows.main.form, "Saved");
    windows.main.form.move.cmdMove.SetEnabled(false);
    for (const Form* form : windows.main.screen.Forms()) {
      QWidget* window = WindowOf(*form);
      QVERIFY2(window != nullptr, form->Name().c_str());
      QCOMPARE(NameOf(*window), QString::fromStdString(form->Caption()));
      QVERIFY(Told(*window).role() == QAccessible::Window ||
              Told(*window).role() == QAccessible::Notification);
      for (const Control* control : form->Controls()) {
        if (dynamic_cast<const Timer*>(control) != nullptr) continue;
        const QByteArray name = (form->Name() + "." + control->Name()).c_str();
        auto* widget = window->findChild<QWidget*>(control->Name().c_str());
        QVERIFY2(widget != nullptr, name);
        QAccessibleInterface& told = Told(*widget);
        QVERIFY2(!told.text(QAccessible::Name).trimmed().isEmpty(), name);
        QVERIFY2(told.text(QAccessible::Name) != control->Name().c_str(), name);
        QVERIFY2(Fits(*control, told.role()), name + ": " + QByteArray::number(told.role()));
        const QAccessible::State state = told.state();
        QVERIFY2(bool(state.disabled) == !widget->isEnabled(), name);
        QVERIFY2(bool(state.invisible) == !widget->isVisible(), name);
        QVERIFY2(bool(state.checked) == IsChecked(*control), name);
        QVERIFY2(state.focusable || !control->CanTakeFocus(), name);
      }
    }
  }

  void listsAndDatesHaveNameAndValue() {
    MainWindow main;
    struct {
      const Control& control;
      const char* name;
      const char* value;
    } const cases[] = {
        {main.form.time.cboTimeZone, "Time zone", "GMT"},
        {main.form.search.cboTarget, "Target of the search", "Total solar eclipse"},
        {main.form.history.cboHistory, "History", "2024-03-05 CE 12:34 (local = GMT)"},
        {main.form.dates.lblTime[1], "Time", "12:34 (local=GMT)"},
        {main.form.dates.lblJulianCalendarDate[1], "Julian date",
         "2024-02-21 JC (Tuesday, February 21, 2024)"},
        {main.form.dates.lblKSGDate[0], "KSG", ""},
    };
    for (const auto& [control, name, value] : cases) {
      QAccessibleInterface& told = Told(main.Find<QWidget>(control));
      QCOMPARE(told.text(QAccessible::Name), name);
      QCOMPARE(told.text(QAccessible::Value), value);
      // Where readers know no such value, they are told it in another way.
      if (auto* text = told.textInterface()) {
        QCOMPARE(text->text(0, text->characterCount()), value);
      } else if (!platform::ReadersKnowValues()) {
        QVERIFY(told.text(QAccessible::Description).startsWith(value));
      }
    }
    QCOMPARE(NameOf(main.Find<QWidget>(main.form.history.cmdBack)), "Back");
    auto& julian = Told(main.Find<QWidget>(main.form.dates.lblJulianCalendarDate[1]));
    QVERIFY(julian.text(QAccessible::Description).contains("21st day of February"));
    QCOMPARE(julian.role(), QAccessible::Button);
    julian.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(main.form.entry.txbDate.Text(), "2024-02-21 JC 12:34");
  }

  void currentCalendarIsAState() {
    AllWindows windows;
    frmMain& form = windows.main.form;
    const auto marked = [&](const Control& control) {
      const auto* window = WindowOf(control.Owner());
      return bool(Told(*window->findChild<QWidget*>(control.Name().c_str())).state().checked);
    };
    events.clear();
    ListenToEvents(NoteEvent);
    form.dates.lblKSGDate[1].Click();
    ListenToEvents(QAccessible::updateAccessibility);
    for (const Calendar calendar : kCalendars) {
      QCOMPARE(marked(form.dates.LabelOf(calendar)[1]), calendar == kKSG);
    }
    QCOMPARE(CountOf(QAccessible::StateChanged, "Kestrin-Sarvik Goddess Calendar date"), 1);
    QCOMPARE(CountOf(QAccessible::StateChanged, "Common Era date"), 1);
    events.clear();
    ListenToEvents(NoteEvent);
    form.move.cmdMove.Click();
    ListenToEvents(QAccessible::updateAccessibility);
    QCOMPARE(CountOf(QAccessible::ValueChanged, "Common Era date"), 1);
    // A click on a day marks it only by making it the current one.
    form.calendar.cmdDisplayCalendar.Click();
    frmCalendar& page = form.calendar.calendar_window;
    QVERIFY(!marked(page.lblDate[2]));
    page.lblDate[2].Click();
    QVERIFY(marked(page.lblDate[2]));
  }

  void picturesAreDescribed() {
    AllWindows windows;
    frmMain& form = windows.main.form;
    form.entry.txbDate.SetText("2024-01-21 CE 12:00");
    form.entry.cmdCompute.Click();
    QCOMPARE(NameOf(windows.main.Find<QWidget>(form.moon.picMoon)),
             "The Moon, gibbous, waxing, 83 % lit");
    form.calendar.cmdDisplayCalendar.Click();
    const frmCalendar& page = form.calendar.calendar_window;
    QCOMPARE(NameOf(*windows.calendar.WidgetOf(page.imgMoon[0])), "The Moon, dark, 0 % lit");
    QCOMPARE(NameOf(*windows.calendar.WidgetOf(page.imgMoon[16])),
             "The Moon, full, waning, 99 % lit");
  }

  // By the old event: Qt has one for announcements only from version 6.8 on.
  void textsThatAppearAreAnnounced() {
    MainWindow main;
    const NoticeView notice(main.form.notice, main.gate);
    constexpr auto kAnnounced = static_cast<QAccessible::Event>(
        QT_VERSION >= QT_VERSION_CHECK(6, 8, 0) ? 0x0150 : QAccessible::Alert);
    events.clear();
    ListenToEvents(NoteEvent);
    main.form.search.lblSearching.SetVisible(true);
    main.form.search.lblSearching.SetVisible(false);
    main.form.notice.ShowOver(main.form, "Saved");
    main.form.notice.Hide();
    main.form.notice.ShowOver(main.form, "Saved");
    main.form.notice.ShowOver(main.form, "No coincidence was found.");
    main.form.entry.txbDate.SetText("2023-02-30 CE");
    main.form.entry.cmdCompute.Click();
    ListenToEvents(QAccessible::updateAccessibility);
    QCOMPARE(CountOf(kAnnounced, main.form.entry.lblEntryHint.Caption().c_str()), 1);
    QCOMPARE(CountOf(kAnnounced, "Searching ..."), 1);
    QCOMPARE(CountOf(kAnnounced, "Saved"), 2);
    QCOMPARE(CountOf(kAnnounced, "No coincidence was found."), 1);
  }

  void messagesAreRead() {
    HandlerGate gate([](const std::string& /*what*/) {});
    QtDesktop desktop(gate);
    QStringList read;
    auto role = QAccessible::NoRole;
    WhenModal<QMessageBox>([&](QMessageBox& box) {
      role = Told(box).role();
      read << NameOf(box);
      for (QLabel* text : box.findChildren<QLabel*>()) read << NameOf(*text);
      box.accept();
    });
    desktop.ShowMessage({"Nothing to do!", "Compute date", MessageIcon::kExclamation});
    QCOMPARE(role, QAccessible::AlertMessage);
    QVERIFY(read.contains("Compute date") && read.contains("Nothing to do!"));
  }

  void valuesAreCopiedByKeyboardAndMenu() {
    MainWindow main;
    QVERIFY(QTest::qWaitForWindowActive(&main.view));
    Label& eclipse = main.form.search.lblActualEclipseData;
    QCOMPARE(main.Find<QWidget>(eclipse).focusPolicy(), Qt::NoFocus);
    eclipse.SetCaption("Partial lunar eclipse\r\n");
    for (const Label* label :
         {&main.form.dates.lblTime[1], &main.form.dates.lblKSGDate[1],
          &main.form.moon.lblAgeOfMoon[1], &main.form.moon.lblDeltaT[1], &eclipse}) {
      auto& value = main.Find<QWidget>(*label);
      QVERIFY2(value.focusPolicy() & Qt::TabFocus, label->Name().c_str());
      value.setFocus(Qt::TabFocusReason);
      QTest::keyClick(&value, Qt::Key_C, Qt::ControlModifier);
      QCOMPARE(main.desktop.ClipboardText(), label->Caption());
      QCOMPARE(value.contextMenuPolicy(), Qt::ActionsContextMenu);
      value.actions().back()->trigger();
      QCOMPARE(main.desktop.ClipboardText(), main.form.dates.AllDatesText());
    }
  }
};

const AddSuite<AccessibleTest> added;

}  // namespace tarnwick

#include "accessible_test.moc"
