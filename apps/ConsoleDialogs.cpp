#include "ConsoleDialogs.h"

#include <cstdlib>
#include <iostream>

namespace quorb {

BoxAnswer ConsoleDialogs::MessageBox(const std::string& prompt, const std::string& title, int style) {
  std::cerr << title << ": " << prompt << '\n';
  switch (style & 15) {
    case kBoxAbortRetryIgnore:
      return BoxAnswer::ignore;
    case kBoxYesNo:
    case kBoxYesNoCancel:
      return BoxAnswer::yes;
    default:
      return BoxAnswer::ok;
  }
}

std::string ConsoleDialogs::InputBox(const std::string& prompt, const std::string& title,
                                     const std::string&) {
  std::cerr << title << ": " << prompt << '\n';
  return {};
}

void ConsoleDialogs::EndProgram() {
  std::exit(1);
}

}  // namespace quorb
