#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

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
  std::filesystem::create_directories(directory, fault);
  return WriteFile(directory / "transfer.qbv", quorb::TransferFileText(quorb::FlyTransfer())) ? 0 : 1;
}
