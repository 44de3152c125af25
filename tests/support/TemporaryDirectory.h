#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace quorb {

/// A new empty directory that goes, with all in it, at the end of the scope.
class TemporaryDirectory {
 public:
  TemporaryDirectory()
      : path(std::filesystem::temp_directory_path() / ("quorb-" + std::to_string(std::random_device{}()))) {
    std::filesystem::create_directories(path);
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  std::string File(const std::string& name) const { return (path / name).string(); }

  std::size_t EntryCount() const {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(path))
      ++count;
    return count;
  }

 private:
  std::filesystem::path path;
};

}  // namespace quorb
