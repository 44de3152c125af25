#include "SheetReport.h"

#include "SheetFixture.h"
#include "SheetSession.h"

namespace quorb {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

using SheetReportTest = SheetFixture;

TEST_F(SheetReportTest, ASheetThatPlotsIsTold) {
  MemoryBook& book = AddPlotBook("=0.01+LEN(\"Orbit kmday\")+MAX(A2:C2)+MAX(D2)");
  book.Select(3, 2);
  const std::string before = sheet.UserState();
  const SheetReport report = ReportSheet(window);
  EXPECT_EQ(report.reason, "");
  EXPECT_THAT(report.text,
              StartsWith("Application\tMemory\nVersion\t16.0\nWorkbook\tBook1.xlsx\nWindow\tBook1.xlsx\n"
                         "Sheet\tSheet1\nSelectedCell\tB3\nSpecificationCell\tT1\n"
                         "Formula\t=0.01+LEN(\"Orbit kmday\")+MAX(A2:C2)+MAX(D2)\n"
                         "FactorScale\t0.01\nTitle\tOrbit kmday\nrangeXYZ\tA2:C4\n"));
  EXPECT_THAT(report.text, HasSubstr("rangeT.rows\t2-4\n"));
  EXPECT_THAT(report.text, HasSubstr("\nRows\t3\n"));
  EXPECT_EQ(sheet.UserState(), before);
  EXPECT_FALSE(sheet.isAttached);
  EXPECT_THAT(files.created, IsEmpty());
  EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 0);
}

TEST_F(SheetReportTest, TheDataFileIsWrittenWhereItIsWanted) {
  AddPlotBook();
  EXPECT_EQ(ReportSheet(window, "/out/plot.qbv").reason, "");
  files.contents[kLastFile] = files.contents["/out/plot.qbv"];
  EXPECT_EQ(WrittenFile(), FileOfPlotBook());
  EXPECT_EQ(files.created, std::vector<std::string>{"/out/plot.qbv"});
  EXPECT_FALSE(sheet.HasScratch());
}

TEST_F(SheetReportTest, ASelectedSpecificationIsItsOwnCell) {
  AddPlotBook();
  EXPECT_THAT(ReportSheet(window).text, HasSubstr("SelectedCell\tT1\nSpecificationCell\tT1\n"));
}

TEST_F(SheetReportTest, ACellThatOnlyTheApplicationFindsIsNamed) {
  AddPlotBook().Select(3, 2);
  sheet.faults["FindActivate"] = FaultOf(kFaultNoObject);
  const std::string before = sheet.UserState();
  EXPECT_THAT(ReportSheet(window).text, HasSubstr("SelectedCell\tB3\nSpecificationCell\tT1\n"));
  EXPECT_EQ(sheet.UserState(), before);
}

TEST_F(SheetReportTest, ACellThatIsNotKnownHasNoName) {
  AddPlotBook().Select(3, 2);
  sheet.faults["ActiveCellRow"] = {13, "Type mismatch"};
  const SheetReport report = ReportSheet(window);
  EXPECT_THAT(report.text, HasSubstr("SelectedCell\t\nSpecificationCell\t\n"));
  EXPECT_EQ(report.reason, "the spreadsheet cannot be read: Type mismatch (13)");
}

TEST_F(SheetReportTest, WhyASheetDoesNotPlotIsToldInOneLine) {
  sheet.isRunning = false;
  EXPECT_EQ(ReportSheet(window).reason, "no spreadsheet is running");
  sheet.isRunning = true;
  EXPECT_EQ(ReportSheet(window).reason, "the spreadsheet has no workbook open");
  sheet.faults["GetRunningObject"] = FaultOf(kFaultCallRejected);
  EXPECT_EQ(ReportSheet(window).reason,
            "the spreadsheet does not answer: Call was rejected by the application (-2147418111)");
  sheet.faults.clear();
  sheet.AddBook("Book1.xlsx", "Data").SetNumber(1, 1, 5);
  EXPECT_EQ(ReportSheet(window).reason, "no formula on the sheet \"Data\" holds the keyword MAX");
  AddPlotBook("=LEN(\"T\")+MAX(A2:B4)");
  EXPECT_EQ(ReportSheet(window).reason, "the range A2:B4 is too narrow to hold X, Y and Z");
  AddPlotBook("=LEN(\"T\")+MAX()");
  EXPECT_EQ(ReportSheet(window).reason, "the formula names no range that holds X, Y and Z");
  AddPlotBook();
  sheet.faults["ActiveCellFormula"] = FaultOf(kFaultBusy);
  EXPECT_EQ(ReportSheet(window).reason,
            "the spreadsheet is busy: a cell is being edited, or a dialog is open");
  sheet.faults.clear();
  sheet.faults["BlockText"] = FaultOf(kFaultApplication);
  EXPECT_EQ(
      ReportSheet(window, "/out/plot.qbv").reason,
      "the data file /out/plot.qbv was not written: The spreadsheet did not give the text of the table: " +
          FaultText(kFaultApplication));
  sheet.faults.clear();
  sheet.onCall = [](const std::string& call, int) {
    return call == "RangeCopy A2:C4" ? FaultOf(kFaultBusy) : SheetFault();
  };
  EXPECT_THAT(ReportSheet(window, "/out/plot.qbv").reason,
              HasSubstr("was not written: The table was not poured whole"));
  EXPECT_THAT(ReportSheet(window, "/out/plot.qbv").reason, EndsWith(FaultText(kFaultBusy)));
  sheet.onCall = nullptr;
  EXPECT_FALSE(sheet.isAttached);
  EXPECT_FALSE(SpreadsheetInUse());
}

}  // namespace
}  // namespace quorb
