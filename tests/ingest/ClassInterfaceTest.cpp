#include "ClassInterface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "FixedRegion.h"
#include "PlotData.h"
#include "RunState.h"
#include "ScriptedDialogs.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::string Rows(int count, const std::string& row = "1\t2\t3") {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += row + "\r\n";
  return text;
}

class ClassInterfaceTest : public testing::Test {
 protected:
  ClassInterfaceTest() {
    StartRunState();
    for (std::int32_t i = 0; i < 70; ++i) {
      for (int c = 0; c < 5; ++c)
        dataXYZT.Set(i, c, 0);
      for (int c = 0; c < 2; ++c)
        dataEvents.Set(i, c, 0);
    }
  }

  static std::vector<double> Point(std::int32_t row) {
    return {dataXYZT[row][1], dataXYZT[row][2], dataXYZT[row][3]};
  }
  static std::vector<double> Event(std::int32_t row) { return {dataEvents[row][0], dataEvents[row][1]}; }

  ScriptedDialogs dialogs_;
  ClassInterface client_;
};

// ---- title ------------------------------------------------------------------------------------------------

TEST_F(ClassInterfaceTest, TitleAndEventFlagAreSet) {
  client_.InterFaceXls("Flight 7", 1);
  EXPECT_EQ(MessageUserToPlot, "Flight 7");
  EXPECT_EQ(FlagOptionToPlot, 1);
  client_.InterFaceXls("", 0);
  EXPECT_EQ(MessageUserToPlot, "");
  EXPECT_EQ(FlagOptionToPlot, 0);
}

// ---- points -----------------------------------------------------------------------------------------------

TEST_F(ClassInterfaceTest, PointsAreStoredTimesTheFactor) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n4\t5\t6\r\n", 2).Good());
  EXPECT_THAT(Point(0), ElementsAre(2, 4, 6));
  EXPECT_THAT(Point(1), ElementsAre(8, 10, 12));
  EXPECT_EQ(LastPoint, 1);
  EXPECT_EQ(FactorScale, 2);
  EXPECT_THAT(dialogs_.boxes, IsEmpty());
}

TEST_F(ClassInterfaceTest, ALastRowWithoutACarriageReturnIsDropped) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n4\t5\t6", 1).Good());
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(1), ElementsAre(0, 0, 0));
}

TEST_F(ClassInterfaceTest, OneCharacterOrNoneBehindTheLastRowEndsTheBlock) {
  // Behind the second row stands a single character: a further carriage return would be no row.
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n4\t5\t6\r\n\r", 1).Good());
  EXPECT_EQ(LastPoint, 1);
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n4\t5\t6\r\n7\t8\t9\r", 1).Good());
  EXPECT_EQ(LastPoint, 2) << "the end of the text stands for the line feed";
  EXPECT_THAT(Point(2), ElementsAre(7, 8, 9));
}

TEST_F(ClassInterfaceTest, TheCharacterBehindACarriageReturnIsSkippedWhateverItIs) {
  ASSERT_TRUE(client_
                  .GlrayonXls("1\t2\t3\r;4\t5\t6\r\xC3\xA9"
                              "7\t8\t9\r\n",
                              1)
                  .Good());
  EXPECT_EQ(LastPoint, 2);
  EXPECT_THAT(Point(1), ElementsAre(4, 5, 6));
  EXPECT_THAT(Point(2), ElementsAre(7, 8, 9));
}

TEST_F(ClassInterfaceTest, AnEmptyRowIsARow) {
  ASSERT_TRUE(client_.GlrayonXls("\r\n4\t5\t6\r\n", 1).Good());
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(0), ElementsAre(0, 0, 0));
  EXPECT_THAT(Point(1), ElementsAre(4, 5, 6));
}

TEST_F(ClassInterfaceTest, CellsAreTrimmedAndReadWithADecimalPoint) {
  ASSERT_TRUE(client_.GlrayonXls("  1.5 \t -2e3\t 3,5 \r\n", 1).Good());
  EXPECT_THAT(Point(0), ElementsAre(1.5, -2000, 3)) << "a comma ends the number";
}

TEST_F(ClassInterfaceTest, CellsThatARowLacksAreEmpty) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n", 1).Good());
  ASSERT_TRUE(client_.GlrayonXls("9\r\n", 1).Good());
  EXPECT_THAT(Point(0), ElementsAre(9, 0, 0));
}

