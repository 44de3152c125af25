#include "NumberPicture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

namespace quorb {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(FormatPictureTest, DigitsOneToFiveStandInTheKeyPictures) {
  EXPECT_EQ(FormatPicture(1, "00.00"), "01.00");
  EXPECT_EQ(FormatPicture(1, "01.00"), "11.00");
  EXPECT_EQ(FormatPicture(1, "02.00"), "12.00");
  EXPECT_EQ(FormatPicture(1, "03.00"), "13.00");
  EXPECT_EQ(FormatPicture(1, "04.00"), "14.00");
  EXPECT_EQ(FormatPicture(1, "05.00"), "15.00");
}

TEST(FormatPictureTest, SlotNumbersGrowBeyondTheirPlaces) {
  EXPECT_EQ(FormatPicture(0, "00.00"), "00.00");
  EXPECT_EQ(FormatPicture(7, "00.00"), "07.00");
  EXPECT_EQ(FormatPicture(42, "00.00"), "42.00");
  EXPECT_EQ(FormatPicture(100, "00.00"), "100.00");
}

TEST(FormatPictureTest, VersionPartsArePadded) {
  EXPECT_EQ(FormatPicture(2, "000") + FormatPicture(8, "000") + FormatPicture(6, "000"), "002008006");
  EXPECT_EQ(FormatPicture(1234, "000"), "1234");
}

TEST(FormatPictureTest, WholeNumbers) {
  EXPECT_EQ(FormatPicture(0, "#"), "");
  EXPECT_EQ(FormatPicture(12, "#"), "12");
  EXPECT_EQ(FormatPicture(0, "#0"), "0");
  EXPECT_EQ(FormatPicture(300, "#0"), "300");
  EXPECT_EQ(FormatPicture(0, " #0"), " 0");
  EXPECT_EQ(FormatPicture(1048576, " #0"), " 1048576");
  EXPECT_EQ(FormatPicture(0, " 0. "), " 0. ");
}

TEST(FormatPictureTest, OptionalDecimals) {
  EXPECT_EQ(FormatPicture(0.5, "#.##"), ".5");
  EXPECT_EQ(FormatPicture(2, "#.##"), "2.");
  EXPECT_EQ(FormatPicture(0, "#.##"), ".");
  EXPECT_EQ(FormatPicture(12.345, "#.##"), "12.35");
  EXPECT_EQ(FormatPicture(0.05, "#.##"), ".05");
  EXPECT_EQ(FormatPicture(0.004, "#.##"), ".");
}

TEST(FormatPictureTest, DataCells) {
  EXPECT_EQ(FormatPicture(0, "0.0000000000"), "0.0000000000");
  EXPECT_EQ(FormatPicture(7000000, "0.0000000000"), "7000000.0000000000");
  EXPECT_EQ(FormatPicture(-1.5, "0.0000000000"), "-1.5000000000");
  EXPECT_EQ(FormatPicture(0.12345678905, "0.0000000000"), "0.1234567891");
  EXPECT_EQ(FormatPicture(0.01, "#0.0000000000"), "0.0100000000");
  EXPECT_EQ(FormatPicture(12.25, "#0.0000000000"), "12.2500000000");
}

TEST(FormatPictureTest, TimesKeepEveryBitThroughSeventeenDecimals) {
  EXPECT_EQ(FormatPicture(1.0 / 3.0, "#0.00000000000000000"), "0.33333333333333330");
  std::mt19937_64 random(20);
  std::uniform_real_distribution<double> serialDay(1.0, 60000.0);
  for (int i = 0; i < 2000; ++i) {
    const double day = serialDay(random);
    EXPECT_EQ(std::strtod(FormatPicture(day, "#0.00000000000000000").c_str(), nullptr), day);
  }
}

TEST(FormatPictureTest, RoundsHalfAwayFromZero) {
  EXPECT_EQ(FormatPicture(0.5, "#0"), "1");
  EXPECT_EQ(FormatPicture(1.5, "#0"), "2");
  EXPECT_EQ(FormatPicture(2.5, "#0"), "3");
  EXPECT_EQ(FormatPicture(-2.5, "#0"), "-3");
  EXPECT_EQ(FormatPicture(0.125, "#0.00"), "0.13");
  EXPECT_EQ(FormatPicture(2.675, "#.##"), "2.68");
  EXPECT_EQ(FormatPicture(0.49999999999999994, "#0"), "0");
  EXPECT_EQ(FormatPicture(0.05, "#0"), "0");
}

TEST(FormatPictureTest, RoundingCarriesThroughNines) {
  EXPECT_EQ(FormatPicture(9.995, "#.##"), "10.");
  EXPECT_EQ(FormatPicture(99.96, "#0.0"), "100.0");
  EXPECT_EQ(FormatPicture(0.96, "#0.0"), "1.0");
  EXPECT_EQ(FormatPicture(1.996, "#0.00"), "2.00");
}

TEST(FormatPictureTest, LargeAndSmallValues) {
  EXPECT_EQ(FormatPicture(1e22, "#0"), "10000000000000000000000");
  EXPECT_EQ(FormatPicture(9007199254740993.0, "#0.0"), "9007199254740992.0");
  EXPECT_EQ(FormatPicture(1.5e300, "#").size(), 301U);
  EXPECT_EQ(FormatPicture(5e-324, "0.0000000000"), "0.0000000000");
}

TEST(FormatPictureTest, FileLengthGroupsKeepTheirBlanks) {
  EXPECT_EQ(FormatPicture(0, "# ### ### ###"), "   ");
  EXPECT_EQ(FormatPicture(123, "# ### ### ###"), "   123");
  EXPECT_EQ(FormatPicture(4567, "# ### ### ###"), "  4 567");
  EXPECT_EQ(FormatPicture(1234567, "# ### ### ###"), " 1 234 567");
  EXPECT_EQ(FormatPicture(1234567890, "# ### ### ###"), "1 234 567 890");
  EXPECT_EQ(FormatPicture(12345678901, "# ### ### ###"), "12 345 678 901");
}

TEST(FormatPictureTest, CommaGroupsThousandsAndBackslashEscapes) {
  EXPECT_EQ(FormatPicture(0, " #,##0.000 \\° "), " 0.000 ° ");
  EXPECT_EQ(FormatPicture(123.4567, " #,##0.000 \\° "), " 123.457 ° ");
  EXPECT_EQ(FormatPicture(1234.5, " #,##0.000 \\° "), " 1,234.500 ° ");
  EXPECT_EQ(FormatPicture(1234567, " #,##0.000 \\° "), " 1,234,567.000 ° ");
  EXPECT_EQ(FormatPicture(999999.9996, " #,##0.000 \\° "), " 1,000,000.000 ° ");
  EXPECT_EQ(FormatPicture(5, "0\\0\\#\\;\\\\"), "50#;\\");
  EXPECT_EQ(FormatPicture(5, "0\\"), "5");
}

TEST(FormatPictureTest, ScientificFillsThePlacesInFrontOfThePoint) {
  EXPECT_EQ(FormatPicture(4.5e-16, "##0.0E+00"), "450.0E-18");
  EXPECT_EQ(FormatPicture(-4.440892098500626e-16, "##0.0E+00"), "-444.1E-18");
  EXPECT_EQ(FormatPicture(1, "##0.0E+00"), "100.0E-02");
  EXPECT_EQ(FormatPicture(123456, "##0.0E+00"), "123.5E+03");
  EXPECT_EQ(FormatPicture(999.96, "##0.0E+00"), "100.0E+01");
  EXPECT_EQ(FormatPicture(0, "##0.0E+00"), "0.0E+00");
  EXPECT_EQ(FormatPicture(1e300, "0.#E+00"), "1.E+300");
}

TEST(FormatPictureTest, MinusGoesInFrontOfTheWholeText) {
  EXPECT_EQ(FormatPicture(-3, " #0"), "- 3");
  EXPECT_EQ(FormatPicture(-0.5, "#.##"), "-.5");
}

TEST(FormatPictureTest, NoMinusWhereOnlyZerosShow) {
  EXPECT_EQ(FormatPicture(-0.0, "#0"), "0");
  EXPECT_EQ(FormatPicture(-0.001, "#0.00"), "0.00");
  EXPECT_EQ(FormatPicture(-0.4, "#"), "");
}

TEST(FormatPictureTest, SecondSectionServesNegativesWithItsOwnMinus) {
  EXPECT_EQ(FormatPicture(1235, "0.###  ; -0.### "), "1235.  ");
  EXPECT_EQ(FormatPicture(-1235, "0.###  ; -0.### "), " -1235. ");
  EXPECT_EQ(FormatPicture(0, "0.###  ; -0.### "), "0.  ");
  EXPECT_EQ(FormatPicture(-1.25e7, "##0.#E+00  ; -##0.#E+00 "), " -125.E+05 ");
  EXPECT_EQ(FormatPicture(-0.2, "#0;(#0)"), "(0)");
}

TEST(FormatPictureTest, WhatIsNoNumberGivesItsName) {
  EXPECT_EQ(FormatPicture(kNaN, "0.0"), "NaN");
  EXPECT_EQ(FormatPicture(-kInfinity, "0.0;-0.0"), "-Inf");
}

TEST(GeneralNumberTest, WholeAndDecimal) {
  EXPECT_EQ(GeneralNumber(0), "0");
  EXPECT_EQ(GeneralNumber(-0.0), "0");
  EXPECT_EQ(GeneralNumber(1), "1");
  EXPECT_EQ(GeneralNumber(-12.5), "-12.5");
  EXPECT_EQ(GeneralNumber(0.5), "0.5");
  EXPECT_EQ(GeneralNumber(1200), "1200");
  EXPECT_EQ(GeneralNumber(1.1), "1.1");
}

TEST(GeneralNumberTest, FifteenSignificantDigits) {
  EXPECT_EQ(GeneralNumber(1.0 / 3.0), "0.333333333333333");
  EXPECT_EQ(GeneralNumber(0.1 + 0.2), "0.3");
  EXPECT_EQ(GeneralNumber(123456789012345.0), "123456789012345");
}

TEST(GeneralNumberTest, ExponentOutsideTheRange) {
  EXPECT_EQ(GeneralNumber(0.0001), "0.0001");
  EXPECT_EQ(GeneralNumber(0.00015), "0.00015");
  EXPECT_EQ(GeneralNumber(0.00001), "1E-05");
  EXPECT_EQ(GeneralNumber(1.5e-7), "1.5E-07");
  EXPECT_EQ(GeneralNumber(100000000000000.0), "100000000000000");
  EXPECT_EQ(GeneralNumber(999999999999999.9), "1E+15");
  EXPECT_EQ(GeneralNumber(1e15), "1E+15");
  EXPECT_EQ(GeneralNumber(-1.25e300), "-1.25E+300");
  EXPECT_EQ(GeneralNumber(5e-324), "4.94065645841247E-324");
}

TEST(GeneralNumberTest, WhatIsNoNumber) {
  EXPECT_EQ(GeneralNumber(kNaN), "NaN");
  EXPECT_EQ(GeneralNumber(kInfinity), "Inf");
  EXPECT_EQ(GeneralNumber(-kInfinity), "-Inf");
}

}  // namespace
}  // namespace quorb
