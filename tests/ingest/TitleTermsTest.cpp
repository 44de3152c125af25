#include "TitleTerms.h"

#include "SheetFixture.h"
#include "UserCell.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class TitleTermsTest : public SheetFixture {
 protected:
  TitleTermsTest() {
    static_cast<void>(sheet.GetRunningObject());
    sheet.calls.clear();
    SetQuietWait([this](double seconds) { waits.push_back(seconds); });
  }
  ~TitleTermsTest() override { SetQuietWait({}); }

  /// The calls that write or select.
  std::vector<std::string> Writes() const {
    std::vector<std::string> writes;
    for (const std::string& call : sheet.calls) {
      if (call.rfind("SetActive", 0) == 0 || call.rfind("CellsSelect", 0) == 0) writes.push_back(call);
    }
    return writes;
  }

  /// The formula as the sheet expands it, when it stands in the selected cell.
  std::string Expanded(const std::string& formula) {
    MemoryBook& book = AddPlotBook(formula);
    session.workbook = book.id;
    session.cellFormula = formula;
    ExpandLenTerm(session);
    EXPECT_EQ((book.cells[{kFormulaRow, kFormulaColumn}].formula), formula);
    return session.cellFormula;
  }

  std::string Tail(const std::string& formula) {
    MemoryBook& book = AddPlotBook(formula);
    book.SetText(3, 2, "number 7");
    book.SetNumber(5, 28, 12.5);
    session.workbook = book.id;
    session.cellFormula = formula;
    return TitleCellText(session);
  }

  SheetSession session{sheet, window};
  std::vector<double> waits;
};

TEST_F(TitleTermsTest, TheSheetComputesATitle) {
  sheet.evaluations["=\"Orbit \" & B3"] = {"Orbit number 7", std::nullopt};
  EXPECT_EQ(Expanded("= 0.01 + LEN(\"Orbit \" & B3) + MAX(A2:C4) + MAX( D2:D4 )"),
            "= 0.01 + LEN(\"Orbit number 7\")+MAX(A2:C4)+MAX(D2:D4)");
  EXPECT_THAT(Writes(),
              ElementsAre("SetActiveCellFormula =\"Orbit \" & B3",
                          "SetActiveCellFormula = 0.01 + LEN(\"Orbit \" & B3) + MAX(A2:C4) + MAX( D2:D4 )"));
  EXPECT_EQ(session.ErrorNumber, 0);
}

TEST_F(TitleTermsTest, ALiteralTitleComesBackAsItIs) {
  EXPECT_EQ(Expanded("=LEN(\"My title kmday\")+MAX(A2:C4)"), "=LEN(\"My title kmday\")+MAX(A2:C4)");
}

TEST_F(TitleTermsTest, ANumberBecomesItsText) {
  sheet.evaluations["=B3*2"] = {"84", 84.0};
  EXPECT_EQ(Expanded("=LEN(B3*2)+MAX(A2:C4)"), "=LEN(\"84\")+MAX(A2:C4)");
}

TEST_F(TitleTermsTest, ATermWithACallInsideGoesToItsOwnPlus) {
  sheet.evaluations["=TEXT(B3;\"0\")&\"km\""] = {"7km", std::nullopt};
  EXPECT_EQ(Expanded("=LEN(TEXT(B3;\"0\")& \" km\") + MAX(A2:C4)"), "=LEN(\"7km\")+MAX(A2:C4)")
      << "blanks behind the first bracket go, also inside the argument";
}

TEST_F(TitleTermsTest, AFormulaWithoutTheTermStays) {
  EXPECT_EQ(Expanded("= MAX(A2:C4) + 1"), "= MAX(A2:C4) + 1");
  EXPECT_THAT(sheet.calls, IsEmpty());
}

TEST_F(TitleTermsTest, ATermWithNothingAddedBehindItStays) {
  EXPECT_EQ(Expanded("=MAX(A2:C4) + LEN(\"Title\")"), "=MAX(A2:C4) + LEN(\"Title\")");
  EXPECT_EQ(Expanded("=MAX(A2:C4)+LEN(\"Title\""), "=MAX(A2:C4)+LEN(\"Title\"");
  EXPECT_THAT(sheet.calls, IsEmpty());
}

