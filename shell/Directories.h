#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorb {

/// What stands in a directory: names without it, sorted without regard to case.
struct DirectoryContents {
  std::vector<std::string> directories, files;
};

/// What the file chooser tells of a file.
struct FileDescription {
  std::uintmax_t bytes = 0;
  std::string changed;  ///< date and time of its last change, as 2024/05/06 07:08:09
};

/// The directories that the file chooser walks through.
class Directories {
 public:
  virtual ~Directories() = default;

  /// The directory that the chooser starts in when nobody names one.
  virtual std::string Start() const = 0;
  /// The root of each drive, with its mark: "/", or "C:\" and the like.
  virtual std::vector<std::string> Drives() const = 0;
  /// Reads a directory. False when there is none of that name or when it cannot be read.
  virtual bool Read(const std::string& directory, DirectoryContents& contents) const = 0;
  /// Describes a file. False when it is missing, locked or no file.
  virtual bool Describe(const std::string& path, FileDescription& file) const = 0;
};

/// The directories of this process. Until some are set, there are none.
Directories& CurrentDirectories();

/// Sets the directories of this process; a null pointer takes them back. The caller keeps the ownership.
void SetDirectories(Directories* directories);

}  // namespace quorb