TEST_F(ClassInterfaceTest, PiecesAreStagedAndStoredTogether) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n", 0).Good());
  EXPECT_EQ(LastPoint, 0);
  EXPECT_EQ(FactorScale, 1);
  ASSERT_TRUE(client_.GlrayonXls("4\t5\t6\r\n7\t8\t9\r\n", 0).Good());
  ASSERT_TRUE(client_.GlrayonXls("10\t11\t12\r\n", 0.5).Good());
  EXPECT_EQ(LastPoint, 3);
  EXPECT_THAT(Point(0), ElementsAre(0.5, 1, 1.5));
  EXPECT_THAT(Point(3), ElementsAre(5, 5.5, 6));
}

TEST_F(ClassInterfaceTest, BehindACommitTheRowsStartAnew) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(3), 1).Good());
  ASSERT_TRUE(client_.GlrayonXls("7\t8\t9\r\n", 1).Good());
  EXPECT_EQ(LastPoint, 0);
  EXPECT_THAT(Point(0), ElementsAre(7, 8, 9));
  EXPECT_THAT(Point(1), ElementsAre(0, 0, 0)) << "no earlier plot stands just behind the last point";
}

TEST_F(ClassInterfaceTest, AnEmptyTextCommitsNothing) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(2), 0).Good());
  ASSERT_TRUE(client_.GlrayonXls("", 1).Good());
  EXPECT_EQ(LastPoint, 0);
  EXPECT_EQ(FactorScale, 1);
  ASSERT_TRUE(client_.GlrayonXls(Rows(1), 3).Good());
  EXPECT_EQ(LastPoint, 2) << "what was staged is still there";
}

TEST_F(ClassInterfaceTest, ATextWithoutARowCommitsNothingWhenNoneIsStaged) {
  LastPoint = 5;
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3", 2).Good());
  EXPECT_EQ(LastPoint, 5);
  EXPECT_EQ(FactorScale, 1);
}

TEST_F(ClassInterfaceTest, ANegativeFactorTurnsThePointsRound) {
  ASSERT_TRUE(client_.GlrayonXls("1\t-2\t3\r\n", -0.5).Good());
  EXPECT_THAT(Point(0), ElementsAre(-0.5, 1, -1.5));
  EXPECT_EQ(FactorScale, -0.5);
}

TEST_F(ClassInterfaceTest, AnEmptyFirstCellIsNoughtAndKeepsItsPlace) {
  ASSERT_TRUE(client_.GlrayonXls("\t2\t3\r\n \t\t6\r\n", 1).Good());
  EXPECT_THAT(Point(0), ElementsAre(0, 2, 3));
  EXPECT_THAT(Point(1), ElementsAre(0, 0, 6));
}

TEST_F(ClassInterfaceTest, AFactorThatIsNoFiniteNumberIsAFailureAndStagesNothing) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n", 0).Good());
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double factor : {std::numeric_limits<double>::quiet_NaN(), kInfinity, -kInfinity}) {
    for (const auto call :
         {&ClassInterface::GlrayonXls, &ClassInterface::GlrayonXlsT, &ClassInterface::GlEventsXls}) {
      const InterfaceFault fault = (client_.*call)("7\t8\t9\r\n", factor);
      EXPECT_EQ(fault.number, 5);
      EXPECT_THAT(fault.description, testing::EndsWith(": the factor is no finite number"));
      EXPECT_FALSE(fault.stored);
    }
  }
  EXPECT_EQ(FactorScale, 1);
  EXPECT_EQ(NbEvents, 0);
  EXPECT_EQ(dataXYZT[0][0], 0);
  ASSERT_TRUE(client_.GlrayonXls("4\t5\t6\r\n", 1).Good());
  EXPECT_EQ(LastPoint, 1) << "one row staged before, one now";
  EXPECT_TRUE(client_.GlrayonXls("", kInfinity).Good()) << "an empty text does nothing, whatever the factor";
}

TEST_F(ClassInterfaceTest, APointBeyondTheRangeOfNumbersIsAFailureAndStoresNothing) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\r\n4\t5\t6\r\n", 1).Good());
  ASSERT_TRUE(client_.GlrayonXls("7\t8\t9\r\n", 0).Good());
  const InterfaceFault fault = client_.GlrayonXls("1\t-1e308\t3\r\n", 10);
  EXPECT_EQ(fault.number, 6);
  EXPECT_EQ(fault.description, "Overflow: row 2 times the factor");
  EXPECT_EQ(client_.GlrayonXls("1e155\t0\t0\r\n", 1).number, 6) << "the square of its distance";
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(0), ElementsAre(1, 2, 3));
  EXPECT_EQ(FactorScale, 1);
  ASSERT_TRUE(client_.GlrayonXls("1\t1\t1\r\n", 2).Good());
  EXPECT_EQ(LastPoint, 1) << "the row that was staged before, and this one";
  EXPECT_THAT(Point(0), ElementsAre(14, 16, 18));
}

