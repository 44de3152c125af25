#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>
#include <string>

#include "CommandButton.h"
#include "QtHost.h"

class QLabel;
class QPlainTextEdit;
class QScrollBar;

namespace quorb {

/// The main window as the toolkit shows it: the plot, the strip of bars below it, the menus.
class ViewerWindow : public QMainWindow {
 public:
  ViewerWindow();
  ~ViewerWindow() override;

  /// Runs the window's load sequence with the text behind the program's name, and ties the widgets to the
  /// controls. To be called once, before the window is shown.
  void Load(const std::string& commandLine);

  /// Runs behind each frame that was shown.
  std::function<void()> frameShown;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeWidgets();
  QWidget* MakeBar(class ScrollBar& bar, class Label& label);
  QScrollBar* MakeSlider(class ScrollBar& bar, QWidget* parent);
  QWidget* MakeLocalView();
  void MakeMenus();
  void RunDueTicks();
  void LayOut();
  void PlaceWidgets();
  bool TakesKeysFirst(const QObject& watched) const;
  /// Passes a key to the form; true when the focused control must not see it, since the form has dealt with
  /// it or has given the focus, and the key, to the plot.
  bool PassKey(class QKeyEvent& event, bool down);

  QWidget* canvas_ = nullptr;
  PlotWidget* plot_ = nullptr;
  QWidget* strip_ = nullptr;
  QLabel* prompt_ = nullptr;
  CommandButton* demonstration_ = nullptr;
  QPlainTextEdit* log_ = nullptr;
  QTimer updateTimer_;
  QElapsedTimer runTime_;
  std::int64_t lastTick_ = 0;
  bool redirecting_ = false;  ///< a key that gave the plot the focus is on its way to the plot
  bool activated_ = false;
};

}  // namespace quorb
