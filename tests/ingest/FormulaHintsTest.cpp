#include "FormulaHints.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "RunState.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> HintsOf(const std::string& formula) {
  MainKeyword = "MAX";
  const SpecificationText specification = Extraction_info(formula, "");
  return FormulaHints(formula, specification);
}

TEST(FormulaHints, AGoodFormulaHasNone) {
  EXPECT_THAT(HintsOf("= 0.01 + LEN(\"Title kmday\") + MAX(A2:C2000) + MAX( d2 ) + MAX(E2:F30)"), IsEmpty());
}

TEST(FormulaHints, DollarsAreToldWithTheRangeToWrite) {
  EXPECT_THAT(HintsOf("=MAX($A$2:$C$9)"),
              ElementsAre("rangeXYZ: \"$A$2:$C$9\" holds \"$\", which is not read; write A2:C9."));
}

TEST(FormulaHints, ATextThatIsNoRangeIsTold) {
  for (const char* range : {"A:C", "A02:C9", "AAA2:AAC9", "A0:C9", "2A:9C", "A2:C9:D9", "A2:"}) {
    EXPECT_THAT(HintsOf("=MAX(A2:C9)+MAX(" + std::string(range) + ")"),
                ElementsAre("rangeT: \"" + std::string(range) + "\" is no range such as A2:C2000."));
  }
}

TEST(FormulaHints, AFormulaWithoutTheKeywordIsTold) {
  EXPECT_THAT(HintsOf("=max(A2:C9)"),
              ElementsAre("The formula has no \"MAX(\", in capitals, which marks a range; write for instance "
                          "MAX(A2:C2000)."));
}

TEST(FormulaHints, AFormulaWithoutItsSignIsTold) {
  EXPECT_THAT(HintsOf("0.01 + MAX(A2:C9)"), ElementsAre("The formula has no \"=\" at its head."));
}

TEST(FormulaHints, AQuoteWithoutAPartnerIsTold) {
  EXPECT_THAT(HintsOf("=LEN(\"Title)+MAX(A2:C9)"),
              ElementsAre("A double quote of the formula has no partner."));
}

TEST(FormulaHints, ABracketWithoutAPartnerIsTold) {
  EXPECT_THAT(HintsOf("=MAX(A2:C9)+MAX(D2:D9"), ElementsAre("The formula has not as many \")\" as \"(\"."));
}

TEST(FormulaHints, TheKeywordInsideTheTitleIsTold) {
  EXPECT_THAT(
      HintsOf("=LEN(\"MAXI\")+MAX(A2:C9)"),
      testing::Contains("The title holds \"MAX\", which is taken for the first term; write it otherwise."));
}

TEST(FormulaHints, ARangeThatEndsAboveItsStartIsTold) {
  EXPECT_THAT(HintsOf("=MAX(A5:C2)"), ElementsAre("rangeXYZ: \"A5:C2\" ends above its first row."));
}

TEST(FormulaHints, TermsThatHaveNoMeaningAreTold) {
  std::string formula = "=1";
  for (int term = 0; term < 8; ++term)
    formula += "+MAX(A2:C9)";
  EXPECT_THAT(HintsOf(formula),
              ElementsAre("The formula has 8 terms with \"MAX\"; those behind the seventh are not read."));
}

}  // namespace
}  // namespace quorb
