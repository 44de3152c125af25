#include "SpecificationHistory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "MapSettingsStore.h"
#include "SettingsStore.h"

namespace quorb {
namespace {

class SpecificationHistoryTest : public ::testing::Test {
 protected:
  void Fill(const std::vector<std::string>& entries) {
    for (std::size_t i = 0; i < entries.size(); ++i) {
      store.Write("Use", HistoryKey(static_cast<int>(i)), entries[i]);
    }
  }

  /// The history up to its last entry that is not empty.
  std::vector<std::string> History() const {
    std::vector<std::string> entries(kHistoryEntries);
    int index = 0;
    for (std::string& entry : entries)
      entry = store.Read("Use", HistoryKey(index++), "");
    while (!entries.empty() && entries.back().empty())
      entries.pop_back();
    return entries;
  }

  MapSettingsStore store;
};

using Entries = std::vector<std::string>;

Entries Numbered(int first, int last) {
  Entries entries(static_cast<std::size_t>(last - first + 1));
  int number = first;
  for (std::string& entry : entries)
    entry = "=" + std::to_string(number++);
  return entries;
}

TEST_F(SpecificationHistoryTest, KeysCarryTwoDigitsBeforeAndBehindThePoint) {
  EXPECT_EQ(HistoryKey(0), "SpecsMax00.00");
  EXPECT_EQ(HistoryKey(7), "SpecsMax07.00");
  EXPECT_EQ(HistoryKey(20), "SpecsMax20.00");
}

TEST_F(SpecificationHistoryTest, TheFirstFormulaIsWrittenInSectionUse) {
  RecordSpecification("=a");
  ASSERT_EQ(store.entries.size(), 1U);
  EXPECT_EQ(store.Read("Use", "SpecsMax00.00", ""), "=a");
}

TEST_F(SpecificationHistoryTest, AnEmptyFormulaIsNotRecorded) {
  Fill({"=a"});
  RecordSpecification("");
  EXPECT_EQ(History(), (Entries{"=a"}));
}

TEST_F(SpecificationHistoryTest, ANewFormulaGoesBeforeTheOthers) {
  Fill({"=a", "=b"});
  RecordSpecification("=c");
  EXPECT_EQ(History(), (Entries{"=c", "=a", "=b"}));
}

TEST_F(SpecificationHistoryTest, AKnownFormulaMovesToTheHead) {
  Fill({"=a", "=b", "=c", "=d"});
  RecordSpecification("=c");
  EXPECT_EQ(History(), (Entries{"=c", "=a", "=b", "=d"}));
}

TEST_F(SpecificationHistoryTest, TheLastOfSeveralEqualEntriesMoves) {
  Fill({"=a", "=c", "=b", "=c", "=d"});
  RecordSpecification("=c");
  EXPECT_EQ(History(), (Entries{"=c", "=a", "=c", "=b", "=d"}));
}

TEST_F(SpecificationHistoryTest, TheSameFormulaTwiceStandsTwiceAtTheHead) {
  Fill({"=b"});
  RecordSpecification("=a");
  RecordSpecification("=a");
  EXPECT_EQ(History(), (Entries{"=a", "=a", "=b"}));
}

TEST_F(SpecificationHistoryTest, TheSameFormulaAThirdTimeMovesItsSecondEntry) {
  for (int i = 0; i < 3; ++i)
    RecordSpecification("=a");
  EXPECT_EQ(History(), (Entries{"=a", "=a"}));
}

TEST_F(SpecificationHistoryTest, AFullHistoryLosesItsLastEntry) {
  Fill(Numbered(0, 20));
  RecordSpecification("=new");
  Entries expected = Numbered(0, 19);
  expected.insert(expected.begin(), "=new");
  EXPECT_EQ(History(), expected);
}

TEST_F(SpecificationHistoryTest, AKnownFormulaAtTheLastEntryMovesToTheHead) {
  Fill(Numbered(0, 20));
  RecordSpecification("=20");
  Entries expected = Numbered(0, 19);
  expected.insert(expected.begin(), "=20");
  EXPECT_EQ(History(), expected);
}

TEST_F(SpecificationHistoryTest, TheHeadOfAFullHistoryIsWrittenOnceMore) {
  Fill(Numbered(0, 20));
  RecordSpecification("=0");
  Entries expected = Numbered(0, 19);
  expected.insert(expected.begin(), "=0");
  EXPECT_EQ(History(), expected);
}

TEST_F(SpecificationHistoryTest, EntriesBehindAnEmptyOneStay) {
  Fill({"=a", "", "=b"});
  RecordSpecification("=c");
  EXPECT_EQ(History(), (Entries{"=c", "=a", "=b"}));
}

TEST_F(SpecificationHistoryTest, AnEmptyHeadIsFilledWithoutAMove) {
  Fill({"", "=a"});
  RecordSpecification("=c");
  EXPECT_EQ(History(), (Entries{"=c", "=a"}));
}

TEST_F(SpecificationHistoryTest, AStoreThatCannotBeWrittenKeepsItsEntries) {
  Fill({"=a"});
  store.writable = false;
  RecordSpecification("=b");
  EXPECT_EQ(History(), (Entries{"=a"}));
}

TEST(SettingsStoreTest, WithoutAStoreNothingIsKept) {
  SetSettings(nullptr);
  RecordSpecification("=a");
  EXPECT_EQ(CurrentSettings().Read("Use", HistoryKey(0), "default"), "default");
}

TEST(SettingsStoreTest, TheStoreThatWasSetIsUsed) {
  MapSettingsStore store;
  CurrentSettings().Write("Use", "SetDirBMP", "pictures");
  EXPECT_EQ(store.Read("Use", "SetDirBMP", ""), "pictures");
  EXPECT_EQ(store.Read("App", "SetDirBMP", "other section"), "other section");
}

}  // namespace
}  // namespace quorb
