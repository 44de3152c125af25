#pragma once

#include <QPushButton>
#include <functional>

namespace quorb {

/// A push button that also tells of the keys that reach it.
class CommandButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

  /// Runs at each key, ahead of what the button itself does with it.
  std::function<void()> keyPressed;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (keyPressed) keyPressed();
    QPushButton::keyPressEvent(event);
  }
};

}  // namespace quorb
