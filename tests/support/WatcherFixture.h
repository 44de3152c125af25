#pragma once

#include "SheetFixture.h"
#include "SheetWatcher.h"

namespace quorb {

/// A running spreadsheet that is watched.
class WatcherFixture : public SheetFixture {
 protected:
  static constexpr const char* kPlain = "=1+LEN(\"kmday\")+MAX(A2:C4)";

  WatcherFixture() {
    USERFLAG.InteractiveExcel = 1.0;
    book_ = &AddPlotBook(kPlain);
    book_->SetText(5, 5, "five");
    book_->SetText(6, 6, "six");
  }

  /// A run whose watcher is calm, with the selected cell's text as its reference.
  void Settle() {
    LoadFromSheet();
    WatchSheet();
    ASSERT_EQ(FormulaArmed, 0);
    loadsBefore_ = LoadsStarted;
    sheet.calls.clear();
    dialogs.boxes.clear();
  }

  /// The loads of one poll.
  int Poll() {
    const int before = LoadsStarted;
    WatchSheet();
    return LoadsStarted - before;
  }

  MemoryBook* book_ = nullptr;
  int loadsBefore_ = 0;
};

}  // namespace quorb
