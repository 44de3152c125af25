#include "ControlBinding.h"

#include <QSignalBlocker>
#include <cmath>

namespace quorb {

namespace {

/// Characters at the end of a log that are shown; setting more of them would hold the window up.
constexpr int kLongestShownLog = 200000;

QString Text(const std::string& text) {
  return QString::fromStdString(text);
}

void ShowState(QWidget& widget, const Control& control) {
  widget.setVisible(control.visible);
  widget.setEnabled(control.enabled);
  widget.setToolTip(Text(control.toolTip));
}

}  // namespace

void BindBar(QScrollBar& widget, ScrollBar& control) {
  control.refresh = [&widget, &control] {
    const QSignalBlocker block(widget);
    ShowState(widget, control);
    widget.setRange(control.min, control.max);
    widget.setPageStep(control.largeChange);
    widget.setValue(control.value);
  };
  control.refresh();
  QObject::connect(&widget, &QScrollBar::valueChanged, &widget,
                   [&control](int value) { control.value = value; });
}

void BindLabel(QLabel& widget, Label& control) {
  widget.setTextFormat(Qt::PlainText);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    widget.setText(Text(control.caption));
  };
  control.refresh();
}

void BindLine(QLabel& widget, TextBox& control) {
  widget.setTextFormat(Qt::PlainText);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    widget.setText(Text(control.text));
  };
  control.refresh();
}

void BindLog(QPlainTextEdit& widget, TextBox& control) {
  widget.setReadOnly(true);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    if (!control.visible) return;
    widget.setPlainText(Text(control.text).right(kLongestShownLog));
    widget.moveCursor(QTextCursor::End);
  };
  control.refresh();
}

void BindButton(CommandButton& widget, Button& control) {
  widget.setText(Text(control.caption));
  control.refresh = [&widget, &control] { ShowState(widget, control); };
  control.refresh();
  QObject::connect(&widget, &QPushButton::clicked, &widget, [&control] {
    if (control.clicked) control.clicked();
  });
  widget.keyPressed = [&control] {
    if (control.keyPressed) control.keyPressed();
  };
}

void BindProgress(QProgressBar& widget, ProgressBar& control) {
  widget.setRange(0, 100);
  widget.setTextVisible(false);
  control.refresh = [&widget, &control] {
    ShowState(widget, control);
    widget.setValue(static_cast<int>(std::lround(control.value)));
    if (control.visible) widget.repaint();
  };
  control.refresh();
}

void BindMenu(QMenu& widget, Menu& control) {
  widget.setTitle(Text(control.caption));
  control.refresh = [&widget, &control] {
    widget.menuAction()->setVisible(control.visible);
    widget.setEnabled(control.enabled);
  };
  control.refresh();
}

void BindEntry(QAction& widget, Menu& control, std::function<void()> chosen) {
  widget.setText(Text(control.caption));
  control.refresh = [&widget, &control] {
    widget.setVisible(control.visible);
    widget.setEnabled(control.enabled);
    widget.setCheckable(control.checked);
    widget.setChecked(control.checked);
  };
  control.refresh();
  QObject::connect(&widget, &QAction::triggered, &widget, std::move(chosen));
}

}  // namespace quorb
