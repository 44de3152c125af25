#pragma once

#include "SystemDesktop.h"

namespace quorb {

/// The desktop of a program with a window: it has a file manager and a clipboard besides.
class QtDesktop : public SystemDesktop {
 public:
  void ShowDirectory(const std::string& directory) override;
  int CopyText(const std::string& text) override;
};

}  // namespace quorb
