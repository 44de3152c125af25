// Random formulas and ranges, the same in every run: what is read, written and read again is the same, and
// nothing that can be typed does harm.

#include <gtest/gtest.h>

#include <cctype>
#include <cstdio>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "CellRange.h"
#include "FakeLoaderWindow.h"
#include "FormulaReport.h"
#include "MemorySheet.h"
#include "NumberText.h"
#include "PrintRange.h"
#include "RangeAnalysis.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "Specification.h"

namespace quorb {

namespace {

constexpr int kRounds = 3000;
constexpr int kLastRow = 999999999;

class FormulaPropertyTest : public testing::Test {
 protected:
  FormulaPropertyTest() {
    SetRegionalSettings(nullptr);
    StartRunState();
  }
  ~FormulaPropertyTest() override { StartRunState(); }

  int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
  bool Coin() { return Below(2) == 0; }
  std::string OneOf(const std::vector<std::string>& texts) {
    return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
  }
  std::string SomeOf(const std::vector<std::string>& pieces, int longest) {
    std::string text;
    for (int count = Below(longest + 1); count > 0; --count)
      text += OneOf(pieces);
    return text;
  }

  int RandomRow() { return Coin() ? 1 + Below(3000) : Below(kLastRow) + 1; }

  RangeNumbers RandomRange() {
    const RangeNumbers cell = {1 + Below(256), 0, RandomRow(), 0};
    if (Below(4) == 0) return cell;
    return {cell.Ncol1, 1 + Below(256), cell.num1, RandomRow()};
  }

  ScriptedDialogs dialogs;
  FakeLoaderWindow window;

