#include "ExampleFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "TitleWords.h"

namespace quorb {
namespace {

using Words = std::vector<std::string>;

// The words that the viewer meets in each title, in its order.
const std::map<std::string, Words>& WantedWords() {
  static const std::map<std::string, Words> words = {
      {"metres-seconds.qbv", {"seconds", "metres"}},
      {"km.qbv", {"km"}},
      {"kmday.qbv", {"kmday", "km", "day"}},
      {"penup.qbv", {"penup", "metres"}},
      {"penuplabel.qbv", {"penuplabel", "penup"}},
      {"column.qbv", {"column", "km"}},
      {"yzx.qbv", {"yzx", "kmday", "km", "day"}},
      {"ned.qbv", {" ned"}},
      {"valz.qbv", {"kmday", "km", "day", "valz"}},
      {"moon.qbv", {"kmday", "km", "day", "moon"}},
      {"sun.qbv", {"kmday", "km", "day", "sun"}},
      {"mercury.qbv", {"kmday", "km", "day", "mercury"}},
      {"venus.qbv", {"kmday", "km", "day", "venus"}},
      {"mars.qbv", {"kmday", "km", "day", "mars"}},
      {"jupiter.qbv", {"kmday", "km", "day", "jupiter"}},
      {"xyzw.qbv", {"xyz", "kmday", "km", "day", "xyzw"}},
      {"em-system.qbv", {"kmday", "km", "day", "em_system"}},
  };
  return words;
}

std::size_t FieldsOf(const std::string& row) {
  return static_cast<std::size_t>(std::count(row.begin(), row.end(), '\t')) + 1;
}

TEST(ExampleFiles, TitlesHoldOnlyTheKeywordsThatAreMeant) {
  ASSERT_EQ(ExampleFiles().size(), WantedWords().size());
  for (const ExampleFile& file : ExampleFiles()) {
    ASSERT_TRUE(WantedWords().contains(file.name)) << file.name;
    Words words;
    for (const TitleWord& found : TitleWordsIn(file.table().title))
      words.emplace_back(found.word);
    EXPECT_EQ(words, WantedWords().at(file.name)) << file.name;
  }
}

TEST(ExampleFiles, EachIsSmallAndAsWideAsItsFormula) {
  constexpr std::size_t kWidths[] = {3, 4, 6, 11, 13, 15, 17};
  for (const ExampleFile& file : ExampleFiles()) {
    const ExampleTable table = file.table();
    EXPECT_GE(table.rows.size(), 12U) << file.name;
    EXPECT_LE(table.rows.size(), 500U) << file.name;
    const std::size_t width = table.oneColumn ? 1 : kWidths[table.terms - 1];
    for (const std::string& row : table.rows)
      ASSERT_EQ(FieldsOf(row), width) << file.name;
  }
}

TEST(ExampleFiles, TheSameTableComesAgain) {
  for (const ExampleFile& file : ExampleFiles())
    EXPECT_EQ(DataFileOf(file.table(), file.name), DataFileOf(file.table(), file.name));
}

}  // namespace
}  // namespace quorb
