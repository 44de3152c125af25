#include <gmock/gmock.h>

#include "CalcFixture.h"
#include "ProgramRun.h"

namespace quorb {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kFormula = "=0.01+LEN(\"Orbit \"&B3)+MAX(A2:C2)";

// The program sees no settings of the user's and no office but those whose sockets stand in that directory.
ProgramOutcome InspectSheet(const ProgramRun& run, const std::string& sockets,
                            const std::string& arguments = "") {
  return run.Run("/usr/bin/env", "XDG_CONFIG_HOME='" + run.File("") + "' QUORB_OFFICE_SOCKETS='" + sockets +
                                     "' " QUORB_INSPECT_PROGRAM " --sheet " + arguments);
}

TEST(InspectSheetAlone, WithoutAnOfficeThereIsNoSpreadsheet) {
  const ProgramRun run;
  const ProgramOutcome outcome = InspectSheet(run, run.File(""));
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "quorb-inspect: the sheet does not plot: no spreadsheet is running\n");
}

class InspectSheetTest : public CalcFixture {
 protected:
  ProgramOutcome Inspect(const std::string& arguments = "") const {
    return InspectSheet(run_, office_->SocketDirectory(), arguments);
  }

  int OpenPlot(const std::string& formula) {
    const int document = OpenSheet();
    EXPECT_TRUE(User().TypeNumbers(document, 0, 2, 1, 3, {21, 22, 23, 31, 32, 33, 41, 42, 43}).Good());
    Type(document, 1, 20, formula);
    EXPECT_TRUE(User().Select(document, 0, "B7").Good());
    EXPECT_TRUE(User().SetModified(document, false).Good());
    return document;
  }

  std::string TitleOf(int document) {
    const std::string title = StateOf(document).frontTitle;
    return title.substr(0, title.find(" - "));
  }

  ProgramRun run_;
};

TEST_F(InspectSheetTest, AnOfficeWithoutDocumentsHasNoWorkbook) {
  const ProgramOutcome outcome = Inspect();
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out, StartsWith("Application\tLibreOffice Calc "));
  EXPECT_EQ(outcome.err, "quorb-inspect: the sheet does not plot: the spreadsheet has no workbook open\n");
}

TEST_F(InspectSheetTest, AnOfficeWithATextOnlyIsNone) {
  OpenText();
  EXPECT_EQ(Inspect().err, "quorb-inspect: the sheet does not plot: no spreadsheet is running\n");
}

TEST_F(InspectSheetTest, WhatIsFoundIsTold) {
  const int document = OpenPlot(kFormula);
  const UserState before = StateOf(document);
  const ProgramOutcome outcome = Inspect();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, StartsWith("Application\tLibreOffice Calc "));
  EXPECT_THAT(outcome.out,
              HasSubstr("\nVersion\t12.0\nWorkbook\t" + TitleOf(document) + "\nWindow\t" + TitleOf(document) +
                        "\nSheet\tSheet1\nSelectedCell\tB7\nSpecificationCell\tT1\n"
                        "Formula\t=0.01+LEN(\"Orbit 32\")+MAX(A2:C2)\nFactorScale\t0.01\n"
                        "Title\tOrbit 32\n"));
  EXPECT_THAT(outcome.out, HasSubstr("A2:C4"));
  EXPECT_THAT(outcome.out, EndsWith("\nRows\t3\n"));
  EXPECT_EQ(StateOf(document), before);
}

TEST_F(InspectSheetTest, TheDataFileIsWritten) {
  const int document = OpenPlot(kFormula);
  const UserState before = StateOf(document);
  const ProgramOutcome outcome = Inspect("-o plot.qbv");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  const std::string file = ContentsOfFile(run_.File("plot.qbv"));
  EXPECT_THAT(file, StartsWith("\"From: \t" + TitleOf(document) +
                               "\tSheet1\t=0.01+LEN(\"\"Orbit 32\"\")+MAX(A2:C4)\t0.0100000000\tOrbit 32\t"));
  const std::string rest = std::string(14, '\t') + "\r\n";
  EXPECT_EQ(file.substr(file.find("\r\n") + 2), "21.0000000000\t22.0000000000\t23.0000000000" + rest +
                                                    "31.0000000000\t32.0000000000\t33.0000000000" + rest +
                                                    "41.0000000000\t42.0000000000\t43.0000000000" + rest);
  EXPECT_EQ(StateOf(document), before);
  EXPECT_THAT(run_.Run(QUORB_INSPECT_PROGRAM, "plot.qbv").out, HasSubstr("\nLastPoint\t2\n"));
}

TEST_F(InspectSheetTest, AFileThatCannotBeWrittenIsToldByItsName) {
  OpenPlot(kFormula);
  run_.Write("file", "");
  const ProgramOutcome outcome = Inspect("-o file/plot.qbv");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(
      outcome.err,
      EndsWith("the sheet does not plot: the data file file/plot.qbv was not written: file/plot.qbv cannot "
               "be written\n"));
}

TEST_F(InspectSheetTest, ASheetWithoutASpecificationIsToldByItsName) {
  OpenPlot("=MIN(A2:C4)");
  const ProgramOutcome outcome = Inspect("-o plot.qbv");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "quorb-inspect: the sheet does not plot: no formula on the sheet \"Sheet1\" holds the keyword "
            "MAX\n");
  EXPECT_FALSE(std::filesystem::exists(run_.File("plot.qbv")));
}

TEST_F(InspectSheetTest, ANarrowRangeIsTold) {
  OpenPlot("=MAX(A2:B4)");
  const ProgramOutcome outcome = Inspect();
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err,
              HasSubstr("the sheet does not plot: the range A2:B4 is too narrow to hold X, Y and Z"));
}

}  // namespace
}  // namespace quorb
