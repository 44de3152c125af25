#pragma once

#include <functional>

#include "Dialogs.h"

namespace quorb {

/// For as long as one lives the toolkit lays a window out, and QtDialogs lets no events through: another size
/// that came meanwhile would pull the layout away from under it. They come when the layout is done.
class LayoutUnderWay {
 public:
  LayoutUnderWay();
  ~LayoutUnderWay();
  LayoutUnderWay(const LayoutUnderWay&) = delete;
  LayoutUnderWay& operator=(const LayoutUnderWay&) = delete;
};

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
