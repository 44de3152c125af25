#include "SheetFixture.h"
#include "SheetSession.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using SpreadsheetFailureTest = SheetFixture;

// ---- attaching --------------------------------------------------------------------------------------------

TEST_F(SpreadsheetFailureTest, NoSpreadsheetAndCancelReadsTheOldFile) {
  sheet.isRunning = false;
  PutLastFile();
  dialogs.answers = {BoxAnswer::cancel};
  LoadFromSheet();
  ASSERT_THAT(dialogs.boxes, SizeIs(1));
  EXPECT_EQ(dialogs.boxes[0].prompt,
            "You can open your Excel speadsheet NOW, and after click on OK.  \r\n"
            "Else, click on Cancel to show, if exist, the previous plot, or the original demo.");
  EXPECT_EQ(dialogs.boxes[0].title, "Excel not running!");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxOkCancel);
  EXPECT_EQ(sheet.CallCount("GetRunningObject"), 1);
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
  EXPECT_EQ(LastAnswer, BoxAnswer::cancel);
  EXPECT_EQ(ExcelLinked, 1);
  EXPECT_EQ(window.Tag(LoaderControl::Command6), "demo");
  EXPECT_EQ(window.textTempo, "");
}

TEST_F(SpreadsheetFailureTest, NoSpreadsheetAndOkTriesOnceMoreOnly) {
  sheet.isRunning = false;
  PutLastFile();
  dialogs.answers = {BoxAnswer::ok};
  LoadFromSheet();
  EXPECT_THAT(BoxTitles(), ElementsAre("Excel not running!"));
  EXPECT_EQ(sheet.CallCount("GetRunningObject"), 2);
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
}

TEST_F(SpreadsheetFailureTest, ASpreadsheetOpenedDuringTheQuestionIsUsed) {
  AddPlotBook();
  sheet.isRunning = false;
  sheet.onCall = [this](const std::string& call, int index) {
    sheet.isRunning = call == "GetRunningObject" ? index > 0 : true;
    return SheetFault();
  };
  LoadFromSheet();
  EXPECT_THAT(BoxTitles(), ElementsAre("Excel not running!"));
  EXPECT_EQ(WrittenFile(), FileOfPlotBook());
}

TEST_F(SpreadsheetFailureTest, TheProgressBarIsHiddenDuringTheQuestion) {
  class Watching : public ScriptedDialogs {
   public:
    explicit Watching(const FakeLoaderWindow& watched) : window_(watched) {}
    BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override {
      seen.push_back(window_.progressVisible);
      return ScriptedDialogs::MessageBox(prompt, title, style);
    }
    std::vector<bool> seen;

   private:
    const FakeLoaderWindow& window_;
  } watching(window);
  sheet.isRunning = false;
  PutLastFile();
  std::vector<bool> later;
  window.onCall = [&](const std::string& call) {
    if (call == "Form_Resize") later.push_back(window.progressVisible);
  };
  LoadFromSheet();
  EXPECT_THAT(watching.seen, ElementsAre(false));
  EXPECT_THAT(later, ElementsAre(true));
}

TEST_F(SpreadsheetFailureTest, AnyFailureOfAttachingAsksTheQuestion) {
  PutLastFile();
  AddPlotBook();
  for (const int number : {5, 52, 70, 91, 424, 1004, 50290, -2147418111, -2147417848, -2147023170}) {
    dialogs.boxes.clear();
    MaybeExtError = 0;
    sheet.faults["GetRunningObject"] = FaultOf(number);
    LoadFromSheet();
    EXPECT_THAT(BoxTitles(), ElementsAre("Excel not running!")) << number;
    EXPECT_EQ(MaybeExtError, 0) << number;
    EXPECT_EQ(LastPoint, 0) << number;
  }
}

TEST_F(SpreadsheetFailureTest, AMissingFileOnTheWayToTheSpreadsheetMendsTheEndingOfANamedFile) {
  sheet.faults["GetRunningObject"] = FaultOf(kFaultFileNotFound);
  PutLastFile();
  LoadFromSheet();
  EXPECT_EQ(MaybeExtError, 1);
  files.contents["/data/plot.qbv"] = Header("=MAX(A2:C9)") + "1\t2\t3\r\n";
  window.log.clear();
  LoadNamed("/data/plot.txt");
  EXPECT_EQ(FILEcOMMANDnAME, "/data/plot.qbv");
  EXPECT_TRUE(window.HasLog("MaybeExtError = 1  FILEcOMMANDnAME$ /data/plot.qbv"));
  EXPECT_THAT(Point(0), ElementsAre(0, 0.001, 0.002, 0.003, 0));
}

TEST_F(SpreadsheetFailureTest, AMissingFileAtTheSecondTryIsNoSpreadsheetAndNoMore) {
  PutLastFile();
  dialogs.answers = {BoxAnswer::ok};
  int tries = 0;
  sheet.onCall = [&](const std::string& call, int) {
    if (call != "GetRunningObject") return SheetFault();
    return FaultOf(++tries == 1 ? kFaultNoApplication : kFaultFileNotFound);
  };
  LoadFromSheet();
  EXPECT_EQ(tries, 2);
  EXPECT_EQ(MaybeExtError, 0);
}

