#include "MenuBinding.h"

#include <QMenu>
#include <QSignalBlocker>
#include <algorithm>

#include "ControlBinding.h"

namespace quorb {

namespace {

void BindCommand(QAction& action, Menu& control) {
  control.refresh = [&action, &control] {
    const QSignalBlocker block(action);
    action.setCheckable(control.checked);
    action.setChecked(control.checked);
  };
  QObject::connect(&action, &QAction::triggered, &action, [&control] {
    if (control.clicked) control.clicked();
    control.Refresh();
  });
}

bool HasVisibleEntry(const Menu& menu) {
  return std::any_of(menu.entries.begin(), menu.entries.end(),
                     [](const Menu* entry) { return entry->visible && entry->caption != kSeparatorCaption; });
}

QAction* MakeAction(QWidget& owner, Menu& control);

QMenu* MakeMenu(QWidget& owner, Menu& control) {
  auto* menu = new QMenu(&owner);
  for (Menu* entry : control.entries) {
    menu->addAction(MakeAction(*menu, *entry));
    // With its first visible entry a menu comes, with its last one it goes.
    entry->refresh = [&control, showEntry = entry->refresh] {
      showEntry();
      control.Refresh();
    };
  }
  return menu;
}

QAction* MakeAction(QWidget& owner, Menu& control) {
  QAction* const action =
      control.entries.empty() ? new QAction(&owner) : MakeMenu(owner, control)->menuAction();
  action->setObjectName(NameOf(control));
  if (control.caption == kSeparatorCaption) {
    action->setSeparator(true);
  } else {
    action->setText(QString::fromStdString(control.caption));
  }
  if (control.entries.empty()) BindCommand(*action, control);
  const auto showMore = control.refresh;
  control.refresh = [action, &control, showMore] {
    action->setVisible(control.visible && (control.entries.empty() || HasVisibleEntry(control)));
    action->setEnabled(control.enabled);
    if (showMore) showMore();
  };
  control.Refresh();
  QObject::connect(action, &QObject::destroyed, [&control] { control.refresh = nullptr; });
  return action;
}

}  // namespace

void BindMenuBar(QMenuBar& widget, const std::vector<Menu*>& menus) {
  widget.setNativeMenuBar(false);
  for (Menu* menu : menus)
    widget.addAction(MakeAction(widget, *menu));
  if (menus.empty()) return;
  const Menu& first = *menus.front();
  const auto showFirst = first.refresh;
  menus.front()->refresh = [&widget, &first, showFirst] {
    showFirst();
    widget.setVisible(first.visible);
  };
  first.Refresh();
}

}  // namespace quorb
