#include "FileNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FakeDesktop.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FileNames, TheRootOfADriveKeepsItsMark) {
  EXPECT_EQ(WithoutMark("/home/user/"), "/home/user");
  EXPECT_EQ(WithoutMark("/home/user"), "/home/user");
  EXPECT_EQ(WithoutMark("C:\\data\\"), "C:\\data");
  EXPECT_EQ(WithoutMark("/"), "/");
  EXPECT_EQ(WithoutMark("C:\\"), "C:\\");
  EXPECT_EQ(WithoutMark(""), "");
}

TEST(FileNames, AFileStandsBehindOneMark) {
  const FakeDesktop desktop;
  EXPECT_EQ(PathOf("/home", "a.qbv"), "/home/a.qbv");
  EXPECT_EQ(PathOf("/a", "a.qbv"), "/a/a.qbv");
  EXPECT_EQ(PathOf("/", "a.qbv"), "/a.qbv");
  EXPECT_EQ(PathOf("C:\\", "a.qbv"), "C:\\a.qbv");
  EXPECT_EQ(PathOf("", "a.qbv"), "a.qbv");
}

TEST(FileNames, TheWayDownBeginsAtTheRootOfTheDrive) {
  EXPECT_THAT(WayDown("/home/user"), ElementsAre("/", "/home", "/home/user"));
  EXPECT_THAT(WayDown("/home/user/"), ElementsAre("/", "/home", "/home/user"));
  EXPECT_THAT(WayDown("/"), ElementsAre("/"));
  EXPECT_THAT(WayDown("C:\\data\\orbits"), ElementsAre("C:\\", "C:\\data", "C:\\data\\orbits"));
  EXPECT_THAT(WayDown("C:\\"), ElementsAre("C:\\"));
  EXPECT_THAT(WayDown("data"), ElementsAre("data"));
  EXPECT_THAT(WayDown(""), IsEmpty());
}

TEST(FileNames, APatternHasStarsAndQuestionMarks) {
  EXPECT_TRUE(SuitsPattern("orbit.qbv", "*.qbv"));
  EXPECT_FALSE(SuitsPattern("orbit.qbvx", "*.qbv"));
  EXPECT_FALSE(SuitsPattern("orbit.txt", "*.qbv"));
  EXPECT_TRUE(SuitsPattern("orbit1.qbv", "orbit?.qbv"));
  EXPECT_FALSE(SuitsPattern("orbit.qbv", "orbit?.qbv"));
  EXPECT_TRUE(SuitsPattern("aXbXc", "a*b*c"));
  EXPECT_TRUE(SuitsPattern("abcbc", "a*bc"));
  EXPECT_FALSE(SuitsPattern("abcb", "a*bc"));
  EXPECT_TRUE(SuitsPattern("orbit.qbv", "*"));
}

TEST(FileNames, ThePatternOfAllFilesTakesANameWithoutADot) {
  EXPECT_TRUE(SuitsPattern("README", "*.*"));
  EXPECT_TRUE(SuitsPattern("orbit.qbv", "*.*"));
  EXPECT_FALSE(SuitsPattern("README", "*.q*"));
}

TEST(FileNames, CaseAndBlanksAroundAPatternDoNotCount) {
  EXPECT_TRUE(SuitsPattern("ORBIT.QBV", "*.qbv "));
  EXPECT_TRUE(SuitsPattern("orbit.qbv", "  *.QBV"));
  EXPECT_TRUE(SuitsPattern("Été.qbv", "été*"));
}

TEST(FileNames, SeveralPatternsAreSeparatedBySemicolons) {
  EXPECT_TRUE(SuitsPattern("orbit.qbv", "*.txt; *.qbv "));
  EXPECT_TRUE(SuitsPattern("orbit.txt", "*.txt; *.qbv "));
  EXPECT_FALSE(SuitsPattern("orbit.bmp", "*.txt; *.qbv "));
}

TEST(FileNames, AnEmptyPatternSuitsNothing) {
  EXPECT_FALSE(SuitsPattern("orbit.qbv", ""));
  EXPECT_FALSE(SuitsPattern("orbit.qbv", " ; "));
}

TEST(FileNames, ALongPatternTakesNoLongTime) {
  std::string stars;
  for (int i = 0; i < 5000; ++i)
    stars += "*a";
  EXPECT_FALSE(SuitsPattern(std::string(255, 'a'), stars));
  EXPECT_TRUE(SuitsPattern(std::string(5000, 'a'), stars));
}

}  // namespace
}  // namespace quorb