// ---- bounds -----------------------------------------------------------------------------------------------

TEST_F(ClassInterfaceTest, SixtyFourRowsFitAndTheNextIsOutOfRange) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(64), 1).Good());
  EXPECT_EQ(LastPoint, 63);
  const InterfaceFault fault = client_.GlrayonXls(Rows(65, "5\t5\t5"), 1);
  EXPECT_EQ(fault.number, 9);
  EXPECT_EQ(fault.description, "Subscript out of range: row 65; there are 64 rows");
  EXPECT_EQ(LastPoint, 63);
  EXPECT_THAT(Point(0), ElementsAre(1, 2, 3)) << "nothing of it is stored";
}

TEST_F(ClassInterfaceTest, TheRowsOfEarlierPiecesCount) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(60), 0).Good());
  EXPECT_EQ(client_.GlrayonXls(Rows(5), 1).number, 9);
  EXPECT_EQ(LastPoint, 0);
  ASSERT_TRUE(client_.GlrayonXls(Rows(4), 1).Good()) << "the block that failed staged nothing";
  EXPECT_EQ(LastPoint, 63);
}

TEST_F(ClassInterfaceTest, AFifthCellIsOutOfRange) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\t4\r\n", 1).Good());
  const InterfaceFault fault = client_.GlrayonXls("1\t2\t3\r\n1\t2\t3\t4\t5\r\n", 1);
  EXPECT_EQ(fault.number, 9);
  EXPECT_EQ(fault.description, "Subscript out of range: row 2 has more than 4 cells");
  EXPECT_EQ(LastPoint, 0);
}

TEST_F(ClassInterfaceTest, ATabBehindTheLastCellBeginsNoOther) {
  ASSERT_TRUE(client_.GlrayonXls("1\t2\t3\t4\t\r\n5\t6\t7\t \r\n", 1).Good());
  EXPECT_EQ(LastPoint, 1);
  EXPECT_THAT(Point(1), ElementsAre(5, 6, 7));
  EXPECT_EQ(client_.GlrayonXls("1\t2\t3\t4\t\t\r\n", 1).number, 9) << "a fifth cell, though it is empty";
}

TEST_F(ClassInterfaceTest, ABlockOf65000CharactersIsReadInSilence) {
  const std::string text = "1\t2\t3" + std::string(64993, ' ') + "\r\n";
  ASSERT_EQ(text.size(), 65000U);
  ASSERT_TRUE(client_.GlrayonXls(text, 1).Good());
  EXPECT_THAT(dialogs_.boxes, IsEmpty());
  EXPECT_THAT(Point(0), ElementsAre(1, 2, 3));
}

TEST_F(ClassInterfaceTest, OneCharacterMoreShowsTheMessageAndIsRead) {
  const std::string text = "1\t2\t3" + std::string(64994, ' ') + "\r\n";
  ASSERT_TRUE(client_.GlrayonXls(text, 1).Good());
  ASSERT_THAT(dialogs_.boxes, SizeIs(1));
  EXPECT_EQ(dialogs_.boxes[0].prompt, "Overflow");
  EXPECT_EQ(dialogs_.boxes[0].title, "Some Data are to be lost");
  EXPECT_EQ(dialogs_.boxes[0].style, kBoxStopIcon);
  EXPECT_THAT(Point(0), ElementsAre(1, 2, 3));
}

TEST_F(ClassInterfaceTest, CharactersAreCountedNotBytes) {
  std::string text = "1\t2\t";
  for (int i = 0; i < 64000; ++i)
    text += "\xC3\xA9";
  ASSERT_TRUE(client_.GlrayonXls(text + "\r\n", 1).Good());
  EXPECT_THAT(dialogs_.boxes, IsEmpty());
}

// ---- times ------------------------------------------------------------------------------------------------

TEST_F(ClassInterfaceTest, TimesGoToThePointsAndTheFactorDoesNotMultiplyThem) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(2), 1).Good());
  ASSERT_TRUE(client_.GlrayonXlsT("44927.25\r\n44927.5\r\n", 7).Good());
  EXPECT_EQ(dataXYZT[0][0], 44927.25);
  EXPECT_EQ(dataXYZT[1][0], 44927.5);
  EXPECT_EQ(FactorScale, 1);
  EXPECT_EQ(LastPoint, 1);
}

