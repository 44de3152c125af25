#include "CellRange.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "PrintRange.h"
#include "ScriptedDialogs.h"

namespace quorb {
namespace {

constexpr RangeNumbers kKept = {7, 8, 9, 10};
const std::string kOtherForm =
    "High Entry not compatible with the requirements Excel form for the range of cells: should be like "
    "A10:C200 ";

class CellRangeTest : public testing::Test {
 protected:
  /// The numbers of a text that is expected to pass without a message.
  RangeNumbers Read(const std::string& text) {
    RangeNumbers numbers = kKept;
    EXPECT_TRUE(ConvertA1LC(text, numbers)) << text;
    EXPECT_TRUE(dialogs.boxes.empty()) << text;
    return numbers;
  }

  /// The numbers of a text that is expected to be told as one in another form.
  RangeNumbers ReadOtherForm(const std::string& text) {
    RangeNumbers numbers = kKept;
    EXPECT_TRUE(ConvertA1LC(text, numbers)) << text;
    EXPECT_TRUE(OneBox(kOtherForm, "Error entry", kBoxStopIcon)) << text;
    dialogs.boxes.clear();
    return numbers;
  }

  void ExpectKept(const std::string& text) {
    RangeNumbers numbers = kKept;
    EXPECT_FALSE(ConvertA1LC(text, numbers)) << text;
    EXPECT_EQ(numbers, kKept) << text;
  }

  bool OneBox(const std::string& prompt, const std::string& title, int style) const {
    if (dialogs.boxes.size() != 1) return false;
    const ScriptedDialogs::Box& box = dialogs.boxes[0];
    EXPECT_EQ(box.prompt, prompt);
    return box.prompt == prompt && box.title == title && box.style == style;
  }

