#include "SystemDesktop.h"

#include <chrono>
#include <ctime>
#include <filesystem>

#include "FileType.h"

namespace quorb {

namespace {

/// The local time; all zero when the system cannot tell it.
std::tm LocalTime() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local = {};
  return localtime_r(&now, &local) != nullptr ? local : std::tm{};
}

std::string TimeAs(const char* format) {
  const std::tm local = LocalTime();
  char text[32];
  return {text, std::strftime(text, sizeof text, format, &local)};
}

/// This program's file; empty when the system does not tell it.
std::filesystem::path ProgramFile() {
  std::error_code failed;
  auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
  return failed ? std::filesystem::path() : program;
}

}  // namespace

int SystemDesktop::Year() const {
  const std::tm local = LocalTime();
  return local.tm_mday > 0 ? local.tm_year + 1900 : 0;
}

std::string SystemDesktop::ProgramDirectory() const {
  return ProgramFile().parent_path().string();
}

std::string SystemDesktop::ProgramName() const {
  return ProgramFile().filename().string();
}

std::string SystemDesktop::DateText() const {
  return TimeAs("%Y%m%d");
}

std::string SystemDesktop::TimeText() const {
  return TimeAs("%H:%M:%S");
}

std::string SystemDesktop::DataDirectory() const {
  return CurrentUserDirectories().data + "/QuorbExcelPro";
}

void SystemDesktop::RegisterFileType() {
  if (!opensDataFiles) return;
  const std::filesystem::path program = ProgramFile();
  if (program.empty()) return;
  const UserDirectories directories = CurrentUserDirectories();
  if (TieFileType(directories, program.string())) AnnounceFileType(directories);
}

char SystemDesktop::DirectoryMark() const {
  return '/';
}

}  // namespace quorb
