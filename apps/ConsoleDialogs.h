#pragma once

#include "Dialogs.h"

namespace quorb {

/// Messages of a program without a window: they go to standard error with their titles, and the program goes
/// on.
class ConsoleDialogs : public Dialogs {
 public:
  BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override;
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText) override;
  void PumpEvents() override {}
  void EndProgram() override;
};

}  // namespace quorb
