#include "Dialogs.h"

#include <gtest/gtest.h>

#include "ScriptedDialogs.h"

namespace quorb {
namespace {

TEST(DialogsTest, WithoutAPlatformBoxesAnswerNoneAndLinesAreEmpty) {
  SetDialogs(nullptr);
  EXPECT_EQ(CurrentDialogs().MessageBox("prompt", "title", kBoxAbortRetryIgnore), BoxAnswer::none);
  EXPECT_EQ(CurrentDialogs().InputBox("prompt", "title", "default"), "");
}

TEST(DialogsTest, WithoutAPlatformEndProgramEndsTheProcess) {
  EXPECT_EXIT(
      {
        SetDialogs(nullptr);
        CurrentDialogs().PumpEvents();
        CurrentDialogs().EndProgram();
      },
      testing::ExitedWithCode(0), "");
}

TEST(DialogsTest, DialogsServeAsLongAsTheyAreSet) {
  {
    ScriptedDialogs dialogs;
    EXPECT_EQ(&CurrentDialogs(), &dialogs);
  }
  EXPECT_EQ(CurrentDialogs().MessageBox("prompt", "title", kBoxOk), BoxAnswer::none);
}

TEST(DialogsTest, StylesAndAnswersHaveTheirCustomaryValues) {
  EXPECT_EQ(kBoxAbortRetryIgnore + kBoxExclamationIcon, 50);
  EXPECT_EQ(kBoxOkCancel + kBoxQuestionIcon, 33);
  EXPECT_EQ(kBoxYesNoCancel, 3);
  EXPECT_EQ(kBoxYesNo, 4);
  EXPECT_EQ(kBoxStopIcon, 16);
  EXPECT_EQ(kBoxInformationIcon, 64);
  EXPECT_EQ(static_cast<int>(BoxAnswer::abort), 3);
  EXPECT_EQ(static_cast<int>(BoxAnswer::retry), 4);
  EXPECT_EQ(static_cast<int>(BoxAnswer::ignore), 5);
}

TEST(ScriptedDialogsTest, AnswersInOrderThenTheMildestButton) {
  ScriptedDialogs dialogs;
  dialogs.answers = {BoxAnswer::cancel, BoxAnswer::yes};
  EXPECT_EQ(dialogs.MessageBox("a", "A", kBoxOkCancel), BoxAnswer::cancel);
  EXPECT_EQ(dialogs.MessageBox("b", "B", kBoxYesNo), BoxAnswer::yes);
  EXPECT_EQ(dialogs.MessageBox("c", "C", kBoxAbortRetryIgnore + kBoxStopIcon), BoxAnswer::ignore);
  EXPECT_EQ(dialogs.MessageBox("d", "D", kBoxInformationIcon), BoxAnswer::ok);
  ASSERT_EQ(dialogs.boxes.size(), 4U);
  EXPECT_EQ(dialogs.boxes[1].prompt, "b");
  EXPECT_EQ(dialogs.boxes[1].title, "B");
  EXPECT_EQ(dialogs.boxes[2].style, 18);
}

}  // namespace
}  // namespace quorb
