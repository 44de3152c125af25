#include "SpreadsheetSession.h"

#include "SheetFixture.h"
#include "SheetSession.h"
#include "SpecificationHistory.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SpreadsheetSessionTest : public SheetFixture {
 protected:
  int HistoryEntries(const std::string& formula) const {
    int count = 0;
    for (int i = 0; i < kHistoryEntries; ++i)
      count += settings.Read("Use", HistoryKey(i), "") == formula ? 1 : 0;
    return count;
  }
};

TEST_F(SpreadsheetSessionTest, APlotComesFromTheSheetThroughTheDataFile) {
  AddPlotBook();
  LoadFromSheet();
  EXPECT_EQ(WrittenFile(), FileOfPlotBook());
  EXPECT_EQ(LastPoint, 2);
  EXPECT_NEAR(dataXYZT[2][1], 0.41, 1e-15);
  EXPECT_NEAR(dataXYZT[2][3], 0.43, 1e-15);
  EXPECT_EQ(MessageUserToPlot, "Orbit");
  EXPECT_EQ(FactorScale, 0.01);
  EXPECT_EQ(LastFormula, kFormula);
  EXPECT_EQ(ExcelLinked, 1);
  EXPECT_EQ(LoadBusy, 0);
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SpreadsheetSessionTest, NothingOfTheUsersChanges) {
  AddPlotBook("=MAX(A2:C4)", "Other.xlsx");
  MemoryBook& book = AddPlotBook();
  book.Select(3, 2);
  const std::string before = sheet.UserState();
  LoadFromSheet();
  EXPECT_EQ(sheet.UserState(), before);
  EXPECT_FALSE(sheet.HasScratch());
  EXPECT_FALSE(sheet.isAttached);
}

TEST_F(SpreadsheetSessionTest, TheApplicationIsReleasedBeforeTheFileIsOpened) {
  AddPlotBook();
  LoadFromSheet();
  EXPECT_EQ(sheet.releases, 1);
}

TEST_F(SpreadsheetSessionTest, ANamedFileLeavesTheSpreadsheetAlone) {
  AddPlotBook();
  LoadRows("1\t2\t3\r\n");
  EXPECT_THAT(sheet.calls, IsEmpty());
  EXPECT_EQ(ExcelLinked, 0);
}

TEST_F(SpreadsheetSessionTest, TheDemonstrationAndTheNamedFileAgainLeaveTheSpreadsheetAlone) {
  AddPlotBook();
  for (const int mode : {1, 2}) {
    FileMode = mode;
    LoadPlot();
  }
  EXPECT_THAT(sheet.calls, IsEmpty());
}

// ---- workbooks and specifications -------------------------------------------------------------------------

TEST_F(SpreadsheetSessionTest, ASpreadsheetWithoutAWorkbookReadsTheOldFileWithoutAPrompt) {
  PutLastFile();
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("FindActivate"), 1);
  EXPECT_EQ(sheet.CallCount("ApplicationFindActivate"), 1);
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 0);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_THAT(window.pauses, IsEmpty());
  EXPECT_EQ(window.Tag(LoaderControl::Command6), "demo");
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
}

TEST_F(SpreadsheetSessionTest, RunDemoWithoutASpecificationTellsTheUserAndReadsTheOldFile) {
  MemoryBook& book = sheet.AddBook("Book1.xlsx");
  book.SetNumber(1, 1, 5);
  PutLastFile();
  window.onPause = [this] { window.SetTag(LoaderControl::Command6, "demo"); };
  LoadFromSheet();
  ASSERT_THAT(dialogs.boxes, SizeIs(1));
  EXPECT_EQ(
      dialogs.boxes[0].prompt,
      "Warning: an Excel sheet may already be open without a correct specification for QuorbExcelPro:   "
      "    . You should open only the one with a correct specification or you can write or use a previous "
      "specification in the scolling textbox");
  EXPECT_EQ(dialogs.boxes[0].title, "Information");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxInformationIcon);
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
  EXPECT_EQ(HistoryEntries(""), kHistoryEntries);
}

