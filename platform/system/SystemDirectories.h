#pragma once

#include "Directories.h"

namespace quorb {

/// The directories of this computer. Names that begin with a point are hidden; so is what is neither a
/// directory nor a regular file.
class SystemDirectories : public Directories {
 public:
  /// The working directory, or the user's own one when that is the root.
  std::string Start() const override;
  std::vector<std::string> Drives() const override;
  bool Read(const std::string& directory, DirectoryContents& contents) const override;
  bool Describe(const std::string& path, FileDescription& file) const override;
};

}  // namespace quorb
