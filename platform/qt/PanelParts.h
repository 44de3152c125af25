#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

#include "CommandButton.h"
#include "Controls.h"
#include "WindowControls.h"

namespace quorb {

// Each function makes a widget in `parent` and binds it to its control.

QCheckBox* MakeCheck(QWidget& parent, CheckBox& control);
QLabel* MakeLabel(QWidget& parent, Label& control);
CommandButton* MakeCommand(QWidget& parent, Button& control);
/// A text field that takes the room that there is. `name` is what a screen reader calls it; a field whose
/// label is its buddy needs none.
QLineEdit* MakeWideField(QWidget& parent, TextBox& control, const char* name);
/// The caption of a panel, by which it is dragged where it can be dragged.
QLabel* MakePanelTitle(QWidget& parent, const Panel& control);

/// The widget, which keeps its place in the layout while it is hidden: nothing moves under the pointer.
QWidget* KeepingItsPlace(QWidget* widget);

}  // namespace quorb
