#pragma once

#include <string>

namespace quorb {

/// Buttons and icon of a message box; the values are those that the callers combine.
enum BoxStyle : int {
  kBoxOk = 0,
  kBoxOkCancel = 1,
  kBoxAbortRetryIgnore = 2,
  kBoxYesNoCancel = 3,
  kBoxYesNo = 4,
  kBoxStopIcon = 16,
  kBoxQuestionIcon = 32,
  kBoxExclamationIcon = 48,
  kBoxInformationIcon = 64,
};

/// The button that closed a message box.
enum class BoxAnswer { none = 0, ok = 1, cancel = 2, abort = 3, retry = 4, ignore = 5, yes = 6, no = 7 };

/// What the program asks of the platform when it speaks to the user. One implementation per platform; the
/// tests script the answers and keep the texts shown.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// Shows a modal box; `style` is a sum of BoxStyle values.
  virtual BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) = 0;

  /// Asks for one line of text, offering `defaultText`; Cancel gives an empty line.
  virtual std::string InputBox(const std::string& prompt, const std::string& title,
                               const std::string& defaultText) = 0;

  /// Delivers the events that wait, and returns.
  virtual void PumpEvents() = 0;

  /// Ends the process at once: nothing is closed or saved. Returns only in a test.
  virtual void EndProgram() = 0;
};

/// The dialogs of this process. Until one is set, boxes answer `none`, lines are empty and events are
/// nobody's.
Dialogs& CurrentDialogs();

/// Sets the dialogs of this process; a null pointer takes them back. The caller keeps the ownership.
void SetDialogs(Dialogs* dialogs);

}  // namespace quorb
