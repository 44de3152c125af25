#pragma once

#include <functional>

#include "Dialogs.h"

namespace quorb {

/// Message and input boxes of the toolkit, over the active window.
class QtDialogs : public Dialogs {
 public:
  BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override;
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override;
  void PumpEvents() override;
  void EndProgram() override;

  /// Runs before the process ends, so that what the program remembers reaches the disk.
  std::function<void()> beforeEnd;
};

}  // namespace quorb
