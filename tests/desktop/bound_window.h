// A window of widgets bound to the controls of a form, for the tests of the binder.
#pragma once

#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <string>
#include <vector>

#include "desktop/binder.h"

namespace tarnwick {

// A form that notes what happens to it.
class NotingForm : public Form {
 public:
  explicit NotingForm(Screen& screen) : Form(screen, "frmTest", "Test") {}

  void Form_Resize() override { ++resizes; }
  void Form_Activate() override { ++activations; }
  void Form_Unload(bool& cancel) override { cancel = refuses_to_close; }
  void Form_KeyPress(int& key) override { keys.push_back(key); }

  int resizes = 0;
  int activations = 0;
  bool refuses_to_close = false;
  std::vector<int> keys;
};

// A form and a window to bind controls of it to widgets of.
struct BoundWindow {
  BoundWindow() {
    new QVBoxLayout(&window);
    binder.Bind(form, window);
  }

  // A widget of the window, tied to a control of the form.
  template <class Widget, class Control>
  Widget& Add(Control& control) {
    auto* widget = new Widget(&window);
    window.layout()->addWidget(widget);
    binder.Bind(control, *widget);
    return *widget;
  }

  void Show() {
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
  }

  static constexpr Wording kWordings[] = {{"cmdGo", 'o', {}}, {"txbText", 0, "A text"}};

  std::vector<std::string> faults;
  HandlerGate gate{[this](const std::string& what) { faults.push_back(what); }};
  Screen screen;
  NotingForm form{screen};
  QWidget window;
  Binder binder{gate, kWordings};
};

// The same with a text box.
template <class Edit>
struct BoundText : BoundWindow {
  TextBox box{form, "txbText"};
  Edit& edit = Add<Edit>(box);
};

}  // namespace tarnwick
