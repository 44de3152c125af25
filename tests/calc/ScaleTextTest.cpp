#include "ScaleText.h"

#include <gtest/gtest.h>

#include "FixedRegion.h"
#include "Specification.h"

namespace quorb {
namespace {

double ScaleOf(const std::string& formula) {
  return Extraction_info(WithReadableScale(formula), "").scale;
}

TEST(ScaleText, AHalfIsAHalfWhereThePointIsAThousandsMark) {
  const FixedRegion german(",", ".");
  EXPECT_EQ(WithReadableScale("=0.5+MAX(A2:C4)"), "=5E-1+MAX(A2:C4)");
  EXPECT_EQ(ScaleOf("=0.5+MAX(A2:C4)"), 0.5);
  EXPECT_EQ(ScaleOf("= 0.001 + LEN(\"a, b, c 1.5\")+MAX(A2:C4)"), 0.001);
  EXPECT_EQ(ScaleOf("=-2.25E-3+MAX(A2:C4)"), -0.00225);
  EXPECT_EQ(ScaleOf("=1234.5E+2+MAX(A2:C4)"), 123450);
  EXPECT_EQ(ScaleOf("=.25+MAX(A2:C4)"), 0.25);
}

TEST(ScaleText, AnExponentBeyondAnyNumberStaysBeyondAnyNumber) {
  const FixedRegion german(",", ".");
  EXPECT_EQ(WithReadableScale("=0.5E99999999999999999999+MAX(A2:C4)"), "=5E9998+MAX(A2:C4)");
  EXPECT_EQ(WithReadableScale("=0.5E-99999999999999999999+MAX(A2:C4)"), "=5E-10000+MAX(A2:C4)");
}

TEST(ScaleText, OtherHeadsStayAsTheyAre) {
  const FixedRegion german(",", ".");
  for (const char* formula : {"=MAX(A2:C4)", "=5+MAX(A2:C4)", "=5.+MAX(A2:C4)", "=LEN(\"1.5\")+MAX(A2:C4)",
                              "1.5", "", "=", "= ", "='Sheet 1.5'.A1", "=A1+0.5+MAX(A2:C4)"})
    EXPECT_EQ(WithReadableScale(formula), formula);
}

TEST(ScaleText, ANumberOfNoughtsIsANought) {
  const FixedRegion german(",", ".");
  EXPECT_EQ(WithReadableScale("=0.00+MAX(A2:C4)"), "=0E-2+MAX(A2:C4)");
  EXPECT_EQ(ScaleOf("=0.00+MAX(A2:C4)"), 1) << "a scale of 0 is replaced by 1";
}

TEST(ScaleText, WhereThePointIsTheDecimalMarkOrNoneNothingChanges) {
  const FixedRegion english(".", ",");
  EXPECT_EQ(WithReadableScale("=0.5+MAX(A2:C4)"), "=0.5+MAX(A2:C4)");
  const FixedRegion french(",", " ");
  EXPECT_EQ(WithReadableScale("=0.5+MAX(A2:C4)"), "=0.5+MAX(A2:C4)");
}

}  // namespace
}  // namespace quorb