TEST_F(SpreadsheetFailureTest, AnOrdinaryMissingFileGetsNoSecondTry) {
  files.contents["/data/plot.qbv"] = Header("=MAX(A2:C9)") + "1\t2\t3\r\n";
  LoadNamed("/data/plot.txt");
  EXPECT_EQ(FILEcOMMANDnAME, "/data/plot.txt");
  EXPECT_EQ(LastLoad().ErrorNumber, 53);
}

// ---- failures on the way ----------------------------------------------------------------------------------

TEST_F(SpreadsheetFailureTest, ACellInEditModeLeavesTheOldFileAndThePlot) {
  AddPlotBook();
  PutLastFile();
  const std::string before = WrittenFile();
  bool isBusy = true;
  sheet.onCall = [&](const std::string& call, int) {
    return isBusy && call != "GetRunningObject" ? FaultOf(kFaultBusy) : SheetFault();
  };
  LoadFromSheet();
  EXPECT_EQ(WrittenFile(), before);
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_THAT(window.pauses, IsEmpty());
  EXPECT_EQ(LoadBusy, 0);
}

TEST_F(SpreadsheetFailureTest, AMomentOfBusinessInTheSearchForTheEndCutsNoPlot) {
  MemoryBook& book = AddPlotBook("=1+LEN(\"kmday\")+MAX(A2:C2)");
  for (int row = 2; row <= 1234; ++row)
    book.SetNumber(row, 3, row);
  LoadFromSheet();
  EXPECT_EQ(LastPoint, 1232);
  const int looks = sheet.CallCount("CellsValue");
  ASSERT_GT(looks, 10);
  for (const int number : {50290, -2147418111, -2147417848}) {
    for (int look = 0; look < looks; ++look) {
      PutLastFile();
      const std::string before = WrittenFile();
      int seen = 0;
      sheet.onCall = [&](const std::string& call, int) {
        const bool isIt = call.rfind("CellsValue", 0) == 0 && seen++ == look;
        return isIt ? FaultOf(number) : SheetFault();
      };
      LoadFromSheet();
      EXPECT_EQ(WrittenFile(), before) << number << " at " << look;
      EXPECT_EQ(sheet.CallCount("WorkbooksAdd"), 1) << "the first load's";
    }
  }
}

TEST_F(SpreadsheetFailureTest, FailuresOfTheTableAreSilent) {
  AddPlotBook();
  PutLastFile();
  for (const int number : {53, 52, 5, 448, 75, 70, 50290, 91, 1004}) {
    sheet.faults["Version"] = {number, "the Clipboard is named here"};
    LoadFromSheet();
    EXPECT_THAT(dialogs.boxes, IsEmpty()) << number;
    EXPECT_EQ(WrittenFile(), FileOfPlotBook()) << number;
  }
}

TEST_F(SpreadsheetFailureTest, OtherFailuresAreShownWhenTheyNameTheClipboard) {
  AddPlotBook();
  PutLastFile();
  int calls = 0;
  sheet.onCall = [&](const std::string& call, int) {
    const bool isLater = call == "EndCutCopyMode" && ++calls > 1;
    return isLater ? SheetFault{521, "Can't open clipBOARD"} : SheetFault();
  };
  LoadFromSheet();
  EXPECT_THAT(dialogs.boxes, SizeIs(6));
  EXPECT_EQ(dialogs.boxes[0].prompt, "Can't open clipBOARD");
  EXPECT_EQ(dialogs.boxes[0].title, "Error");
  EXPECT_EQ(WrittenFile(), FileOfPlotBook());
}

TEST_F(SpreadsheetFailureTest, OtherFailuresAreSilentElsewhere) {
  AddPlotBook();
  sheet.faults["Version"] = {13, "Type mismatch"};
  LoadFromSheet();
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_EQ(WrittenFile(), FileOfPlotBook());
}

TEST_F(SpreadsheetFailureTest, ARefusalMeansThatNoWorkbookCanBeReached) {
  SheetSession session(sheet, window);
  EXPECT_TRUE(session.Done({}));
  EXPECT_FALSE(session.Done(FaultOf(50290)));
  EXPECT_EQ(session.ErrorNumber, 50290);
  EXPECT_EQ(session.NoSheet, 0);
  EXPECT_FALSE(session.Done(FaultOf(1004)));
  EXPECT_EQ(session.ErrorNumber, 1004);
  EXPECT_EQ(session.NoSheet, 1);
  EXPECT_TRUE(session.Done({}));
  EXPECT_EQ(session.ErrorNumber, 1004) << "the last failure is kept";
}

TEST_F(SpreadsheetFailureTest, WithoutALinkTheLoadGoesOnFromTheFile) {
  SetSheetLink(nullptr);
  PutLastFile();
  LoadFromSheet();
  EXPECT_THAT(BoxTitles(), ElementsAre("Excel not running!"));
  EXPECT_THAT(Point(0), ElementsAre(0, 14, 16, 18, 0));
}

}  // namespace
}  // namespace quorb
