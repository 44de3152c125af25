#include "StagedFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <utility>

namespace quorb {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPartEnding = ".part";
constexpr std::size_t kBufferBytes = 1 << 20;
constexpr mode_t kModeBits = 0777;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

class StagedFile : public OutputFile {
 public:
  StagedFile(File file, std::string part, std::string path)
      : file_(std::move(file)), part_(std::move(part)), path_(std::move(path)) {}
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;
  ~StagedFile() override {
    file_.reset();
    if (!part_.empty()) std::remove(part_.c_str());
  }

  bool Write(std::string_view bytes) override {
    failed_ = failed_ || std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size();
    return !failed_;
  }

  bool Commit() override {
    if (file_ == nullptr) return false;
    const bool onDisk = std::fflush(file_.get()) == 0 && fsync(fileno(file_.get())) == 0;
    const bool closed = std::fclose(file_.release()) == 0;
    if (failed_ || !onDisk || !closed || std::rename(part_.c_str(), path_.c_str()) != 0) return false;
    part_.clear();
    return true;
  }

 private:
  File file_;
  std::string part_;  // Empty once it has its name.
  std::string path_;
  bool failed_ = false;
};

// Where a symbolic link leads to, also when nothing stands there yet.
fs::path BehindLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code ignored;
  for (int links = 0; links < kMostLinks && fs::is_symlink(path, ignored); ++links) {
    const fs::path target = fs::read_symlink(path, ignored);
    path = target.is_absolute() ? target : path.parent_path() / target;
  }
  return path;
}

// The process whose part of `name` this is; 0 for any other file.
pid_t OwnerOfPart(std::string_view entry, std::string_view name) {
  const bool isPart = entry.size() > name.size() + 1 + kPartEnding.size() && entry.starts_with(name) &&
                      entry[name.size()] == '.' && entry.ends_with(kPartEnding);
  if (!isPart) return 0;
  entry.remove_prefix(name.size() + 1);
  entry.remove_suffix(kPartEnding.size());
  pid_t owner = 0;
  const auto [end, error] = std::from_chars(entry.data(), entry.data() + entry.size(), owner);
  return error == std::errc() && end == entry.data() + entry.size() ? owner : 0;
}

void RemoveStaleParts(const fs::path& path) {
  std::error_code failed;
  const std::string name = path.filename().string();
  const fs::path directory = path.has_parent_path() ? path.parent_path() : fs::path(".");
  fs::directory_iterator entry(directory, failed);
  while (!failed && entry != fs::directory_iterator()) {
    const pid_t owner = OwnerOfPart(entry->path().filename().string(), name);
    const bool isStale = owner > 0 && kill(owner, 0) != 0 && errno == ESRCH;
    std::error_code ignored;
    if (isStale) fs::remove(entry->path(), ignored);
    entry.increment(failed);
  }
}

void TakeModeOf(const std::string& path, std::FILE* file) {
  struct stat status = {};
  if (stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  static_cast<void>(fchmod(fileno(file), status.st_mode & kModeBits));
}

}  // namespace

std::unique_ptr<OutputFile> CreateStagedFile(const std::string& path) {
  std::error_code ignored;
  const fs::path place = BehindLinks(path);
  fs::create_directories(place.parent_path(), ignored);
  RemoveStaleParts(place);
  const std::string part = place.string() + "." + std::to_string(getpid()) + std::string(kPartEnding);
  std::remove(part.c_str());
  File file(std::fopen(part.c_str(), "wbxe"));
  if (file == nullptr) return nullptr;
  TakeModeOf(place.string(), file.get());
  std::setvbuf(file.get(), nullptr, _IOFBF, kBufferBytes);
  return std::make_unique<StagedFile>(std::move(file), part, place.string());
}

}  // namespace quorb
