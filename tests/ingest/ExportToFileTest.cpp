#include "ExportToFile.h"

#include "SheetFixture.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ExportToFileTest : public SheetFixture {
 protected:
  static constexpr const char* kAllTerms =
      "=1+LEN(\"All kmday\")+MAX(A2:C3)+MAX(D2:D3)+MAX(E2:F3)+MAX(G2:K3)+MAX(L2:M3)+MAX(N2:O3)+MAX(P2:Q3)";

  /// A workbook with two rows of 17 columns, whose cell in row r and column c holds 100 r + c.
  MemoryBook& AddWideBook(const std::string& formula) {
    MemoryBook& book = sheet.AddBook("Wide.xlsx");
    for (int row = 2; row <= 3; ++row) {
      for (int column = 1; column <= 17; ++column)
        book.SetNumber(row, column, row * 100 + column);
    }
    book.SetFormula(kFormulaRow, kFormulaColumn, formula, 31);
    book.Select(kFormulaRow, kFormulaColumn);
    return book;
  }

  /// The calls from the first WorkbooksAdd on.
  std::vector<std::string> ExportCalls() const {
    return {std::find(sheet.calls.begin(), sheet.calls.end(), "WorkbooksAdd"), sheet.calls.end()};
  }

  /// What was pasted where, "A2:C3 > A2".
  std::vector<std::string> Pours() const {
    std::vector<std::string> pours;
    std::string copied;
    for (const std::string& call : sheet.calls) {
      if (call.rfind("RangeCopy ", 0) == 0) copied = call.substr(10);
      if (call.rfind("RangePasteSpecial ", 0) == 0) {
        pours.push_back(copied + " > " + call.substr(18, call.find(' ', 18) - 18));
      }
    }
    return pours;
  }

  /// The row of a source row, with these columns at their places and the others empty.
  static std::string RowOf(int row, const std::vector<int>& columns) {
    std::vector<std::string> fields;
    for (const int column : columns)
      fields.push_back(column == 0 ? "" : Cell(row * 100 + column));
    return WrittenRow(fields);
  }
};

TEST_F(ExportToFileTest, TheStepsOfOneRangeComeInTheToldOrder) {
  AddPlotBook("=MAX(A2:C4)");
  LoadFromSheet();
  std::vector<std::string> calls = ExportCalls();
  ASSERT_GT(calls.size(), 4U);
  EXPECT_EQ(calls[4].substr(0, 20), "SetActiveCell From: ");
  calls[4] = "SetActiveCell";
  std::vector<std::string> expected = {
      "WorkbooksAdd",    "WorkbookWindowsCount",    "WindowCaption 1",
      "RangeSelect A1",  "SetActiveCell",           "WorkbooksActivate Book1.xlsx",
      "RangeCopy A2:C4", "WorkbooksActivate Book2", "RangePasteSpecial A2 -4163",
      "EndCutCopyMode"};
  for (const char* columns : {"A:R", "D:E", "G:G", "L:L", "N:N", "P:P"}) {
    expected.insert(expected.end(), {std::string("ColumnsSelect ") + columns, "SelectionColumnWidth 20",
                                     "SelectionNumberFormat 0.0000000000", "EndCutCopyMode"});
  }
  expected.insert(expected.end(), {"ActiveSheetName", "BlockText A1:Q4", "ActiveWindowClose False False"});
  EXPECT_EQ(calls, expected);
  EXPECT_EQ(window.pauses, std::vector<double>{0.01});
  EXPECT_EQ(dialogs.pumps, 1);
}

TEST_F(ExportToFileTest, LaterPastesGetAllArguments) {
  AddWideBook("=MAX(A2:C3)+MAX(D2:D3)");
  LoadFromSheet();
  EXPECT_THAT(sheet.calls, testing::Contains("RangePasteSpecial D2 -4163 -4142 False False"));
}