TEST_F(ClassInterfaceTest, ATimeMayHaveADecimalComma) {
  ASSERT_TRUE(client_.GlrayonXlsT("0,125\t\r\n", 1).Good());
  EXPECT_EQ(dataXYZT[0][0], 125) << "three characters behind the comma, on a machine with a point";
  ASSERT_TRUE(client_.GlrayonXlsT("0,1255\t\r\n", 1).Good());
  EXPECT_EQ(dataXYZT[0][0], 0.1255);
}

/// A machine that writes 44.927,25.
class ClassInterfaceWithCommas : public ClassInterfaceTest {
 protected:
  FixedRegion region_{",", "."};
};

TEST_F(ClassInterfaceWithCommas, ATimeWithADecimalPointIsReadAsItStands) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(6), 1).Good());
  ASSERT_TRUE(client_.GlrayonXlsT("44927.25\r\n-0.125\r\n+.5\r\n4.5e4\r\n44927\r\n1.250\r\n", 1).Good());
  const double expected[] = {44927.25, -0.125, 0.5, 45000, 44927, 1.25};
  for (int row = 0; row < 6; ++row)
    EXPECT_EQ(dataXYZT[row][0], expected[row]) << row;
}

TEST_F(ClassInterfaceWithCommas, AnyOtherFormIsReadAsTheMachineWritesIt) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(4), 1).Good());
  ASSERT_TRUE(client_.GlrayonXlsT("44.927,25\r\n0,125\r\n1.044.927\r\n44 927,5\r\n", 1).Good());
  const double expected[] = {44927.25, 0.125, 1044927, 44927.5};
  for (int row = 0; row < 4; ++row)
    EXPECT_EQ(dataXYZT[row][0], expected[row]) << row;
}

TEST_F(ClassInterfaceWithCommas, TheTimesOfEventsAreReadAlike) {
  ASSERT_TRUE(client_.GlEventsXls("44927.25\tS\r\n44927,5\tE\r\n", 1).Good());
  EXPECT_THAT(Event(0), ElementsAre(44927.25, 1));
  EXPECT_THAT(Event(1), ElementsAre(44927.5, 0));
}

TEST_F(ClassInterfaceTest, WordsAreNoTimes) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(4), 1).Good());
  ASSERT_TRUE(client_.GlrayonXlsT("inf\r\nnan\r\n-\r\n\r\n", 1).Good());
  for (int row = 0; row < 4; ++row)
    EXPECT_EQ(dataXYZT[row][0], 0) << row;
}

TEST_F(ClassInterfaceTest, TimesBeforeAnyPointsStoreOne) {
  ASSERT_TRUE(client_.GlrayonXlsT("3.5\r\n4.5\r\n", 1).Good());
  EXPECT_EQ(dataXYZT[0][0], 3.5);
  EXPECT_EQ(dataXYZT[1][0], 0);
}

TEST_F(ClassInterfaceTest, RowsWithoutATimeOfTheirOwnCountWithTheirFirstCell) {
  ASSERT_TRUE(client_.GlrayonXls("11\t0\t0\r\n12\t0\t0\r\n", 1).Good());
  ASSERT_TRUE(client_.GlrayonXlsT("0.5\r\n", 1).Good());
  EXPECT_EQ(dataXYZT[0][0], 0.5);
  EXPECT_EQ(dataXYZT[1][0], 12);
}

TEST_F(ClassInterfaceTest, APlotOfMorePointsThanRowsIsOutOfRange) {
  LastPoint = 64;
  const InterfaceFault fault = client_.GlrayonXlsT("0.5\r\n", 1);
  EXPECT_EQ(fault.number, 9);
  EXPECT_THAT(fault.description, HasSubstr("65 points"));
  EXPECT_EQ(dataXYZT[0][0], 0);
  LastPoint = 63;
  EXPECT_TRUE(client_.GlrayonXlsT("0.5\r\n", 1).Good());
}

// ---- events -----------------------------------------------------------------------------------------------

