#pragma once

#include <QWidget>
#include <functional>

namespace quorb {

class LineLabel;

/// The strip below the plot: the bars of the dynamic plot, and the status bar with the specification, the
/// loader's line, what the mouse does, and the progress. It takes as many rows of bars as its width asks for.
class ViewerStrip : public QWidget {
 public:
  explicit ViewerStrip(QWidget* parent);

  /// The height that it needs in that width, in pixels.
  int HeightFor(int width) const;
  /// What the mouse does in the plot.
  void ShowHint(const QString& hint);

  /// Runs when the strip may need another height.
  std::function<void()> heightMayChange;

 protected:
  bool event(QEvent* event) override;

 private:
  QWidget* MakeBar(class ScrollBar& bar, class Label& label);
  QWidget* MakeSlider(class ScrollBar& bar, QWidget* parent, const std::string& name);
  QWidget* MakeLocalView();
  QLayout* MakeBars();
  QLayout* MakeStatusBar();
  LineLabel* MakePanel();

  LineLabel* hint_ = nullptr;
};

}  // namespace quorb
