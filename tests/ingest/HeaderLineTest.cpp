#include "HeaderLine.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

HeaderLineFields Sample() {
  HeaderLineFields header;
  header.sourceName = "orbit.oem";
  header.sheetName = "ISS";
  header.formula = "= 0.01 + LEN(\"ISS kmday\") + MAX(A2:C3)";
  header.scale = 0.01;
  header.title = "ISS kmday";
  header.written.tm_year = 125;
  header.written.tm_mon = 1;
  header.written.tm_mday = 3;
  header.written.tm_hour = 16;
  header.written.tm_min = 5;
  header.written.tm_sec = 9;
  return header;
}

TEST(HeaderLine, FieldsStandInOrderWithATabBehindTheLast) {
  EXPECT_EQ(DataFileHeaderLine(Sample()),
            "From: \torbit.oem\tISS\t= 0.01 + LEN(\"ISS kmday\") + MAX(A2:C3)\t0.0100000000\tISS kmday\t"
            "Date 2025/02/03 16:05:09\tQuorbExcelPro data file\t\r\n");
}

TEST(HeaderLine, NamesNeitherEndAFieldNorBeginTheFormula) {
  HeaderLineFields header = Sample();
  header.sourceName = "a\tb\n\"c\"";
  header.sheetName = "n=1";
  EXPECT_EQ(DataFileHeaderLine(header).substr(0, 22), "From: \ta_b__c_\tn_1\t= 0");
}

TEST(HeaderLine, CellNumbersHaveTenDecimalsAndAPoint) {
  const auto text = [](double value) {
    std::string out;
    AppendCellNumber(out, value);
    return out;
  };
  EXPECT_EQ(text(236.607189722756), "236.6071897228");
  EXPECT_EQ(text(-5167.4525798095301), "-5167.4525798095");
  EXPECT_EQ(text(0), "0.0000000000");
  EXPECT_EQ(text(-1e-12), "0.0000000000");
  EXPECT_EQ(text(45714.5), "45714.5000000000");
  EXPECT_EQ(text(1.7e308).size(), 309U + 11U);
}

}  // namespace
}  // namespace quorb
