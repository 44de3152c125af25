#include "ControlBinding.h"

#include <QElapsedTimer>
#include <QSignalBlocker>
#include <cmath>

namespace quorb {

namespace {

/// Characters at the end of a log that are shown; setting more of them would hold the window up.
constexpr int kLongestShownLog = 200000;

QString Text(const std::string& text) {
  return QString::fromStdString(text);
}

/// Milliseconds between two moves of a progress bar that are painted at once: with each of them the whole
/// window is put together anew.
constexpr qint64 kBetweenPaintings = 150;

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
  control.takeFocus = [&widget] { widget.setFocus(); };
  QObject::connect(&widget, &QPushButton::clicked, &widget, [&control] {
    if (control.clicked) control.clicked();
  });
  widget.keyPressed = [&control] {
    if (control.keyPressed) control.keyPressed();
  };
}

void BindSpecification(SpecificationBox& widget, ComboBox& control) {
  control.refresh = [&widget, &control] {
    const QSignalBlocker block(widget);
    ShowState(widget, control);
    widget.setFixedWidth(static_cast<int>(std::lround(control.Width / kTwipsPerPixel)));
    QStringList entries;
    for (const std::string& entry : control.items.Get())
      entries.append(Text(entry));
    if (!widget.HoldsEntries(entries)) {
      widget.clear();
      widget.addItems(entries);
    }
    if (widget.currentText() != Text(control.text)) widget.setEditText(Text(control.text));
  };
  control.refresh();
  control.takeFocus = [&widget] { widget.setFocus(); };
  QObject::connect(&widget, &QComboBox::editTextChanged, &widget,
                   [&control](const QString& text) { control.text = text.toStdString(); });
  widget.entered = [&control] {
    if (control.entered) control.entered();
  };
  widget.keyPressed = [&control](int key) {
    if (control.keyDown) control.keyDown(key);
  };
  widget.gotFocus = [&control] {
    if (control.gotFocus) control.gotFocus();
  };
}

void BindProgress(QProgressBar& widget, ProgressBar& control) {
  widget.setRange(0, 100);
  widget.setTextVisible(false);
  QElapsedTimer sincePainted;
  sincePainted.start();
  control.refresh = [&widget, &control, sincePainted]() mutable {
    ShowState(widget, control);
    widget.setValue(static_cast<int>(std::lround(control.value)));
    if (!control.visible || sincePainted.elapsed() < kBetweenPaintings) return;
    widget.repaint();
    sincePainted.restart();
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

void BindEntry(QAction& widget, Menu& control) {
  widget.setText(Text(control.caption));
  control.refresh = [&widget, &control] {
    widget.setVisible(control.visible);
    widget.setEnabled(control.enabled);
    const QSignalBlocker block(widget);
    widget.setCheckable(control.checked);
    widget.setChecked(control.checked);
  };
  control.refresh();
  QObject::connect(&widget, &QAction::triggered, &widget, [&control] {
    if (control.clicked) control.clicked();
  });
}

}  // namespace quorb