TEST_F(TitleTermsTest, ALinkThatEvaluatesAsideWritesNothing) {
  sheet.evaluatesAside = true;
  sheet.evaluations["=\"Orbit \" & B3"] = {"Orbit 7", std::nullopt};
  EXPECT_EQ(Expanded("=LEN(\"Orbit \" & B3)+MAX(A2:C4)"), "=LEN(\"Orbit 7\")+MAX(A2:C4)");
  EXPECT_THAT(sheet.calls, ElementsAre("EvaluateAside =\"Orbit \" & B3"));
  EXPECT_FALSE(sheet.HasTraces());
}

TEST_F(TitleTermsTest, AWayAsideThatFailsIsNoLeaveToWrite) {
  sheet.evaluatesAside = true;
  for (const int number : {50290, 1004, -2147418111, 13}) {
    sheet.faults["EvaluateAside"] = FaultOf(number);
    EXPECT_EQ(Expanded(kFormula), kFormula);
    EXPECT_EQ(session.ErrorNumber, number);
    EXPECT_THAT(Writes(), IsEmpty());
  }
}

TEST_F(TitleTermsTest, DoubleQuotesInAComputedTitleBecomeSingleOnes) {
  sheet.evaluations["=\"Orbit \" & B3"] = {"Orbit \"seven\" kmday", std::nullopt};
  EXPECT_EQ(Expanded("=LEN(\"Orbit \" & B3)+MAX(A2:C4)"), "=LEN(\"Orbit 'seven' kmday\")+MAX(A2:C4)");
}

TEST_F(TitleTermsTest, TheFormulaGoesBackIntoItsCellThoughTheUserIsElsewhere) {
  AddPlotBook(kFormula);
  MemoryBook& book = sheet.books.front();
  book.SetText(3, 2, "theirs");
  session.workbook = book.id;
  session.cellFormula = kFormula;
  sheet.onCall = [&](const std::string& call, int) {
    if (call == "ActiveCellValue") book.Select(3, 2);
    return SheetFault();
  };
  ExpandLenTerm(session);
  EXPECT_EQ((book.cells[{kFormulaRow, kFormulaColumn}].formula), kFormula);
  EXPECT_EQ((book.cells[{3, 2}].formula), "theirs");
  EXPECT_EQ(book.activeRow, 3);
  EXPECT_EQ(session.cellFormula, kFormula) << "the value may be that of another cell";
  EXPECT_FALSE(session.borrowed);
}

TEST_F(TitleTermsTest, AnEntryOfTheUsersIsNotWrittenOver) {
  MemoryBook& book = AddPlotBook(kFormula);
  session.workbook = book.id;
  session.cellFormula = kFormula;
  sheet.onCall = [&](const std::string& call, int) {
    if (call == "ActiveCellValue") book.SetText(kFormulaRow, kFormulaColumn, "theirs");
    return SheetFault();
  };
  ExpandLenTerm(session);
  EXPECT_EQ((book.cells[{kFormulaRow, kFormulaColumn}].formula), "theirs");
}

