#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>

#include "CommandButton.h"
#include "Controls.h"
#include "ListControls.h"
#include "SpecificationBox.h"

namespace quorb {

// Each function makes a widget show a control and pass the user's action to it. The control must outlive the
// widget, which gives it up when it goes. Positions are not bound: the window's layout places the widgets.

/// Name of a control of the main window; with the window in front for the movie window's and the file
/// chooser's
/// ("frmVideo.Check1"); empty for any other. The widgets carry it as their object name.
QString NameOf(const Control& control);

/// Gives a widget its control's name, and gives the control up when the widget goes. Each function below does
/// it.
void TieWidget(QWidget& widget, Control& control);

/// A tool tip as the toolkit takes it: a long one is broken into lines.
QString TipText(const std::string& toolTip);

void BindBar(QScrollBar& widget, ScrollBar& control);
void BindLabel(QLabel& widget, Label& control);
/// A text that is only shown, on one line.
void BindLine(QLabel& widget, TextBox& control);
/// A text of many lines that is only shown; its end stays in sight. A double click runs its routine.
void BindLog(QPlainTextEdit& widget, TextBox& control);
/// A text that the user edits, in its colour where that is not black, with its caret and selection.
void BindField(QLineEdit& widget, TextBox& control);
/// Its caption and its click.
void BindCheck(QCheckBox& widget, CheckBox& control);
/// Its entries, each as `shown` tells it, the one that is selected, and its routines.
void BindList(QListWidget& widget, ListBox& control, const std::function<QString(const std::string&)>& shown);
/// Its caption, its click and its keys.
void BindButton(CommandButton& widget, Button& control);
/// Its entries, its text, its routines, and its width, which changes with the focus.
void BindSpecification(SpecificationBox& widget, ComboBox& control);
void BindProgress(QProgressBar& widget, ProgressBar& control);

}  // namespace quorb
