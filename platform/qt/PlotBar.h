#pragma once

#include <QKeyEvent>
#include <QScrollBar>

namespace quorb {

/// A bar of the dynamic plot. The arrow keys belong to the plot, so plus and minus move it by a step.
class PlotBar : public QScrollBar {
 public:
  explicit PlotBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) { setFocusPolicy(Qt::TabFocus); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Plus) {
      triggerAction(SliderSingleStepAdd);
    } else if (event->key() == Qt::Key_Minus) {
      triggerAction(SliderSingleStepSub);
    } else {
      QScrollBar::keyPressEvent(event);
    }
  }
};

}  // namespace quorb
