#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ProgramRun.h"

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class QuorbInspect : public testing::Test {
 protected:
  ProgramOutcome Run(const std::string& arguments) const {
    return run_.Run(QUORB_INSPECT_PROGRAM, arguments);
  }

  ProgramRun run_;
};

constexpr const char* kFormula = "= 0.01 + LEN(\"Transfer kmday\") + MAX(A2:C4) + MAX(D2:D4)";
constexpr const char* kRows =
    "7000.0\t0\t0\t45000.5\r\n"
    "0\t8000,5\t0\t45000.75\r\n"
    "\t0\t9000\t45001\r\n";

TEST_F(QuorbInspect, HelpIsAnsweredBeforeAnythingElse) {
  const ProgramOutcome outcome = Run("nothing there --help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out,
            "Usage: quorb-inspect FILE [--rows ARRAY[:FIRST-LAST]] [--after-reset] [--log]\n"
            "       quorb-inspect --formula TEXT\n"
            "       quorb-inspect --sheet [-o FILE]\n"
            "\n"
            "Tells what the loader makes of a data file, of a specification formula alone, or\n"
            "of the spreadsheet that runs, one name, a TAB and its value a line.\n"
            "\n"
            "  --rows ARRAY[:FIRST-LAST]  print the rows of one array and nothing else:\n"
            "                             dataXYZT, dataEvents, dataEventLog, dataPenUpLabel,\n"
            "                             dataQuater, dataSApY, dataSAmY or dataValZ\n"
            "  --after-reset              the plot as the scene has scaled it for drawing\n"
            "  --log                      print the loader's diagnostic log and nothing else\n"
            "  --formula TEXT             tell what the formula means, without a file: scale,\n"
            "                             title with and without its keywords, what these say,\n"
            "                             and the ranges as columns and rows\n"
            "  --sheet                    tell what the running spreadsheet holds: application,\n"
            "                             window, sheet, cell, formula, ranges and rows, or why\n"
            "                             it does not plot; nothing in it is changed\n"
            "  -o FILE                    write the ranges of the sheet into that data file\n"
            "  --help                     show this text\n"
            "  --version                  show the version\n"
            "\n"
            "Messages that the viewer would show go to standard error with their titles.\n"
            "Exit status: 0 rows were read, 1 the file gave none, 2 wrong call; of a formula:\n"
            "0 it names a range that holds X, Y and Z, 1 it names none; of a sheet: 0 it plots,\n"
            "1 it does not.\n");
}

TEST_F(QuorbInspect, VersionIsAnswered) {
  EXPECT_EQ(Run("--version").out, "quorb-inspect 2.8.6\n");
}

TEST_F(QuorbInspect, ListsWhatTheLoaderMadeOfAFile) {
  run_.Write("plot.qbv", DataFileText(kFormula, kRows));
  const ProgramOutcome outcome = Run("plot.qbv");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out,
            std::string("Title\tTransfer\nFormula\t") + kFormula +
                "\nFactorScale\t0.01\nLastPoint\t2\nNbEvents\t1\nNbQuater\t0\nNbSApY\t0\nNbSAmY\t0\n"
                "NbValZ\t0\nISOmode\t1\nColumnMode\t0\nPenUpMode\t0\nPenUpLabelMode\t0\nValColour\t0\n"
                "ValAxis\t3\nMoonFocus\t0\nFocusBody\t4\nEMSystem\t0\nEMDistance\t0\nQuaterScalarLast\t0\n"
                "InputInKm\tTrue\nFlagOptionToPlot\t0\nTimeInData\t1\nNedInput\t0\nEMView\t0\nLogoScale\t0\n"
                "ValZMin\t0\nValZMax\t0\nTimeMin\t0\nTimeMax\t0\nrangeXYZ\tA2:C4\nrangeT\tD2:D4\n"
                "rangeEvents\t\nrangeQuater\t\nrangeSApY\t\nrangeSAmY\t\nrangeValZ\t\n");
}

TEST_F(QuorbInspect, PrintsRowsWithSeventeenDigitsAndNothingElse) {
  run_.Write("plot.qbv", DataFileText(kFormula, kRows));
  EXPECT_EQ(Run("plot.qbv --rows dataXYZT").out,
            "45000.5\t70\t0\t0\t0\n45000.75\t0\t80.004999999999995\t0\t0\n45001\t0\t0\t90\t-1\n");
  EXPECT_EQ(Run("plot.qbv --rows dataXYZT:1-1").out, "45000.75\t0\t80.004999999999995\t0\t0\n");
  EXPECT_EQ(Run("plot.qbv --rows dataXYZT:2-900").out, "45001\t0\t0\t90\t-1\n");
  EXPECT_EQ(Run("plot.qbv --rows dataQuater").out, "");
}

TEST_F(QuorbInspect, PrintsTextsAsTheyStand) {
  run_.Write("labels.qbv", DataFileText("=0.5+LEN(\"penuplabel km\")+MAX(A2:C3)",
                                        "1\t2\t3\t4\t5\t Caf\xC3\xA9 \r\n1\t2\t3\t4\t5\tB\r\n"));
  EXPECT_EQ(Run("labels.qbv --rows dataPenUpLabel").out, " Caf\xC3\xA9 \nB\n");
  run_.Write("events.qbv", DataFileText("=MAX(A2:C3)", "1\t2\t3\t4\t86400\tStart S\r\n1\t2\t3\t4\t\t\r\n"));
  EXPECT_EQ(Run("events.qbv --rows dataEventLog").out, "1\t1\n0\t0\n");
}

