#include "controls/controls.h"

#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>
#include <utility>

#include "controls/form.h"

namespace tarnwick {
namespace {

// A window with one control of each kind whose rules the windows on the screen do not show.
struct TestForm : Form {
  explicit TestForm(Screen& screen, std::string name = "frmTest")
      : Form(screen, std::move(name), "Test") {
    for (const char* item : {"a", "b", "c"}) list.AddItem(item);
  }

  Frame frame{*this, "fraOuter"};
  Frame inner{frame, "fraInner"};
  CheckBox check{inner, "chk"};
  ComboBox list{frame, "cbo"};
  TextBox text{frame, "txb"};
  Label label{*this, "lbl"};
};

struct Controls : testing::Test {
  Screen screen;
  TestForm form{screen};
};

TEST_F(Controls, AWindowHasBoundsThatCanBeAddedAndMultiplied) {
  constexpr int kHuge = std::numeric_limits<int>::max();
  form.SetBounds({-kHuge, kHuge, kHuge, -1});
  EXPECT_EQ(form.Bounds(), (Rectangle{-kLargestLength, kLargestLength, kLargestLength, 0}));
}

TEST_F(Controls, AListSelectsOnlyWhatItHas) {
  form.list.SetListIndex(1);
  EXPECT_THROW(form.list.SetListIndex(3), std::out_of_range);
  form.list.RemoveItem(0);
  EXPECT_EQ(form.list.Text(), "b");
  form.list.RemoveItem(0);
  EXPECT_EQ(form.list.ListIndex(), -1);
  EXPECT_EQ(form.list.Text(), "");
}

TEST_F(Controls, SelectionsStayInsideTheText) {
  form.text.SetText("Größe");
  form.text.Select(100, 100);
  EXPECT_EQ(form.text.SelStart(), 5U);
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
  form.frame.SetEnabled(true);
  form.inner.SetVisible(false);
  EXPECT_FALSE(form.check.IsUsable());
}

TEST_F(Controls, FocusMovesOnlyToWhatCanTakeIt) {
  form.text.SetFocus();
  EXPECT_EQ(form.Focus(), nullptr) << "the window is not shown yet";
  form.Show();
  form.text.SetFocus();
  form.check.SetEnabled(false);
  form.check.SetFocus();
  form.label.SetFocus();
  EXPECT_EQ(form.Focus(), &form.text);
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
