#include "KeyCodes.h"

#include <utility>

namespace quorb {

namespace {

constexpr std::pair<int, int> kCodes[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},     {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},     {Qt::Key_Up, 38},       {Qt::Key_Right, 39},   {Qt::Key_Down, 40},
    {Qt::Key_Print, 44},    {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},  {Qt::Key_Asterisk, 106},
    {Qt::Key_Plus, 107},    {Qt::Key_Minus, 109},   {Qt::Key_Period, 110}, {Qt::Key_Slash, 111}};

constexpr int kFirstFunctionKey = 112;

}  // namespace

int KeyCodeOf(int key) {
  for (const auto& [known, code] : kCodes) {
    if (known == key) return code;
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F16) return kFirstFunctionKey + key - Qt::Key_F1;
  const bool isDigit = key >= Qt::Key_0 && key <= Qt::Key_9;
  const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
  return isDigit || isLetter ? key : 0;
}

int ShiftMaskOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) + (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

int ButtonOf(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

}  // namespace quorb