 private:
  std::mt19937 random_{20250601};
};

// ---- formulas ---------------------------------------------------------------------------------------------

std::vector<std::string> Ranges(const SpecificationText& text) {
  return {text.rangeXYZ,  text.rangeT,    text.rangeEvents, text.rangeQuater,
          text.rangeSApY, text.rangeSAmY, text.rangeValZ};
}

std::string ScaleText(double scale) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.17g", scale);
  return digits;
}

/// A formula that says what `text` says: the first range, and all up to the last one that is not empty.
std::string Printed(const SpecificationText& text) {
  std::string formula = "=";
  if (text.hasScale) formula += ScaleText(text.scale) + "+";
  if (text.hasTitle) formula += "LEN(\"" + text.title + "\")";
  std::string terms;
  std::string written;
  for (const std::string& range : Ranges(text)) {
    terms += "+" + MainKeyword + "(" + range + ")";
    if (written.empty() || !range.empty()) written = terms;
  }
  return formula + written;
}

void ExpectSame(const SpecificationText& first, const SpecificationText& second, const std::string& formula) {
  EXPECT_EQ(first.scale, second.scale) << formula;
  EXPECT_EQ(first.title, second.title) << formula;
  EXPECT_EQ(first.hasScale, second.hasScale) << formula;
  EXPECT_EQ(first.hasTitle, second.hasTitle) << formula;
  EXPECT_EQ(Ranges(first), Ranges(second)) << formula;
}

TEST_F(FormulaPropertyTest, AFormulaSaysTheSameWhenItIsReadWrittenAndRead) {
  const std::vector<std::string> words = {"Transfer", "kmday", "yzx", " ", "(", ")", "=", "é", "+", "2"};
  for (int round = 0; round < kRounds; ++round) {
    MainKeyword = OneOf({"MAX", "MAXI", "макс", "SUM"});
    SpecificationText given;
    given.hasScale = Coin();
    if (given.hasScale) given.scale = (1 + Below(1000000)) / 1024.0 * (Coin() ? 1 : -1e-9);
    given.hasTitle = Coin();
    if (given.hasTitle) given.title = "T" + SomeOf(words, 8);
    given.rangeXYZ = RangeText(RandomRange());
    for (std::string* range : {&given.rangeT, &given.rangeEvents, &given.rangeQuater, &given.rangeSApY,
                               &given.rangeSAmY, &given.rangeValZ}) {
      if (Coin()) *range = RangeText(RandomRange());
    }
    const std::string formula = Printed(given);
    const SpecificationText read = Extraction_info(formula, "");
    ExpectSame(given, read, formula);
    EXPECT_EQ(Printed(read), formula);
  }
}

bool HoldsAny(const std::string& text, std::initializer_list<const char*> pieces) {
  for (const char* piece : pieces) {
    if (text.find(piece) != std::string::npos) return true;
  }
  return false;
}

bool CanBePrinted(const SpecificationText& text) {
  if (HoldsAny(text.title, {"MAX"}) || (text.hasTitle && text.title.empty())) return false;
  for (const std::string& range : Ranges(text)) {
    if (HoldsAny(range, {"MAX", "\""})) return false;
  }
  return true;
}

TEST_F(FormulaPropertyTest, WhateverIsTypedIsReadAndSaysTheSameOnceItIsWritten) {
  const std::vector<std::string> pieces = {"MAX",  "MAX(", ")", "(",  "\"",  "\"\"", "=",          "0.01",
                                           "+",    "A2",   ":", "C9", "LEN", " ",    "$",          "é",
                                           "\xFF", "-1e3", ",", "MA", "\t",  "T",    "MAX(B2:D20)"};
  int printed = 0;
  for (int round = 0; round < kRounds; ++round) {
    MainKeyword = "MAX";
    const std::string formula = SomeOf(pieces, 30);
    const SpecificationText text = Extraction_info(formula, "");
    EXPECT_NE(text.scale, 0.0) << formula;
    if (!CanBePrinted(text)) continue;
    ++printed;
    ExpectSame(text, Extraction_info(Printed(text), ""), formula);
  }
  EXPECT_GT(printed, kRounds / 10);
}

TEST_F(FormulaPropertyTest, WhateverIsTypedIsReported) {
  const std::vector<std::string> pieces = {"=",   "0.01+", "LEN(\"", "column ", "kmday ",   " ned 43,5 1.2 ",
                                           "\")", "MAX(",  "A2",     ":",       "C9",       ")",
                                           "$",   "ZZZ",   "0",      "IW5",     "A02",      "(A2:Z9)",
                                           "é",   "\xE9",  "[",      "@",       "999999999"};
  for (int round = 0; round < kRounds; ++round) {
    const std::string formula = SomeOf(pieces, 25);
    const std::string report = ReportFormula(formula, window).text;
    EXPECT_EQ(report.compare(0, 8, "Formula\t"), 0) << formula;
    dialogs.boxes.clear();
    window.log.clear();
  }
}

// ---- ranges -----------------------------------------------------------------------------------------------

TEST_F(FormulaPropertyTest, ARangeIsTheSameWhenItIsWrittenReadAndWritten) {
  for (int round = 0; round < kRounds; ++round) {
    const RangeNumbers given = RandomRange();
    const std::string text = RangeText(given);
    RangeNumbers read;
    EXPECT_TRUE(ConvertA1LC(text, read)) << text;
    EXPECT_EQ(read, given) << text;
    EXPECT_EQ(RangeText(read), text);
    EXPECT_TRUE(dialogs.boxes.empty()) << text;
  }
}

TEST_F(FormulaPropertyTest, ARangeReadsTheSameWithBlanksAndInLowerCase) {
  for (int round = 0; round < kRounds; ++round) {
    const RangeNumbers given = RandomRange();
    std::string text;
    for (const char c : RangeText(given)) {
      text += std::string(static_cast<std::size_t>(Below(3)), ' ');
      text += Coin() ? c : static_cast<char>(std::tolower(c));
    }
    RangeNumbers read;
    ConvertA1LC(text, read);
    EXPECT_EQ(read, given) << text;
  }
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(FormulaPropertyTest, ARangeThatPassesSilentlyIsTheOneThatItsNumbersWrite) {
  const std::vector<std::string> pieces = {"A2", "c9", "A", "Z", "c",    "2",    "0",       "9", ":",
                                           " ",  "$",  "[", "@", "\xC3", "\xA9", "1048576", "-", "IV"};
  int silent = 0;
  for (int round = 0; round < kRounds; ++round) {
    const std::string text = SomeOf(pieces, 8);
    RangeNumbers read;
    dialogs.boxes.clear();
    if (!ConvertA1LC(text, read) || !dialogs.boxes.empty()) continue;
    const std::string written = RangeText(read);
    if (written.empty()) continue;
    ++silent;
    RangeNumbers again;
    EXPECT_TRUE(ConvertA1LC(written, again)) << text;
    EXPECT_EQ(again, read) << text;
  }
  EXPECT_GT(silent, kRounds / 50);
}

TEST_F(FormulaPropertyTest, ACellIsTheSameWhenItIsWrittenAndRead) {
  for (int round = 0; round < kRounds; ++round) {
    const int row = 1 + Below(65536);
    const int col = 1 + Below(256);
    const CellPlace place = ConvertCellLC(CellName(row, col));
    EXPECT_EQ(place.row, row);
    EXPECT_EQ(place.col, col);
    EXPECT_EQ(ShiftCell(CellName(row, col), 1 - col), CellName(row, 1));
  }
  EXPECT_TRUE(dialogs.boxes.empty());
}

// ---- the analysis -----------------------------------------------------------------------------------------

std::vector<const PlotRange*> All(const PlotRanges& ranges) {
  return {&ranges.rangeXYZ,  &ranges.rangeT,    &ranges.rangeEvents, &ranges.rangeQuater,
          &ranges.rangeSApY, &ranges.rangeSAmY, &ranges.rangeValZ};
}

TEST_F(FormulaPropertyTest, TheFormulaThatAnAnalysisLeavesMeansTheSameRanges) {
  constexpr const char* kTerms[][2] = {{"A", "C"}, {"D", "D"}, {"E", "F"}, {"G", "K"},
                                       {"L", "M"}, {"N", "O"}, {"P", "Q"}};
  for (int round = 0; round < 500; ++round) {
    MemorySheet sheet;
    sheet.Fill(3, 1, 1 + Below(3000));
    std::string formula = "=1";
    for (int term = 0; term <= Below(7); ++term) {
      const std::string row = std::to_string(2 + Below(3));
      formula += std::string("+MAX(") + kTerms[term][0] + row;
      if (Coin()) formula += std::string(":") + kTerms[term][1] + (Coin() ? row : "400");
      formula += ")";
    }
    PlotRanges first, second;
    NcolumnsUpdated(Extraction_info(formula, ""), formula, sheet, window, first);
    const std::string& left = first.cellFormula;
    NcolumnsUpdated(Extraction_info(left, ""), left, sheet, window, second);
    EXPECT_EQ(second.cellFormula, left) << formula;
    for (std::size_t i = 0; i < All(first).size(); ++i) {
      EXPECT_EQ(All(second)[i]->text, All(first)[i]->text) << formula;
      EXPECT_EQ(All(second)[i]->numbers, All(first)[i]->numbers) << formula;
    }
    window.log.clear();
  }
}

}  // namespace
}  // namespace quorb
