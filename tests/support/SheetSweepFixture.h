#pragma once

#include <functional>
#include <string>

#include "SheetFixture.h"
#include "SheetSession.h"
#include "UserCell.h"

namespace quorb {

/// Loads through the spreadsheet of which every call is visited in turn.
class SheetSweepFixture : public SheetFixture {
 protected:
  SheetSweepFixture() {
    SetQuietWait([](double) {});
  }
  ~SheetSweepFixture() override { SetQuietWait({}); }

  static constexpr const char* kComputed = "=1+LEN(\"Orbit \"&B3)+MAX(A2:C2)+MAX(D2:D2)+MAX(E2:F2)";

  /// A fresh run: the specification stands elsewhere than the selection, its title is computed, and the end
  /// of the data is looked up.
  void StartAnew() {
    StartRunState();
    AppDir = "/app/";
    sheet.books.clear();
    sheet.calls.clear();
    sheet.faults.clear();
    sheet.onCall = nullptr;
    sheet.isRunning = true;
    sheet.isVisible = true;
    sheet.evaluations.clear();
    sheet.evaluations["=\"Orbit \"&B3"] = {"Orbit 7 kmday", std::nullopt};
    dialogs.boxes.clear();
    dialogs.otherwise = BoxAnswer::cancel;
    window.controls.clear();
    window.textTempo.clear();
    window.onPause = nullptr;
    SpecTypedText.clear();
    sheet.keepsLostNumber = true;
    sheet.evaluatesAside = false;
    AddPlotBook("=MAX(A2:C9)", "Other.xlsx").Select(2, 2);
    MemoryBook& book = AddPlotBook(kComputed);
    for (int row = 2; row <= 4; ++row) {
      for (int column = 4; column <= 6; ++column)
        book.SetNumber(row, column, row * 10 + column);
    }
    book.Select(3, 2);
    book.selection = "A3:C4";
    PutLastFile();
  }

  void ExpectLeftInOrder(const std::string& what) {
    EXPECT_FALSE(sheet.HasScratch()) << what;
    EXPECT_FALSE(sheet.isAttached) << what;
    EXPECT_FALSE(SpreadsheetInUse()) << what;
    EXPECT_EQ(LoadBusy, 0) << what;
    EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0) << what;
    EXPECT_FALSE(window.progressVisible) << what;
    EXPECT_FALSE(window.controls[LoaderControl::Command6].visible) << what;
    EXPECT_EQ(window.textTempo, "") << what << ": nobody is asked";
    EXPECT_EQ(CurrentSheetSession(), nullptr) << what;
  }

  int CallsOfALoad() {
    StartAnew();
    LoadFromSheet();
    return static_cast<int>(sheet.calls.size());
  }

  /// The file of a load during which these calls fail.
  std::string FileBehind(const std::function<bool(const std::string& call)>& fails) {
    StartAnew();
    sheet.onCall = [=](const std::string& call, int) {
      return fails(call) ? FaultOf(kFaultApplication) : SheetFault();
    };
    LoadFromSheet();
    return WrittenFile();
  }
};

}  // namespace quorb
