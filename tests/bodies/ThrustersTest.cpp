#include "Thrusters.h"

#include <gtest/gtest.h>

#include <string>

#include "ScriptedDialogs.h"

namespace quorb {
namespace {

class ThrustersTest : public testing::Test {
 protected:
  ThrustersTest() { ThrusterTable = {}; }

  static std::string Numbers(int count) {
    std::string text;
    for (int i = 1; i <= count; ++i)
      text += std::to_string(i) + " ";
    return text;
  }

  ScriptedDialogs dialogs;
};

using Row = std::array<double, 4>;

TEST_F(ThrustersTest, OneThrusterTakesTwoRows) {
  EXPECT_TRUE(ReadThrusters("{1, 2.5, -3}; {0, 0, 1e-2}"));
  EXPECT_EQ(ThrusterTable[0], (Row{6, 0, 0, 0}));
  EXPECT_EQ(ThrusterTable[1], (Row{0, 1, 2.5, -3}));
  EXPECT_EQ(ThrusterTable[2], (Row{0, 0, 0, 0.01}));
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(ThrustersTest, LineEndsAreRemovedAndJoinWhatStandsAroundThem) {
  EXPECT_TRUE(ReadThrusters("  1 2 3\r\n 4 5 6\r\n7  "));
  EXPECT_EQ(ThrusterTable[2], (Row{0, 4, 5, 67}));
}

TEST_F(ThrustersTest, SevenNumbersGiveTheBoxAndStoreNothing) {
  EXPECT_FALSE(ReadThrusters(Numbers(7)));
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].prompt,
            " Wrong data count. Number of thruster =1  but number data = 7  which should be 6n=6");
  EXPECT_EQ(dialogs.boxes[0].title, "Error");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxStopIcon);
  EXPECT_EQ(ThrusterTable[0][0], 0);
  EXPECT_EQ(ThrusterTable[1][1], 0);
}

TEST_F(ThrustersTest, AHalfThrusterIsRoundedToTheEvenNumber) {
  EXPECT_FALSE(ReadThrusters(Numbers(3)));
  EXPECT_FALSE(ReadThrusters(Numbers(9)));
  ASSERT_EQ(dialogs.boxes.size(), 2U);
  EXPECT_EQ(dialogs.boxes[0].prompt,
            " Wrong data count. Number of thruster =0  but number data = 3  which should be 6n=0");
  EXPECT_EQ(dialogs.boxes[1].prompt,
            " Wrong data count. Number of thruster =2  but number data = 9  which should be 6n=12");
}

TEST_F(ThrustersTest, ThreeHundredNumbersAreReadAndTheTableTakesTheFirstSeventyFive) {
  EXPECT_TRUE(ReadThrusters(Numbers(301)));
  EXPECT_EQ(ThrusterTable[0][0], 300);
  EXPECT_EQ(ThrusterTable[25], (Row{0, 73, 74, 75}));
}

TEST_F(ThrustersTest, LettersReadAsZero) {
  EXPECT_TRUE(ReadThrusters("a b c 4x 5 é"));
  EXPECT_EQ(ThrusterTable[0][0], 6);
  EXPECT_EQ(ThrusterTable[2], (Row{0, 4, 5, 0}));
}

TEST_F(ThrustersTest, AnEmptyTextStoresTheCountZero) {
  ThrusterTable[0][0] = 6;
  EXPECT_TRUE(ReadThrusters(" {} \r\n"));
  EXPECT_EQ(ThrusterTable[0][0], 0);
}

}  // namespace
}  // namespace quorb
