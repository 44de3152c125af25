#include "ToolBarBinding.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <algorithm>
#include <numeric>

#include "ControlBinding.h"
#include "KeyCodes.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kIconSize = 24;

QIcon IconOf(const std::string& name) {
  return name.empty() ? QIcon() : QIcon(":/icons/" + QString::fromStdString(name) + ".svg");
}

void Show(QAction& action, const ToolButton& button) {
  action.setVisible(button.visible);
  action.setEnabled(button.enabled);
  action.setIcon(IconOf(button.icon));
  action.setText(QString::fromStdString(button.toolTip));
  action.setToolTip(TipText(button.toolTip));
  if (button.style == ToolButtonStyle::twoState) action.setChecked(button.Value() == 1);
}

}  // namespace

ToolBarWidget::ToolBarWidget(ToolBar& control, QWidget* parent) : QToolBar(parent), control_(control) {
  setObjectName(NameOf(control));
  setMovable(false);
  setIconSize({kIconSize, kIconSize});
  for (int position = 1; position <= control.Positions(); ++position)
    BindTool(position);
  control.refresh = [this] {
    setVisible(control_.visible);
    setEnabled(control_.enabled);
    ShowOrder();
  };
  control.Refresh();
  connect(this, &QObject::destroyed, [&control] { control.refresh = nullptr; });
}

void ToolBarWidget::BindTool(int position) {
  ToolButton& button = control_.Button(position);
  auto* action = new QAction(this);
  actions_.push_back(action);
  action->setObjectName(NameOf(button));
  action->setSeparator(button.style == ToolButtonStyle::separator);
  action->setCheckable(button.style == ToolButtonStyle::twoState);
  button.refresh = [action, &button] { Show(*action, button); };
  button.Refresh();
  connect(action, &QObject::destroyed, [&button] { button.refresh = nullptr; });
  connect(action, &QAction::triggered, this, [this, &button] {
    // A button in the list of those that find no room is clicked while the list has the keys.
    const int held = ShiftMaskOf(QGuiApplication::keyboardModifiers());
    if (held != 0) ShiftState = held;
    if (button.style == ToolButtonStyle::twoState) button.SetValue(1 - button.Value());
    if (control_.buttonClicked) control_.buttonClicked(button);
    button.Refresh();
    if (clicked) clicked();
  });
}

QAction& ToolBarWidget::ActionAt(int position) const {
  return *actions_[static_cast<std::size_t>(position - 1)];
}

void ToolBarWidget::ShowOrder() {
  if (shown_ == control_.order.Get() && !actions().isEmpty()) return;
  shown_ = control_.order;
  for (QAction* action : actions())
    removeAction(action);
  for (const int position : shown_)
    addAction(&ActionAt(position));
  for (QAction* action : actions())
    widgetForAction(action)->setFocusPolicy(action->isSeparator() ? Qt::NoFocus : Qt::TabFocus);
}

void ToolBarWidget::OfferOrder() {
  offersOrder_ = true;
}

void ToolBarWidget::Move(std::size_t place, int by) {
  std::vector<int> order = control_.order;
  if (by == 0) {
    order.erase(order.begin() + static_cast<std::ptrdiff_t>(place));
  } else {
    std::swap(order[place], order[place + static_cast<std::size_t>(by)]);
  }
  control_.order = order;
}

void ToolBarWidget::PutAllBack() {
  std::vector<int> order(actions_.size());
  std::iota(order.begin(), order.end(), 1);
  control_.order = order;
}

void ToolBarWidget::contextMenuEvent(QContextMenuEvent* event) {
  if (!offersOrder_) return;
  QMenu menu(this);
  const auto place = static_cast<std::size_t>(actions().indexOf(actionAt(event->pos())));
  const std::size_t count = shown_.size();
  if (place < count) {
    menu.addAction("Move to the &left", [&] { Move(place, -1); })->setEnabled(place > 0);
    menu.addAction("Move to the &right", [&] { Move(place, 1); })->setEnabled(place + 1 < count);
    menu.addAction("&Hide", [&] { Move(place, 0); })->setEnabled(count > 1);
    menu.addSeparator();
  }
  menu.addAction("&All buttons in their first order", [this] { PutAllBack(); });
  menu.exec(event->globalPos());
}

void ToolBarWidget::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  if (control_.doubleClicked) control_.doubleClicked();
}

}  // namespace quorb