// Scale 0.01 puts the points at 30 and 60; one factor, 80 / 60, brings the farthest to 80.
TEST_F(QuorbInspect, AfterResetTheRowsAreScaledForDrawing) {
  run_.Write("plot.qbv", DataFileText(kFormula, "3000\t0\t0\t1\r\n0\t6000\t0\t2\r\n"));
  EXPECT_EQ(Run("plot.qbv --after-reset --rows dataXYZT").out, "1\t40\t0\t0\t0\n2\t0\t80\t0\t0\n");
  EXPECT_THAT(Run("plot.qbv --after-reset").out, HasSubstr("FactorScale\t0.01333333333333333"));
}

TEST_F(QuorbInspect, PrintsTheLog) {
  run_.Write("plot.qbv", DataFileText(kFormula, kRows));
  const ProgramOutcome outcome = Run("./plot.qbv --log");
  EXPECT_THAT(outcome.out, StartsWith("NameTempo$ "));
  EXPECT_THAT(outcome.out, HasSubstr("\r\n./plot.qbv is open\r\n The demo will be shown False\r\n"));
  EXPECT_THAT(outcome.out, HasSubstr(std::string("Extraction_info cellFormula ") + kFormula));
}

TEST_F(QuorbInspect, AMissingFileIsToldWithTheViewersMessage) {
  const ProgramOutcome outcome = Run("missing.qbv");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "Demo default: The demo will be shown.\n"
            "quorb-inspect: no rows were read from missing.qbv: File not found\n");
}

TEST_F(QuorbInspect, AFileWithoutRowsGivesStatusOneAndTheReason) {
  run_.Write("empty.qbv", "");
  EXPECT_EQ(Run("empty.qbv").err,
            "quorb-inspect: no rows were read from empty.qbv: it has no line behind its header\n");
  run_.Write("blank.qbv", DataFileText(kFormula, "\r\n\r\n"));
  const ProgramOutcome outcome = Run("blank.qbv");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "quorb-inspect: no rows were read from blank.qbv: every line behind its header is empty\n");
  EXPECT_EQ(Run(".").err, "quorb-inspect: no rows were read from .: Path/File access error\n");
}

TEST_F(QuorbInspect, WrongCallsGiveStatusTwo) {
  run_.Write("plot.qbv", DataFileText(kFormula, kRows));
  for (const char* arguments :
       {"", "a b", "--rows dataXYZT", "plot.qbv --rows dataNone", "plot.qbv --rows dataXYZT:1",
        "plot.qbv --rows dataXYZT:x-2", "plot.qbv --nonsense"}) {
    const ProgramOutcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_THAT(outcome.err, HasSubstr("(see quorb-inspect --help)")) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
  }
}

TEST_F(QuorbInspect, TellsWhatAFormulaMeansWithoutAFile) {
  const ProgramOutcome outcome = Run("--formula '=0.01+LEN(\"Transfer kmday\")+MAX(A2:C2000)+MAX(D2:D2000)'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, StartsWith("Formula\t=0.01+LEN(\"Transfer kmday\")+MAX(A2:C2000)+MAX(D2:D2000)\n"
                                      "MainKeyword\tMAX\nFactorScale\t0.01\nTitleAsGiven\tTransfer kmday\n"
                                      "Title\tTransfer\nTimeInSeconds\tFalse\nLengthInMetres\tFalse\n"));
  EXPECT_THAT(outcome.out, HasSubstr("\nrangeT\tD2:D2000\nrangeT.columns\t4-4\nrangeT.rows\t2-2000\n"));
}

TEST_F(QuorbInspect, MessagesOfAFormulaGoToStandardErrorWithTheirTitles) {
  const ProgramOutcome outcome = Run("'--formula==MAX(A02:C20)'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err,
            "Error entry: High Entry not compatible with the requirements Excel form for the range of cells: "
            "should be like A10:C200 \n"
            "quorb-inspect: rangeXYZ: \"A02:C20\" is no range such as A2:C2000.\n");
  EXPECT_THAT(outcome.out, HasSubstr("rangeXYZ.columns\t1-3\nrangeXYZ.rows\t2-20\n"));
}

TEST_F(QuorbInspect, AFormulaWithoutXYZGivesStatusOne) {
  for (const char* formula : {"''", "'=1'", "'=MAX(A:C)'", "'=MAX(A2:B9)'"}) {
    const ProgramOutcome outcome = Run(std::string("--formula ") + formula);
    EXPECT_EQ(outcome.status, 1) << formula;
    EXPECT_THAT(outcome.err, HasSubstr("quorb-inspect: the formula names no range that holds X, Y and Z\n"))
        << formula;
    EXPECT_THAT(outcome.out, StartsWith("Formula\t")) << formula;
  }
}

TEST_F(QuorbInspect, AFormulaGoesWithNothingElse) {
  run_.Write("plot.qbv", DataFileText(kFormula, kRows));
  for (const char* arguments : {"plot.qbv --formula '=MAX(A2:C9)'", "--formula '=MAX(A2:C9)' --log",
                                "--formula '=MAX(A2:C9)' --formula x", "--formula"}) {
    const ProgramOutcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_THAT(outcome.err, HasSubstr("(see quorb-inspect --help)")) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
  }
}

// A name of seven letters is too short for the viewer's command line, not for this program.
TEST_F(QuorbInspect, TakesANameOfAnyLength) {
  run_.Write("a.qbv", DataFileText(kFormula, kRows));
  EXPECT_EQ(Run("a.qbv").status, 0);
  run_.Write("with blank, comma.qbv", DataFileText(kFormula, kRows));
  EXPECT_EQ(Run("'with blank, comma.qbv'").status, 0);
}

}  // namespace
}  // namespace quorb
