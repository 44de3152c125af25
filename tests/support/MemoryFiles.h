#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Faults.h"
#include "FileAccess.h"

namespace quorb {

/// Files of a test. They are the process's files for as long as they live.
class MemoryFiles : public FileAccess {
 public:
  MemoryFiles() { SetFileAccess(this); }
  ~MemoryFiles() override { SetFileAccess(nullptr); }
  MemoryFiles(const MemoryFiles&) = delete;
  MemoryFiles& operator=(const MemoryFiles&) = delete;

  /// The files by their whole names; every other one is missing (53), unless `failures` has a number for it.
  std::map<std::string, std::string> contents;
  std::map<std::string, int> failures;

  /// What an open file says of itself.
  bool lostPart = false;
  bool shrunk = false;

  /// The names asked for, in order, and how many files are open.
  std::vector<std::string> asked;
  int open = 0;

  std::unique_ptr<MappedFile> Map(const std::string& path, int& errorNumber) override {
    asked.push_back(path);
    const auto failure = failures.find(path);
    const auto found = contents.find(path);
    errorNumber = failure != failures.end() ? failure->second
                  : found == contents.end() ? kFaultFileNotFound
                                            : kFaultNone;
    if (errorNumber != kFaultNone) return nullptr;
    return std::make_unique<OpenFile>(*this, found->second);
  }

 private:
  class OpenFile : public MappedFile {
   public:
    OpenFile(MemoryFiles& files, std::string_view bytes) : files_(files), bytes_(bytes) { ++files_.open; }
    ~OpenFile() override { --files_.open; }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    std::string_view Bytes() const override { return bytes_; }
    bool LostPart() const override { return files_.lostPart; }
    bool Shrunk() const override { return files_.lostPart || files_.shrunk; }

   private:
    MemoryFiles& files_;
    std::string_view bytes_;
  };
};

}  // namespace quorb
