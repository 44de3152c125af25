#include "StateConversion.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "StateFile.h"
#include "StateReaders.h"
#include "StateText.h"

namespace quorb {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kChunkBytes = 1 << 20;
constexpr int kTemporaryNames = 1000;

/// The whole of a file. The text says why it could not be read, and is empty when it could.
std::string ReadFile(const fs::path& path, std::string& text) {
  std::error_code fault;
  const fs::file_status status = fs::status(path, fault);
  if (!fs::exists(status)) return "the file is not there: check the name";
  if (fs::is_directory(status)) return "this is a directory: name a file";
  std::ifstream file(path, std::ios::binary);
  if (!file) return "the file cannot be opened: check its permissions";
  std::vector<char> chunk(kChunkBytes);
  while (file) {
    file.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
    text.append(chunk.data(), static_cast<std::size_t>(file.gcount()));
  }
  if (file.bad()) return "the file cannot be read to its end: check the disk";
  return {};
}

/// A name beside `path` that no file has; empty when a thousand of them are taken.
fs::path FreeNameBeside(const fs::path& path) {
  for (int number = 0; number < kTemporaryNames; ++number) {
    fs::path candidate = path;
    candidate += ".part" + std::to_string(number);
    std::error_code fault;
    if (!fs::exists(fs::symlink_status(candidate, fault))) return candidate;
  }
  return {};
}

/// Writes `text` beside `path` and renames it. The text says why that failed, and is empty when it did not.
std::string WriteWhole(const fs::path& path, const std::string& text) {
  const fs::path temporary = FreeNameBeside(path);
  if (temporary.empty()) return "files named .part stand in the way: delete them";
  std::ofstream file(temporary, std::ios::binary);
  if (!file) return "no file can be made in that directory: check that it is there and its permissions";
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  std::error_code fault;
  if (file.fail()) {
    fs::remove(temporary, fault);
    return "the file cannot be written whole: check the space on the disk";
  }
  fs::rename(temporary, path, fault);
  if (!fault) return {};
  const std::string reason = fault.message();
  fs::remove(temporary, fault);
  return "the file cannot take its name (" + reason + "): check the name and its permissions";
}

/// Why the output path cannot be written over, empty when it can.
std::string OutputFault(const StateConversion& conversion) {
  std::error_code fault;
  const fs::file_status status = fs::status(conversion.outputPath, fault);
  if (!fs::exists(status)) return {};
  if (fs::is_directory(status)) return "this is a directory: name a file";
  if (!fs::is_regular_file(status)) return "this is no plain file: name another one";
  if (fs::equivalent(conversion.inputPath, conversion.outputPath, fault)) {
    return "this is the input file: name another one";
  }
  return {};
}

void WarnOfCentre(const StateTable& table, std::vector<std::string>& warnings) {
  if (IsKnownCentre(table.centreName)) return;
  warnings.push_back("the viewer has no body for the centre " + QuotedForMessage(table.centreName) +
                     " and shows the Earth there");
}

}  // namespace

ConversionResult ConvertStates(const StateConversion& conversion) {
  ConversionResult result;
  const auto fail = [&result](const std::string& path, const std::string& what) {
    result.error = path + ": " + what;
    return result;
  };
  std::string input;
  const std::string readFault = ReadFile(conversion.inputPath, input);
  if (!readFault.empty()) return fail(conversion.inputPath, readFault);
  StateTable table;
  const ReadResult read = ReadStates(input, table);
  if (!read.Ok()) return fail(conversion.inputPath, read.error);
  const std::string outputFault = OutputFault(conversion);
  if (!outputFault.empty()) return fail(conversion.outputPath, outputFault);

  const fs::path inputPath(conversion.inputPath);
  StateFileOptions options;
  options.scale = conversion.scale;
  options.title =
      conversion.title ? *conversion.title : DerivedTitle(table, inputPath.stem().string(), result.warnings);
  options.sourceName = inputPath.filename().string();
  options.written = conversion.written;
  WarnOfTitleWords(options.title, result.warnings);
  WarnOfCentre(table, result.warnings);
  const std::string writeFault = WriteWhole(conversion.outputPath, StateFileText(table, options));
  if (!writeFault.empty()) return fail(conversion.outputPath, writeFault);
  return result;
}

}  // namespace quorb
