#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include "ExampleFiles.h"
#include "SystemRegion.h"
#include "TransferFile.h"

namespace {

/// Writes one file; false with a message when that fails.
bool WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  if (!file) std::cerr << "quorb-make-examples: " << path.string() << " cannot be written\n";
  return !file.fail();
}

/// The demonstration goes beside the programs, the small examples into a folder there.
bool WriteAll(const std::filesystem::path& directory) {
  const std::string demonstration = "QuorbExcelProDemo.qbv";
  bool written = WriteFile(directory / demonstration,
                           quorb::DataFileOf(quorb::TransferTable(quorb::FlyTransfer()), demonstration));
  for (const quorb::ExampleFile& example : quorb::ExampleFiles())
    written =
        WriteFile(directory / "examples" / example.name, quorb::DataFileOf(example.table(), example.name)) &&
        written;
  return written;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: quorb-make-examples OUTDIR\n";
    return 2;
  }
  quorb::SystemRegion region;
  quorb::SetRegionalSettings(&region);
  const std::filesystem::path directory = argv[1];
  std::error_code fault;
  std::filesystem::create_directories(directory / "examples", fault);
  return WriteAll(directory) ? 0 : 1;
}
