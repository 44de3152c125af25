#include "Mth.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "ScriptedDialogs.h"
#include "SoftError.h"

namespace quorb {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
using Messages = std::vector<std::string>;

const double kAcosPi = 4.0 * std::atan(1.0);

class MthTest : public testing::Test {
 protected:
  MthTest() { softFirst = 0.0; }
  ~MthTest() override {
    softFirst = 0.0;
    softAnswer.clear();
  }

  // The message of each box shown, without the explanation behind it.
  Messages ShownMessages() const {
    Messages messages;
    for (const auto& box : dialogs.boxes)
      messages.push_back(box.prompt.substr(0, box.prompt.find(CrLf)));
    return messages;
  }
  void ExpectNoWarningAtAll() const { EXPECT_EQ(softFirst, 0.0); }
  void ExpectSilentWarning() const {
    EXPECT_EQ(softFirst, 1.0);
    EXPECT_TRUE(dialogs.boxes.empty());
  }

  ScriptedDialogs dialogs;
};

using AcosTest = MthTest;
using Atn2Test = MthTest;
using DegPosTest = MthTest;
using FormatSigTest = MthTest;

TEST_F(MthTest, ConstantsHaveFifteenDigits) {
  EXPECT_EQ(kPi, 3.14159265358979);
  EXPECT_EQ(k2Pi, 6.28318530717958);
}

TEST_F(AcosTest, OnePlus2e16Gives0WithNoWarningAtAll) {
  EXPECT_EQ(Acos(1.0 + 2.2e-16), 0.0);
  EXPECT_EQ(Acos(-1.0 - 2.2e-16), kAcosPi);
  ExpectNoWarningAtAll();
}

TEST_F(AcosTest, OnePlus4500e19Gives0WithTheSilentWarning) {
  EXPECT_EQ(Acos(1.0 + 4.5e-16), 0.0);
  ExpectSilentWarning();
}

TEST_F(AcosTest, SilentWarningBelowMinusOneAndUpTo9e16) {
  EXPECT_EQ(Acos(-1.0 - 8.9e-16), kAcosPi);
  ExpectSilentWarning();
}

TEST_F(AcosTest, OnePointOneShowsTheDialogAndGives0) {
  EXPECT_EQ(Acos(1.1), 0.0);
  EXPECT_EQ(ShownMessages(), Messages{"Acosfaute Acos d'un cos > 1 ? -> arrondi à 1 1.1"});
}

TEST_F(AcosTest, MinusOnePointOneShowsTheDialogAndGivesPi) {
  EXPECT_EQ(Acos(-1.1), kAcosPi);
  EXPECT_EQ(ShownMessages(), Messages{"Acosfaute Acos d'un cos > 1 ? -> arrondi à 1 -1.1"});
}

TEST_F(AcosTest, JustBeyondTheSilentBandShowsTheDialog) {
  EXPECT_EQ(Acos(1.0 + 1.2e-15), 0.0);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(AcosTest, ExactEnds) {
  EXPECT_EQ(Acos(1.0), 0.0);
  EXPECT_EQ(Acos(-1.0), kAcosPi);
  ExpectNoWarningAtAll();
}

TEST_F(AcosTest, InsideIsTheArccosine) {
  EXPECT_NEAR(Acos(0.0), 1.5707963267948966, 1e-15);
  EXPECT_NEAR(Acos(0.5), 1.0471975511965979, 1e-15);
  EXPECT_NEAR(Acos(-0.5), 2.0943951023931957, 1e-15);
  EXPECT_NEAR(Acos(std::nextafter(1.0, 0.0)), 1.4901161193847656e-08, 1e-15);
  ExpectNoWarningAtAll();
}

TEST_F(AcosTest, NoNumberIsAFaultAndGives0) {
  EXPECT_EQ(Acos(kNaN), 0.0);
  EXPECT_EQ(ShownMessages(), Messages{"Acosfaute Acos d'un cos > 1 ? -> arrondi à 1 NaN"});
}

TEST_F(Atn2Test, OriginIsHalfPiWithoutAWarning) {
  EXPECT_EQ(Atn2(0, 0), kPi / 2);
  ExpectNoWarningAtAll();
}

TEST_F(Atn2Test, MinusOneZeroIsPi) {
  EXPECT_EQ(Atn2(-1, 0), kPi);
}

TEST_F(Atn2Test, OneMinusOneIsSevenQuartersOfPi) {
  EXPECT_NEAR(Atn2(1, -1), 7 * kPi / 4, 1e-14);
}

TEST_F(Atn2Test, EveryQuadrantAndAxis) {
  EXPECT_EQ(Atn2(1, 0), 0.0);
  EXPECT_NEAR(Atn2(1, 1), kPi / 4, 1e-14);
  EXPECT_EQ(Atn2(0, 1), kPi / 2);
  EXPECT_NEAR(Atn2(-1, 1), 3 * kPi / 4, 1e-14);
  EXPECT_NEAR(Atn2(-1, -1), 5 * kPi / 4, 1e-14);
  EXPECT_EQ(Atn2(0, -1), 3 * kPi / 2);
  EXPECT_NEAR(Atn2(2, 2 * std::sqrt(3.0)), kPi / 3, 1e-14);
}

TEST_F(Atn2Test, QuotientBeyondTheRangeIsAFaultAndGives0) {
  EXPECT_EQ(Atn2(1e-300, 1e300), 0.0);
  EXPECT_EQ(Atn2(kNaN, 1), 0.0);
  EXPECT_EQ(ShownMessages(), (Messages{"Atn2faute", "Atn2faute"}));
}

TEST_F(MthTest, AtnPosLiftsNegativesByTwoPi) {
  EXPECT_EQ(AtnPos(0), 0.0);
  EXPECT_EQ(AtnPos(1), std::atan(1.0));
  EXPECT_EQ(AtnPos(-1), std::atan(-1.0) + k2Pi);
}

TEST_F(MthTest, Atan2sOnTheAxes) {
  EXPECT_EQ(Atan2s(0, 0), 0.0F);
  EXPECT_EQ(Atan2s(3, 0), 0.0F);
  EXPECT_EQ(Atan2s(-3, 0), 3.14159265F);
  EXPECT_EQ(Atan2s(0, 2), 1.57079633F);
  EXPECT_EQ(Atan2s(0, -2), -1.57079633F);
}

TEST_F(MthTest, Atan2sInTheQuadrants) {
  EXPECT_EQ(Atan2s(1, 1), 0.785398163F);
  EXPECT_EQ(Atan2s(1, -1), -0.785398163F);
  EXPECT_EQ(Atan2s(-1, 1), 2.35619449F);
  EXPECT_EQ(Atan2s(-1, -1), -2.35619449F);
}

TEST_F(MthTest, Atan2sTakesTheQuotientInSingle) {
  const float third = 1.0F / 3.0F;
  EXPECT_EQ(Atan2s(3, 1), static_cast<float>(std::atan(static_cast<double>(third))));
}

TEST_F(MthTest, Atan2cKeepsTheGapOnTheYAxis) {
  EXPECT_EQ(Atan2c(0, 1), kPi / 2);
  EXPECT_EQ(Atan2c(0, -1), kPi / 2);
  EXPECT_EQ(Atan2c(0, 0), kPi / 2);
}

TEST_F(MthTest, Atan2cInTheQuadrants) {
  EXPECT_NEAR(Atan2c(1, 1), kPi / 4, 1e-14);
  EXPECT_NEAR(Atan2c(1, -1), -kPi / 4, 1e-14);
  EXPECT_NEAR(Atan2c(-1, 1), 3 * kPi / 4, 1e-14);
  EXPECT_NEAR(Atan2c(-1, -1), -3 * kPi / 4, 1e-14);
  EXPECT_EQ(Atan2c(-1, 0), kPi);
}

TEST_F(DegPosTest, ZeroIsZero) {
  EXPECT_EQ(DegPos(0), 0.0);
  EXPECT_EQ(DegPos(4.45e-16), 0.0);
  EXPECT_EQ(DegPos(-4.45e-16), 0.0);
  ExpectNoWarningAtAll();
}

TEST_F(DegPosTest, MinusHalfPiIs270) {
  EXPECT_EQ(DegPos(-kPi / 2), 270.0);
}

TEST_F(DegPosTest, TwoPiOfThisSystemNeverShowsADialog) {
  const double deg = DegPos(k2Pi);
  EXPECT_TRUE((deg >= 0.0 && deg < 1e-9) || (deg > 360.0 - 1e-9 && deg < 360.0)) << deg;
  ExpectNoWarningAtAll();
}

TEST_F(DegPosTest, EveryWholeTurnAndHalfTurnStaysInRange) {
  for (int halfTurns = -40; halfTurns <= 40; ++halfTurns) {
    const double deg = DegPos(halfTurns * kPi);
    EXPECT_TRUE(deg >= 0.0 && deg < 360.0) << halfTurns;
    EXPECT_NEAR(std::remainder(deg - 180.0 * halfTurns, 360.0), 0.0, 1e-9) << halfTurns;
  }
  ExpectNoWarningAtAll();
}

TEST_F(DegPosTest, AnglesInEveryTurn) {
  EXPECT_NEAR(DegPos(kPi / 6), 30.0, 1e-12);
  EXPECT_EQ(DegPos(kPi), 180.0);
  EXPECT_NEAR(DegPos(11 * kPi / 6), 330.0, 1e-12);
  EXPECT_NEAR(DegPos(20 * kPi + 0.1), 0.1 * 180 / kPi, 1e-10);
  EXPECT_NEAR(DegPos(-20 * kPi - 0.1), 360.0 - 0.1 * 180 / kPi, 1e-10);
  ExpectNoWarningAtAll();
}

TEST_F(DegPosTest, FailedBackCheckIsShown) {
  // -4.6e-16 lies beyond the zero step, and its -2.6e-14 degrees vanish beside 360: a turn is missing in the
  // check, so e is -2π, which has the exponent 0, and no decimals are shown.
  EXPECT_EQ(DegPos(-4.6e-16), 0.0);
  EXPECT_EQ(ShownMessages(), Messages{"Deg Verification inverse -6. "});
}

TEST_F(DegPosTest, NoFiniteAngleIsAFaultAndGives0) {
  EXPECT_EQ(DegPos(kInfinity), 0.0);
  EXPECT_EQ(DegPos(1.7e308), 0.0);
  EXPECT_EQ(ShownMessages(), (Messages{"degfauteInf", "degfaute1.7E+308"}));
}

TEST_F(DegPosTest, DegSignedOf270IsMinus90) {
  EXPECT_EQ(DegSigned(270), -90.0);
}

TEST_F(DegPosTest, DegSignedOf180StaysSo) {
  EXPECT_EQ(DegSigned(180), 180.0);
}

TEST_F(DegPosTest, DegSignedOverTheCircle) {
  EXPECT_EQ(DegSigned(0), 0.0);
  EXPECT_NEAR(DegSigned(90), 90.0, 1e-12);
  EXPECT_NEAR(DegSigned(190), -170.0, 1e-12);
  EXPECT_NEAR(DegSigned(-90), -90.0, 1e-12);
  EXPECT_NEAR(DegSigned(725), 5.0, 1e-11);
}

TEST_F(MthTest, PlainAngleConversions) {
  EXPECT_EQ(RadToDeg(kPi), 180.0);
  EXPECT_EQ(DegToRad(180), kPi);
  EXPECT_EQ(RadToDeg(1), 1 / kPi * 180);
  EXPECT_EQ(DegToRad(1), 1 * kPi / 180);
}

TEST_F(MthTest, UlongToDoubleReadsTheBitsUnsigned) {
  EXPECT_EQ(ulongToDouble(0), 0.0);
  EXPECT_EQ(ulongToDouble(2147483647), 2147483647.0);
  EXPECT_EQ(ulongToDouble(-1), 4294967295.0);
  EXPECT_EQ(ulongToDouble(std::numeric_limits<std::int32_t>::min()), 2147483648.0);
}

// Equal in value, told apart by the tag.
struct Tagged {
  int value;
  char tag;
  friend bool operator<(const Tagged& a, const Tagged& b) { return a.value < b.value; }
  friend bool operator>(const Tagged& a, const Tagged& b) { return a.value > b.value; }
};

TEST_F(MthTest, MaxOfAndMinOf) {
  EXPECT_EQ(MaxOf(1.0, 2.0), 2.0);
  EXPECT_EQ(MaxOf(2.0, 1.0), 2.0);
  EXPECT_EQ(MinOf(1.0, 2.0), 1.0);
  EXPECT_EQ(MinOf(2.0, 1.0), 1.0);
  EXPECT_EQ(MaxOf(std::string("a"), std::string("b")), "b");
}

TEST_F(MthTest, MaxOfAndMinOfEqualValuesGiveTheSecond) {
  EXPECT_EQ(MaxOf(Tagged{1, 'a'}, Tagged{1, 'b'}).tag, 'b');
  EXPECT_EQ(MinOf(Tagged{1, 'a'}, Tagged{1, 'b'}).tag, 'b');
}

TEST_F(MthTest, ClampKeepsTheValueInsideItsBounds) {
  EXPECT_EQ(Clamp(0.5, -1, 1), 0.5);
  EXPECT_EQ(Clamp(7, -1, 1), 1.0);
  EXPECT_EQ(Clamp(-7, -1, 1), -1.0);
  EXPECT_EQ(Clamp(0, 3, 1), 3.0);
}

TEST_F(MthTest, UpTrimRaisesAndTrims) {
  EXPECT_EQ(UpTrim("  max é "), "MAX É");
  EXPECT_EQ(UpTrim("\tmax"), "\tMAX");
  EXPECT_EQ(UpTrim(""), "");
}

TEST_F(MthTest, FormatDegreesShowsThreeDecimalsAndTheSign) {
  EXPECT_EQ(FormatDegrees(0), " 0.000 ° ");
  EXPECT_EQ(FormatDegrees(1234.5678), " 1,234.568 ° ");
  EXPECT_EQ(FormatDegrees(-23.4393), "- 23.439 ° ");
}

TEST_F(FormatSigTest, ZeroHasATextOfItsOwn) {
  EXPECT_EQ(FormatSig(0, 3), " 0. ");
}

TEST_F(FormatSigTest, PlainFormFollowsTheExponent) {
  EXPECT_EQ(FormatSig(1234.5, 3), "1235.  ");  // e 3, unit 1, "0.###"
  EXPECT_EQ(FormatSig(-1234.5, 3), " -1235. ");
  EXPECT_EQ(FormatSig(12345, 3), "12350.  ");      // e 4, unit 10, positions 0 to 4
  EXPECT_EQ(FormatSig(123.45678, 3), "123.5  ");   // e 2, unit 0.1, "#0.##"
  EXPECT_EQ(FormatSig(123.45678, 5), "123.46  ");  // e 2, unit 0.001: 123.457, "###0.##"
  EXPECT_EQ(FormatSig(12.3456, 3), "12.4  ");      // e 1, unit 0.01: 12.35, "##0.#"
}

TEST_F(FormatSigTest, ValuesBelowTenShowNoDecimals) {
  EXPECT_EQ(FormatSig(1.5, 3), "2.  ");   // e 0, "###0."
  EXPECT_EQ(FormatSig(0.05, 3), "0.  ");  // e -2, the lowest plain exponent for n 3, "#####0."
  EXPECT_EQ(FormatSig(-0.05, 3), " -0. ");
}

TEST_F(FormatSigTest, EngineeringFormOutsideThePlainRange) {
  EXPECT_EQ(FormatSig(1e7, 3), "100.E+05  ");          // e 7 - 3 > 1.5; p 1, "##0.#E+00"
  EXPECT_EQ(FormatSig(-12345678, 3), " -123.5E+05 ");  // v 12350000
  EXPECT_EQ(FormatSig(123456, 3), "12.35E+04  ");      // e 5 - 3 = 2 > 1.5; v 123500; p 2, "#0.##E+00"
  EXPECT_EQ(FormatSig(0.001, 3), "1000.E-06  ");       // e -3 < -2.5; p 0, "###0.E+00"
}

TEST_F(FormatSigTest, PlainRangeEndsWhereItIsTold) {
  EXPECT_EQ(FormatSig(999999, 4), "1000000.  ");  // e 5 - 4 = 1 ≤ 2: unit 10, v 1000000, plain
  EXPECT_EQ(FormatSig(0.002, 4), "0.  ");         // e -3 ≥ -3: plain
  EXPECT_EQ(FormatSig(0.0002, 4), "200.E-06  ");  // e -4 < -3; p 2, "##0.##E+00"
}

TEST_F(FormatSigTest, OneFigureAboveItsPlacesStartsAtPositionZero) {
  EXPECT_EQ(FormatSig(1234567e2, 1), "1.2E+08  ");  // e 8, p 2 > n: "0.##E+00"
}

TEST_F(FormatSigTest, EndsOfTheRangeStayNumbers) {
  EXPECT_EQ(FormatSig(1.7976931348623157e308, 3), "17.98E+307  ");
  EXPECT_EQ(FormatSig(5e-324, 3), "5000.E-327  ");
  EXPECT_EQ(FormatSig(kNaN, 3), "NaN");
  EXPECT_EQ(FormatSig(-kInfinity, 3), "-Inf");
}

}  // namespace
}  // namespace quorb
