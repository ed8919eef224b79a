#include "desktop/binder.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <stdexcept>

#include "desktop/characters.h"
#include "desktop/check_mark.h"
#include "desktop/link_label.h"
#include "tests/desktop/bound_window.h"
#include "tests/desktop/suites.h"

namespace tarnwick {

class BinderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void mnemonicMarksTheLetter() {
    struct {
      const char* caption;
      char letter;
      const char* marked;
    } const cases[] = {
        {"Compute", 'C', "&Compute"}, {"Clear", 'l', "C&lear"}, {"greenwich", 'G', "&greenwich"},
        {"Pause", 'x', "Pause"},      {"Pause", '\0', "Pause"}, {"Sun & Moon", 'M', "Sun && &Moon"},
    };
    for (const auto& [caption, letter, marked] : cases) {
      QCOMPARE(WithMnemonic(caption, letter), marked);
    }
  }

  void buttonShowsItsControlAndClicksIt() {
    BoundWindow bound;
    Button go(bound.form, "cmdGo", "Go");
    int clicks = 0;
    go.on_click = [&] { ++clicks; };
    auto& push = bound.Add<QPushButton>(go);
    bound.Show();
    QCOMPARE(push.text(), "G&o");
    QCOMPARE(push.accessibleName(), "Go");

    QTest::mouseClick(&push, Qt::LeftButton);
    QTest::keyClick(&push, Qt::Key_Space);
    QTest::keyClick(&bound.window, Qt::Key_O, Qt::AltModifier);
    QTRY_COMPARE(clicks, 3);

    go.SetCaption("Stop");
    go.SetToolTipText("Ends it");
    go.SetEnabled(false);
    QCOMPARE(push.text(), "St&op");
    QCOMPARE(push.accessibleName(), "Stop");
    QCOMPARE(push.toolTip(), "Ends it");
    QTest::mouseClick(&push, Qt::LeftButton);
    go.SetEnabled(true);
    bound.form.Hide();  // a press that comes when it cannot be used any more
    push.click();
    QCOMPARE(clicks, 3);
  }

  void checkBoxGoesBothWays() {
    BoundWindow bound;
    CheckBox box(bound.form, "chkAll", "All");
    box.SetValue(true);
    int changes = 0;
    box.on_click = [&] { ++changes; };
    auto& check = bound.Add<QCheckBox>(box);
    bound.Show();
    QVERIFY(check.isChecked());
    box.SetValue(false);
    box.SetValue(false);
    QVERIFY(!check.isChecked());
    QTest::keyClick(&check, Qt::Key_Space);
    QVERIFY(box.Value() && check.isChecked());
    QCOMPARE(changes, 2);
    bound.form.Hide();  // a press that comes when it cannot be used any more
    check.click();
    QVERIFY(box.Value() && check.isChecked());
    QCOMPARE(changes, 2);
  }

  void optionButtonsGoBothWays() {
    BoundWindow bound;
    OptionGroup group;
    OptionButton first(bound.form, "opt(0)", group, "first");
    OptionButton second(bound.form, "opt(1)", group, "second");
    int chosen = 0;
    first.on_click = [&] { ++chosen; };
    second.on_click = [&] { ++chosen; };
    first.SetValue(true);
    auto& left = bound.Add<QRadioButton>(first);
    auto& right = bound.Add<QRadioButton>(second);
    bound.Show();
    QVERIFY(left.isChecked() && !right.isChecked());

    second.SetValue(true);
    QVERIFY(!left.isChecked() && right.isChecked());
    right.setFocus();
    QTest::keyClick(&right, Qt::Key_Up);
    QVERIFY(first.Value() && !second.Value() && left.isChecked());
    QTest::mouseClick(&left, Qt::LeftButton);  // chosen already
    first.SetValue(false);
    QVERIFY(!left.isChecked() && !right.isChecked());
    QCOMPARE(chosen, 3);
  }

