#include "TitleWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> WordsIn(std::string_view title) {
  std::vector<std::string> words;
  for (const TitleWord& found : TitleWordsIn(title))
    words.emplace_back(found.word);
  return words;
}

TEST(TitleWords, PlainTitleHoldsNone) {
  EXPECT_THAT(WordsIn("ISS"), ElementsAre());
  EXPECT_THAT(WordsIn("Transfer to the geostationary ring"), ElementsAre());
  EXPECT_THAT(WordsIn(""), ElementsAre());
}

TEST(TitleWords, WordsOfTheFirstPassAreFoundInsideOthersAndInAnyCase) {
  EXPECT_THAT(WordsIn("Flyday"), ElementsAre("day"));
  EXPECT_THAT(WordsIn("10 KM orbit"), ElementsAre("km"));
  EXPECT_THAT(WordsIn("Columns"), ElementsAre("column"));
  EXPECT_THAT(WordsIn("Trip in kmdays"), ElementsAre("kmdays", "kmday", "km", "days", "day"));
}

TEST(TitleWords, WordBetweenBlanksIsAlsoFoundAtTheEnd) {
  EXPECT_THAT(WordsIn("Leg S"), ElementsAre(" s "));
  EXPECT_THAT(WordsIn("S Leg"), ElementsAre());
  EXPECT_THAT(WordsIn("Buoy NED 45"), ElementsAre(" ned"));
  EXPECT_THAT(WordsIn("Ned"), ElementsAre());
}

TEST(TitleWords, BodiesAreFoundAsTheyStandOnly) {
  EXPECT_THAT(WordsIn("moonshot"), ElementsAre("moon"));
  EXPECT_THAT(WordsIn("MOON Mars"), ElementsAre());
}

TEST(TitleWords, TheThreeLettersAreFoundForTheUnitsAndForTheQuaternionsInAnyCase) {
  EXPECT_THAT(WordsIn("ESA"), ElementsAre("esa", "ESA"));
  EXPECT_THAT(WordsIn("Mesa"), ElementsAre("esa", "ESA"));
  EXPECT_THAT(TitleFault("Mesa"), HasSubstr("\"esa\""));
}

TEST(TitleWords, TheQuaternionOrderIsFoundInAnyCase) {
  EXPECT_THAT(WordsIn("XYZW"), ElementsAre("xyz", "xyzw"));
}

TEST(TitleWords, WordThatChangesTheNumbersIsAFault) {
  EXPECT_EQ(TitleFault("Flyday"),
            "the title holds the keyword \"day\", which takes the time in days and would spoil the file");
  EXPECT_THAT(TitleFault("CLIMAX"), HasSubstr("\"MAX\""));
  for (const char* title : {"penup",  "PenUpLabel", "column",  "xyz",   "yzx",    "zxy",       "yxz",
                            "xzy",    "zyx",        "seconds", "a s b", "metres", "a m b",     "a ms b",
                            "a sm b", "kmday",      "km",      "days",  "ESA",    "EM_System", "a ned"}) {
    EXPECT_NE(TitleFault(title), "") << title;
  }
}

TEST(TitleWords, WordThatOnlyDressesThePlotIsNoFault) {
  for (const char* title : {"valz", "lamdor", "moon", "Focus on", "sun", "jupiter", "terre"}) {
    EXPECT_EQ(TitleFault(title), "") << title;
    EXPECT_EQ(WordsIn(title).size(), 1U) << title;
  }
}

TEST(TitleWords, QuotesAndControlCharactersAreFaults) {
  const std::string fault = "a title holds no double quote, TAB, line end or other control character";
  EXPECT_EQ(TitleFault("a\"b"), fault);
  EXPECT_EQ(TitleFault("a\tb"), fault);
  EXPECT_EQ(TitleFault("a\nb"), fault);
  EXPECT_EQ(TitleFault("a\r"), fault);
  EXPECT_EQ(TitleFault("Été = (1)"), "");
}

}  // namespace
}  // namespace quorb
