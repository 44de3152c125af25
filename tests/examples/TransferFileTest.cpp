#include "TransferFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "TitleWords.h"

namespace quorb {
namespace {

using testing::HasSubstr;

const std::string& TheText() {
  static const std::string text = TransferFileText(FlyTransfer());
  return text;
}

std::vector<std::string> FieldsOf(const std::string& line) {
  std::vector<std::string> fields(1);
  for (const char c : line) {
    if (c == '\t') {
      fields.emplace_back();
    } else {
      fields.back() += c;
    }
  }
  return fields;
}

/// The lines without their CR LF, the header first.
std::vector<std::string> Lines() {
  std::vector<std::string> lines;
  std::istringstream text(TheText());
  for (std::string line; std::getline(text, line);) {
    EXPECT_EQ(line.back(), '\r');
    line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

TEST(TransferFile, HeaderNamesTheRowsOfEveryTable) {
  const std::string last = std::to_string(Lines().size());
  EXPECT_THAT(Lines()[0],
              HasSubstr("\t= 0.01 + LEN(\"Transfer to the geostationary ring kmday valz\") + MAX(A2:C" +
                        last + ") + MAX(D2:D" + last + ") + MAX(E2:F9) + MAX(G2:K" + last + ") + MAX(L2:M" +
                        last + ") + MAX(N2:O" + last + ") + MAX(P2:Q" + last + ")\t0.0100000000\t"));
}

TEST(TransferFile, TitleHoldsOnlyTheKeywordsThatAreMeant) {
  EXPECT_TRUE(TitleWordsIn("Transfer to the geostationary ring").empty());
}

TEST(TransferFile, EveryRowHasSeventeenColumns) {
  const std::vector<std::string> lines = Lines();
  ASSERT_GT(lines.size(), 2500U);
  for (std::size_t i = 1; i < lines.size(); ++i)
    EXPECT_EQ(FieldsOf(lines[i]).size(), 17U) << i;
}

TEST(TransferFile, EventsAlternateAtAscendingTimesAndThenStop) {
  const std::vector<std::string> lines = Lines();
  std::string events;
  double previous = 0;
  for (std::size_t i = 1; i <= 8; ++i) {
    const std::vector<std::string> fields = FieldsOf(lines[i]);
    events += fields[5];
    EXPECT_GT(std::stod(fields[4]), previous);
    previous = std::stod(fields[4]);
  }
  EXPECT_EQ(events, "SESESESE");
  for (std::size_t i = 9; i < lines.size(); ++i) {
    EXPECT_EQ(FieldsOf(lines[i])[4], "") << i;
    EXPECT_EQ(FieldsOf(lines[i])[5], "") << i;
  }
}

TEST(TransferFile, TablesGoAlongWithThePoints) {
  for (const std::string& line : Lines()) {
    if (line.substr(0, 5) == "From:") continue;
    const std::vector<std::string> fields = FieldsOf(line);
    for (const std::size_t time : {6U, 11U, 13U, 15U})
      ASSERT_EQ(fields[time], fields[3]);
    for (const std::size_t angle : {12U, 14U}) {
      ASSERT_GE(std::stod(fields[angle]), 0);
      ASSERT_LE(std::stod(fields[angle]), 360);
    }
    ASSERT_GE(std::stod(fields[16]), 0);
    ASSERT_LE(std::stod(fields[16]), 1);
  }
}

TEST(TransferFile, BothArraysTurnTheSameWayAboutOppositeAxes) {
  const std::vector<std::string> fields = FieldsOf(Lines()[100]);
  EXPECT_NEAR(std::stod(fields[12]) + std::stod(fields[14]), 360, 1e-9);
}

TEST(TransferFile, SameFlightGivesTheSameText) {
  EXPECT_EQ(TransferFileText(FlyTransfer()), TheText());
}

}  // namespace
}  // namespace quorb
