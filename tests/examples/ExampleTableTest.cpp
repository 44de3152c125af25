#include "ExampleTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

ExampleTable TwoRows(int terms) {
  ExampleTable table;
  table.sheetName = "Sheet";
  table.title = "Title kmday";
  table.scale = 0.000001;
  table.terms = terms;
  table.rows = {"1\t2\t3\t4", "5\t6\t7\t8"};
  return table;
}

TEST(RowText, PartsItsFieldsByTabs) {
  EXPECT_EQ(RowText().Number(1.5).Empty(2).Text("S").Line(), "1.5000000000\t\t\tS");
  EXPECT_EQ(RowText().Empty(3).Number(-2).Line(), "\t\t\t-2.0000000000") << "an empty field stands first";
  EXPECT_EQ(RowText().Line(), "");
}

TEST(DataFileOf, WritesHeaderAndRows) {
  EXPECT_THAT(DataFileOf(TwoRows(2), "a.qbv"),
              StartsWith("From: \ta.qbv\tSheet\t= 0.000001 + LEN(\"Title kmday\") + MAX(A2:C3) + "
                         "MAX(D2:D3)\t"));
  EXPECT_THAT(DataFileOf(TwoRows(2), "a.qbv"), HasSubstr("\t0.0000010000\tTitle kmday\tDate 2025/01/01"));
  EXPECT_THAT(DataFileOf(TwoRows(2), "a.qbv"), testing::EndsWith("\r\n1\t2\t3\t4\r\n5\t6\t7\t8\r\n"));
}

TEST(DataFileOf, NamesAsManyRangesAsThereAreTerms) {
  EXPECT_THAT(DataFileOf(TwoRows(1), "a.qbv"), HasSubstr(" + MAX(A2:C3)\t"));
  ExampleTable table = TwoRows(7);
  table.eventRows = 1;
  EXPECT_THAT(DataFileOf(table, "a.qbv"),
              HasSubstr(" + MAX(A2:C3) + MAX(D2:D3) + MAX(E2:F2) + MAX(G2:K3) + MAX(L2:M3) + MAX(N2:O3) + "
                        "MAX(P2:Q3)\t"));
}

TEST(DataFileOf, PointsInOneColumnHaveARangeOfOne) {
  ExampleTable table = TwoRows(1);
  table.oneColumn = true;
  EXPECT_THAT(DataFileOf(table, "a.qbv"), HasSubstr(" + MAX(A2:A3)\t"));
}

}  // namespace
}  // namespace quorb
