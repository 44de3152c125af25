#include "StateFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

StateTable TwoStates() {
  StateTable table;
  table.time = {45714.5, 45714.75};
  table.x = {236.5, 1};
  table.y = {-5167.25, 2};
  table.z = {4405.75, 3};
  table.objectName = "ISS";
  table.centreName = "EARTH";
  table.frame = "EME2000";
  return table;
}

StateFileOptions Options() {
  StateFileOptions options;
  options.title = "ISS";
  options.sourceName = "iss.xml";
  options.written.tm_year = 125;
  options.written.tm_mday = 1;
  return options;
}

std::string FirstLine(const StateTable& table, const StateFileOptions& options) {
  const std::string text = StateFileText(table, options);
  return text.substr(0, text.find("\r\n"));
}

TEST(StateFile, WritesHeaderAndRows) {
  EXPECT_EQ(
      StateFileText(TwoStates(), Options()),
      "From: \tiss.xml\tISS\t= 0.01 + LEN(\"ISS kmday\") + MAX(A2:C3) + MAX(D2:D3)\t0.0100000000\tISS kmday\t"
      "Date 2025/01/01 00:00:00\tQuorbExcelPro data file\t\r\n"
      "236.5000000000\t-5167.2500000000\t4405.7500000000\t45714.5000000000\r\n"
      "1.0000000000\t2.0000000000\t3.0000000000\t45714.7500000000\r\n");
}

TEST(StateFile, FrameStandsForAnObjectWithoutName) {
  StateTable table = TwoStates();
  table.objectName.clear();
  EXPECT_THAT(FirstLine(table, Options()), HasSubstr("iss.xml\tEME2000\t="));
}

TEST(StateFile, CentralBodyJoinsTheTitle) {
  StateTable table = TwoStates();
  table.centreName = "MOON";
  EXPECT_THAT(FirstLine(table, Options()), HasSubstr("LEN(\"ISS kmday moon\")"));
  EXPECT_THAT(FirstLine(table, Options()), HasSubstr("\tISS kmday moon\t"));
}

TEST(StateFile, EmptyTitleLeavesTheKeywordsAlone) {
  StateFileOptions options = Options();
  options.title.clear();
  EXPECT_THAT(FirstLine(TwoStates(), options), HasSubstr("LEN(\"kmday\")"));
}

TEST(StateFile, ScaleStandsWithAllItsDigitsAndNoExponent) {
  StateFileOptions options = Options();
  options.scale = 100000;
  EXPECT_THAT(FirstLine(TwoStates(), options), HasSubstr("\t= 100000 + LEN"));
  options.scale = 0.00001;
  EXPECT_THAT(FirstLine(TwoStates(), options), HasSubstr("\t= 0.00001 + LEN"));
  EXPECT_THAT(FirstLine(TwoStates(), options), HasSubstr("\t0.0000100000\t"));
}

TEST(StateFile, BodiesHaveTheirKeywords) {
  EXPECT_EQ(BodyKeyword("EARTH"), "");
  EXPECT_EQ(BodyKeyword(""), "");
  EXPECT_EQ(BodyKeyword("Moon"), "moon");
  EXPECT_EQ(BodyKeyword("SUN"), "sun");
  EXPECT_EQ(BodyKeyword("MERCURY"), "mercury");
  EXPECT_EQ(BodyKeyword("VENUS"), "venus");
  EXPECT_EQ(BodyKeyword("MARS"), "mars");
  EXPECT_EQ(BodyKeyword("MARS_BARYCENTER"), "mars");
  EXPECT_EQ(BodyKeyword("JUPITER BARYCENTER"), "jupiter");
  EXPECT_EQ(BodyKeyword("SATURN"), "");
}

TEST(StateFile, CentreWithoutABodyIsKnownAsSuch) {
  EXPECT_TRUE(IsKnownCentre(""));
  EXPECT_TRUE(IsKnownCentre("Earth"));
  EXPECT_FALSE(IsKnownCentre("SATURN"));
  EXPECT_FALSE(IsKnownCentre("EARTH-MOON BARYCENTER"));
}

TEST(StateFile, TitleIsTheObjectElseTheFile) {
  std::vector<std::string> warnings;
  StateTable table = TwoStates();
  EXPECT_EQ(DerivedTitle(table, "stem", warnings), "ISS");
  table.objectName.clear();
  EXPECT_EQ(DerivedTitle(table, "stem", warnings), "stem");
  EXPECT_THAT(warnings, ElementsAre());
}

TEST(StateFile, NameThatWouldSpoilTheFileGivesWayWithAWarning) {
  std::vector<std::string> warnings;
  StateTable table = TwoStates();
  table.objectName = "MAXSAT";
  EXPECT_EQ(DerivedTitle(table, "stem", warnings), "Trajectory");
  ASSERT_EQ(warnings.size(), 1U);
  EXPECT_EQ(warnings[0],
            "the name \"MAXSAT\" gives no title, so it is \"Trajectory\": the title holds the keyword "
            "\"MAX\", which "
            "marks a range of cells and would spoil the file");
  table.objectName = "a \"b\"";
  EXPECT_EQ(DerivedTitle(table, "stem", warnings), "Trajectory");
}

TEST(StateFile, KeywordInTheTitleIsWarnedOf) {
  std::vector<std::string> warnings;
  WarnOfTitleWords("sunset", warnings);
  EXPECT_THAT(warnings,
              ElementsAre("the title holds the keyword \"sun\": the viewer shows the Sun at the centre"));
}

}  // namespace
}  // namespace quorb