TEST_F(SpreadsheetSessionTest, AFormulaIsKeptInTheHistory) {
  AddPlotBook();
  LoadFromSheet();
  EXPECT_EQ(settings.Read("Use", HistoryKey(0), ""), kFormula);
}

TEST_F(SpreadsheetSessionTest, AFormulaWhoseFirstRangeIsEmptyReadsTheOldFile) {
  AddPlotBook("=LEN(\"T\")+MAX()");
  PutLastFile();
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 0);
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
  EXPECT_EQ(LastFormula, "=LEN(\"T\")+MAX()");
  EXPECT_EQ(HistoryEntries("=LEN(\"T\")+MAX()"), 1) << "it is kept though it does not hold";
}

TEST_F(SpreadsheetSessionTest, QuaternionsOfThePlotBeforeAreGoneWhenNoFileCanBeRead) {
  NbQuater = 5;
  LoadFromSheet();
  EXPECT_EQ(WrittenFile(), "none");
  EXPECT_EQ(NbQuater, 0);
}

TEST_F(SpreadsheetSessionTest, AKeywordOfTheUsersOwnIsLookedFor) {
  window.keyword = " MAXIMUM ";
  AddPlotBook("=1+LEN(\"Orbit kmday\")+MAXIMUM(A2:C4)");
  LoadFromSheet();
  EXPECT_EQ(LastPoint, 2);
  EXPECT_EQ(MainKeyword, "MAXIMUM");
}

TEST_F(SpreadsheetSessionTest, ARangeTooNarrowEndsTheLoadAsItStands) {
  AddPlotBook("=MAX(A2:B4)");
  PutLastFile();
  LoadFromSheet();
  ASSERT_THAT(dialogs.boxes, SizeIs(1));
  EXPECT_EQ(
      dialogs.boxes[0].prompt,
      "Warning: an Excel sheet is already open without a correct specification for QuorbExcelPro:    "
      "=MAX(A2:B4)   . You should open only the one with a correct specification or you can write or use a "
      "previous specification in the scolling textbox");
  EXPECT_EQ(dialogs.boxes[0].title, "Information");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxInformationIcon);
  EXPECT_EQ(LoadBusy, 1);
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 0.0);
  EXPECT_TRUE(window.progressVisible);
  EXPECT_FALSE(sheet.isAttached);
  EXPECT_FALSE(SpreadsheetInUse());
}

TEST_F(SpreadsheetSessionTest, TheEndOfTheDataIsLookedUpInTheSheet) {
  MemoryBook& book = AddPlotBook("=1+LEN(\"Orbit kmday\")+MAX(A2:C2)+MAX(D2)");
  for (int row = 2; row <= 4; ++row)
    book.SetNumber(row, 4, row);
  LoadFromSheet();
  EXPECT_EQ(WrittenFile(),
            WrittenHeader("=1+LEN(\"Orbit kmday\")+MAX(A2:C4)+MAX(D2)", "1.0000000000", "Orbit kmday") +
                WrittenRow({Cell(21), Cell(22), Cell(23), Cell(2)}) +
                WrittenRow({Cell(31), Cell(32), Cell(33), Cell(3)}) +
                WrittenRow({Cell(41), Cell(42), Cell(43), Cell(4)}));
}

TEST_F(SpreadsheetSessionTest, AnOldSpreadsheetIsSearchedToRow65536) {
  sheet.version = "11.0";
  MemoryBook& book = AddPlotBook("=MAX(A2:C2)");
  for (int row = 2; row <= 70000; row += 1)
    book.SetNumber(row, 3, 1);
  int deepest = 0;
  sheet.onCall = [&](const std::string& call, int) {
    if (call.rfind("CellsValue ", 0) == 0) deepest = std::max(deepest, std::stoi(call.substr(11)));
    return SheetFault();
  };
  LoadFromSheet();
  EXPECT_LE(deepest, 65536);
  EXPECT_GT(deepest, 65000);
}

// ---- the scratch workbook that was not made ---------------------------------------------------------------

TEST_F(SpreadsheetSessionTest, AScratchWorkbookThatWasNotMadeIsTriedAgain) {
  AddPlotBook();
  sheet.emptyAdds = 3;
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 4);
  EXPECT_EQ(sheet.CallCount("SetActiveCell"), 1);
  EXPECT_EQ(WrittenFile(), FileOfPlotBook());
  EXPECT_EQ(HistoryEntries(kFormula), 1);
}

