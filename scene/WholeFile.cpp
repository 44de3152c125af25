#include "WholeFile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace quorb {

namespace {

namespace fs = std::filesystem;

fs::path PathFromUtf8(const std::string& text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

/// A name beside the file that no other run takes.
fs::path PartName(const fs::path& path) {
  std::random_device random;
  fs::path part = path;
  part += "." + std::to_string(random()) + ".part";
  return part;
}

using Bytes = std::span<const std::uint8_t>;

void Write(std::ofstream& file, Bytes bytes) {
  if (file)
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

/// The outcome of writing the bytes under this name; 0 is success.
int WriteBytes(const fs::path& path, Bytes head, Bytes body) {
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  Write(file, head);
  Write(file, body);
  if (file) file.close();
  if (file) return 0;
  return errno != 0 ? errno : EIO;
}

bool Failed(const std::string& path, const std::string& reason, std::string& error) {
  error = "The file \"" + path + "\" cannot be written: " + reason + ".";
  return false;
}

}  // namespace

bool WriteWholeFile(const std::string& path, Bytes head, Bytes body, std::string& error) {
  const fs::path target = PathFromUtf8(path);
  std::error_code code;
  const fs::file_status status = fs::status(target, code);
  if (fs::is_directory(status)) return Failed(path, "it is a directory", error);

  const bool isSpecial = fs::exists(status) && !fs::is_regular_file(status);
  if (isSpecial) {
    const int failure = WriteBytes(target, head, body);
    return failure == 0 || Failed(path, std::generic_category().message(failure), error);
  }

  const fs::path part = PartName(target);
  if (const int failure = WriteBytes(part, head, body); failure != 0) {
    fs::remove(part, code);
    return Failed(path, std::generic_category().message(failure), error);
  }
  fs::rename(part, target, code);
  if (!code) return true;
  const std::string reason = code.message();
  fs::remove(part, code);
  return Failed(path, reason, error);
}

}  // namespace quorb
