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

  /// Where the files of a directory that cannot be written stand; the names that were begun and those that
  /// were left half done; whether a new file, its writing or its naming fails.
  std::map<std::string, std::string> realLocations;
  std::vector<std::string> created;
  int abandoned = 0;
  int begun = 0, ended = 0;
  bool createFails = false, writeFails = false, commitFails = false;

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

  std::unique_ptr<OutputFile> Create(const std::string& path) override {
    if (createFails) return nullptr;
    created.push_back(path);
    return std::make_unique<NewFile>(*this, path);
  }

  std::string RealLocation(const std::string& path) const override {
    const auto found = realLocations.find(path);
    return found == realLocations.end() ? path : found->second;
  }

 private:
  class NewFile : public OutputFile {
   public:
    NewFile(MemoryFiles& files, std::string path) : files_(files), path_(std::move(path)) { ++files_.begun; }
    ~NewFile() override {
      ++files_.ended;
      if (!committed_) ++files_.abandoned;
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    bool Write(std::string_view bytes) override {
      if (files_.writeFails) return false;
      bytes_ += bytes;
      return true;
    }
    bool Commit() override {
      if (files_.writeFails || files_.commitFails) return false;
      committed_ = true;
      files_.contents[path_] = bytes_;
      return true;
    }

   private:
    MemoryFiles& files_;
    std::string path_;
    std::string bytes_;
    bool committed_ = false;
  };

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
