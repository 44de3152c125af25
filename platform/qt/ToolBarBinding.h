#pragma once

#include <QToolBar>
#include <functional>

#include "WindowControls.h"

namespace quorb {

/// A tool bar of the window. Its buttons stand in the order that the control gives them; their icons are
/// resources by the names that the control tells.
class ToolBarWidget : public QToolBar {
 public:
  ToolBarWidget(ToolBar& control, QWidget* parent);

  /// Offers to move and to hide its buttons in a menu of its own.
  void OfferOrder();

  /// The action of a position, from 1 on.
  QAction& ActionAt(int position) const;

  /// Runs behind each click.
  std::function<void()> clicked;

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void BindTool(int position);
  void ShowOrder();
  /// Moves the button at that place of the order; by 0 it leaves the bar.
  void Move(std::size_t place, int by);
  void PutAllBack();

  ToolBar& control_;
  std::vector<QAction*> actions_;
  std::vector<int> shown_;
  bool offersOrder_ = false;
};

}  // namespace quorb
