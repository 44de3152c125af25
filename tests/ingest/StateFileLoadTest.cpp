#include <gtest/gtest.h>

#include <random>
#include <string>

#include "DataFile.h"
#include "Keywords.h"
#include "PlotData.h"
#include "RunState.h"
#include "Specification.h"
#include "StateFile.h"
#include "TitleWords.h"
#include "UserFlag.h"

namespace quorb {
namespace {

/// What the loader makes of the header of a written file.
struct Loaded {
  SpecificationText specification;
  TitleKeywords keywords;
};

Loaded LoadHeader(const std::string& title, const std::string& centre) {
  StateTable table;
  table.time = table.x = table.y = table.z = {1, 2, 3};
  table.centreName = centre;
  StateFileOptions options;
  options.title = title;
  options.sourceName = "orbit.oem";
  const std::string text = StateFileText(table, options);
  Loaded loaded;
  loaded.specification = Extraction_info(ReadHeader(text.substr(0, text.find("\r\n"))).formula, "");
  MessageUserToPlot = loaded.specification.title;
  loaded.keywords = StartKeywordPass();
  for (const KeywordStage stage : {KeywordStage::beforeRows, KeywordStage::colourValues,
                                   KeywordStage::quaternionOrder, KeywordStage::centralBody}) {
    Extraction_information_mots_clef(stage, loaded.keywords);
  }
  EndKeywordPass();
  return loaded;
}

void ExpectRowsAsWritten(const Loaded& loaded, const std::string& title) {
  EXPECT_DOUBLE_EQ(loaded.specification.scale, 0.01) << title;
  EXPECT_EQ(loaded.specification.rangeXYZ, "A2:C4") << title;
  EXPECT_EQ(loaded.specification.rangeT, "D2:D4") << title;
  EXPECT_EQ(loaded.specification.rangeEvents, "") << title;
  EXPECT_FALSE(loaded.keywords.TimeInSeconds) << title;
  EXPECT_FALSE(loaded.keywords.LengthInMetres) << title;
  EXPECT_EQ(loaded.keywords.circularShift, 0) << title;
  EXPECT_EQ(loaded.keywords.exchange, 0) << title;
  EXPECT_FALSE(loaded.keywords.forcedScale.has_value()) << title;
  EXPECT_EQ(PenUpMode, 0) << title;
  EXPECT_EQ(ColumnMode, 0) << title;
  EXPECT_EQ(EMSystem, 0) << title;
  EXPECT_EQ(USERFLAG.NedInput, 0.0) << title;
}

TEST(StateFileLoad, LoaderReadsTheUnitsTheRangesAndTheTitle) {
  ExpectRowsAsWritten(LoadHeader("First leg, 1.5 turns", "EARTH"), "First leg, 1.5 turns");
  EXPECT_EQ(MessageUserToPlot, "First leg, 1.5 turns");
  EXPECT_EQ(MoonFocus, 0);
  EXPECT_EQ(FocusBody, 4);
}

TEST(StateFileLoad, LoaderFindsTheCentralBody) {
  ExpectRowsAsWritten(LoadHeader("Leg", "MOON"), "Leg");
  EXPECT_EQ(MoonFocus, 1);
  EXPECT_EQ(MessageUserToPlot, "Leg");
  ExpectRowsAsWritten(LoadHeader("Leg", "JUPITER BARYCENTER"), "Leg");
  EXPECT_EQ(FocusBody, 6);
}

TEST(StateFileLoad, EveryTitleThatIsPassedLeavesTheRowsAsWritten) {
  const char* const pieces[] = {" ",    "s",    "S",     "m",      "ms",    "sm",    "x",     "y",   "z",
                                "k",    "m",    "d",     "ay",     "ays",   "pen",   "up",    "col", "umn",
                                "em",   "_",    "ESA",   "esa",    "MA",    "X",     "ne",    "d",   "sun",
                                "moon", "valz", "label", "system", "seco",  "nds",   "metre", ",",   ".",
                                "(",    ")",    "=",     "1",      "kmday", "lamdor"};
  std::mt19937 random(1);
  std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
  int passed = 0;
  for (int i = 0; i < 20000; ++i) {
    std::string title;
    for (int piece = 0; piece < 4; ++piece)
      title += pieces[pick(random)];
    if (!TitleFault(title).empty()) continue;
    ++passed;
    ExpectRowsAsWritten(LoadHeader(title, "EARTH"), title);
  }
  EXPECT_GT(passed, 5000);
}

}  // namespace
}  // namespace quorb
