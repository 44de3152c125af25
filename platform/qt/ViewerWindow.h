#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QTimer>
#include <string>

#include "CommandButton.h"
#include "QtHost.h"

class QLabel;
class QPlainTextEdit;

namespace quorb {

class LineLabel;
class ToolBarWidget;
class ViewerStrip;

/// The main window as the toolkit shows it: the menus, the tool bars, the plot, the strip below it and what
/// floats over them.
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
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeWidgets();
  void MakeTop();
  void MakeStrip();
  void MakeOverPlot();
  void MakePanels();
  void BindForm();
  void OrderFocus();
  void RunDueTicks();
  /// Shows what the mouse does in the plot.
  void ShowMouseMode();
  /// Takes the size over that the form was given, or gives the form the size back that the window keeps.
  void TakeFormSize();
  /// Tells the form how high the window's frame and the screen are.
  void MeasureFrame();
  /// Gives the form and the scene up, which outlive the window.
  void LetGo();
  void LayOut();
  void PlaceWidgets();
  bool TakesKeysFirst(const QObject& watched) const;
  /// Passes a key to the form; true when the focused control must not see it, since the form has dealt with
  /// it or has given the focus, and the key, to the plot.
  bool PassKey(class QKeyEvent& event, bool down);

  QWidget* canvas_ = nullptr;
  PlotWidget* plot_ = nullptr;
  QWidget* top_ = nullptr;
  ToolBarWidget* viewBar_ = nullptr;
  ToolBarWidget* optionBar_ = nullptr;
  ViewerStrip* strip_ = nullptr;
  QLabel* prompt_ = nullptr;
  CommandButton* demonstration_ = nullptr;
  QPlainTextEdit* log_ = nullptr;
  QTimer updateTimer_;
  QElapsedTimer runTime_;
  std::int64_t lastTick_ = 0;
  bool redirecting_ = false;  ///< a key that gave the plot the focus is on its way to the plot
  bool shown_ = false;
  bool activated_ = false;  ///< the activation of the first show has begun
};

}  // namespace quorb
