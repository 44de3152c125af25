#include "PanelParts.h"

#include "ControlBinding.h"

namespace quorb {

namespace {

constexpr int kWideFieldLetters = 12;

}  // namespace

QCheckBox* MakeCheck(QWidget& parent, CheckBox& control) {
  auto* widget = new QCheckBox(&parent);
  BindCheck(*widget, control);
  return widget;
}

QLabel* MakeLabel(QWidget& parent, Label& control) {
  auto* widget = new QLabel(&parent);
  BindLabel(*widget, control);
  return widget;
}

CommandButton* MakeCommand(QWidget& parent, Button& control) {
  auto* widget = new CommandButton(&parent);
  BindButton(*widget, control);
  return widget;
}

QLineEdit* MakeWideField(QWidget& parent, TextBox& control, const char* name) {
  auto* widget = new QLineEdit(&parent);
  widget->setAccessibleName(name);
  widget->setMinimumWidth(kWideFieldLetters * widget->fontMetrics().horizontalAdvance('x'));
  BindField(*widget, control);
  return widget;
}

QLabel* MakePanelTitle(QWidget& parent, const Panel& control) {
  auto* title = new QLabel(QString::fromStdString(control.caption), &parent);
  QFont font = title->font();
  font.setBold(true);
  title->setFont(font);
  if (control.dragStarted) title->setCursor(Qt::SizeAllCursor);
  return title;
}

QWidget* KeepingItsPlace(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
  return widget;
}

}  // namespace quorb
