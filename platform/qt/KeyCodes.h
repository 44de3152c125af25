#pragma once

#include <Qt>

namespace quorb {

/// The code by which the window's routines know a key; 0 for one that has none.
int KeyCodeOf(int key);

/// 1 shift, 2 control, 4 alt.
int ShiftMaskOf(Qt::KeyboardModifiers modifiers);

/// 1 left, 2 right, 4 middle, 0 none.
int ButtonOf(Qt::MouseButton button);

}  // namespace quorb
