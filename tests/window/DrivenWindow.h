#pragma once

#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "OpenWindow.h"

namespace quorb {

/// The real window with what a user does to its menus and tool bars.
class DrivenWindow : public OpenWindow {
 protected:
  template <typename T = QWidget>
  T& Find(const QString& name) const {
    T* const found = window->findChild<T*>(name);
    if (found == nullptr) ADD_FAILURE() << name.toStdString() << " is not there";
    return *found;
  }

  void ClickOn(const QWidget& widget, Qt::MouseButton button = Qt::LeftButton) const {
    QTest::mouseClick(window->windowHandle(), button, {}, widget.mapTo(window.get(), widget.rect().center()));
  }
  void DoubleClickOn(const QWidget& widget) const {
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                       widget.mapTo(window.get(), widget.rect().center()));
  }

  /// The button of a tool bar at a position.
  QWidget& Tool(const QString& bar, int position) const {
    QWidget* const button = Find<QToolBar>(bar).widgetForAction(&ActionOf(bar, position));
    if (button == nullptr) ADD_FAILURE() << "position " << position << " is not shown";
    return *button;
  }
  QAction& ActionOf(const QString& bar, int position) const {
    return Find<QAction>(bar + "(" + QString::number(position) + ")");
  }
  void ClickTool(const QString& bar, int position) const { ClickOn(Tool(bar, position)); }

  /// Shows the menus, which a window on a file named at its start hides.
  static void ShowMenus() {
    for (Menu* menu : frmMain->menuBar)
      menu->visible = menu != &frmMain->mnuEdit;
  }
  /// Opens a menu of the bar with the mouse; null when none opens.
  QMenu* OpenMenu(const QString& name) const {
    const QMenuBar& bar = *window->menuBar();
    const QPoint place = bar.actionGeometry(&Find<QAction>(name)).center();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, bar.mapTo(window.get(), place));
    return AwaitMenu();
  }
  static QMenu* AwaitMenu() {
    const bool opened = QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 3000);
    return opened ? qobject_cast<QMenu*>(QApplication::activePopupWidget()) : nullptr;
  }
  /// Chooses an entry of an open menu with the mouse.
  void Choose(QMenu& menu, const QString& name) const {
    const QPoint place = menu.actionGeometry(&Find<QAction>(name)).center();
    QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, place);
  }

  void ExpectUp(float x, float y, float z) const {
    float found[3] = {};
    glxCtl1->Camera().GetUp(found[0], found[1], found[2]);
    EXPECT_EQ(std::vector<float>({found[0], found[1], found[2]}), std::vector<float>({x, y, z}));
  }
};

}  // namespace quorb
