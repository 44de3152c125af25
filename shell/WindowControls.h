#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Controls.h"

namespace quorb {

// The controls that the main window is framed by: itself, its floating panels, tool bars and status bar.

/// A window. Its size is that of its inside.
class Form : public Label {
 public:
  /// How much higher the whole window is than its inside, and the height of the screen that it stands on, in
  /// twips; the widget keeps both up to date.
  double frameHeight = 0;
  double screenHeight = 768 * kTwipsPerPixel;

  /// Height of the whole window.
  double OuterHeight() const { return Height + frameHeight; }
  /// Gives the whole window that height.
  void SetOuterHeight(double height) { Height = height - frameHeight; }
};

/// A panel that floats over the window. Its place counts from the window's top left corner.
class Panel : public Control {
 public:
  Shown<std::string> caption{*this, ""};
  /// Whether it stands in front of what it covers.
  bool inFront = false;
  /// Its event routines: the pointer moves over it; a drag of it begins, and goes on. A point counts from the
  /// panel's own top left corner, in twips.
  std::function<void()> pointerMoved;
  std::function<void(double x, double y)> dragStarted, draggedOver;

  void BringToFront() { Stack(true); }
  void SendToBack() { Stack(false); }

 private:
  void Stack(bool front) {
    inFront = front;
    Refresh();
  }
};

/// A picture that the user cannot change, by the name of its resource.
class Picture : public Control {
 public:
  std::string image;
};

/// A status bar.
class StatusBar : public Control {
 public:
  /// Its event routines: a click on one of its panels, a double click anywhere.
  std::function<void()> panelClicked, doubleClicked;
};

enum class ToolButtonStyle { separator, push, twoState };

/// A button of a tool bar. Assigning its value runs nothing: only a click of the user does, and whoever runs
/// the bar's click routine.
class ToolButton : public Control {
 public:
  std::string key;
  ToolButtonStyle style = ToolButtonStyle::push;
  /// Number of its picture in the bar's list of images, 0 for none, and the name of its icon.
  int image = 0;
  Shown<std::string> icon{*this, ""};
  /// 1 while a two-state button is pressed.
  int Value() const { return value_; }
  /// Presses or releases a two-state button; a value that is neither 0 nor 1 is refused.
  void SetValue(int value) {
    if (value == 0 || value == 1) value_ = value;
  }

 private:
  Shown<int> value_{*this, 0};
};

/// A tool bar. Its positions count from 1 and stay with their buttons, whatever order the user gives them.
class ToolBar : public Control {
 public:
  explicit ToolBar(std::size_t positions) : buttons_(positions) {
    std::vector<int> inOrder(positions);
    for (std::size_t i = 0; i < positions; ++i)
      inOrder[i] = static_cast<int>(i + 1);
    order.Design(inOrder);
    order.accepts = [this](const std::vector<int>& wanted) { return Holds(wanted); };
  }

  int Positions() const { return static_cast<int>(buttons_.size()); }
  ToolButton& Button(int position) { return buttons_[static_cast<std::size_t>(position - 1)]; }

  /// The positions that are shown, in their order; each at most once. Assigned when the user has customised
  /// the bar.
  ControlValue<std::vector<int>> order{*this, {}};
  /// Its event routines: a button is clicked, the bar itself is double-clicked.
  std::function<void(ToolButton&)> buttonClicked;
  std::function<void()> doubleClicked;

 private:
  bool Holds(std::vector<int> positions) const {
    std::sort(positions.begin(), positions.end());
    if (std::adjacent_find(positions.begin(), positions.end()) != positions.end()) return false;
    return positions.empty() || (positions.front() >= 1 && positions.back() <= Positions());
  }

  std::vector<ToolButton> buttons_;
};

}  // namespace quorb