TEST_F(ClassInterfaceTest, EventsAreStartsEndsAndOtherDigits) {
  ASSERT_TRUE(client_.GlEventsXls("1.5\tStart S\r\n2\tE\r\n3\tBurn 1\r\n4\t0\r\n", 2).Good());
  EXPECT_THAT(Event(0), ElementsAre(1.5, 1));
  EXPECT_THAT(Event(1), ElementsAre(2, 0));
  EXPECT_THAT(Event(2), ElementsAre(3, 1));
  EXPECT_THAT(Event(3), ElementsAre(4, 0));
  EXPECT_EQ(NbEvents, 3);
  EXPECT_EQ(FactorScale, 2);
}

TEST_F(ClassInterfaceTest, AnyOtherLastCharacterIsItsNumber) {
  ASSERT_TRUE(client_.GlEventsXls("1\tMode 17\r\n2\tx\r\n3\r\n", 1).Good());
  EXPECT_THAT(Event(0), ElementsAre(1, 7));
  EXPECT_THAT(Event(1), ElementsAre(2, 0));
  EXPECT_THAT(Event(2), ElementsAre(3, 0));
}

TEST_F(ClassInterfaceTest, EventsHoldFourRows) {
  const InterfaceFault fault = client_.GlEventsXls(Rows(5, "1\tS"), 1);
  EXPECT_EQ(fault.number, 9);
  EXPECT_EQ(fault.description, "Subscript out of range: row 5; there are 4 rows");
  EXPECT_EQ(FactorScale, 1);
}

TEST_F(ClassInterfaceTest, EventsThatAreTooLongShowTheMessageAndAreRead) {
  const std::string text = "1\tS" + std::string(64996, ' ') + "\r\n";
  ASSERT_EQ(text.size(), 65001U);
  ASSERT_TRUE(client_.GlEventsXls(text, 1).Good());
  ASSERT_THAT(dialogs_.boxes, SizeIs(1));
  EXPECT_EQ(dialogs_.boxes[0].prompt, "Overflow");
  EXPECT_EQ(dialogs_.boxes[0].title, "Some Data are to be lost");
  EXPECT_EQ(dialogs_.boxes[0].style, kBoxStopIcon);
  EXPECT_THAT(Event(0), ElementsAre(1, 1));
}

TEST_F(ClassInterfaceTest, TimesThatAreTooLongShowTheMessageAndAreRead) {
  ASSERT_TRUE(client_.GlrayonXlsT("2.5" + std::string(64996, ' ') + "\r\n", 1).Good());
  ASSERT_THAT(dialogs_.boxes, SizeIs(1));
  EXPECT_EQ(dialogs_.boxes[0].prompt, "Overflow");
  EXPECT_EQ(dataXYZT[0][0], 2.5);
}

// ---- what a call came to ----------------------------------------------------------------------------------

TEST_F(ClassInterfaceTest, ACallTellsWhetherItStoredRows) {
  EXPECT_FALSE(client_.GlrayonXls(Rows(2), 0).stored);
  EXPECT_FALSE(client_.GlrayonXls("", 1).stored);
  EXPECT_TRUE(client_.GlrayonXls(Rows(2), 1).stored);
  EXPECT_FALSE(client_.GlrayonXls(Rows(65), 1).stored);
  EXPECT_TRUE(client_.GlrayonXlsT("1\r\n", 1).stored);
  EXPECT_FALSE(client_.GlrayonXlsT("1", 1).stored);
  EXPECT_TRUE(client_.GlEventsXls("1\tS\r\n", 1).stored);
  EXPECT_FALSE(client_.GlEventsXls("1\tS\r\n", 0).stored);
}

TEST_F(ClassInterfaceTest, ACallTellsTheScaleThatItReplaced) {
  FactorScale = 0.25;
  EXPECT_EQ(client_.GlrayonXls(Rows(2), 2).scaleBefore, 0.25);
  EXPECT_EQ(client_.GlEventsXls("1\tS\r\n", 3).scaleBefore, 2);
  EXPECT_EQ(FactorScale, 3);
}

// ---- objects ----------------------------------------------------------------------------------------------

TEST_F(ClassInterfaceTest, EachObjectCountsItsOwnRows) {
  ASSERT_TRUE(client_.GlrayonXls(Rows(3), 0).Good());
  ClassInterface other;
  ASSERT_TRUE(other.GlrayonXls("7\t8\t9\r\n", 1).Good());
  EXPECT_EQ(LastPoint, 0);
  ASSERT_TRUE(client_.GlrayonXls("4\t5\t6\r\n", 1).Good());
  EXPECT_EQ(LastPoint, 3);
  EXPECT_THAT(Point(0), ElementsAre(7, 8, 9)) << "the staged texts are shared";
}

}  // namespace
}  // namespace quorb
