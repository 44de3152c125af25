#include "LoadFixture.h"

namespace quorb {
namespace {

using testing::DoubleEq;
using testing::ElementsAre;

class ConditioningTest : public LoadFixture {
 protected:
  /// A row with fields for the array on minus Y.
  static std::string MinusY(const std::string& time, const std::string& value) {
    return "1\t2\t3\t4\t\t\t\t\t\t\t\t\t\t" + time + "\t" + value;
  }

  static std::string ColourValue(const std::string& time, const std::string& value) {
    return MinusY("", "") + "\t" + time + "\t" + value;
  }

  static std::string Quaternion(const std::string& components) { return "1\t2\t3\t4\t\t\t5\t" + components; }
};

// ---- units and counters ---------------------------------------------------------------------------------

TEST_F(ConditioningTest, RowsWithThreeFieldsHaveTimeZeroNoEventsNoQuaternionsAndTakeTheSatelliteOff) {
  window.controls[LoaderControl::Check3].value = 1;
  LoadRows(Lines({"1\t2\t3", "4\t5\t6"}));
  EXPECT_EQ(dataXYZT[1][0], 0);
  EXPECT_EQ(NbEvents, 1);
  EXPECT_EQ(FlagOptionToPlot, 0);
  EXPECT_EQ(NbQuater, 0);
  EXPECT_EQ(window.Value(LoaderControl::Check3), 0);
  EXPECT_EQ(window.Tag(LoaderControl::Check3), "1");
}

TEST_F(ConditioningTest, TheSatelliteComesBackOnlyIfTheProgramTookItOff) {
  const std::string attitude = Lines({Quaternion("1\t0\t0\t0")});
  LoadRows(attitude, "kmday", 4);
  EXPECT_EQ(window.Value(LoaderControl::Check3), 0);

  window.controls[LoaderControl::Check3].value = 1;
  LoadRows("1\t2\t3\r\n");
  LoadRows(attitude, "kmday", 4);
  EXPECT_EQ(window.Value(LoaderControl::Check3), 1);
}

TEST_F(ConditioningTest, ASatelliteThatWasOffGetsNoMark) {
  LoadRows("1\t2\t3\r\n");
  EXPECT_EQ(window.Tag(LoaderControl::Check3), "");
}

TEST_F(ConditioningTest, TimeInDaysWithKmdayIsNotDivided) {
  LoadRows("1\t2\t3\t45000.5\r\n", "kmday", 2);
  EXPECT_EQ(dataXYZT[0][0], 45000.5);
  LoadRows("1\t2\t3\t43200\r\n", "km", 2);
  EXPECT_EQ(dataXYZT[0][0], 0.5);
}

TEST_F(ConditioningTest, WithScaleOneHundredthAndMetresX7000000Gives70) {
  Load(Header(Formula("0.01 + ", "Leg")) + "7000000\t0\t0\r\n");
  EXPECT_EQ(dataXYZT[0][1], 70);
  EXPECT_EQ(FactorScale, 0.01);
}

// ---- scale mode -----------------------------------------------------------------------------------------

TEST_F(ConditioningTest, APlotWithScaleOneHasIsoModeZeroEvenIfAPreviousPlotHadItAtOne) {
  Load(Header(Formula("0.01 + ", "Leg")) + "1\t2\t3\r\n");
  EXPECT_EQ(ISOmode, 1);
  Load(Header(Formula("1 + ", "Leg")) + "1\t2\t3\r\n");
  EXPECT_EQ(ISOmode, 0);
  EXPECT_EQ(FactorScale, 1);
}

TEST_F(ConditioningTest, EarthAndMoonGoOffWithoutScaleAndComeBackWithOne) {
  LoadRows("1\t2\t3\r\n");
  EXPECT_EQ(window.Value(LoaderControl::Check1_0), 1);
  EXPECT_EQ(window.Tag(LoaderControl::Check1_0), "1");
  Load(Header(Formula("2 + ", "Leg")) + "1\t2\t3\r\n");
  EXPECT_EQ(window.Value(LoaderControl::Check1_0), 0);
}

TEST_F(ConditioningTest, EarthAndMoonThatTheUserTookOffStayOff) {
  window.controls[LoaderControl::Check1_0].value = 1;
  LoadRows("1\t2\t3\r\n");
  EXPECT_EQ(window.Tag(LoaderControl::Check1_0), "");
  Load(Header(Formula("2 + ", "Leg")) + "1\t2\t3\r\n");
  EXPECT_EQ(window.Value(LoaderControl::Check1_0), 1);
}

// ---- colour values --------------------------------------------------------------------------------------

TEST_F(ConditioningTest, AFlatColourValueOf5HasTheLimits505And5) {
  LoadRows(Lines({ColourValue("1", "5"), ColourValue("2", "5")}), "kmday", 7);
  EXPECT_THAT(ValZMax, DoubleEq(5.05));
  EXPECT_EQ(ValZMin, 5);
}

TEST_F(ConditioningTest, AFlatColourValueOf0HasTheLimits1And0) {
  LoadRows(Lines({ColourValue("1", "0"), ColourValue("2", "0")}), "kmday", 7);
  EXPECT_EQ(ValZMax, 1);
  EXPECT_EQ(ValZMin, 0);
}

TEST_F(ConditioningTest, TheExtremesOfColourValuesAreOverTheirRows) {
  LoadRows(Lines({ColourValue("1", "-2"), ColourValue("2", "9"), ColourValue("3", "4")}), "kmday", 7);
  EXPECT_EQ(ValZMax, 9);
  EXPECT_EQ(ValZMin, -2);
  EXPECT_EQ(NbValZ, 3);
}

TEST_F(ConditioningTest, ExtremesWithARangeAndNoRowsStartFromTheFirstCell) {
  LoadRows(Lines({"1\t2\t3"}), "kmday", 7);
  EXPECT_EQ(NbValZ, 0);
  EXPECT_EQ(ValZMax, 1);
  EXPECT_EQ(ValZMin, 0);
}

TEST_F(ConditioningTest, AMinusYTableThatStartsAtTimeZeroIsColourDataFromItsSecondRow) {
  LoadRows(Lines({MinusY("0", "99"), MinusY("1", "10"), MinusY("2", "30"), MinusY("3", "20")}), "kmday", 6);
  EXPECT_EQ(NbSAmY, 0);
  EXPECT_EQ(NbValZ, 3);
  EXPECT_THAT(Row(dataValZ, 0), ElementsAre(1, 10));
  EXPECT_THAT(Row(dataValZ, 1), ElementsAre(2, 30));
  EXPECT_THAT(Row(dataValZ, 2), ElementsAre(3, 20));
  EXPECT_EQ(ValZMax, 30);
  EXPECT_EQ(ValZMin, 10);
}

TEST_F(ConditioningTest, AMinusYTableInAPlotWithColourValuesMovesUnshifted) {
  LoadRows(Lines({MinusY("1", "10"), MinusY("2", "30")}), "valz kmday", 6);
  EXPECT_EQ(ValColour, 1);
  EXPECT_EQ(NbSAmY, 0);
  EXPECT_EQ(NbValZ, 2);
  EXPECT_THAT(Row(dataValZ, 0), ElementsAre(1, 10));
  EXPECT_THAT(Row(dataValZ, 1), ElementsAre(2, 30));
  EXPECT_TRUE(window.controls[LoaderControl::Check5].visible);
  EXPECT_TRUE(window.controls[LoaderControl::Check11].visible);
}

TEST_F(ConditioningTest, AnyOtherMinusYTableStays) {
  LoadRows(Lines({MinusY("1", "10"), MinusY("2", "30")}), "kmday", 6);
  EXPECT_EQ(NbSAmY, 2);
  EXPECT_EQ(NbValZ, 0);
  EXPECT_FALSE(window.controls[LoaderControl::Check5].visible);
}

TEST_F(ConditioningTest, WithARangeOfColourValuesTheMinusYTableStays) {
  LoadRows(Lines({MinusY("0", "10") + "\t7\t8"}), "valz kmday", 7);
  EXPECT_EQ(NbSAmY, 1);
  EXPECT_THAT(Row(dataValZ, 0), ElementsAre(7, 8));
}

// ---- quaternions ----------------------------------------------------------------------------------------

TEST_F(ConditioningTest, QuaternionsWithTheScalarLastAreTurned) {
  LoadRows(Lines({Quaternion("1\t2\t3\t4"), Quaternion("5\t6\t7\t8")}), "XYZW kmday", 4);
  EXPECT_EQ(QuaterScalarLast, 1);
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(5, 4, 1, 2, 3));
  EXPECT_THAT(Row(dataQuater, 1), ElementsAre(5, 8, 5, 6, 7));
}

TEST_F(ConditioningTest, EsaMeansKilometresDaysAndTheScalarLast) {
  LoadRows(Lines({Quaternion("1\t2\t3\t4")}), "ESA", 4);
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(5, 4, 1, 2, 3));
  EXPECT_THAT(Point(0), ElementsAre(4, 1, 2, 3, 0));
  EXPECT_TRUE(InputInKm);
  EXPECT_EQ(MessageUserToPlot, "ESA");
}

