#pragma once

#include "Desktop.h"

namespace quorb {

/// The desktop as the operating system and the freedesktop conventions give it.
class SystemDesktop : public Desktop {
 public:
  int Year() const override;
  std::string ProgramDirectory() const override;
  std::string DataDirectory() const override;
  char DirectoryMark() const override;
};

}  // namespace quorb
