#pragma once

#include <QLabel>
#include <functional>

namespace quorb {

/// A line of text that is only shown. Where it does not fit, its end gives way to dots and the whole of it
/// stands in the tool tip.
class LineLabel : public QLabel {
 public:
  explicit LineLabel(QWidget* parent = nullptr);

  /// A press and a double press of the left mouse button.
  std::function<void()> clicked, doubleClicked;

  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  /// The text as it is painted.
  QString Shown() const;
};

}  // namespace quorb
