#include "controls/controls.h"

#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

#include "controls/control_array.h"
#include "controls/form.h"

namespace tarnwick {
namespace {

// A window with one control of each kind that has a value, counting what its handlers see.
struct TestForm : Form {
  explicit TestForm(Screen& screen, std::string name = "frmTest")
      : Form(screen, std::move(name), "Test") {
    check.on_click = [this] { ++clicks; };
    first.on_click = second.on_click = list.on_click = [this] { ++clicks; };
    for (const char* item : {"a", "b", "c"}) list.AddItem(item);
  }
  void Form_Activate() override { ++activations; }
  void Form_Unload(bool& cancel) override { cancel = refuse_to_close; }

  Frame frame{*this, "fraOuter"};
  Frame inner{frame, "fraInner"};
  CheckBox check{inner, "chk"};
  OptionGroup group;
  OptionButton first{frame, "optFirst", group};
  OptionButton second{frame, "optSecond", group};
  ComboBox list{frame, "cbo"};
  TextBox text{frame, "txb"};
  ControlArray<Label, 2> labels{*this, "lbl"};
  Timer timer{*this, "Clock"};
  int clicks = 0;
  int activations = 0;
  bool refuse_to_close = false;
};

struct Controls : testing::Test {
  Screen screen;
  TestForm form{screen};
};

TEST_F(Controls, AreFoundByNameArraysByIndex) {
  EXPECT_EQ(form.Find("txb"), &form.text);
  EXPECT_EQ(form.Find("lbl(1)"), &form.labels[1]);
  EXPECT_EQ(form.Find("lbl"), nullptr);
  EXPECT_EQ(screen.Find("frmTest"), &form);
}

TEST_F(Controls, AWindowHasBoundsThatCanBeAddedAndMultiplied) {
  constexpr int kHuge = std::numeric_limits<int>::max();
  form.SetBounds({-kHuge, kHuge, kHuge, -1});
  EXPECT_EQ(form.Bounds(), (Rectangle{-kLargestLength, kLargestLength, kLargestLength, 0}));
}

TEST_F(Controls, SettingACheckBoxRunsItsHandlerOnlyOnAChange) {
  form.check.SetValue(false);
  EXPECT_EQ(form.clicks, 0);
  form.check.SetValue(true);
  form.check.SetValue(true);
  EXPECT_EQ(form.clicks, 1);
  form.check.Click();
  EXPECT_FALSE(form.check.Value());
  EXPECT_EQ(form.clicks, 2);
}

TEST_F(Controls, OneOptionOfAGroupIsSelectedAndOnlyItsHandlerRuns) {
  form.first.SetValue(true);
  form.second.Click();
  form.second.Click();
  EXPECT_FALSE(form.first.Value());
  EXPECT_TRUE(form.second.Value());
  EXPECT_EQ(form.clicks, 2);
  form.second.SetValue(false);
  EXPECT_EQ(form.clicks, 2);
}

TEST_F(Controls, AListRunsItsHandlerOnEverySelection) {
  form.list.SetListIndex(1);
  form.list.SetListIndex(1);
  EXPECT_EQ(form.clicks, 2);
  EXPECT_EQ(form.list.Text(), "b");
  EXPECT_THROW(form.list.SetListIndex(3), std::out_of_range);
  EXPECT_EQ(form.clicks, 2);
}

TEST_F(Controls, RemovingAnItemKeepsTheSelectionOnItsText) {
  form.list.SetListIndex(1);
  form.list.RemoveItem(0);
  EXPECT_EQ(form.list.Text(), "b");
  form.list.RemoveItem(0);
  EXPECT_EQ(form.list.ListIndex(), -1);
  EXPECT_EQ(form.list.Text(), "");
  EXPECT_EQ(form.clicks, 1);
}

TEST_F(Controls, SelectionsCountCharactersAndStayInsideTheText) {
  form.text.SetText("Größe \xF0\x9F\x8C\x92!");
  form.text.Select(2, 3);
  EXPECT_EQ(form.text.SelText(), "öße");
  form.text.Select(6, 1);
  EXPECT_EQ(form.text.SelText(), "\xF0\x9F\x8C\x92");
  form.text.Select(100, 100);
  EXPECT_EQ(form.text.SelStart(), 8U);
  EXPECT_EQ(form.text.SelText(), "");
  form.text.SetText("new");
  EXPECT_EQ(form.text.SelStart(), 0U);
}

TEST_F(Controls, CanBeUsedOnlyWhereEverythingAroundThemCan) {
  EXPECT_FALSE(form.check.IsUsable()) << "the window is not shown yet";
  form.Show();
  EXPECT_TRUE(form.check.IsUsable());
  form.frame.SetEnabled(false);
  EXPECT_FALSE(form.check.IsUsable());
  EXPECT_TRUE(form.check.Enabled());
  form.frame.SetEnabled(true);
  form.inner.SetVisible(false);
  EXPECT_FALSE(form.check.IsUsable());
}

TEST_F(Controls, FocusMovesOnlyToWhatCanTakeItAndTellsWhatItLeaves) {
  int left = 0;
  form.text.on_lost_focus = [&] { ++left; };
  form.text.SetFocus();
  EXPECT_EQ(form.Focus(), nullptr) << "the window is not shown yet";
  form.Show();
  form.text.SetFocus();
  form.labels[0].SetFocus();
  EXPECT_EQ(form.Focus(), &form.text);
  form.check.SetEnabled(false);
  form.check.SetFocus();
  EXPECT_EQ(form.Focus(), &form.text);
  EXPECT_EQ(left, 0);
  form.list.SetFocus();
  EXPECT_EQ(form.Focus(), &form.list);
  EXPECT_EQ(left, 1);
}

TEST_F(Controls, WatchersHearOfChangesAndOfNothingElse) {
  std::vector<Property> seen;
  form.labels[0].Watch([&](Property property) { seen.push_back(property); });
  form.labels[0].SetCaption("x");
  form.labels[0].SetCaption("x");
  form.labels[0].SetForeColor({1, 2, 3});
  EXPECT_EQ(seen, (std::vector{Property::kCaption, Property::kForeColor}));
}

TEST_F(Controls, ATimerTicksOnlyWhileItIsEnabled) {
  int ticks = 0;
  form.timer.on_timer = [&] { ++ticks; };
  form.timer.Tick();
  form.timer.SetEnabled(true);
  form.timer.Tick();
  EXPECT_EQ(ticks, 1);
}

TEST_F(Controls, HidingTheActiveWindowReturnsToTheMainOne) {
  TestForm second(screen, "frmSecond");
  form.Show();
  second.Show();
  EXPECT_TRUE(second.IsActive());
  second.refuse_to_close = true;
  second.Close();
  EXPECT_TRUE(second.Visible());
  second.refuse_to_close = false;
  second.Close();
  EXPECT_FALSE(second.Visible());
  EXPECT_TRUE(form.IsActive());
  EXPECT_EQ(form.activations, 2);
}

TEST_F(Controls, HidingTheActiveWindowReturnsToItsOpenerIfThatIsStillShown) {
  TestForm second(screen, "frmSecond");
  TestForm third(screen, "frmThird");
  form.Show();
  second.Show();
  third.Show();
  third.Show();  // as when it is restored
  third.Hide();
  EXPECT_TRUE(second.IsActive());
  third.Show();
  second.Hide();
  third.Hide();
  EXPECT_TRUE(form.IsActive());
}

}  // namespace
}  // namespace tarnwick
