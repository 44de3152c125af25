#pragma once

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>

#include "CommandButton.h"
#include "Controls.h"
#include "SpecificationBox.h"

namespace quorb {

// Each function makes a widget show a control and pass the user's action to it. Both must live as long as the
// window. Positions are not bound: the window's layout places the widgets.

void BindBar(QScrollBar& widget, ScrollBar& control);
void BindLabel(QLabel& widget, Label& control);
/// A text that is only shown, on one line.
void BindLine(QLabel& widget, TextBox& control);
/// A text of many lines that is only shown; its end stays in sight.
void BindLog(QPlainTextEdit& widget, TextBox& control);
/// Its caption, its click and its keys.
void BindButton(CommandButton& widget, Button& control);
/// Its entries, its text, its routines, and its width, which changes with the focus.
void BindSpecification(SpecificationBox& widget, ComboBox& control);
void BindProgress(QProgressBar& widget, ProgressBar& control);
void BindMenu(QMenu& widget, Menu& control);
/// An entry of a menu or of the menu bar; its routine runs when the user chooses it.
void BindEntry(QAction& widget, Menu& control);

}  // namespace quorb
