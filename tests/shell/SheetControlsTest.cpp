#include "SheetControls.h"

#include <utility>

#include "LoaderLink.h"
#include "MemorySpreadsheet.h"
#include "SheetSession.h"
#include "SpecificationHistory.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

class SheetControlsTest : public WindowFixture {
 protected:
  SheetControlsTest() { Load(); }
};

TEST_F(SheetControlsTest, TheListHoldsTheEntriesThatAreNotEmpty) {
  settings.entries[{"Use", HistoryKey(0)}] = "=MAX(A2:C9)";
  settings.entries[{"Use", HistoryKey(3)}] = "=MAX(A2:C3)";
  settings.entries[{"Use", HistoryKey(20)}] = "=MAX(A2:C20)";
  frmMain->ProgressBar1.Width = 3000;
  frmMain->Combo1.Width = 390;
  Combo1_GotFocusRoutine();
  EXPECT_THAT(frmMain->Combo1.items.Get(), ElementsAre("=MAX(A2:C9)", "=MAX(A2:C3)", "=MAX(A2:C20)"));
  EXPECT_EQ(frmMain->Combo1.Width, 3000);
  int count = 0;
  Combo1_InitList(count);
  EXPECT_EQ(count, 3);
}

TEST_F(SheetControlsTest, EnterTakesTheTextAsTheSpecification) {
  frmMain->Combo1.text = "=MAX(A2:C9)";
  Combo1_KeyDown('A');
  EXPECT_EQ(SpecTyped, 0);
  Combo1_KeyDown(13);
  EXPECT_EQ(SpecTyped, 1);
  EXPECT_EQ(SpecTypedText, "=MAX(A2:C9)");
}

TEST_F(SheetControlsTest, TheKeysOfTheViewGoToThePlot) {
  int focused = 0;
  frmMain->GlPlace.takeFocus = [&] { ++focused; };
  for (const int key : {33, 34, 37, 38, 39, 40, 13, 32, 36})
    Combo1_KeyDown(key);
  EXPECT_EQ(focused, 6);
}

TEST_F(SheetControlsTest, RunDemoIsATag) {
  frmMain->Command6.clicked();
  EXPECT_EQ(frmMain->Command6.Tag, "demo");
}

TEST_F(SheetControlsTest, AnUpdateLoadsFromTheSpreadsheetInPlaceOfTheNamedFile) {
  MemorySpreadsheet sheet;
  sheet.AddBook("Book1.xlsx");
  FirstActivated = 1;
  CommandFileMode = 1;
  frmMain->Text14.visible = true;
  frmMain->Check1[7].value = 1;
  USERFLAG.InteractiveExcel = 1.0;
  frmMain->Command6.Tag = "demo";  // of long ago: the prompt comes all the same
  dialogs.onPump = [] {
    if (frmMain->Command6.visible) frmMain->Command6.clicked();
  };
  frmMain->mnuUpdateExcel.clicked();
  EXPECT_EQ(sheet.CallCount("GetRunningObject"), 1);
  EXPECT_EQ(CommandFileMode, 0);
  EXPECT_FALSE(frmMain->Text14.visible);
  EXPECT_EQ(frmMain->Check1[7].value, 0);
  EXPECT_FALSE(frmMain->mnuOptions.enabled);
  EXPECT_FALSE(frmMain->mnuOinteractive.enabled);
  EXPECT_EQ(USERFLAG.UpdateAsked, 0.0);
  EXPECT_EQ(frmMain->Command6.Tag, "") << "an activation follows";
  EXPECT_EQ(LoadsStarted, 1);
}

TEST_F(SheetControlsTest, AnUpdateWhileTheFirstLoadWaitsIsTheOnlyOtherLoad) {
  MemorySpreadsheet sheet;
  sheet.AddBook("Book1.xlsx").SetNumber(1, 1, 5);
  CommandFileMode = 0;
  FirstActivated = 0;
  bool isPressed = false;
  dialogs.onPump = [&] {
    if (!frmMain->Command6.visible) return;
    if (!std::exchange(isPressed, true)) {
      frmMain->mnuUpdateExcel.clicked();
    } else {
      frmMain->Command6.clicked();
    }
  };
  Form_Activate();
  EXPECT_EQ(LoadsStarted, 2);
  EXPECT_EQ(FirstActivated, 1);
  EXPECT_EQ(LoadBusy, 0);
}

TEST_F(SheetControlsTest, AnUpdateWhileTheSheetIsReadChangesNothing) {
  MemorySpreadsheet sheet;
  CommandFileMode = 1;
  frmMain->Check1[7].value = 1;
  SetSpreadsheetInUse(true);
  frmMain->mnuUpdateExcel.clicked();
  SetSpreadsheetInUse(false);
  EXPECT_THAT(sheet.calls, testing::IsEmpty());
  EXPECT_EQ(CommandFileMode, 1);
  EXPECT_EQ(frmMain->Check1[7].value, 1);
  EXPECT_TRUE(frmMain->mnuOptions.enabled);
  EXPECT_EQ(USERFLAG.UpdateAsked, 0.0);
  EXPECT_NE(frmMain->Text20.text.Get().find("Update was not begun a second time"), std::string::npos);
}

TEST_F(SheetControlsTest, TheLoaderReachesThePromptsControls) {
  LoaderWindow& link = LoaderLinkOfWindow();
  link.SetTextTempo("Please");
  link.Show(LoaderControl::TextTempo, true);
  link.Show(LoaderControl::Command6, true);
  EXPECT_EQ(frmMain->TextTempo.text.Get(), "Please");
  EXPECT_TRUE(frmMain->TextTempo.visible);
  EXPECT_TRUE(frmMain->Command6.visible);
  link.SetTag(LoaderControl::Command6, "demo");
  EXPECT_EQ(frmMain->Command6.Tag, "demo");
  EXPECT_EQ(link.Tag(LoaderControl::Command6), "demo");
  int focused = 0;
  frmMain->Combo1.takeFocus = [&] { ++focused; };
  link.SetFocus(LoaderControl::Combo1);
  link.SetFocus(LoaderControl::Command6);
  EXPECT_EQ(focused, 1);
  const int before = dialogs.pumps;
  link.Pause(0.05);
  EXPECT_GE(dialogs.pumps, before + 2);
}

}  // namespace
}  // namespace quorb
