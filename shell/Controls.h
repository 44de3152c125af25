#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "WholeNumber.h"

namespace quorb {

// The state of the window lives in these controls. A widget only shows a control and passes the user's action
// to it, so the whole window runs with no display.

class Control;

/// Twips to a pixel at 96 dots an inch.
inline constexpr double kTwipsPerPixel = 15;

/// A property that a widget shows: assigning another value refreshes the widget.
template <typename T>
class Shown {
 public:
  Shown(Control& owner, T initial) : owner_(owner), value_(std::move(initial)) {}
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;
  inline Shown& operator=(const T& value);
  operator const T&() const { return value_; }
  const T& Get() const { return value_; }

 private:
  Control& owner_;
  T value_;
};

/// What every control has. Sizes are in twips, 15 to the pixel at 96 dots an inch.
class Control {
 public:
  Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Shown<bool> visible{*this, true};
  Shown<bool> enabled{*this, true};
  Shown<std::string> toolTip{*this, ""};
  Shown<double> Left{*this, 0}, Top{*this, 0}, Width{*this, 0}, Height{*this, 0};

  /// A small state text of the window's logic.
  std::string Tag;

  /// Asks for the keyboard focus.
  void SetFocus() const {
    if (takeFocus) takeFocus();
  }

  /// Set by the widget that shows the control: gives it the keyboard focus.
  std::function<void()> takeFocus;
  /// Set by the widget that shows the control; runs after each change of a property or the value.
  std::function<void()> refresh;

  void Refresh() const {
    if (refresh) refresh();
  }
};

template <typename T>
Shown<T>& Shown<T>::operator=(const T& value) {
  if (value == value_) return *this;
  value_ = value;
  owner_.Refresh();
  return *this;
}

/// The value of a control. Assigning the value that is there runs nothing; another one runs the control's
/// change or click routine at once, inside the assignment, whoever assigns.
template <typename T>
class ControlValue {
 public:
  ControlValue(Control& owner, T initial) : owner_(owner), value_(std::move(initial)) {}
  ControlValue(const ControlValue&) = delete;
  ControlValue& operator=(const ControlValue&) = delete;
  ControlValue& operator=(const T& value) {
    if (value == value_ || (accepts && !accepts(value))) return *this;
    value_ = value;
    owner_.Refresh();
    if (changed) changed();
    return *this;
  }
  operator const T&() const { return value_; }
  const T& Get() const { return value_; }

  /// The value that the window is designed with: no routine runs.
  void Design(const T& value) { value_ = value; }

  /// The control's event routine.
  std::function<void()> changed;
  /// A value that it refuses is a fault: the assignment is skipped.
  std::function<bool(const T&)> accepts;

 private:
  Control& owner_;
  T value_;
};

/// Assigns the whole number nearest to `number`, halves to the even one. A number that does not fit is a
/// fault: the assignment is skipped.
inline void AssignNumber(ControlValue<int>& value, double number) {
  std::int32_t whole = value;
  AssignRounded(whole, number);
  value = whole;
}

/// A check box: 0 clear, 1 checked, 2 greyed. Any other value is refused.
class CheckBox : public Control {
 public:
  CheckBox() {
    value.accepts = [](int wanted) { return wanted >= 0 && wanted <= 2; };
  }
  std::string caption;
  ControlValue<int> value{*this, 0};
};

/// Colours as R x 65536 + G x 256 + B.
inline constexpr int kBlack = 0x000000;
inline constexpr int kRed = 0xFF0000;

/// A text field.
class TextBox : public Control {
 public:
  Shown<int> colour{*this, kBlack};
  /// Where the caret stands and how many characters behind it are selected, in characters. The widget keeps
  /// both up to date ahead of each change of the text.
  Shown<int> selStart{*this, 0}, selLength{*this, 0};
  /// Its event routines.
  std::function<void()> clicked, doubleClicked;
  ControlValue<std::string> text{*this, ""};
};

/// A text that the user cannot edit.
class Label : public Control {
 public:
  Shown<std::string> caption{*this, ""};
};

/// A scroll bar. A value outside its bounds is refused.
class ScrollBar : public Control {
 public:
  ScrollBar() {
    value.accepts = [this](int wanted) { return wanted >= min && wanted <= max; };
  }
  int min = 0;
  int max = 100;
  int largeChange = 10;
  ControlValue<int> value{*this, 0};

  /// Gives the bar other bounds and another large step. A value that lies outside them moves to the nearer
  /// bound, which runs the change routine.
  void SetBounds(int newMin, int newMax, int newLargeChange) {
    min = newMin;
    max = newMax;
    largeChange = newLargeChange;
    Refresh();
    value = std::clamp<int>(value, min, max);
  }
};

/// An editable list.
class ComboBox : public Control {
 public:
  Shown<std::vector<std::string>> items{*this, {}};
  /// Its event routines: the text is entered, a key goes down (its number), the control gets the focus.
  std::function<void()> entered, gotFocus;
  std::function<void(int key)> keyDown;
  ControlValue<std::string> text{*this, ""};
};

/// A progress bar from 0 to 100.
class ProgressBar : public Control {
 public:
  Shown<double> value{*this, 0};
};

/// A button.
class Button : public Control {
 public:
  Shown<std::string> caption{*this, ""};
  /// Its event routines: a click, any key while it has the focus, the pointer moves over it or leaves it.
  std::function<void()> clicked, keyPressed, pointerMoved, pointerLeft;
};

/// Caption of a menu entry that is a line between others.
inline constexpr const char* kSeparatorCaption = "-";

/// An entry of the menu bar or of a menu.
class Menu : public Control {
 public:
  std::string caption;
  Shown<bool> checked{*this, false};
  /// What it opens, from the top; none for a command.
  std::vector<Menu*> entries;
  /// Its event routine: the user chooses the entry.
  std::function<void()> clicked;
};

}  // namespace quorb