TEST_F(ConditioningTest, OtherQuaternionsStay) {
  LoadRows(Lines({Quaternion("1\t2\t3\t4")}), "kmday", 4);
  EXPECT_THAT(Row(dataQuater, 0), ElementsAre(5, 1, 2, 3, 4));
}

// ---- axes -----------------------------------------------------------------------------------------------

TEST_F(ConditioningTest, YzxGivesZXY) {
  LoadRows(Lines({"1\t2\t3\t9", "4\t5\t6\t9"}), "yzx kmday", 2);
  EXPECT_THAT(Point(0), ElementsAre(9, 3, 1, 2, 0));
  EXPECT_THAT(Point(1), ElementsAre(9, 6, 4, 5, 0));
}

TEST_F(ConditioningTest, ZxyGivesYZX) {
  LoadRows(Lines({"1\t2\t3\t9"}), "zxy kmday", 2);
  EXPECT_THAT(Point(0), ElementsAre(9, 2, 3, 1, 0));
}

TEST_F(ConditioningTest, YxzGivesYTimeZ) {
  LoadRows(Lines({"1\t2\t3\t9"}), "yxz kmday", 2);
  EXPECT_THAT(Point(0), ElementsAre(9, 2, 9, 3, 0));
}

TEST_F(ConditioningTest, XzyGivesXZX) {
  LoadRows(Lines({"1\t2\t3\t9"}), "xzy kmday", 2);
  EXPECT_THAT(Point(0), ElementsAre(9, 1, 3, 1, 0));
}

