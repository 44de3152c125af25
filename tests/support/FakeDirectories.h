#pragma once

#include <map>
#include <string>
#include <vector>

#include "Directories.h"

namespace quorb {

/// Directories of a test. They are the process's directories for as long as it lives.
class FakeDirectories : public Directories {
 public:
  FakeDirectories() { SetDirectories(this); }
  ~FakeDirectories() override { SetDirectories(nullptr); }
  FakeDirectories(const FakeDirectories&) = delete;
  FakeDirectories& operator=(const FakeDirectories&) = delete;

  std::string start = "/home/user";
  std::vector<std::string> drives = {"/"};
  /// The directories by their whole names, and the files by theirs; every file was changed at one time.
  std::map<std::string, DirectoryContents> contents;
  std::map<std::string, std::uintmax_t> files;

  std::string Start() const override { return start; }
  std::vector<std::string> Drives() const override { return drives; }
  bool Read(const std::string& directory, DirectoryContents& read) const override {
    const auto found = contents.find(directory);
    if (found == contents.end()) return false;
    read = found->second;
    return true;
  }
  bool Describe(const std::string& path, FileDescription& file) const override {
    const auto found = files.find(path);
    if (found == files.end()) return false;
    file = {found->second, "2024/05/06 07:08:09"};
    return true;
  }
};

}  // namespace quorb
