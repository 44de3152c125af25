#include "KeyCodes.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

TEST(KeyCodes, ArrowAndPageKeysAreThoseThatTurnTheCamera) {
  EXPECT_EQ(KeyCodeOf(Qt::Key_PageUp), 33);
  EXPECT_EQ(KeyCodeOf(Qt::Key_PageDown), 34);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Left), 37);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Up), 38);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Right), 39);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Down), 40);
}

TEST(KeyCodes, LettersAndDigitsAreTheirCapitalCharacters) {
  EXPECT_EQ(KeyCodeOf(Qt::Key_I), 73);
  EXPECT_EQ(KeyCodeOf(Qt::Key_T), 84);
  EXPECT_EQ(KeyCodeOf(Qt::Key_0), 48);
  EXPECT_EQ(KeyCodeOf(Qt::Key_9), 57);
}

TEST(KeyCodes, FunctionKeysBeginAt112AndEveryReturnIs13) {
  EXPECT_EQ(KeyCodeOf(Qt::Key_F1), 112);
  EXPECT_EQ(KeyCodeOf(Qt::Key_F16), 127);
  EXPECT_EQ(KeyCodeOf(Qt::Key_F17), 0);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Return), 13);
  EXPECT_EQ(KeyCodeOf(Qt::Key_Enter), 13);
}

TEST(KeyCodes, AKeyWithoutACodeIsZero) {
  EXPECT_EQ(KeyCodeOf(Qt::Key_Colon), 0);
  EXPECT_EQ(KeyCodeOf(Qt::Key_VolumeUp), 0);
}

TEST(KeyCodes, ShiftMasksAddUp) {
  EXPECT_EQ(ShiftMaskOf(Qt::NoModifier), 0);
  EXPECT_EQ(ShiftMaskOf(Qt::ShiftModifier), 1);
  EXPECT_EQ(ShiftMaskOf(Qt::ControlModifier), 2);
  EXPECT_EQ(ShiftMaskOf(Qt::AltModifier), 4);
  EXPECT_EQ(ShiftMaskOf(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier), 7);
}

TEST(KeyCodes, ButtonsAreOneTwoAndFour) {
  EXPECT_EQ(ButtonOf(Qt::LeftButton), 1);
  EXPECT_EQ(ButtonOf(Qt::RightButton), 2);
  EXPECT_EQ(ButtonOf(Qt::MiddleButton), 4);
  EXPECT_EQ(ButtonOf(Qt::BackButton), 0);
}

}  // namespace
}  // namespace quorb
