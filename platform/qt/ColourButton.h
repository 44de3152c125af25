#pragma once

#include <QPushButton>
#include <array>

#include "Controls.h"

namespace quorb {

/// A button that shows the colour of three text fields, red, green and blue from 0 to 255, and lets the user
/// choose another one.
class ColourButton : public QPushButton {
 public:
  /// `name` tells what is coloured. The fields must be bound already, and live as long as the button.
  ColourButton(const QString& name, std::array<TextBox*, 3> fields, QWidget* parent);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor Colour() const;
  void Choose();

  std::array<TextBox*, 3> fields_;
};

}  // namespace quorb