TEST_F(ExportToFileTest, TheSevenTermsStandSideBySide) {
  AddWideBook(kAllTerms);
  LoadFromSheet();
  EXPECT_THAT(Pours(), ElementsAre("A2:C3 > A2", "D2:D3 > D2", "E2:F3 > E2", "G2:K3 > G2", "L2:M3 > L2",
                                   "N2:O3 > N2", "P2:Q3 > P2"));
  const std::vector<int> all = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};
  EXPECT_EQ(WrittenFile(), WrittenHeader(kAllTerms, "1.0000000000", "All kmday", "Wide.xlsx\tSheet1") +
                               RowOf(2, all) + RowOf(3, all));
  EXPECT_THAT(std::vector<double>(window.progress.begin(), window.progress.begin() + 8),
              ElementsAre(10, 15, 20, 25, 27, 28, 30, 32));
}

TEST_F(ExportToFileTest, TermsWithoutTimesGetThoseOfTheSecondTerm) {
  AddWideBook(
      "=1+LEN(\"T kmday\")+MAX(A2:C3)+MAX(D2:D3)+MAX(F2:F3)+MAX(H2:K3)+MAX(M2:M3)+MAX(O2:O3)+MAX(Q2:Q3)");
  LoadFromSheet();
  EXPECT_THAT(Pours(), ElementsAre("A2:C3 > A2", "D2:D3 > D2", "D2:D3 > E2", "F2:F3 > F2", "D2:D3 > G2",
                                   "H2:K3 > H2", "D2:D3 > L2", "M2:M3 > M2", "D2:D3 > N2", "O2:O3 > O2",
                                   "D2:D3 > P2", "Q2:Q3 > Q2"));
  const std::string file = WrittenFile();
  EXPECT_THAT(std::vector<double>(window.progress.begin(), window.progress.begin() + 8),
              ElementsAre(10, 15, 20, 25, 27, 28, 30, 32));
  const std::vector<int> row = {1, 2, 3, 4, 4, 6, 4, 8, 9, 10, 11, 4, 13, 4, 15, 4, 17};
  EXPECT_EQ(file.substr(file.find("\r\n") + 2), RowOf(2, row) + RowOf(3, row));
}

TEST_F(ExportToFileTest, OneWideRangeGivesAllTerms) {
  AddWideBook("=MAX(A2:O3)");
  LoadFromSheet();
  EXPECT_THAT(Pours(), ElementsAre("A2:C3 > A2", "D2:D3 > D2", "E2:F3 > E2", "G2:K3 > G2", "L2:M3 > L2",
                                   "N2:O3 > N2"));
}

TEST_F(ExportToFileTest, AQuaternionTermWithoutAnEventTermHasNoPlace) {
  AddWideBook("=1+LEN(\"T kmday\")+MAX(A2:C3)+MAX(D2:D3)+MAX()+MAX(G2:K3)");
  LoadFromSheet();
  EXPECT_THAT(Pours(), ElementsAre("A2:C3 > A2", "D2:D3 > D2", "G2:K3 > "));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  const std::string file = WrittenFile();
  EXPECT_EQ(file.substr(file.find("\r\n") + 2), RowOf(2, {1, 2, 3, 4}) + RowOf(3, {1, 2, 3, 4}));
}

TEST_F(ExportToFileTest, TablesMayStandAnywhereAndHaveTheirOwnHeights) {
  MemoryBook& book = AddPlotBook("=1+LEN(\"kmday\")+MAX(A2:C4)+MAX(G7:G7)");
  book.SetNumber(7, 7, 5);
  LoadFromSheet();
  const std::string file = WrittenFile();
  EXPECT_EQ(file.substr(file.find("\r\n") + 2),
            WrittenRow({Cell(21), Cell(22), Cell(23), Cell(5)}) + WrittenRow({Cell(31), Cell(32), Cell(33)}) +
                WrittenRow({Cell(41), Cell(42), Cell(43)}) + WrittenRow({}) + WrittenRow({}) + WrittenRow({}))
      << "the block goes down to the largest last row of any range in the source";
}