TEST_F(TitleTermsTest, ACellThatHoldsAnotherFormulaByNowIsNotWrittenTo) {
  MemoryBook& book = AddPlotBook(kFormula);
  session.workbook = book.id;
  session.cellFormula = kFormula;
  book.Select(3, 2);
  ExpandLenTerm(session);
  EXPECT_EQ(session.cellFormula, kFormula);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(TitleTermsTest, OnAnotherSheetNothingIsWrittenAndTheUserIsShownTheFormula) {
  MemoryBook& book = AddPlotBook(kFormula);
  session.workbook = book.id;
  session.cellFormula = kFormula;
  sheet.onCall = [&](const std::string& call, int) {
    if (call == "ActiveCellValue") book.sheetName = "Sheet2";
    return SheetFault();
  };
  ExpandLenTerm(session);
  EXPECT_EQ(Writes().size(), 1U);
  EXPECT_EQ(waits, std::vector<double>(19, 0.1));
  EXPECT_THAT(window.pauses, IsEmpty()) << "no events between the tries";
  ASSERT_THAT(dialogs.boxes, SizeIs(1));
  EXPECT_EQ(
      dialogs.boxes[0].prompt,
      std::string("The spreadsheet did not take a formula back into its cell T1 on the sheet Sheet1. If "
                  "another one stands there now, please write:  ") +
          kFormula);
  EXPECT_EQ(dialogs.boxes[0].title, "Error");
}

TEST_F(TitleTermsTest, AProtectedSheetKeepsTheTitleAsItStands) {
  MemoryBook& book = AddPlotBook();
  book.isProtected = true;
  session.workbook = book.id;
  session.cellFormula = kFormula;
  ExpandLenTerm(session);
  EXPECT_EQ(session.cellFormula, kFormula);
  EXPECT_EQ(sheet.CallCount("SetActiveCellFormula"), 1);
  EXPECT_EQ(session.NoSheet, 1);
}

TEST_F(TitleTermsTest, TheFormulaIsWrittenBackThoughItsValueCouldNotBeRead) {
  sheet.faults["ActiveCellValue"] = FaultOf(kFaultBusy);
  EXPECT_EQ(Expanded(kFormula), kFormula);
}

TEST_F(TitleTermsTest, TheFormulaIsWrittenBackAgainAndAgainWhileTheSheetIsBusy) {
  for (const int number : {50290, -2147418111}) {
    waits.clear();
    int refusals = 5;
    sheet.onCall = [&](const std::string& call, int) {
      const bool isRefused = call == std::string("SetActiveCellFormula ") + kFormula && refusals-- > 0;
      return isRefused ? FaultOf(number) : SheetFault();
    };
    EXPECT_EQ(Expanded(kFormula), kFormula);
    EXPECT_EQ(waits, std::vector<double>(5, 0.1));
    EXPECT_THAT(window.pauses, IsEmpty());
    EXPECT_THAT(dialogs.boxes, IsEmpty());
  }
}

TEST_F(TitleTermsTest, AWriteThatIsRefusedForGoodIsToldToTheUser) {
  for (const auto& [number, tries] : {std::pair(50290, 20), std::pair(-2147023170, 3)}) {
    AddPlotBook();
    session.workbook = sheet.books.front().id;
    session.cellFormula = kFormula;
    sheet.calls.clear();
    dialogs.boxes.clear();
    waits.clear();
    sheet.keepsLostNumber = false;
    sheet.onCall = [fault = FaultOf(number)](const std::string& call, int) {
      return call == std::string("SetActiveCellFormula ") + kFormula ? fault : SheetFault();
    };
    ExpandLenTerm(session);
    EXPECT_EQ(waits.size(), static_cast<std::size_t>(tries - 1));
    EXPECT_EQ(sheet.CallCount("SetActiveCellFormula"), 1 + tries + 1) << "and once behind the box";
    EXPECT_THAT(dialogs.boxes, SizeIs(1));
    EXPECT_FALSE(session.borrowed);
  }
}

TEST_F(TitleTermsTest, ASelectedCellThatIsNoSpecificationIsNotWrittenTo) {
  MemoryBook& book = AddPlotBook("=1+LEN(\"kmday\")+MAX(A2:C4)");
  book.SetFormula(7, 7, "=LEN(B3)+1", 5);
  book.Select(7, 7);
  LoadFromSheet();
  EXPECT_EQ(sheet.CallCount("SetActiveCellFormula"), 2) << "for the specification alone";
  EXPECT_EQ(LastPoint, 2);
}

// ---- the cell in a concatenated title ---------------------------------------------------------------------

TEST_F(TitleTermsTest, TheCellBehindTheLiteralIsRead) {
  EXPECT_EQ(Tail("=NB(\"Orbit \"&$B$3)+MAX(A2:C4)"), "number 7");
  EXPECT_EQ(Tail("=NBCAR(\"Orbit \"&b3)+MAX(A2:C4)"), "number 7");
  EXPECT_EQ(Tail("=COUNT(\"Orbit \"& B3 )+MAX(A2:C4)"), "number 7");
  EXPECT_EQ(Tail("=LEN(\"Orbit \"&AB5)+MAX(A2:C4)"), "12.5");
}

TEST_F(TitleTermsTest, TheCellInFrontOfTheLiteralIsRead) {
  EXPECT_EQ(Tail("=NB(B$3&\" orbit\")+MAX(A2:C4)"), "number 7");
}

TEST_F(TitleTermsTest, ATailStandsBehindTheTitle) {
  MemoryBook& book = AddPlotBook("=2+NB(\"Orbit \"&B8)+MAX(A2:C4)");
  book.SetText(8, 2, "number 7");
  LoadFromSheet();
  EXPECT_EQ(WrittenFile().substr(0, 110).find("Orbit number 7") != std::string::npos, true);
}

TEST_F(TitleTermsTest, ATailIsOnThePlotAndItsKeywordsCount) {
  MemoryBook& book = AddPlotBook("=2+NB(\"Orbit \"&B8)+MAX(A2:C4)");
  book.SetText(8, 2, "number 7 kmday");
  LoadFromSheet();
  EXPECT_EQ(MessageUserToPlot, "Orbit number 7");
  EXPECT_EQ(dataXYZT[0][1], 42) << "kilometres: 21 x 2";
  const std::string file = files.contents[kLastFile];
  MessageUserToPlot.clear();
  Load(file);
  EXPECT_EQ(MessageUserToPlot, "Orbit number 7") << "also when the file is opened later";
}

TEST_F(TitleTermsTest, DoubleQuotesInATailAreSingleOnes) {
  MemoryBook& book = AddPlotBook("=2+NB(\"Disc \"&B8)+MAX(A2:C4)");
  book.SetText(8, 2, "7\" wide");
  LoadFromSheet();
  EXPECT_EQ(MessageUserToPlot, "Disc 7' wide");
}

TEST_F(TitleTermsTest, AHeaderThatGoesAnotherWayThanItsFormulaDoesNotCount) {
  const std::string row = "1\t2\t3\t\r\n";
  Load(Header("=2+LEN(\"Orbit\")+MAX(A2:C2)", "2", "Orbit and more") + row);
  EXPECT_EQ(MessageUserToPlot, "Orbit") << "nothing is joined in this formula";
  Load(Header("=2+LEN(\"R&D\")+MAX(A2:C2)", "2", "R&D and more kmday") + row);
  EXPECT_EQ(MessageUserToPlot, "R&D") << "nor in this one";
  Load(Header("=2+LEN(\"Orbit\"&B8)+MAX(A2:C2)", "2", "Another") + row);
  EXPECT_EQ(MessageUserToPlot, "Orbit");
  Load(Header("=2+LEN(\"Orbit\"&B8)+MAX(A2:C2)", "2", "Orbit") + row);
  EXPECT_EQ(MessageUserToPlot, "Orbit");
}

TEST_F(TitleTermsTest, WithoutAConcatenationThereIsNoTail) {
  EXPECT_EQ(Tail("=LEN(\"Orbit\")+MAX(A2:C4)"), "");
  EXPECT_EQ(Tail("=MAX(A2:C4)&B3"), "");
  EXPECT_EQ(Tail("=LEN(\"Tom & B3\")+MAX(A2:C4)"), "") << "inside the literal it joins nothing";
  EXPECT_EQ(Tail("=NB(\"Orbit \"&B3"), "");
  EXPECT_THAT(sheet.calls, IsEmpty());
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(TitleTermsTest, WhatIsNoCellIsToldAndGivesNoTail) {
  EXPECT_EQ(Tail("=LEN(\"Orbit \"&ABC5)+MAX(A2:C4)"), "");
  EXPECT_THAT(dialogs.boxes, SizeIs(1));
  EXPECT_EQ(dialogs.boxes[0].prompt, "Erreur Adresse, voir Tessel");
  EXPECT_THAT(sheet.calls, IsEmpty());
}

}  // namespace
}  // namespace quorb
