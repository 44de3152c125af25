#pragma once

#include <string>
#include <vector>

#include "SheetLink.h"

namespace quorb {

/// The clipboard's text, UTF-16. A clipboard that another program keeps open for a second, that holds no
/// text, or that was filled by another program than `user` fails with 521.
/// @param user process that used the clipboard; 0 when it is not known.
SheetFault ReadClipboardText(unsigned long user, std::wstring& text);

/// Takes everything from the clipboard; 521 as above.
SheetFault ClearClipboard();

/// Keeps what the user has on the clipboard while the clipboard is used, and puts it back. Text, a list of
/// files, a picture, and marked-up text are kept; what a program offers in forms of its own is lost, and so
/// is what is larger than 64 MiB.
class ClipboardKeeper {
 public:
  /// Takes a copy of what is there now; does nothing while one is kept. Fails with 521 when the clipboard
  /// cannot be read: it must not be used then.
  SheetFault Keep();
  /// Puts it back, once; where the clipboard is held open by another program, a later call does. It does
  /// nothing when the clipboard was not touched since, nor when another program than `user` and this one has
  /// filled it meanwhile: that is then what the user wants there.
  /// @param user process that used the clipboard; 0 when it is not known: then it is put back in any case.
  void PutBack(unsigned long user);

 private:
  struct Content {
    unsigned format;
    std::string bytes;
  };

  bool keeping_ = false;
  unsigned long stateKept_ = 0;  // The clipboard's count of changes when the copy was taken.
  std::vector<Content> contents_;
};

}  // namespace quorb
