#include "Desktop.h"

namespace quorb {

namespace {

class NoDesktop : public Desktop {
 public:
  int Year() const override { return 0; }
  std::string ProgramDirectory() const override { return {}; }
  std::string DataDirectory() const override { return {}; }
  void RegisterFileType() override {}
  char DirectoryMark() const override { return '/'; }
};

NoDesktop noDesktop;
Desktop* currentDesktop = &noDesktop;

}  // namespace

Desktop& CurrentDesktop() {
  return *currentDesktop;
}

void SetDesktop(Desktop* desktop) {
  currentDesktop = desktop != nullptr ? desktop : &noDesktop;
}

}  // namespace quorb