TEST_F(ConditioningTest, ZyxGivesZYX) {
  LoadRows(Lines({"1\t2\t3\t9"}), "zyx kmday", 2);
  EXPECT_THAT(Point(0), ElementsAre(9, 3, 2, 1, 0));
}

TEST_F(ConditioningTest, XyzChangesNothing) {
  LoadRows(Lines({"1\t2\t3\t9"}), "xyz kmday", 2);
  EXPECT_THAT(Point(0), ElementsAre(9, 1, 2, 3, 0));
}

// ---- separate objects -----------------------------------------------------------------------------------

TEST_F(ConditioningTest, InPenUpModeWithTheThreeColumnsAloneZServesAsTime) {
  LoadRows(Lines({"1\t2\t30", "1\t2\t10", "1\t2\t20"}), "penup kmday");
  EXPECT_EQ(dataXYZT[0][0], 30);
  EXPECT_EQ(dataXYZT[1][0], 10);
  EXPECT_EQ(TimeMax, 30);
  EXPECT_EQ(TimeMin, 10);
}

TEST_F(ConditioningTest, WithAnyOtherRangeTheTimeStays) {
  LoadRows(Lines({"1\t2\t30\t5", "1\t2\t10\t7"}), "penup kmday", 2);
  EXPECT_EQ(dataXYZT[0][0], 5);
  EXPECT_EQ(TimeMax, 7);
  EXPECT_EQ(TimeMin, 5);
}