TEST_F(ExportToFileTest, EventLettersLabelsAndHolesStandAsTheyAre) {
  MemoryBook& book = AddWideBook("=1+LEN(\"kmday\")+MAX(A2:C3)+MAX(D2:D3)+MAX(E2:F3)");
  book.SetText(2, 6, "S");
  book.SetText(3, 6, "burn\tno 1\nlate");
  book.cells.erase({3, 1});
  LoadFromSheet();
  const std::string file = WrittenFile();
  EXPECT_EQ(file.substr(file.find("\r\n") + 2),
            WrittenRow({Cell(201), Cell(202), Cell(203), Cell(204), Cell(205), "S"}) +
                WrittenRow({"", Cell(302), Cell(303), Cell(304), Cell(305), "burn no 1 late"}));
  EXPECT_EQ(dataXYZT[1][4], -1);
  EXPECT_EQ(LastPoint, 1);
}

TEST_F(ExportToFileTest, AFormulaOnSeveralLinesMakesAHeaderOfOneLine) {
  AddPlotBook("=1+LEN(\"Orbit kmday\")\n+MAX(A2:C4)\r\n+MAX(\tD2:D4)");
  LoadFromSheet();
  EXPECT_EQ(
      WrittenFile().substr(0, WrittenFile().find("\r\n") + 2),
      WrittenHeader("=1+LEN(\"Orbit kmday\") +MAX(A2:C4)  +MAX( D2:D4)", "1.0000000000", "Orbit kmday"));
  EXPECT_EQ(LastPoint, 2);
}

// ---- the file ---------------------------------------------------------------------------------------------

TEST_F(ExportToFileTest, TheFileStandsAtItsRealLocation) {
  files.realLocations[kLastFile] = "/home/user/_QuorbExcelPro.qbv";
  AddPlotBook();
  LoadFromSheet();
  EXPECT_THAT(files.created, ElementsAre("/home/user/_QuorbExcelPro.qbv"));
  EXPECT_EQ(LastPoint, 2);
}

TEST_F(ExportToFileTest, ANameWithAWildcardStopsTheProgramBeforeAnythingIsDeleted) {
  for (const char* directory : {"/a*p/", "/ap?/"}) {
    AddPlotBook();
    AppDir = directory;
    const int before = dialogs.ended;
    LoadFromSheet();
    EXPECT_EQ(dialogs.ended, before + 1);
    EXPECT_THAT(files.created, IsEmpty());
    EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 0);
  }
}

TEST_F(ExportToFileTest, AFileThatCannotBeWrittenLeavesTheOldOne) {
  AddPlotBook();
  PutLastFile();
  const std::string before = WrittenFile();
  for (bool* const fails : {&files.createFails, &files.writeFails, &files.commitFails}) {
    *fails = true;
    window.log.clear();
    LoadFromSheet();
    *fails = false;
    EXPECT_EQ(WrittenFile(), before);
    EXPECT_FALSE(sheet.HasScratch());
    EXPECT_EQ(LastPoint, 0);
    const std::string why = fails == &files.writeFails ? " to its end: the disk may be full" : "";
    EXPECT_TRUE(window.HasLog("/app/_QuorbExcelPro.qbv cannot be written" + why));
  }
  EXPECT_EQ(files.abandoned, 2);
}

TEST_F(ExportToFileTest, ATextThatCannotBeHadLeavesTheOldFile) {
  AddPlotBook();
  PutLastFile();
  const std::string before = WrittenFile();
  for (const int number : {1004, 50290, 91, 521, -2147418111, -2147417848}) {
    sheet.faults["BlockText"] = {number, "refused"};
    LoadFromSheet();
    EXPECT_EQ(WrittenFile(), before) << number;
    EXPECT_FALSE(sheet.HasScratch()) << number;
  }
}

TEST_F(ExportToFileTest, ABusySheetWhilePouringLeavesTheOldFileAndClosesTheScratchWorkbook) {
  AddPlotBook();
  PutLastFile();
  const std::string before = WrittenFile();
  sheet.faults["RangePasteSpecial"] = FaultOf(kFaultBusy);
  LoadFromSheet();
  EXPECT_EQ(WrittenFile(), before);
  EXPECT_EQ(sheet.CallCount("BlockText"), 0);
  EXPECT_EQ(sheet.CallCount("ActiveWindowClose"), 1);
}

