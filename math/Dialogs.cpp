#include "Dialogs.h"

#include <cstdlib>

namespace quorb {
namespace {

class NoDialogs final : public Dialogs {
 public:
  BoxAnswer MessageBox(const std::string&, const std::string&, int) override { return BoxAnswer::none; }
  std::string InputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
  void PumpEvents() override {}
  void EndProgram() override { std::_Exit(0); }
};

NoDialogs noDialogs;
Dialogs* currentDialogs = &noDialogs;

}  // namespace

Dialogs& CurrentDialogs() {
  return *currentDialogs;
}

void SetDialogs(Dialogs* dialogs) {
  currentDialogs = dialogs != nullptr ? dialogs : &noDialogs;
}

}  // namespace quorb