TEST_F(ConditioningTest, WithOneWiderRangeTheTimeStays) {
  Load(Header("=LEN(\"penup kmday\")+MAX(A2:O9)") + Lines({"1\t2\t30\t5", "1\t2\t10\t7"}));
  EXPECT_EQ(dataXYZT[0][0], 5);
  EXPECT_EQ(TimeMax, 7);
}

TEST_F(ConditioningTest, RangesOfThreeColumnsAreToldByTheirLetters) {
  const auto zIsTime = [this](const std::string& range) {
    dataXYZT.Set(0, 0, 0);
    Load(Header("=LEN(\"penup kmday\")+MAX(" + range + ")") + "1\t2\t30\r\n");
    return dataXYZT[0][0] == 30;
  };
  EXPECT_TRUE(zIsTime("A2:C9"));
  EXPECT_TRUE(zIsTime(" y2:aa9 "));
  EXPECT_FALSE(zIsTime("A2:D9"));
  EXPECT_FALSE(zIsTime("A2:B9"));
  EXPECT_FALSE(zIsTime("A2"));
  EXPECT_FALSE(zIsTime("A:C"));
  EXPECT_FALSE(zIsTime(""));
  EXPECT_FALSE(zIsTime(std::string(1000, 'A') + "2:C9"));
}

TEST_F(ConditioningTest, ARangeThatNoSpreadsheetWouldWriteIsToldAndItsColumnsCount) {
  Load(Header("=LEN(\"penup kmday\")+MAX(A02:C9)") + "1\t2\t30\r\n");
  EXPECT_EQ(dataXYZT[0][0], 30);
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].title, "Error entry");
  EXPECT_TRUE(dialogs.boxes[0].prompt.starts_with("High Entry"));
}

TEST_F(ConditioningTest, AFlatTimeOfSeparateObjectsIsRaised) {
  LoadRows(Lines({"1\t2\t3\t100", "1\t2\t3\t100"}), "penup kmday", 2);
  EXPECT_THAT(TimeMax, DoubleEq(101));
  EXPECT_EQ(TimeMin, 100);
  LoadRows(Lines({"1\t2\t3\t0", "1\t2\t3\t0"}), "penup kmday", 2);
  EXPECT_EQ(TimeMax, 1);
  EXPECT_EQ(TimeMin, 0);
}

TEST_F(ConditioningTest, ATimeThatWasNeverAssignedIsNoExtreme) {
  LoadRows(Lines({"1\t2", "1\t2\t3\t8", "1\t2\t3\t6"}), "penup kmday", 2);
  EXPECT_EQ(TimeMax, 8);
  EXPECT_EQ(TimeMin, 6);
}

TEST_F(ConditioningTest, WithNoTimeAtAllTheExtremesAreOneAndZero) {
  LoadRows(Lines({"1\t2", "1\t2"}), "penup kmday", 2);
  EXPECT_EQ(TimeMax, 1);
  EXPECT_EQ(TimeMin, 0);
}

TEST_F(ConditioningTest, OtherPlotsLeaveTheExtremesOfTheTimeAlone) {
  TimeMax = 77;
  LoadRows(Lines({"1\t2\t3\t8"}), "kmday", 2);
  EXPECT_EQ(TimeMax, 77);
}

// ---- central body ---------------------------------------------------------------------------------------

TEST_F(ConditioningTest, TheLaterBodyWins) {
  LoadRows("1\t2\t3\r\n", "Leg Focus sun mars km");
  EXPECT_EQ(FocusBody, 5);
  LoadRows("1\t2\t3\r\n", "Leg moon km");
  EXPECT_EQ(MoonFocus, 1);
  EXPECT_EQ(FocusBody, 4);
}

TEST_F(ConditioningTest, LamdorHalvesTheLogo) {
  LoadRows("1\t2\t3\r\n", "Leg lamdor");
  EXPECT_EQ(USERFLAG.LogoScale, 0.5);
}

}  // namespace
}  // namespace quorb