TEST_F(SpreadsheetSessionTest, ThoseRetriesHaveNoLimitAndLetEventsThrough) {
  AddPlotBook();
  sheet.emptyAdds = 500;
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 501);
  EXPECT_EQ(std::count(window.pauses.begin(), window.pauses.end(), 0.1), 500);
  EXPECT_EQ(LastPoint, 2);
}

TEST_F(SpreadsheetSessionTest, ThoseRetriesEndWhenTheSpreadsheetGoes) {
  AddPlotBook();
  PutLastFile();
  sheet.emptyAdds = 500;
  window.onPause = [this] { sheet.Vanish(); };
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
}

// ---- loads inside loads -----------------------------------------------------------------------------------

TEST_F(SpreadsheetSessionTest, NoOtherLoadBeginsWhileTheSheetIsPoured) {
  AddPlotBook();
  dialogs.onPump = [] { LoadPlot(); };
  window.onPause = [] { LoadPlot(); };
  LoadFromSheet();
  EXPECT_EQ(LoadsStarted, 1);
  EXPECT_EQ(WrittenFile(), FileOfPlotBook());
}

TEST_F(SpreadsheetSessionTest, AFileOpenedWhileASpecificationIsWaitedForIsShown) {
  sheet.AddBook("Book1.xlsx");
  window.onPause = [this] {
    window.onPause = nullptr;
    LoadRows("1\t2\t3\r\n");
  };
  LoadFromSheet();
  EXPECT_EQ(LoadsStarted, 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 1, 2, 3, 0));
  EXPECT_EQ(LoadBusy, 0);
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
  EXPECT_THAT(files.asked, ElementsAre(kName));
  EXPECT_FALSE(window.controls[LoaderControl::Command6].visible);
}

TEST_F(SpreadsheetSessionTest, AnUpdateWhileASpecificationIsWaitedForReadsTheSheetAgain) {
  MemoryBook& book = sheet.AddBook("Book1.xlsx");
  window.onPause = [&] {
    window.onPause = nullptr;
    book.SetNumber(2, 1, 1);
    book.SetNumber(2, 2, 2);
    book.SetNumber(2, 3, 3);
    book.SetFormula(9, 9, "=1+LEN(\"kmday\")+MAX(A2:C2)+MAX(D2:D2)", 3);
    LoadFromSheet();
  };
  LoadFromSheet();
  EXPECT_EQ(LoadsStarted, 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 1, 2, 3, 0));
  EXPECT_EQ(LoadBusy, 0);
  EXPECT_FALSE(SpreadsheetInUse());
}

// ---- a range of one row -----------------------------------------------------------------------------------

TEST_F(SpreadsheetSessionTest, ARangeWhoseSearchedEndIsItsStartIsStrange) {
  MemoryBook& book = AddPlotBook("=2+LEN(\"kmday\")+MAX(A2:C2)");
  for (int column = 1; column <= 3; ++column) {
    book.cells.erase({3, column});
    book.cells.erase({4, column});
  }
  LoadFromSheet();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].prompt, "Strange <num1 = num2 And SpecFound = 1> , see Lamdor");
  EXPECT_EQ(LastPoint, 0);
  EXPECT_EQ(dataXYZT[0][1], 42) << "the point is there: 21 x 2";
}

TEST_F(SpreadsheetSessionTest, ARangeOfOneRowInAFileIsNotStrange) {
  Load(Header("=2+LEN(\"kmday\")+MAX(A4:C4)") + "41\t42\t43\t\r\n");
  EXPECT_THAT(dialogs.boxes, testing::IsEmpty());
}

TEST_F(SpreadsheetSessionTest, ARangeWhoseSearchedEndIsFurtherDownIsNotStrange) {
  AddPlotBook("=2+LEN(\"kmday\")+MAX(A2:C2)");
  LoadFromSheet();
  EXPECT_THAT(dialogs.boxes, testing::IsEmpty());
  EXPECT_EQ(LastPoint, 2);
}

}  // namespace
}  // namespace quorb
