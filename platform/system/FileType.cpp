#include "FileType.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "WholeFile.h"

namespace quorb {

namespace {

namespace fs = std::filesystem;

constexpr const char* kTypeName = "application/x-quorbexcelfile";
constexpr const char* kEntryName = "QuorbExcelPro.desktop";

std::string Contents(const fs::path& path) {
  std::stringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

/// True when the file had to be written.
bool WriteWhenOther(const fs::path& path, const std::string& text, bool& failed) {
  if (Contents(path) == text) return false;
  std::error_code code;
  fs::create_directories(path.parent_path(), code);
  std::string error;
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  failed = failed || !WriteWholeFile(path.string(), {bytes, text.size()}, {}, error);
  return true;
}

std::string TypeText() {
  return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n") +
         "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n" +
         "  <mime-type type=\"" + kTypeName + "\">\n" + "    <comment>QuorbExcelPro data file</comment>\n" +
         "    <glob pattern=\"*.qbv\"/>\n" + "  </mime-type>\n</mime-info>\n";
}

/// A path in the quotes of a desktop entry's command.
std::string QuotedPath(const std::string& path) {
  std::string quoted = "\"";
  for (const char c : path) {
    if (c == '"' || c == '`' || c == '$' || c == '\\') quoted += "\\\\";
    quoted += c == '%' ? std::string("%%") : std::string(1, c);
  }
  return quoted + '"';
}

std::string EntryText(const std::string& program) {
  return std::string("[Desktop Entry]\nType=Application\nName=QuorbExcelPro\n") +
         "Comment=Trajectories of a worksheet in three dimensions\nExec=" + QuotedPath(program) +
         " %f\nMimeType=" + kTypeName + ";\nCategories=Science;\nTerminal=false\n";
}

/// The user's choices of programs with this program as the default of the type; a choice that stands is kept.
std::string WithDefault(const std::string& choices) {
  if (choices.find(std::string(kTypeName) + "=") != std::string::npos) return choices;
  const std::string line = std::string(kTypeName) + "=" + kEntryName + "\n";
  const std::string section = "[Default Applications]\n";
  const std::size_t at = choices.find(section);
  if (at != std::string::npos) return std::string(choices).insert(at + section.size(), line);
  const bool openLine = !choices.empty() && choices.back() != '\n';
  return choices + (openLine ? "\n" : "") + section + line;
}

/// Runs a tool of the desktop on a directory; a missing tool is no fault.
void RunOn(const char* tool, const std::string& directory) {
  std::string program = tool;
  std::string argument = directory;
  char* arguments[] = {program.data(), argument.data(), nullptr};
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", 1, 0);
  posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", 1, 0);
  pid_t process = 0;
  if (posix_spawnp(&process, tool, &quiet, nullptr, arguments, environ) == 0) waitpid(process, nullptr, 0);
  posix_spawn_file_actions_destroy(&quiet);
}

}  // namespace

bool TieFileType(const UserDirectories& directories, const std::string& program) {
  const fs::path data = directories.data;
  const fs::path choices = fs::path(directories.config) / "mimeapps.list";
  bool failed = false;
  bool written = WriteWhenOther(data / "mime/packages/quorbexcelfile.xml", TypeText(), failed);
  written = WriteWhenOther(data / "applications" / kEntryName, EntryText(program), failed) || written;
  written = WriteWhenOther(choices, WithDefault(Contents(choices)), failed) || written;
  return written && !failed;
}

void AnnounceFileType(const UserDirectories& directories) {
  // The child lets its own child do the work, so that nobody waits for it.
  const pid_t child = fork();
  if (child > 0) waitpid(child, nullptr, 0);
  if (child != 0) return;
  if (fork() == 0) {
    RunOn("update-mime-database", directories.data + "/mime");
    RunOn("update-desktop-database", directories.data + "/applications");
  }
  _exit(0);
}

}  // namespace quorb
