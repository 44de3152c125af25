#pragma once

#include "FileAccess.h"

namespace quorb {

/// Files of the operating system. A mapped file that another program cuts shorter while it is read gives zero
/// bytes for the part that is gone, and says so: it never ends the process.
class SystemFiles : public FileAccess {
 public:
  std::unique_ptr<MappedFile> Map(const std::string& path, int& errorNumber) override;
  /// Until it is committed, the file stands beside its place under a name of its own.
  std::unique_ptr<OutputFile> Create(const std::string& path) override;
  /// The user's data directory is $XDG_DATA_HOME/QuorbExcelPro. It is made when it is asked for and missing;
  /// where that fails, so does the writing of the file.
  std::string RealLocation(const std::string& path) const override;
};

}  // namespace quorb
