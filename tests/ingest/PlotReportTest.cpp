#include "PlotReport.h"

#include "LoadFixture.h"

namespace quorb {
namespace {

using PlotReportTest = LoadFixture;

TEST_F(PlotReportTest, TellsWhatTheLoaderMadeOfAFile) {
  Load(Header(Formula("0.01 + ", "Transfer valz kmday", 7)) +
       Lines({"100\t200\t300\t1.5\t1\tS\t1\t1\t0\t0\t0\t1\t10\t1\t20\t1\t5",
              "100\t200\t300\t2.5\t2\tE\t1\t1\t0\t0\t0\t1\t10\t1\t20\t2\t7"}));
  EXPECT_EQ(
      PlotReport(),
      "Title\tTransfer\n"
      "Formula\t= 0.01 + LEN(\"Transfer valz kmday\") + MAX(A2:C9) + MAX(D2:D9) + MAX(E2:F9) + MAX(G2:K9) + "
      "MAX(L2:M9) + MAX(N2:O9) + MAX(P2:Q9)\n"
      "FactorScale\t0.01\n"
      "LastPoint\t1\n"
      "NbEvents\t2\n"
      "NbQuater\t2\n"
      "NbSApY\t2\n"
      "NbSAmY\t2\n"
      "NbValZ\t2\n"
      "ISOmode\t1\n"
      "ColumnMode\t0\n"
      "PenUpMode\t0\n"
      "PenUpLabelMode\t0\n"
      "ValColour\t1\n"
      "ValAxis\t3\n"
      "MoonFocus\t0\n"
      "FocusBody\t4\n"
      "EMSystem\t0\n"
      "EMDistance\t0\n"
      "QuaterScalarLast\t0\n"
      "InputInKm\tTrue\n"
      "FlagOptionToPlot\t1\n"
      "TimeInData\t1\n"
      "NedInput\t0\n"
      "EMView\t0\n"
      "LogoScale\t0\n"
      "ValZMin\t5\n"
      "ValZMax\t7\n"
      "TimeMin\t0\n"
      "TimeMax\t0\n"
      "rangeXYZ\tA2:C9\n"
      "rangeT\tD2:D9\n"
      "rangeEvents\tE2:F9\n"
      "rangeQuater\tG2:K9\n"
      "rangeSApY\tL2:M9\n"
      "rangeSAmY\tN2:O9\n"
      "rangeValZ\tP2:Q9\n");
}

TEST_F(PlotReportTest, TruthValuesPrintAsFalseToo) {
  LoadRows("1\t2\t3\r\n", "Plain");
  EXPECT_NE(PlotReport().find("InputInKm\tFalse\n"), std::string::npos);
}

class RowsReportTest : public LoadFixture {
 protected:
  void LoadThreeRows() {
    LoadRows(Lines({"0.1\t2\t3\t4\t5\tS\t6\t1\t0\t0\t0\t7\t10\t8\t20\t9\t30",
                    "\t2\t3\t4\t6\tBurn 2\t6\t0\t1\t0\t0\t7\t11\t8\t21\t9\t31",
                    "1\t2\t3\t4\t7\tE\t6\t0\t0\t1\t0\t7\t12\t8\t22\t9\t32"}),
             "kmday", 7);
  }

  static std::string Rows(const std::string& wanted) { return RowsReport(wanted).value_or("(none)"); }
};

TEST_F(RowsReportTest, RowsInUseARowALineWith17SignificantDigits) {
  LoadThreeRows();
  EXPECT_EQ(Rows("dataXYZT"),
            "4\t0.10000000000000001\t2\t3\t0\n"
            "4\t0\t2\t3\t-1\n"
            "4\t1\t2\t3\t0\n");
  EXPECT_EQ(Rows("dataQuater"), "6\t1\t0\t0\t0\n6\t0\t1\t0\t0\n6\t0\t0\t1\t0\n");
  EXPECT_EQ(Rows("dataSApY"), "7\t10\n7\t11\n7\t12\n");
  EXPECT_EQ(Rows("dataSAmY"), "8\t20\n8\t21\n8\t22\n");
  EXPECT_EQ(Rows("dataValZ"), "9\t30\n9\t31\n9\t32\n");
}

TEST_F(RowsReportTest, EventsAreTheChangesAndTheLogTheTexts) {
  LoadThreeRows();
  EXPECT_EQ(Rows("dataEvents"), "5\t1\n6\t0\n7\t0\n");
  EXPECT_EQ(Rows("dataEventLog"), "5\t1\n6\tBurn 2\n7\t0\n");
}

TEST_F(RowsReportTest, LabelsStandAsTheyAre) {
  LoadRows(Lines({"1\t2\t3\t4\t5\t Paris ", "1\t2\t3"}), "penuplabel kmday", 3);
  EXPECT_EQ(Rows("dataPenUpLabel"), " Paris \n\n");
}

TEST_F(RowsReportTest, APartOfTheRowsCanBeWanted) {
  LoadThreeRows();
  EXPECT_EQ(Rows("dataValZ:1-1"), "9\t31\n");
  EXPECT_EQ(Rows("dataValZ:1-2"), "9\t31\n9\t32\n");
  EXPECT_EQ(Rows("dataValZ:0-99"), "9\t30\n9\t31\n9\t32\n");
  EXPECT_EQ(Rows("dataValZ:3-9"), "");
  EXPECT_EQ(Rows("dataValZ:2-1"), "");
}

TEST_F(RowsReportTest, ATableThatIsNotInUseHasNoRows) {
  LoadRows("1\t2\t3\r\n");
  EXPECT_EQ(Rows("dataQuater"), "");
  EXPECT_EQ(Rows("dataSApY"), "");
  EXPECT_EQ(Rows("dataEvents"), "0\t0\n");
}

TEST_F(RowsReportTest, AnUnknownNameAndWrongRowsAreRefused) {
  LoadThreeRows();
  for (const char* wrong :
       {"", "dataXyzt", "dataXYZT:", "dataXYZT:1", "dataXYZT:1-", "dataXYZT:-1", "dataXYZT:a-b",
        "dataXYZT:1-2x", "dataXYZT:-1-2", "dataXYZT:1-99999999999999999999"})
    EXPECT_EQ(RowsReport(wrong), std::nullopt) << wrong;
}

TEST_F(RowsReportTest, CountersPastTheRowBoundPrintTheRowsThatAre) {
  LoadRows("1\t2\t3\r\n");
  LastPoint = 2000000;
  for (int column = 0; column < 5; ++column)
    dataXYZT.Set(kRowBound - 1, column, column);
  EXPECT_EQ(Rows("dataXYZT:1048575-2000000"), "0\t1\t2\t3\t4\n");
}

}  // namespace
}  // namespace quorb
