#include "Controls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ControlValue, AssigningTheValueThatIsThereRunsNothing) {
  CheckBox box;
  int runs = 0;
  int refreshes = 0;
  box.value.changed = [&] { ++runs; };
  box.refresh = [&] { ++refreshes; };
  box.value = 0;
  EXPECT_EQ(runs, 0);
  EXPECT_EQ(refreshes, 0);
}

TEST(ControlValue, AssigningAnotherValueRunsTheRoutineInsideTheAssignment) {
  TextBox box;
  std::vector<std::string> order;
  box.text.changed = [&] { order.push_back("routine sees " + box.text.Get()); };
  order.push_back("before");
  box.text = "new";
  order.push_back("behind");
  EXPECT_THAT(order, ElementsAre("before", "routine sees new", "behind"));
}

TEST(ControlValue, TheWidgetShowsTheValueBeforeTheRoutineRuns) {
  CheckBox box;
  std::vector<std::string> order;
  box.refresh = [&] { order.push_back("shown " + std::to_string(box.value.Get())); };
  box.value.changed = [&] { order.push_back("routine"); };
  box.value = 1;
  EXPECT_THAT(order, ElementsAre("shown 1", "routine"));
}

TEST(ControlValue, ARoutineMayAssignItsOwnControlAgain) {
  ScrollBar bar;
  std::vector<int> seen;
  bar.value.Design(50);
  bar.value.changed = [&] {
    const int value = bar.value;
    if (value == 0) bar.value = 1;
    seen.push_back(value);
  };
  bar.value = 0;
  EXPECT_EQ(bar.value, 1);
  EXPECT_THAT(seen, ElementsAre(1, 0));
}

TEST(ControlValue, TwoControlsThatFollowEachOtherComeToRest) {
  TextBox first, second;
  int runs = 0;
  first.text.changed = [&] {
    ++runs;
    second.text = first.text.Get();
  };
  second.text.changed = [&] {
    ++runs;
    first.text = second.text.Get();
  };
  second.text = "1.75";
  EXPECT_EQ(first.text.Get(), "1.75");
  EXPECT_EQ(runs, 2);
}

TEST(ControlValue, ADesignedValueRunsNothing) {
  CheckBox box;
  int runs = 0;
  box.value.changed = [&] { ++runs; };
  box.value.Design(1);
  EXPECT_EQ(box.value, 1);
  EXPECT_EQ(runs, 0);
}

TEST(ScrollBar, AValueOutsideItsBoundsIsRefusedAndRunsNothing) {
  ScrollBar bar;
  bar.min = 5;
  bar.max = 16;
  bar.value.Design(9);
  int runs = 0;
  bar.value.changed = [&] { ++runs; };
  bar.refresh = [&] { ++runs; };
  bar.value = 17;
  bar.value = 4;
  bar.value = -9;
  EXPECT_EQ(bar.value, 9);
  EXPECT_EQ(runs, 0);
}

TEST(ScrollBar, TheBoundsThemselvesAreTaken) {
  ScrollBar bar;
  bar.min = 5;
  bar.max = 16;
  bar.value.Design(9);
  std::vector<int> seen;
  bar.value.changed = [&] { seen.push_back(bar.value); };
  bar.value = 16;
  bar.value = 5;
  EXPECT_THAT(seen, ElementsAre(16, 5));
}

TEST(ScrollBar, BoundsThatMoveCountFromThenOn) {
  ScrollBar bar;
  bar.value = 101;
  EXPECT_EQ(bar.value, 0);
  bar.max = 200;
  bar.value = 101;
  EXPECT_EQ(bar.value, 101);
}

TEST(CheckBox, TakesClearCheckedAndGreyedOnly) {
  CheckBox box;
  std::vector<int> seen;
  box.value.changed = [&] { seen.push_back(box.value); };
  for (const int value : {1, 2, 3, -1, 0})
    box.value = value;
  EXPECT_THAT(seen, ElementsAre(1, 2, 0));
}

TEST(AssignNumber, TakesTheNearestWholeNumberAndTheEvenOneOfTwo) {
  ScrollBar bar;
  std::vector<int> seen;
  bar.value.changed = [&] { seen.push_back(bar.value); };
  for (const double number : {1.4, 1.6, 2.5, 3.5, 4.5})
    AssignNumber(bar.value, number);
  EXPECT_THAT(seen, ElementsAre(1, 2, 4));
}

TEST(AssignNumber, SkipsWhatFitsNoWholeNumber) {
  ScrollBar bar;
  bar.value.Design(7);
  int runs = 0;
  bar.value.changed = [&] { ++runs; };
  AssignNumber(bar.value, 4294967296.0 + 5);
  AssignNumber(bar.value, -1e300);
  AssignNumber(bar.value, std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(bar.value, 7);
  EXPECT_EQ(runs, 0);
}

TEST(Shown, RefreshesTheWidgetOnAnotherValueOnly) {
  Label label;
  std::vector<std::string> shown;
  label.refresh = [&] { shown.push_back(label.caption.Get() + (label.visible ? " visible" : " hidden")); };
  label.caption = "Redraw";
  label.caption = "Redraw";
  label.visible = true;
  label.visible = false;
  EXPECT_THAT(shown, ElementsAre("Redraw visible", "Redraw hidden"));
}

TEST(Shown, NeedsNoWidget) {
  Label label;
  label.caption = "Redraw";
  label.Left = 150;
  label.SetFocus();
  EXPECT_EQ(label.caption.Get(), "Redraw");
  EXPECT_EQ(label.Left, 150);
}

TEST(Control, AsksItsWidgetForTheFocus) {
  Button button;
  int asked = 0;
  button.takeFocus = [&] { ++asked; };
  button.SetFocus();
  EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace quorb
