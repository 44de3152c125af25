#include "SystemDirectories.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <utility>

#include "TextHelpers.h"

namespace quorb {

namespace {

using std::filesystem::directory_iterator;

std::string DateAndTime(std::time_t time) {
  std::tm local = {};
  if (localtime_r(&time, &local) == nullptr) return {};
  std::array<char, 64> text = {};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y/%m/%d %H:%M:%S", &local);
  return {text.data(), length};
}

void SortWithoutCase(std::vector<std::string>& names) {
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(names.size());
  for (std::string& name : names)
    keyed.emplace_back(LowerText(name), std::move(name));
  std::sort(keyed.begin(), keyed.end());
  std::transform(keyed.begin(), keyed.end(), names.begin(),
                 [](auto& pair) { return std::move(pair.second); });
}

void Add(const std::filesystem::directory_entry& entry, DirectoryContents& contents) {
  std::string name = entry.path().filename().string();
  if (name.starts_with('.')) return;
  std::error_code unknown;
  if (entry.is_directory(unknown)) {
    contents.directories.push_back(std::move(name));
  } else if (entry.is_regular_file(unknown)) {
    contents.files.push_back(std::move(name));
  }
}

}  // namespace

std::string SystemDirectories::Start() const {
  std::error_code failed;
  const auto working = std::filesystem::current_path(failed);
  const char* const home = std::getenv("HOME");
  const bool isElsewhere = !failed && working != working.root_path();
  return isElsewhere || home == nullptr ? working.string() : home;
}

std::vector<std::string> SystemDirectories::Drives() const {
  return {"/"};
}

bool SystemDirectories::Read(const std::string& directory, DirectoryContents& contents) const {
  contents = {};
  std::error_code failed;
  directory_iterator entry(directory, failed);
  if (failed) return false;
  for (; entry != directory_iterator(); entry.increment(failed)) {
    Add(*entry, contents);
  }
  SortWithoutCase(contents.directories);
  SortWithoutCase(contents.files);
  return true;
}

bool SystemDirectories::Describe(const std::string& path, FileDescription& file) const {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  if (access(path.c_str(), R_OK) != 0) return false;
  file = {static_cast<std::uintmax_t>(status.st_size), DateAndTime(status.st_mtime)};
  return true;
}

}  // namespace quorb
