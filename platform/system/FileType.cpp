#include "FileType.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string_view>

#include "TextHelpers.h"
#include "WholeFile.h"

namespace quorb {

namespace {

namespace fs = std::filesystem;

constexpr const char* kTypeName = "application/x-quorbexcelfile";
constexpr std::string_view kSection = "[Default Applications]";
constexpr const char* kEntryName = "QuorbExcelPro.desktop";

/// The text of a file; empty when there is none, nothing when it cannot be read.
std::optional<std::string> Contents(const fs::path& path) {
  std::error_code code;
  if (!fs::exists(path, code)) return std::string();
  std::ifstream file(path, std::ios::binary);
  std::stringstream text;
  if (file.peek() != std::ifstream::traits_type::eof()) text << file.rdbuf();
  if (!file.is_open() || file.bad() || text.bad()) return std::nullopt;
  return text.str();
}

/// What came of the files that are to hold a text.
struct Outcome {
  bool written = false;
  bool failed = false;
};

/// A link is followed, so that it stays one.
void WriteWhenOther(const fs::path& path, const std::string& text, Outcome& outcome) {
  if (Contents(path) == text) return;
  std::error_code code;
  fs::create_directories(path.parent_path(), code);
  const fs::path target = fs::weakly_canonical(path, code);
  std::string error;
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(text.data());
  const bool done = WriteWholeFile(code ? path.string() : target.string(), {bytes, text.size()}, {}, error);
  outcome.written = outcome.written || done;
  outcome.failed = outcome.failed || !done;
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
    // The entry's own escapes are undone first, the command's second: a backslash takes four.
    if (c == '"' || c == '`' || c == '$') quoted += "\\\\";
    if (c == '\\') quoted += "\\\\\\";
    if (c == '%') quoted += '%';
    quoted += c;
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
  const std::string line = std::string(kTypeName) + "=" + kEntryName + "\n";
  std::size_t behindSection = std::string::npos;
  bool inSection = false;
  for (std::size_t start = 0; start < choices.size();) {
    const std::size_t end = std::min(choices.find('\n', start), choices.size());
    std::string_view words = std::string_view(choices).substr(start, end - start);
    if (words.ends_with('\r')) words.remove_suffix(1);
    words = Trim(words);
    start = std::min(end + 1, choices.size());
    if (words.starts_with('[')) inSection = words == kSection;
    if (words == kSection && behindSection == std::string::npos) behindSection = start;
    if (inSection && words.starts_with(std::string(kTypeName) + "=")) return choices;
  }
  const bool openLine = !choices.empty() && choices.back() != '\n';
  if (behindSection == std::string::npos)
    return choices + (openLine ? "\n" : "") + std::string(kSection) + "\n" + line;
  const bool sectionLast = behindSection == choices.size();
  return std::string(choices).insert(behindSection, (sectionLast && openLine ? "\n" : "") + line);
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
  Outcome outcome;
  WriteWhenOther(data / "mime/packages/quorbexcelfile.xml", TypeText(), outcome);
  WriteWhenOther(data / "applications" / kEntryName, EntryText(program), outcome);
  if (const auto chosen = Contents(choices)) WriteWhenOther(choices, WithDefault(*chosen), outcome);
  return outcome.written && !outcome.failed;
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
