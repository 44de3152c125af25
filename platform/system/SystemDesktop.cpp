#include "SystemDesktop.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>

namespace quorb {

namespace {

std::string Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

}  // namespace

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
  const std::string data = Environment("XDG_DATA_HOME");
  const std::string base = data.empty() ? Environment("HOME") + "/.local/share" : data;
  return base + "/QuorbExcelPro";
}

char SystemDesktop::DirectoryMark() const {
  return '/';
}

}  // namespace quorb
