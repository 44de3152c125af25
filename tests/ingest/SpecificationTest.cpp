#include "Specification.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "NumberText.h"
#include "RunState.h"

namespace quorb {
namespace {

class SpecificationTest : public ::testing::Test {
 protected:
  SpecificationTest() {
    SetRegionalSettings(nullptr);
    MainKeyword = "MAX";
  }
  ~SpecificationTest() override { MainKeyword = "MAX"; }
};

SpecificationText Read(std::string_view formula) {
  return Extraction_info(formula, "");
}

std::vector<std::string> Ranges(const SpecificationText& text) {
  return {text.rangeXYZ,  text.rangeT,    text.rangeEvents, text.rangeQuater,
          text.rangeSApY, text.rangeSAmY, text.rangeValZ};
}

const std::vector<std::string> kNoRanges(7);

// ---- defaults and failures --------------------------------------------------------------------------------

TEST_F(SpecificationTest, AnEmptyFormulaGivesAllDefaults) {
  const SpecificationText text = Read("");
  EXPECT_EQ(text.scale, 1.0);
  EXPECT_EQ(text.title, "QuorbExcelPro");
  EXPECT_EQ(Ranges(text), kNoRanges);
  EXPECT_FALSE(text.hasTitle);
  EXPECT_FALSE(text.hasScale);
}

TEST_F(SpecificationTest, AFormulaOfOneRangeGivesScaleOneAndTheDefaultTitle) {
  const SpecificationText text = Read("=MAX(A2:C60)");
  EXPECT_EQ(text.scale, 1.0);
  EXPECT_EQ(text.title, "QuorbExcelPro");
  EXPECT_EQ(text.rangeXYZ, "A2:C60");
  EXPECT_EQ(text.rangeT, "");
  EXPECT_FALSE(text.hasTitle);
  EXPECT_FALSE(text.hasScale);
}

TEST_F(SpecificationTest, ScaleTitleAndRangesAreRead) {
  const SpecificationText text = Read("=0.01+LEN(\"Transfer kmday\")+MAX(A2:C2000)+MAX(D2:D2000)");
  EXPECT_EQ(text.scale, 0.01);
  EXPECT_EQ(text.title, "Transfer kmday");
  EXPECT_EQ(text.rangeXYZ, "A2:C2000");
  EXPECT_EQ(text.rangeT, "D2:D2000");
  EXPECT_EQ(text.rangeEvents, "");
  EXPECT_TRUE(text.hasTitle);
  EXPECT_TRUE(text.hasScale);
}

TEST_F(SpecificationTest, AKeywordThatIsNowhereFallsBackToMax) {
  MainKeyword = "SUM";
  EXPECT_EQ(Read("=2+MAX(A2:C60)").rangeXYZ, "A2:C60");
  EXPECT_EQ(MainKeyword, "MAX");
}

TEST_F(SpecificationTest, WithoutTheFallbackAllRangesStayEmpty) {
  MainKeyword = "SUM";
  const SpecificationText text = Read("=2+LEN(\"Title\")+MIN(A2:C60)");
  EXPECT_EQ(Ranges(text), kNoRanges);
  EXPECT_EQ(MainKeyword, "MAX");
  EXPECT_EQ(text.title, "Title");
}

TEST_F(SpecificationTest, AnEmptyKeywordFallsBackToMax) {
  MainKeyword = "";
  EXPECT_EQ(Read("=2+LEN(\"T\")+MAX(A2:C60)").rangeXYZ, "A2:C60");
  EXPECT_EQ(MainKeyword, "MAX");
}

TEST_F(SpecificationTest, AFirstQuoteWithoutPartnerGivesTheDefaultTitle) {
  const SpecificationText text = Read("=1+LEN(\"Title)+MAX(A2:C60)");
  EXPECT_EQ(text.title, "QuorbExcelPro");
  EXPECT_FALSE(text.hasTitle);
}

TEST_F(SpecificationTest, TwoQuotesOnlyGiveAnEmptyTitle) {
  const SpecificationText text = Extraction_info("=1+LEN(\"\")+MAX(A2:C60)", " tail");
  EXPECT_EQ(text.title, "");
  EXPECT_TRUE(text.hasTitle);
}

TEST_F(SpecificationTest, AScaleThatIsNoNumberIsOne) {
  const SpecificationText text = Read("=scale+MAX(A2:C60)");
  EXPECT_EQ(text.scale, 1.0);
  EXPECT_FALSE(text.hasScale);
}

TEST_F(SpecificationTest, AScaleOfZeroIsOne) {
  const SpecificationText text = Read("=0.000+MAX(A2:C60)");
  EXPECT_EQ(text.scale, 1.0);
  EXPECT_FALSE(text.hasScale);
}

// ---- ranges -----------------------------------------------------------------------------------------------

TEST_F(SpecificationTest, SevenTermsGoToTheirRanksAndTheEighthIsIgnored) {
  const SpecificationText text =
      Read("=1+MAX(A2:C9)+MAX(D2:D9)+MAX(E2:F9)+MAX(G2:K9)+MAX(L2:M9)+MAX(N2:O9)+MAX(P2:Q9)+MAX(R2:S9)");
  const std::vector<std::string> expected = {"A2:C9", "D2:D9", "E2:F9", "G2:K9", "L2:M9", "N2:O9", "P2:Q9"};
  EXPECT_EQ(Ranges(text), expected);
}

TEST_F(SpecificationTest, ATermWithoutBracketsIsEmpty) {
  EXPECT_EQ(Ranges(Read("=1+MAX")), kNoRanges);
  EXPECT_EQ(Ranges(Read("=1+MAX(A2:C9")), kNoRanges);
  EXPECT_EQ(Ranges(Read("=1+MAX A2:C9)")), kNoRanges);
}

TEST_F(SpecificationTest, ATermWhoseBracketsDoNotPairIsEmptyAndKeepsItsRank) {
  // Behind the keyword in the title the first ")" stands before the first "(".
  const SpecificationText text = Read("=1+LEN(\"MAX\")+MAX(A2:C9)");
  EXPECT_EQ(text.rangeXYZ, "");
  EXPECT_EQ(text.rangeT, "A2:C9");
}

TEST_F(SpecificationTest, ATermWithoutBracketsOfItsOwnTakesTheNextPair) {
  const SpecificationText text = Read("=1+MAX+MAX(A2:C9)");
  EXPECT_EQ(text.rangeXYZ, "A2:C9");
  EXPECT_EQ(text.rangeT, "A2:C9");
  EXPECT_EQ(text.rangeEvents, "");
}

TEST_F(SpecificationTest, EmptyBracketsGiveAnEmptyRangeThatKeepsItsRank) {
  const SpecificationText text = Read("=1+MAX()+MAX(D2:D9)");
  EXPECT_EQ(text.rangeXYZ, "");
  EXPECT_EQ(text.rangeT, "D2:D9");
}

TEST_F(SpecificationTest, RangeTextsAreKeptUntrimmed) {
  EXPECT_EQ(Read("=1+MAX( $A$2 : C9 )").rangeXYZ, " $A$2 : C9 ");
}

TEST_F(SpecificationTest, ARangeEndsAtTheFirstClosingBracket) {
  EXPECT_EQ(Read("=1+MAX(OFFSET(A2;1;1))").rangeXYZ, "OFFSET(A2;1;1");
}

TEST_F(SpecificationTest, TheKeywordIsCaseSensitive) {
  const SpecificationText text = Read("=2+max(A2:C9)+MAX(D2:D9)");
  EXPECT_EQ(text.rangeXYZ, "D2:D9");
  EXPECT_EQ(text.rangeT, "");
}

TEST_F(SpecificationTest, AnotherKeywordMarksTheRanges) {
  MainKeyword = "MAXIMUM";
  const SpecificationText text = Read("=3+MAX(A2:C9)+MAXIMUM(D2:D9)");
  EXPECT_EQ(text.rangeXYZ, "D2:D9");
  EXPECT_EQ(text.rangeT, "");
  EXPECT_EQ(MainKeyword, "MAXIMUM");
}

TEST_F(SpecificationTest, TheNextKeywordIsLookedForFromTheNextCharacter) {
  MainKeyword = "MM";
  const SpecificationText text = Read("=1+MMM(A2:C9)");
  EXPECT_EQ(text.rangeXYZ, "A2:C9");
  EXPECT_EQ(text.rangeT, "A2:C9");
  EXPECT_EQ(text.rangeEvents, "");
}

TEST_F(SpecificationTest, RangesAreReadWithoutAnEqualsSign) {
  EXPECT_EQ(Read("5+MAX(A2:C9)").rangeXYZ, "A2:C9");
}

// ---- title ------------------------------------------------------------------------------------------------

TEST_F(SpecificationTest, TheTailFollowsTheTitle) {
  EXPECT_EQ(Extraction_info("=1+LEN(\"Orbit \")+MAX(A2:C9)", "B3").title, "Orbit B3");
}

TEST_F(SpecificationTest, TheTailDoesNotFollowTheDefaultTitle) {
  EXPECT_EQ(Extraction_info("=1+MAX(A2:C9)", "B3").title, "QuorbExcelPro");
}

TEST_F(SpecificationTest, DoubledQuotesOfAQuotedHeaderAreAccepted) {
  const SpecificationText text = Extraction_info("=0.5+LEN(\"\"Orbit\"\")+MAX(A2:C9)\"", " B3");
  EXPECT_EQ(text.title, "Orbit B3");
  EXPECT_EQ(text.scale, 0.5);
  EXPECT_EQ(text.rangeXYZ, "A2:C9");
}

TEST_F(SpecificationTest, AnEmptyTitleInDoubledQuotesTakesTheTail) {
  const SpecificationText text = Extraction_info("=1+LEN(\"\"\"\")+MAX(A2:C9)", "B3");
  EXPECT_EQ(text.title, "B3");
  EXPECT_TRUE(text.hasTitle);
}

TEST_F(SpecificationTest, TheClosingQuoteOfAQuotedHeaderAloneGivesNoTitle) {
  const SpecificationText text = Read("=MAX(A2:C9)\"");
  EXPECT_EQ(text.title, "QuorbExcelPro");
  EXPECT_FALSE(text.hasTitle);
}

TEST_F(SpecificationTest, OnlyTheFirstPairOfQuotesIsTheTitle) {
  EXPECT_EQ(Read("=1+LEN(\"Orbit \"&\"view\")+MAX(A2:C9)").title, "Orbit ");
}

// ---- scale ------------------------------------------------------------------------------------------------

TEST_F(SpecificationTest, BlanksBeforeTheScaleAreDropped) {
  EXPECT_EQ(Read("= 0.01 + LEN(\"MyTitle kmday\") + MAX(A2:C2000)").scale, 0.01);
  EXPECT_EQ(Read("= 1 000 + MAX(A2:C2000)").scale, 1000.0);
}

TEST_F(SpecificationTest, ADecimalCommaIsReadInTheScale) {
  EXPECT_EQ(Read("=0,25+LEN(\"Orbit\")+MAX(A2:C9)").scale, 0.25);
  EXPECT_EQ(Read("=0,5+MAX(A2:C9)").scale, 0.5);
}

TEST_F(SpecificationTest,
       AScaleCommaWithThreeCharactersBehindItIsAThousandsMarkUnlessTheMachineSaysOtherwise) {
  EXPECT_EQ(Read("=0,25+MAX(A2:C9)").scale, 25.0);
}

TEST_F(SpecificationTest, ANegativeScaleIsKept) {
  EXPECT_EQ(Read("=-2+MAX(A2:C9)").scale, -2.0);
}

TEST_F(SpecificationTest, WithoutAnEqualsSignTheScaleIsOne) {
  const SpecificationText text = Read("5+MAX(A2:C9)");
  EXPECT_EQ(text.scale, 1.0);
  EXPECT_FALSE(text.hasScale);
}

TEST_F(SpecificationTest, WithoutAKeywordBehindTheEqualsSignTheScaleIsOne) {
  const SpecificationText text = Read("MAX(A2:C9)=5");
  EXPECT_EQ(text.scale, 1.0);
  EXPECT_FALSE(text.hasScale);
  EXPECT_EQ(text.rangeXYZ, "A2:C9");
  EXPECT_EQ(Read("=5").scale, 1.0);
}

TEST_F(SpecificationTest, TheScaleStandsBeforeTheKeywordThatItFellBackTo) {
  MainKeyword = "SUM";
  EXPECT_EQ(Read("=7+MAX(A2:C9)").scale, 7.0);
}

TEST_F(SpecificationTest, AScaleBeyondADoubleIsOne) {
  EXPECT_EQ(Read("=1e400+MAX(A2:C9)").scale, 1.0);
}

// ---- properties -------------------------------------------------------------------------------------------

template <typename Choices>
const auto& Pick(std::mt19937& random, const Choices& choices) {
  return choices[random() % choices.size()];
}

TEST_F(SpecificationTest, AnyFormulaGivesAScaleAndRangesWithoutClosingBrackets) {
  const std::vector<std::string> pieces = {
      "=", "MAX",  "MA", "(", ")",   "\"", "\"\"", "+", "LEN(", "0.01", "1e99", ",", "A2:",   "$C$10", "\t",
      "é", "\xA0", " ",  "&", "max", "-",  "E",    ".", "NaN",  "0",    "inf",  ";", "\x01x", "MMAX",  "X"};
  const std::vector<std::string> keywords = {"MAX", "", "(", "\"", "=", "X", "é"};
  std::mt19937 random(20);
  for (int run = 0; run < 20000; ++run) {
    std::string formula;
    for (auto length = random() % 40; length > 0; --length)
      formula += Pick(random, pieces);
    MainKeyword = Pick(random, keywords);
    const SpecificationText text = Extraction_info(formula, Pick(random, pieces));
    ASSERT_NE(text.scale, 0.0) << formula;
    ASSERT_EQ(text.scale, text.scale) << formula;
    ASSERT_FALSE(MainKeyword.empty());
    for (const std::string& range : Ranges(text))
      ASSERT_EQ(range.find(')'), std::string::npos) << formula;
  }
}

std::string Formula(double scale, const std::string& title, const std::vector<std::string>& ranges) {
  std::array<char, 40> number{};
  std::snprintf(number.data(), number.size(), "%.17g", scale);
  std::string formula = std::string("=") + number.data() + "+LEN(\"" + title + "\")";
  for (const std::string& range : ranges)
    formula += "+MAX(" + range + ")";
  return formula;
}

TEST_F(SpecificationTest, AFormulaPrintedFromItsPartsGivesTheSameParts) {
  const std::vector<std::string> letters = {"a", "Z", "1", " ", ":", "$", "é", "A", "M", ";"};
  std::mt19937 random(21);
  std::uniform_real_distribution<double> mantissa(0.1, 10.0);
  for (int run = 0; run < 5000; ++run) {
    const auto word = [&] {
      std::string result = "o";  // so that a title's quotes are no doubled ones
      for (auto length = random() % 12; length > 0; --length)
        result += Pick(random, letters);
      return result;
    };
    const double scale = mantissa(random) * (random() % 2 == 0 ? 1.0 : 1e-7);
    const std::string title = word();
    std::vector<std::string> ranges(7);
    for (std::string& range : ranges) {
      if (random() % 4 != 0) range = word();
    }

    const SpecificationText once = Read(Formula(scale, title, ranges));
    ASSERT_EQ(once.scale, scale);
    ASSERT_EQ(once.title, title);
    ASSERT_EQ(Ranges(once), ranges);

    const SpecificationText twice = Read(Formula(once.scale, once.title, Ranges(once)));
    ASSERT_EQ(twice.scale, once.scale);
    ASSERT_EQ(twice.title, once.title);
    ASSERT_EQ(Ranges(twice), Ranges(once));
  }
}

}  // namespace
}  // namespace quorb
