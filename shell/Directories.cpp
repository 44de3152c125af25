#include "Directories.h"

namespace quorb {

namespace {

class NoDirectories : public Directories {
 public:
  std::string Start() const override { return {}; }
  std::vector<std::string> Drives() const override { return {}; }
  bool Read(const std::string&, DirectoryContents&) const override { return false; }
  bool Describe(const std::string&, FileDescription&) const override { return false; }
};

NoDirectories noDirectories;
Directories* currentDirectories = &noDirectories;

}  // namespace

Directories& CurrentDirectories() {
  return *currentDirectories;
}

void SetDirectories(Directories* directories) {
  currentDirectories = directories != nullptr ? directories : &noDirectories;
}

}  // namespace quorb