TEST_F(ExportToFileTest, ABusySheetAtTheNewWorkbookEndsTheExport) {
  AddPlotBook();
  PutLastFile();
  const std::string before = WrittenFile();
  for (const char* operation : {"WorkbooksAdd", "WindowCaption"}) {
    sheet.calls.clear();
    sheet.faults.clear();
    sheet.faults[operation] = FaultOf(kFaultBusy);
    if (std::string(operation) == "WorkbooksAdd") sheet.faults["WindowCaption"] = FaultOf(kFaultBusy);
    LoadFromSheet();
    EXPECT_EQ(WrittenFile(), before) << operation;
    EXPECT_EQ(sheet.CallCount("RangeSelect"), 0) << operation;
    EXPECT_FALSE(sheet.HasScratch()) << operation << ": the release closes it";
  }
}

TEST_F(ExportToFileTest, ARangeThatTheSheetRefusesLeavesItsColumnsEmpty) {
  AddWideBook("=1+LEN(\"kmday\")+MAX(A2:C3)+MAX(D2:D3)+MAX(E2:F3)");
  sheet.onCall = [](const std::string& call, int) {
    return call == "RangeCopy D2:D3" ? FaultOf(kFaultApplication) : SheetFault();
  };
  LoadFromSheet();
  const std::string file = WrittenFile();
  EXPECT_EQ(file.substr(file.find("\r\n") + 2), RowOf(2, {1, 2, 3, 0, 5, 6}) + RowOf(3, {1, 2, 3, 0, 5, 6}));
}

TEST_F(ExportToFileTest, ARefusedNewWorkbookEndsTheExport) {
  AddPlotBook("=MAX(A2:C9)", "Other.xlsx");
  AddPlotBook();
  PutLastFile();
  const std::string before = sheet.UserState();
  const std::string fileBefore = WrittenFile();
  for (const int number : {1004, 50290, -2147418111, 9, -2147417848}) {
    sheet.calls.clear();
    sheet.faults["WorkbooksAdd"] = FaultOf(number);
    LoadFromSheet();
    EXPECT_EQ(sheet.UserState(), before) << number;
    EXPECT_EQ(WrittenFile(), fileBefore) << number;
    EXPECT_EQ(ExportCalls(), std::vector<std::string>{"WorkbooksAdd"}) << number;
  }
}

TEST_F(ExportToFileTest, AMomentOfBusinessLeavesTheOldFile) {
  for (const int number : {50290, -2147418111}) {
    for (const char* call : {"RangeCopy A2:C4", "RangePasteSpecial A2 -4163", "RangeSelect A1",
                             "EndCutCopyMode", "ColumnsSelect L:L", "BlockText A1:Q4"}) {
      sheet.books.clear();
      AddPlotBook();
      PutLastFile();
      const std::string before = WrittenFile();
      bool isBusy = true;
      sheet.onCall = [&](const std::string& name, int) {
        return name == call && std::exchange(isBusy, name != call) ? FaultOf(number) : SheetFault();
      };
      LoadFromSheet();
      EXPECT_FALSE(isBusy) << call;
      EXPECT_EQ(WrittenFile(), before) << number << " at " << call;
      EXPECT_FALSE(sheet.HasScratch());
    }
  }
}

TEST_F(ExportToFileTest, ASourceThatGotAnotherNameLeavesTheOldFile) {
  AddPlotBook();
  PutLastFile();
  const std::string before = WrittenFile();
  sheet.onCall = [this](const std::string& call, int) {
    for (MemoryBook& book : sheet.books) {
      if (call == "RangeSelect A1" && !book.isScratch) book.caption = "Saved as.xlsx";
    }
    return SheetFault();
  };
  LoadFromSheet();
  EXPECT_EQ(WrittenFile(), before);
  EXPECT_EQ(sheet.CallCount("RangeCopy"), 0);
}

