#include "SystemFiles.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>

#include "Faults.h"
#include "StagedFile.h"
#include "UserDirectories.h"

namespace quorb {

namespace {

// The one mapping that the fault handler looks after: there is one data channel. The handler reads these from
// inside a signal, so they are plain and volatile.
volatile std::uintptr_t guardedStart = 0;
volatile std::uintptr_t guardedEnd = 0;
volatile std::sig_atomic_t guardedShrunk = 0;
struct sigaction formerAction = {};

// Puts zero pages in place of the part of the file that is gone, so that the read that failed goes on.
void ReplaceLostPages(int number, siginfo_t* info, void* context) {
  const auto address = reinterpret_cast<std::uintptr_t>(info->si_addr);
  if (address >= guardedStart && address < guardedEnd) {
    const auto pageSize = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t page = address / pageSize * pageSize;
    void* const replaced = mmap(reinterpret_cast<void*>(page), guardedEnd - page, PROT_READ,
                                MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0);
    if (replaced != MAP_FAILED) {
      guardedShrunk = 1;
      return;
    }
  }
  if ((formerAction.sa_flags & SA_SIGINFO) != 0 && formerAction.sa_sigaction != nullptr) {
    formerAction.sa_sigaction(number, info, context);
  } else if (formerAction.sa_handler != SIG_DFL && formerAction.sa_handler != SIG_IGN) {
    formerAction.sa_handler(number);
  } else {
    signal(number, SIG_DFL);
    raise(number);
  }
}

void InstallGuard() {
  static const bool installed = [] {
    struct sigaction action = {};
    action.sa_sigaction = ReplaceLostPages;
    action.sa_flags = SA_SIGINFO;
    sigemptyset(&action.sa_mask);
    return sigaction(SIGBUS, &action, &formerAction) == 0;
  }();
  static_cast<void>(installed);
}

class SystemMapping : public MappedFile {
 public:
  SystemMapping(int descriptor, void* start, std::size_t size)
      : descriptor_(descriptor), start_(start), size_(size) {
    guardedShrunk = 0;
    guardedStart = reinterpret_cast<std::uintptr_t>(start);
    guardedEnd = guardedStart + size;
  }
  SystemMapping(const SystemMapping&) = delete;
  SystemMapping& operator=(const SystemMapping&) = delete;
  ~SystemMapping() override {
    if (guardedStart == reinterpret_cast<std::uintptr_t>(start_)) {
      guardedStart = 0;
      guardedEnd = 0;
    }
    munmap(start_, size_);
    close(descriptor_);
  }

  std::string_view Bytes() const override { return {static_cast<const char*>(start_), size_}; }
  bool LostPart() const override { return guardedShrunk != 0; }
  bool Shrunk() const override {
    struct stat status = {};
    return LostPart() || fstat(descriptor_, &status) != 0 || static_cast<std::size_t>(status.st_size) < size_;
  }

 private:
  int descriptor_;
  void* start_;
  std::size_t size_;
};

class EmptyFile : public MappedFile {
 public:
  std::string_view Bytes() const override { return {}; }
  bool LostPart() const override { return false; }
  bool Shrunk() const override { return false; }
};

int FaultOfErrno(int error, const std::string& path) {
  switch (error) {
    case ENOENT: {
      std::error_code ignored;
      const auto directory = std::filesystem::path(path).parent_path();
      const bool hasDirectory = directory.empty() || std::filesystem::is_directory(directory, ignored);
      return hasDirectory ? kFaultFileNotFound : kFaultPathNotFound;
    }
    case ENOTDIR:
      return kFaultPathNotFound;
    case EACCES:
    case EPERM:
      return kFaultPermissionDenied;
    case ENAMETOOLONG:
      return kFaultBadFileName;
    default:
      return kFaultPathAccess;
  }
}

// A pipe must not hold the program up: it is opened without waiting, and later refused as no regular file.
int OpenForReading(const std::string& path) {
  return open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

// Paths with either directory mark are taken; `path` becomes the one that was tried last.
int OpenWithEitherMark(std::string& path) {
  const int descriptor = OpenForReading(path);
  if (descriptor >= 0 || errno != ENOENT || path.find('\\') == std::string::npos) return descriptor;
  std::replace(path.begin(), path.end(), '\\', '/');
  return OpenForReading(path);
}

// Takes the descriptor over when it gives a mapping, and only then.
std::unique_ptr<MappedFile> MapDescriptor(int descriptor, int& errorNumber) {
  struct stat status = {};
  errorNumber = kFaultPathAccess;
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return nullptr;
  const auto size = static_cast<std::size_t>(status.st_size);
  if (size == 0) {
    close(descriptor);
    errorNumber = kFaultNone;
    return std::make_unique<EmptyFile>();
  }
  void* const start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
  if (start == MAP_FAILED) return nullptr;
  madvise(start, size, MADV_SEQUENTIAL);
  errorNumber = kFaultNone;
  return std::make_unique<SystemMapping>(descriptor, start, size);
}

}  // namespace

std::unique_ptr<OutputFile> SystemFiles::Create(const std::string& path) {
  return CreateStagedFile(path);
}

std::string SystemFiles::RealLocation(const std::string& path) const {
  const std::filesystem::path whole = path;
  const std::string directory = whole.parent_path().string();
  const bool isReadOnly = access(directory.c_str(), W_OK) != 0 && (errno == EACCES || errno == EROFS);
  if (!isReadOnly) return path;
  const std::string redirected = CurrentUserDirectories().data + "/QuorbExcelPro/";
  std::error_code ignored;
  std::filesystem::create_directories(redirected, ignored);
  return redirected + whole.filename().string();
}

std::unique_ptr<MappedFile> SystemFiles::Map(const std::string& path, int& errorNumber) {
  InstallGuard();
  if (path.empty() || path.find('\0') != std::string::npos) {
    errorNumber = kFaultBadFileName;
    return nullptr;
  }
  std::string tried = path;
  const int descriptor = OpenWithEitherMark(tried);
  if (descriptor < 0) {
    errorNumber = FaultOfErrno(errno, tried);
    return nullptr;
  }
  auto mapping = MapDescriptor(descriptor, errorNumber);
  if (mapping == nullptr) close(descriptor);
  return mapping;
}

}  // namespace quorb
