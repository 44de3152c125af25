#include "SystemDesktop.h"

#include <chrono>
#include <ctime>
#include <filesystem>

#include "FileType.h"

namespace quorb {

int SystemDesktop::Year() const {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local = {};
  return localtime_r(&now, &local) != nullptr ? local.tm_year + 1900 : 0;
}

std::string SystemDesktop::ProgramDirectory() const {
  std::error_code failed;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
  return failed ? std::string() : program.parent_path().string();
}

std::string SystemDesktop::DataDirectory() const {
  return CurrentUserDirectories().data + "/QuorbExcelPro";
}

void SystemDesktop::RegisterFileType() {
  if (!opensDataFiles) return;
  std::error_code failed;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
  if (failed) return;
  const UserDirectories directories = CurrentUserDirectories();
  if (TieFileType(directories, program.string())) AnnounceFileType(directories);
}

char SystemDesktop::DirectoryMark() const {
  return '/';
}

}  // namespace quorb
