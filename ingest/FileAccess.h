#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quorb {

/// A whole file in memory, read only.
class MappedFile {
 public:
  virtual ~MappedFile() = default;

  /// The bytes of the file as it was when it was opened.
  virtual std::string_view Bytes() const = 0;

  /// True once a part of it was read that is no longer in the file; that part reads as zero bytes. Quick
  /// enough to be asked at every line.
  virtual bool LostPart() const = 0;

  /// True when the file is shorter now than it was when it was opened.
  virtual bool Shrunk() const = 0;
};

/// A file that is being written. It takes the name that it was made for when it is committed, whole and in
/// place of the one that was there; without that it leaves no trace.
class OutputFile {
 public:
  virtual ~OutputFile() = default;

  /// Appends bytes. False on failure; Commit then fails too.
  virtual bool Write(std::string_view bytes) = 0;

  /// Closes the file and gives it its name. False on failure: the file that was there stays.
  virtual bool Commit() = 0;
};

/// What the loader asks of the platform's files.
class FileAccess {
 public:
  virtual ~FileAccess() = default;

  /// Maps a regular file. A failure gives a null pointer and sets `errorNumber` to 52 bad name, 53 no such
  /// file, 70 no permission, 75 not a file that can be read, 76 no such directory; success sets it to 0.
  virtual std::unique_ptr<MappedFile> Map(const std::string& path, int& errorNumber) = 0;

  /// Begins a file under that name, in a directory that is made when it is missing. A failure gives a null
  /// pointer, and so do files that are only for reading.
  virtual std::unique_ptr<OutputFile> Create(const std::string& path);

  /// Where a file of the program's directory really stands: there, or under the same name in the user's data
  /// directory when this user cannot write there.
  virtual std::string RealLocation(const std::string& path) const { return path; }
};

/// The files of this process. Until some are set, every file is missing (53).
FileAccess& CurrentFileAccess();

/// Sets the files of this process; a null pointer takes them back. The caller keeps the ownership.
void SetFileAccess(FileAccess* files);

}  // namespace quorb
