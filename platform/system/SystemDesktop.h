#pragma once

#include "Desktop.h"

namespace quorb {

/// The desktop as the operating system and the freedesktop conventions give it.
class SystemDesktop : public Desktop {
 public:
  int Year() const override;
  std::string ProgramDirectory() const override;
  std::string DataDirectory() const override;
  void RegisterFileType() override;
  char DirectoryMark() const override;
  std::string ProgramName() const override;
  std::string DateText() const override;
  std::string TimeText() const override;

  /// Whether this program is the one that data files are opened with: the viewer sets it.
  bool opensDataFiles = false;
};

}  // namespace quorb