TEST_F(ExportToFileTest, ARangeThatCouldNotBeCopiedIsNotTheOneBefore) {
  AddWideBook("=1+LEN(\"kmday\")+MAX(A2:C3)+MAX(D2:D3)+MAX(E2:F3)");
  int refusedAt = -1;
  sheet.onCall = [&](const std::string& call, int index) {
    if (call == "RangePasteSpecial D2 -4163 -4142 False False") refusedAt = index + 1;
    return call == "RangeCopy E2:F3" || index == refusedAt ? FaultOf(kFaultApplication) : SheetFault();
  };
  LoadFromSheet();
  const std::string file = WrittenFile();
  EXPECT_EQ(file.substr(file.find("\r\n") + 2), RowOf(2, {1, 2, 3, 4}) + RowOf(3, {1, 2, 3, 4}));
}

TEST_F(ExportToFileTest, RowsThatCannotBeReadAreToldToTheLog) {
  AddPlotBook("=1+LEN(\"kmday\")+MAX($A$2:$C$4)");
  PutLastFile();
  const std::string before = WrittenFile();
  LoadFromSheet();
  EXPECT_EQ(WrittenFile(), before);
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 0);
  EXPECT_TRUE(window.HasLog("The range $A$2:$C$4 names no rows that can be read, nothing is taken"));
}

/// A link that names the windows of a workbook one by one, against its duty.
class TwoWindows : public MemorySpreadsheet {
 public:
  SheetFault WorkbookWindowsCount(Workbook workbook, int& count) override {
    const SheetFault fault = MemorySpreadsheet::WorkbookWindowsCount(workbook, count);
    if (fault.Good()) count = 2;
    return fault;
  }
  SheetFault WorkbookWindowCaption(Workbook, int index, std::string& caption) override {
    caption = "Book1.xlsx:" + std::to_string(index);
    return {};
  }
  SheetFault WindowCaption(int index, std::string& caption) override {
    caption = index == 1 ? scratchCaption : index == 2 ? "Book1.xlsx:2" : "Book1.xlsx:1";
    return {};
  }
};

TEST_F(ExportToFileTest, AnEndlessSearchForTheScratchWorkbookEndsWithRunDemo) {
  TwoWindows two;
  two.AddBook("Book1.xlsx").SetFormula(1, 1, kFormula, 31);
  PutLastFile();
  const std::string before = WrittenFile();
  window.SetTag(LoaderControl::Command6, "demo");  // a press of long ago
  window.onPause = [this] {
    EXPECT_TRUE(window.controls[LoaderControl::Command6].visible);
    if (window.pauses.size() == 5) window.SetTag(LoaderControl::Command6, "demo");
  };
  LoadFromSheet();
  SetSheetLink(&sheet);
  EXPECT_EQ(two.CallCount("WorkbooksAdd"), 5);
  EXPECT_FALSE(two.HasScratch());
  EXPECT_FALSE(window.controls[LoaderControl::Command6].visible);
  EXPECT_EQ(WrittenFile(), before);
}

TEST_F(ExportToFileTest, AnotherLoadEndsThatSearchToo) {
  AddPlotBook();
  sheet.emptyAdds = 500;
  window.onPause = [this] {
    window.onPause = nullptr;
    LoadRows("1\t2\t3\r\n");
  };
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 1);
  EXPECT_EQ(LoadsStarted, 2);
  EXPECT_THAT(Point(0), ElementsAre(0, 1, 2, 3, 0));
}

TEST_F(ExportToFileTest, AWorkbookThatTheUserBringsForwardMeanwhileStaysOpen) {
  AddPlotBook();
  MemoryBook& other = sheet.AddBook("Other.xlsx");
  static_cast<void>(other);
  sheet.books.splice(sheet.books.end(), sheet.books, sheet.books.begin());
  window.onPause = [this] {
    for (auto book = sheet.books.begin(); book != sheet.books.end(); ++book) {
      if (book->caption == "Other.xlsx") return sheet.books.splice(sheet.books.begin(), sheet.books, book);
    }
  };
  LoadFromSheet();
  EXPECT_EQ(sheet.books.size(), 2U);
  EXPECT_FALSE(sheet.HasScratch());
}

}  // namespace
}  // namespace quorb