  ScriptedDialogs dialogs;
};

// ---- ConvertA1LC ------------------------------------------------------------------------------------------

TEST_F(CellRangeTest, ReadsTwoCells) {
  EXPECT_EQ(Read("A2:C2000"), (RangeNumbers{1, 3, 2, 2000}));
  EXPECT_EQ(Read("aa10:ab20"), (RangeNumbers{27, 28, 10, 20}));
  EXPECT_EQ(Read("Z1:IV1048576"), (RangeNumbers{26, 256, 1, 1048576}));
}

TEST_F(CellRangeTest, ReadsOneCellWithNoLastRowAndColumn) {
  EXPECT_EQ(Read("D2"), (RangeNumbers{4, 0, 2, 0}));
  EXPECT_EQ(Read("ba7"), (RangeNumbers{53, 0, 7, 0}));
}

TEST_F(CellRangeTest, BlanksDoNotCount) {
  EXPECT_EQ(Read("  a 2 : c 2 0  "), (RangeNumbers{1, 3, 2, 20}));
}

TEST_F(CellRangeTest, AnEmptyTextKeepsTheNumbers) {
  ExpectKept("");
  ExpectKept("   ");
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CellRangeTest, ATextThatIsNoRangeIsToldWithItsCharacters) {
  ExpectKept(" a : c ");
  EXPECT_TRUE(OneBox(
      "Entry seems not compatible with the req. Excel for the range of cells: should be like A10:C200. Here  "
      "a : c and A:C In asciiW 655867",
      "Error entry", kBoxStopIcon));
}

TEST_F(CellRangeTest, CharactersOutsideAsciiAreToldByTheirCodes) {
  ExpectKept("É€");
  EXPECT_TRUE(OneBox(
      "Entry seems not compatible with the req. Excel for the range of cells: should be like A10:C200. Here  "
      "É€ and É€ In asciiW 2018364",
      "Error entry", kBoxStopIcon));
}

TEST_F(CellRangeTest, WhatIsNoRangeKeepsTheNumbers) {
  const std::array<const char*, 9> texts = {"A", "12",     "A2:",      "A2:C",  "2A",
                                            ":", "A2:C2:", "$A:$C$$$", "R[-x]C"};
  for (const char* text : texts) {
    dialogs.boxes.clear();
    ExpectKept(text);
    EXPECT_EQ(dialogs.boxes.size(), 1U) << text;
  }
}

TEST_F(CellRangeTest, AFormThatASpreadsheetWouldNotWriteIsToldAndItsNumbersStay) {
  EXPECT_EQ(ReadOtherForm("A02:C20"), (RangeNumbers{1, 3, 2, 20}));
  EXPECT_EQ(ReadOtherForm("A2:C020"), (RangeNumbers{1, 3, 2, 20}));
  EXPECT_EQ(ReadOtherForm("A2:C3x"), (RangeNumbers{1, 3, 2, 0}));
}

// The row of a cell begins behind its second letter: "A2" is no number.
TEST_F(CellRangeTest, ThreeLettersAreTakenAsTwo) {
  EXPECT_EQ(ReadOtherForm("AAA2"), (RangeNumbers{27, 0, 0, 0}));
  EXPECT_EQ(ReadOtherForm("A2:ABC9"), (RangeNumbers{1, 28, 2, 0}));
}

TEST_F(CellRangeTest, ARowThatIsNoNumberIsZero) {
  EXPECT_EQ(ReadOtherForm("A2.5"), (RangeNumbers{1, 0, 0, 0}));
  EXPECT_EQ(ReadOtherForm("A-5"), (RangeNumbers{1, 0, 0, 0}));
  EXPECT_EQ(ReadOtherForm("A:2"), (RangeNumbers{1, 0, 0, 0}));
  EXPECT_EQ(ReadOtherForm("A2:C3:D4"), (RangeNumbers{1, 4, 0, 4}));
  EXPECT_EQ(ReadOtherForm("A2:C:3"), (RangeNumbers{1, -13, 0, 0}));
}

TEST_F(CellRangeTest, RowZeroIsARow) {
  EXPECT_EQ(Read("A0:C0"), (RangeNumbers{1, 3, 0, 0}));
}

TEST_F(CellRangeTest, ARowOfMoreThanNineDigitsIsNoNumber) {
  EXPECT_EQ(Read("A1:C999999999"), (RangeNumbers{1, 3, 1, 999999999}));
  EXPECT_EQ(ReadOtherForm("A1:C1000000000"), (RangeNumbers{1, 3, 1, 0}));
  EXPECT_EQ(ReadOtherForm("A1:C99999999999999999999"), (RangeNumbers{1, 3, 1, 0}));
}

// "$" has the code 36: as a first letter it makes (36 - 64) x 26 + 1, which no cell has.
TEST_F(CellRangeTest, DollarSignsMakeTheNumbersUselessWithoutAMessage) {
  EXPECT_EQ(Read("$A$2:$C$200"), (RangeNumbers{-727, -725, 0, 0}));
  EXPECT_EQ(Read("$D$2"), (RangeNumbers{-724, 0, 0, 0}));
}

TEST_F(CellRangeTest, ADollarSignBeforeTheRowAloneIsAnotherForm) {
  EXPECT_EQ(ReadOtherForm("A$2:C$9"), (RangeNumbers{1, 3, 0, 0}));
}

TEST_F(CellRangeTest, ColumnsBehind256AreToldAndTaken) {
  RangeNumbers numbers;
  EXPECT_TRUE(ConvertA1LC("A2:IW9", numbers));
  EXPECT_EQ(numbers, (RangeNumbers{1, 257, 2, 9}));
  EXPECT_TRUE(
      OneBox("ERROR: last column shall be less than 255 ie iv", "Retry   or    Voir Tessel", kBoxStopIcon));
}

TEST_F(CellRangeTest, AHundredCharactersAreReadAndOneMoreIsPassedOver) {
  const std::string hundred = "A" + std::string(95, '0') + "2:C9";
  ASSERT_EQ(hundred.size(), 100U);
  EXPECT_EQ(ReadOtherForm(hundred), (RangeNumbers{1, 3, 2, 9}));
  EXPECT_EQ(ReadOtherForm(hundred + std::string(50, ' ')), (RangeNumbers{1, 3, 2, 9}));
  ExpectKept(hundred + "9");
  ExpectKept(std::string(100000, 'A'));
  ExpectKept("A" + std::string(100000, '2'));
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CellRangeTest, TheLimitCountsCharactersNotBytes) {
  ExpectKept(std::string("A") + "2:C" + std::string(95, 'x') + "É");
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

// ---- CellName, RangeText ----------------------------------------------------------------------------------

TEST_F(CellRangeTest, NamesCells) {
  EXPECT_EQ(CellName(1, 1), "A1");
  EXPECT_EQ(CellName(7, 26), "Z7");
  EXPECT_EQ(CellName(7, 27), "AA7");
  EXPECT_EQ(CellName(7, 52), "AZ7");
  EXPECT_EQ(CellName(7, 53), "BA7");
  EXPECT_EQ(CellName(1048576, 256), "IV1048576");
  EXPECT_EQ(CellName(0, 3), "C0");
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CellRangeTest, AColumnBehind256IsToldAndNamed) {
  EXPECT_EQ(CellName(7, 257), "IW7");
  EXPECT_TRUE(
      OneBox("ERROR: last column shall be less than 255 ie iv", "Retry   or    Voir Tessel", kBoxStopIcon));
}

TEST_F(CellRangeTest, AColumnWithoutLettersHasNoName) {
  EXPECT_EQ(CellName(7, -64), "");
  EXPECT_EQ(CellName(7, -727), "");
  EXPECT_EQ(CellName(7, 1e300), "");
}

TEST_F(CellRangeTest, ARangeIsTwoNamesOrOne) {
  EXPECT_EQ(RangeText({1, 3, 2, 2000}), "A2:C2000");
  EXPECT_EQ(RangeText({4, 0, 2, 0}), "D2");
  EXPECT_EQ(RangeText({-727, 3, 2, 9}), "");
  EXPECT_EQ(RangeText({1, -727, 2, 9}), "");
}

// ---- ConvertCellLC, ShiftCell -----------------------------------------------------------------------------

TEST_F(CellRangeTest, ReadsACellInBothNotations) {
  const CellPlace place = ConvertCellLC(" $aa$10 ");
  EXPECT_EQ(place.row, 10);
  EXPECT_EQ(place.col, 27);
  EXPECT_EQ(place.rc, "R10C27");
  EXPECT_EQ(ConvertCellLC("IV65536").rc, "R65536C256");
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CellRangeTest, ACellWithoutLettersIsItsWholeRow) {
  const CellPlace place = ConvertCellLC("12");
  EXPECT_EQ(place.row, 12);
  EXPECT_EQ(place.col, 1.255);
  EXPECT_EQ(place.rc, "R12C1:R12C255");
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CellRangeTest, AnEmptyCellTextIsRowAndColumnZero) {
  for (const char* text : {"", "  ", "$$"}) {
    const CellPlace place = ConvertCellLC(text);
    EXPECT_EQ(place.row, 0) << text;
    EXPECT_EQ(place.col, 0) << text;
    EXPECT_EQ(place.rc, "") << text;
  }
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(CellRangeTest, ThreeLettersAreAnUnusableAddress) {
  const CellPlace place = ConvertCellLC("ABC5");
  EXPECT_EQ(place.row, 0);
  EXPECT_EQ(place.col, 0);
  EXPECT_EQ(place.rc, "");
  EXPECT_TRUE(OneBox("Erreur Adresse, voir Tessel", "", kBoxStopIcon));
}

TEST_F(CellRangeTest, AFourthLetterIsAFailureOnTopOfThat) {
  const CellPlace place = ConvertCellLC("ABCDE5");
  EXPECT_EQ(place.row, 0);
  EXPECT_EQ(place.col, 0);
  ASSERT_EQ(dialogs.boxes.size(), 2U);
  EXPECT_EQ(dialogs.boxes[0].prompt, "ERROR n° 9");
  EXPECT_EQ(dialogs.boxes[0].title, "");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxInformationIcon);
  EXPECT_EQ(dialogs.boxes[1].prompt, "Erreur Adresse, voir Tessel");
}

TEST_F(CellRangeTest, ALetterMoreThanZCountsAsOne) {
  EXPECT_EQ(ConvertCellLC("[5").col, 27);
}

TEST_F(CellRangeTest, ACellOutsideTheLimitsIsToldAndGiven) {
  const CellPlace place = ConvertCellLC("$iw7");
  EXPECT_EQ(place.col, 257);
  EXPECT_EQ(place.rc, "R7C257");
  EXPECT_TRUE(OneBox("Error Address: IW7 not allowed, voir Tessel", "", kBoxStopIcon));
  for (const char* text : {"A65537", "A0", "A", "A-1"}) {
    dialogs.boxes.clear();
    ConvertCellLC(text);
    EXPECT_EQ(dialogs.boxes.size(), 1U) << text;
  }
}

TEST_F(CellRangeTest, ShiftsACellToTheRight) {
  EXPECT_EQ(ShiftCell("D2", 3), "G2");
  EXPECT_EQ(ShiftCell("$Z$9", 1), "AA9");
  EXPECT_EQ(ShiftCell("D2", -3), "A2");
}

// ---- UpdateRange ------------------------------------------------------------------------------------------

class UpdateRangeTest : public CellRangeTest {
 protected:
  PlotRange range = {"E2:F2", {5, 6, 2, 2}, false};
  std::string formula = "=MAX(A2:C5000)+LEN(\"E2:F2\")+MAX(E2:F2)+MAX(E2:F2)";
};

TEST_F(UpdateRangeTest, ARowGetsTheHeightOfTheMainRangeAlsoInTheFormula) {
  UpdateRange(range, 1, 2, 5000, formula);
  EXPECT_EQ(range.text, "E2:F5000");
  EXPECT_EQ(range.numbers, (RangeNumbers{5, 6, 2, 5000}));
  EXPECT_EQ(formula, "=MAX(A2:C5000)+LEN(\"E2:F2\")+MAX(E2:F5000)+MAX(E2:F2)");
}

TEST_F(UpdateRangeTest, ARangeThatStartsElsewhereKeepsItsStart) {
  range = {"E12:F12", {5, 6, 12, 12}, false};
  UpdateRange(range, 1, 2, 5000, formula);
  EXPECT_EQ(range.text, "E12:F5010");
}

TEST_F(UpdateRangeTest, TheFormulaStaysWhereItDoesNotHoldTheText) {
  formula = "=MAX(e2:f2)";
  UpdateRange(range, 1, 2, 5000, formula);
  EXPECT_EQ(range.text, "E2:F5000");
  EXPECT_EQ(formula, "=MAX(e2:f2)");
}

TEST_F(UpdateRangeTest, NothingHappensWhenTheEndWasGivenOrTheRangeIsEmptyOrHigher) {
  const std::string before = formula;
  UpdateRange(range, 0, 2, 5000, formula);
  EXPECT_EQ(range.text, "E2:F2");

  PlotRange empty;
  UpdateRange(empty, 1, 2, 5000, formula);
  EXPECT_EQ(empty.text, "");
  EXPECT_EQ(empty.numbers, RangeNumbers());

  range.numbers.num2 = 3;
  UpdateRange(range, 1, 2, 5000, formula);
  EXPECT_EQ(range.text, "E2:F2");
  EXPECT_EQ(formula, before);
}

TEST_F(UpdateRangeTest, ARangeThatCouldNotBeReadStaysAsItStands) {
  range = {"$E$2:$F$2", {-723, -722, 0, 0}, false};
  UpdateRange(range, 1, 2, 5000, formula);
  EXPECT_EQ(range.text, "$E$2:$F$2");
  EXPECT_EQ(range.numbers, (RangeNumbers{-723, -722, 0, 0}));
}

}  // namespace
}  // namespace quorb
