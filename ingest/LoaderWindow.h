#pragma once

#include <string>

namespace quorb {

/// The controls of the main window that the loader reads and sets.
enum class LoaderControl { Check1_0, Check3, Check4, Check5, Check9, Check11, Combo1, Command6, TextTempo };

/// What the loader asks of the main window. Values of check boxes are 0, 1 or 2;
/// other controls have the value 0.
class LoaderWindow {
 public:
  virtual ~LoaderWindow() = default;

  /// A line for the diagnostic log.
  virtual void AppendLog(const std::string& line) = 0;
  /// The message strip at the top.
  virtual void ShowReadingName(const std::string& name) = 0;
  /// The status line below the plot, which becomes visible.
  virtual void ShowNamedFile(const std::string& name) = 0;
  /// The progress bar; showing brings it to the front.
  virtual void ShowProgress(bool visible) = 0;
  /// Progress from 0 to 100.
  virtual void SetProgress(double value) = 0;

  virtual int Value(LoaderControl control) const = 0;
  /// Runs the control's click routine when the value changes.
  virtual void SetValue(LoaderControl control, int value) = 0;
  virtual std::string Tag(LoaderControl control) const = 0;
  virtual void SetTag(LoaderControl control, const std::string& tag) = 0;
  virtual void Show(LoaderControl control, bool visible) = 0;

  /// The text of the option "Main KEYWORD Excel".
  virtual std::string MainKeywordText() const = 0;
  /// Sets the bar of the satellite's size, at most to its end.
  virtual void SetSatelliteSize(double size) = 0;
  /// Chooses the satellite's shape by its name in the list.
  virtual void SetSatelliteShape(const std::string& name) = 0;
  /// Ties the extension of data files to this program, where it is not yet.
  virtual void RegisterFileType() = 0;
  /// Sets the bar of the redraw speed.
  virtual void SetSpeedBar(int value) = 0;
  /// The text of `TextTempo`, which tells the user what is missing.
  virtual void SetTextTempo(const std::string& text) = 0;
  /// Gives the control the keyboard focus.
  virtual void SetFocus(LoaderControl control) = 0;
  /// What `Combo1` does when it gets the focus.
  virtual void Combo1_GotFocusRoutine() = 0;
  /// Lets events through for that time.
  virtual void Pause(double seconds) = 0;

  /// Puts the scene's camera on a standard view.
  virtual void CameraSet(const std::string& mode, double value, double flag) = 0;

  /// Reads the option panel and closes it.
  virtual void Command2_Click() = 0;
  /// Lays the window out anew.
  virtual void Form_Resize() = 0;
};

}  // namespace quorb
