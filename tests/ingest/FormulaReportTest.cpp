#include "FormulaReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeLoaderWindow.h"
#include "RunState.h"
#include "ScriptedDialogs.h"

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class FormulaReportTest : public testing::Test {
 protected:
  FormulaReportTest() { StartRunState(); }
  ~FormulaReportTest() override { StartRunState(); }

  std::string Text(const std::string& formula) { return ReportFormula(formula, window).text; }

  FakeLoaderWindow window;
  ScriptedDialogs dialogs;
};

TEST_F(FormulaReportTest, TellsScaleTitlesKeywordsAndRanges) {
  const FormulaReport report = ReportFormula(
      "= 0.01 + LEN(\"Transfer kmday yzx moon\") + MAX(A2:C2000) + MAX(D2) + MAX(E2:E30) + MAX(G2:K2000)",
      window);
  EXPECT_TRUE(report.holdsXYZ);
  EXPECT_EQ(report.text,
            "Formula\t= 0.01 + LEN(\"Transfer kmday yzx moon\") + MAX(A2:C2000) + MAX(D2) + MAX(E2:E30) + "
            "MAX(G2:K2000)\n"
            "MainKeyword\tMAX\n"
            "FactorScale\t0.01\n"
            "TitleAsGiven\tTransfer kmday yzx moon\n"
            "Title\tTransfer\n"
            "TimeInSeconds\tFalse\n"
            "LengthInMetres\tFalse\n"
            "InputInKm\tTrue\n"
            "CircularShift\t1\n"
            "Exchange\t0\n"
            "ColumnMode\t0\n"
            "PenUpMode\t0\n"
            "PenUpLabelMode\t0\n"
            "ValColour\t0\n"
            "ValAxis\t3\n"
            "LogoScale\t0\n"
            "QuaterScalarLast\t0\n"
            "MoonFocus\t1\n"
            "FocusBody\t4\n"
            "EMSystem\t0\n"
            "NedInput\t0\n"
            "NedLatitude\t0\n"
            "NedLongitude\t0\n"
            "NedDistance\t0\n"
            "TimeInData\t1\n"
            "rangeXYZ\tA2:C2000\n"
            "rangeXYZ.columns\t1-3\n"
            "rangeXYZ.rows\t2-2000\n"
            "rangeXYZ.time\t\n"
            "rangeT\tD2:D2000\n"
            "rangeT.columns\t4-4\n"
            "rangeT.rows\t2-2000\n"
            "rangeT.time\t\n"
            "rangeEvents\tE2:E30\n"
            "rangeEvents.columns\t5-5\n"
            "rangeEvents.rows\t2-30\n"
            "rangeEvents.time\trangeT\n"
            "rangeQuater\tG2:K2000\n"
            "rangeQuater.columns\t7-11\n"
            "rangeQuater.rows\t2-2000\n"
            "rangeQuater.time\t\n"
            "rangeSApY\t\n"
            "rangeSApY.columns\t\n"
            "rangeSApY.rows\t\n"
            "rangeSApY.time\t\n"
            "rangeSAmY\t\n"
            "rangeSAmY.columns\t\n"
            "rangeSAmY.rows\t\n"
            "rangeSAmY.time\t\n"
            "rangeValZ\t\n"
            "rangeValZ.columns\t\n"
            "rangeValZ.rows\t\n"
            "rangeValZ.time\t\n");
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(FormulaReportTest, TheKeywordIsThatOfTheOptions) {
  window.keyword = " MAXI ";
  EXPECT_THAT(Text("=MAXI(A2:C9)"), HasSubstr("MainKeyword\tMAXI\nFactorScale\t1\n"));
  EXPECT_THAT(Text("=MAX(A2:C9)"), HasSubstr("MainKeyword\tMAX\n"));
}

TEST_F(FormulaReportTest, ARangeWithoutAnEndIsOneRow) {
  EXPECT_THAT(Text("=MAX(A2)"), StartsWith("Formula\t=MAX(A2:C2)\n"));
  EXPECT_THAT(Text("=MAX(A2)"), HasSubstr("rangeXYZ.rows\t2-2\n"));
}

TEST_F(FormulaReportTest, OneRangeForAllIsSplit) {
  const std::string text = Text("=MAX(A2:O2000)+MAX(R2:S9)");
  EXPECT_THAT(text, HasSubstr("rangeXYZ\tA2:C2000\nrangeXYZ.columns\t1-3\n"));
  EXPECT_THAT(text, HasSubstr("rangeSAmY\tN2:O2000\nrangeSAmY.columns\t14-15\n"));
  EXPECT_THAT(text, HasSubstr("rangeValZ\tR2:S9\nrangeValZ.columns\t18-19\n"));
}

TEST_F(FormulaReportTest, LocalFrameTellsItsOrigin) {
  const std::string text = Text("=LEN(\"Pad ned 43.5 1.25 6378000\")+MAX(A2:C9)");
  EXPECT_THAT(text, HasSubstr("NedInput\t1\nNedLatitude\t43.5\nNedLongitude\t1.25\nNedDistance\t6378000\n"));
}

TEST_F(FormulaReportTest, WhatHoldsNoXYZIsTold) {
  for (const char* formula : {"", "no formula", "=MAX()", "=MAX(A:C)", "=MAX(A2:B9)", "=MAX($A$2:$C$9)"})
    EXPECT_FALSE(ReportFormula(formula, window).holdsXYZ) << formula;
  EXPECT_EQ(dialogs.boxes.size(), 2U);
}

}  // namespace
}  // namespace quorb