  void listFollowsItsControl() {
    BoundWindow bound;
    ComboBox list(bound.form, "cboTarget");
    auto& combo = bound.Add<QComboBox>(list);
    int choices = 0;
    list.on_click = [&] {
      ++choices;
      if (list.ListIndex() == 1) list.SetListIndex(2);  // no separator stays selected
    };
    for (const char* text : {"full moon", "", "dark moon"}) list.AddItem(text);
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.currentIndex(), -1);
    list.SetListIndex(1);
    QCOMPARE(combo.currentIndex(), 2);
    list.RemoveItem(0);
    QCOMPARE(combo.count(), 2);
    QCOMPARE(combo.currentText(), "dark moon");
    QCOMPARE(choices, 2);
  }

  void listReportsEveryChoice() {
    BoundWindow bound;
    ComboBox list(bound.form, "cboStep");
    for (const char* text : {"day", "month", "year"}) list.AddItem(text);
    list.SetListIndex(0);
    std::vector<int> chosen;
    list.on_click = [&] { chosen.push_back(list.ListIndex()); };
    auto& combo = bound.Add<QComboBox>(list);
    bound.Show();
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    combo.showPopup();
    QTest::keyClick(combo.view(), Qt::Key_Return);  // the item that is selected already
    bound.form.Hide();  // a choice that comes when it cannot be made any more
    combo.setCurrentIndex(2);
    Q_EMIT combo.activated(2);
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(chosen, (std::vector<int>{1, 1}));
  }

  void labelShowsItsCaptionAndColour() {
    BoundWindow bound;
    Label label(bound.form, "lblPhase", "Full & round");
    auto& text = bound.Add<QLabel>(label);
    const QColor ground = bound.window.palette().color(QPalette::WindowText);
    QCOMPARE(text.text(), "Full & round");
    QCOMPARE(text.palette().color(QPalette::WindowText), ground);
    label.SetCaption("two\r\nlines\r\n");
    QCOMPARE(text.text(), "two\nlines");
    label.SetForeColor({0, 0, 128});
    QCOMPARE(text.palette().color(QPalette::WindowText), QColor(0, 0, 128));
    label.SetForeColor({});
    QCOMPARE(text.palette().color(QPalette::WindowText), ground);
  }

  void clickableLabelAnswersMouseAndKeys() {
    BoundWindow bound;
    Label label(bound.form, "lblDate(1)", "1 & 2");
    TextBox text(bound.form, "txbText");
    int clicks = 0;
    label.on_click = [&] {
      ++clicks;
      text.SetFocus();
    };
    const auto& edit = bound.Add<QLineEdit>(text);
    auto* link = new LinkLabel(LinkLabel::Kind::kValue, &bound.window);
    bound.window.layout()->addWidget(link);
    bound.binder.Bind(label, *link);
    bound.Show();
    text.SetFocus();
    QTest::mouseClick(link, Qt::LeftButton);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
      link->setFocus(Qt::TabFocusReason);
      QTest::keyClick(link, key);
      QVERIFY(edit.hasFocus());
    }
    QTest::keyClick(link, Qt::Key_A);
    QCOMPARE(clicks, 3);
    QCOMPARE(link->accessibleName(), "1 & 2");
    label.SetForeColor({0, 0, 128});
    QCOMPARE(link->palette().color(QPalette::WindowText), QColor(0, 0, 128));
  }

  void pictureIsClicked() {
    BoundWindow bound;
    Picture picture(bound.form, "picMoon");
    int clicks = 0;
    picture.on_click = [&] { ++clicks; };
    auto& mark = bound.Add<CheckMark>(picture);
    bound.Show();
    QTest::mouseClick(&mark, Qt::LeftButton);
    QTest::mouseClick(&mark, Qt::RightButton);
    QCOMPARE(clicks, 1);
  }

  void focusGoesBothWays() {
    BoundWindow bound;
    TextBox text(bound.form, "txbText");
    Button go(bound.form, "cmdGo", "Go");
    int lost = 0;
    text.on_lost_focus = [&] { ++lost; };
    auto& edit = bound.Add<QLineEdit>(text);
    auto& push = bound.Add<QPushButton>(go);
    bound.Show();
    text.SetFocus();
    QVERIFY(edit.hasFocus());
    QTest::keyClick(&edit, Qt::Key_Tab);
    QVERIFY(push.hasFocus());
    QCOMPARE(bound.form.Focus(), &go);
    QCOMPARE(lost, 1);
    text.SetFocus();
    QVERIFY(edit.hasFocus());
    QCOMPARE(lost, 1);
  }

  void timerTicksOnlyWhileEnabled() {
    BoundWindow bound;
    Timer timer(bound.form, "Clock");
    int ticks = 0;
    timer.on_timer = [&] { ++ticks; };
    QTimer clock;
    bound.binder.Bind(timer, clock);
    timer.SetEnabled(true);
    QVERIFY(!clock.isActive());  // no interval yet
    QCOMPARE(clock.timerType(), Qt::PreciseTimer);
    timer.SetInterval(1);
    QTRY_VERIFY(ticks >= 2);
    timer.SetEnabled(false);
    QVERIFY(!clock.isActive());
  }

  // A long handler that lets events in is stopped by another button, as a repeated move is.
  void handlerMayYield() {
    BoundWindow bound;
    Button start(bound.form, "cmdMove", "Move");
    Button stop(bound.form, "cmdStop", "Stop");
    bool running = false;
    int passes = 0;
    start.on_click = [&] {
      running = true;
      start.SetEnabled(false);
      for (; running; ++passes) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      start.SetEnabled(true);
    };
    stop.on_click = [&] { running = false; };
    auto& first = bound.Add<QPushButton>(start);
    auto& second = bound.Add<QPushButton>(stop);
    bound.Show();
    QTimer::singleShot(0, &second, [&] {
      QVERIFY(!first.isEnabled());
      QTest::mouseClick(&second, Qt::LeftButton);
    });
    QTest::mouseClick(&first, Qt::LeftButton);
    QVERIFY(passes > 0 && first.isEnabled());
  }

  void faultIsReportedAndEndsAll() {
    BoundWindow bound;
    Button go(bound.form, "cmdGo", "Go");
    int clicks = 0;
    go.on_click = [&] {
      ++clicks;
      throw std::runtime_error("out of order");
    };
    auto& push = bound.Add<QPushButton>(go);
    bound.Show();
    push.click();
    push.click();
    QCOMPARE(clicks, 1);
    QCOMPARE(bound.faults, std::vector<std::string>{"out of order"});
  }
};

const AddSuite<BinderTest> added;

}  // namespace tarnwick

#include "binder_test.moc"
