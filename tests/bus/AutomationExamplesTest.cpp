#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

#include "RealOffice.h"
#include "ViewerOnBus.h"

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr double kTolerance = 0.00005;  // of the pixels: the same numbers give the same picture
constexpr const char* kPushTable = QUORB_AUTOMATION_EXAMPLES "/push-table";
constexpr const char* kSelectionMacro =
    "vnd.sun.star.script:push_selection.py$push_selection?language=Python&location=user";
constexpr const char* kKilometresMacro =
    "vnd.sun.star.script:push_selection.py$push_kilometres?language=Python&location=user";

/// The examples as a user runs them, on the real program.
class AutomationExamples : public ViewerOnBus {
 protected:
  void SetUp() override {
    viewer_ = Start(QUORB_EXAMPLES "/km.qbv");
    ASSERT_TRUE(WaitUntilFree());
    ASSERT_TRUE(WaitForWindow("Quorb"));
  }

  /// Waits for the picture of a data file with this formula and these rows.
  void ExpectPictureOf(const std::string& formula, const std::string& rows) const {
    run.Write("same.qbv", DataFileText(formula, rows));
    const PixelImage expected = Rendered("same.qbv");
    double share = 1;
    EXPECT_TRUE(WaitFor([&] { return (share = FindDifference(Plot(), expected).share) <= kTolerance; }))
        << share;
  }

  std::unique_ptr<Background> viewer_;
};

constexpr const char* kRows =
    "-9000\t-9000\t0\t45000\r\n"
    "9000\t-9000\t0\t45001\r\n"
    "9000\t9000\t3000\t45002\r\n"
    "-9000\t9000\t0\t45003.5\r\n";

TEST_F(AutomationExamples, TheScriptPushesTheChosenColumns) {
  run.Write("orbit table.txt",
            "time;name;X;Y;Z\n"
            "45000;first;-9000;-9000;0\n"
            "45001;second;9000;-9000;0\n"
            "45002;third;9000;9000;3000\n"
            "45003.5;fourth;-9000;9000;0\n");
  const ProgramOutcome outcome =
      run.Run(kPushTable, "-c 3,4,5,1 -f 0.001 -t \"It's \\\\ pushed\" 'orbit table.txt'");
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(Read("Title"), R"((<"It's \\ pushed">,))");
  EXPECT_EQ(Read("LastPoint"), "(<3>,)");
  ExpectPictureOf("=0.001+LEN(\"It's \\ pushed kmday\")+MAX(A2:C5)+MAX(D2:D5)", kRows);
}

/// How a table of kRows may look, and what tells the script so.
struct TableForm {
  std::string name, options, text;
};

TEST_F(AutomationExamples, TheScriptReadsTablesInManyForms) {
  for (const TableForm& form : std::vector<TableForm>{
           {"Lines of another system", "-c 1,2,3,4",
            "-9000\t-9000\t0\t45000\r\n9000\t-9000\t0\t45001\r\n9000\t9000\t3000\t45002\r\n"
            "-9000\t9000\t0\t45003.5\r\n"},
           {"Decimal commas", "-d , -c 1,2,3,4",
            "-9000,0;-9000;0;45000\n9000;-9000;,0;45001\n9e3;9000;3000;45002\n-9000;9000;0;45003,5"},
           {"Cells in quotes", "-s , -c 2,3,4,5",
            "\xef\xbb\xbf\"Name, long\",X,Y,Z,T\n\"It's, \"\"a\"\"\",\"-9000\",-9000,0,45000\n"
            "b,9000,-9000,0,45001\n'c',9000,9000,3000,45002\nd,-9000,9000, 0,45003.5\n"},
           {"Cells that are empty", "-c 2,4,6,7",
            "X\t-9000\t\t-9000\t\t0\t45000\n\t9000\t\t-9000\t\t0\t45001\n\t9000\t\t9000\t\t3000\t45002\n"
            "\t-9000\t\t9000\t\t0\t45003.5\n"},
           {"Blanks beside each other", "-c 2,3,4,1",
            "# t x y z\n\n  45000 -9000 -9000    0\n  45001  9000 -9000    0\n  45002  9000  9000 3000\n"
            "45003.5 -9000  9000    0  \n"}}) {
    run.Write("table.txt", form.text);
    const ProgramOutcome outcome =
        run.Run(kPushTable, form.options + " -f 0.001 -t '" + form.name + "' table.txt");
    EXPECT_EQ(outcome.status, 0) << form.name;
    EXPECT_EQ(outcome.err, "") << form.name;
    SCOPED_TRACE(form.name);
    ExpectPictureOf("=0.001+LEN(\"" + form.name + " kmday\")+MAX(A2:C5)+MAX(D2:D5)", kRows);
  }
}

TEST_F(AutomationExamples, TheScriptLeavesARowWithABadCellOutWholeAndTellsIt) {
  run.Write("table.txt",
            "X;Y;Z;T\n"
            "-9000;-9000;0;45000\n"
            "9000;-9000;0;45001\n"
            "1;2;3;n/a\n"
            "9000;9000;3000;45002\n"
            "1;2;;45002.5\n"
            "-9000;9000;0;45003.5\n"
            "1,5;2;3;45004\n");
  const ProgramOutcome outcome = run.Run(kPushTable, "-c 1,2,3,4 -f 0.001 -t Whole table.txt");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err,
            "push-table: left out, for cells that are no numbers: 3 of the rows, the first in line 4, where "
            "column 4 holds \"n/a\"\n");
  EXPECT_EQ(Read("LastPoint"), "(<3>,)");
  ExpectPictureOf("=0.001+LEN(\"Whole kmday\")+MAX(A2:C5)+MAX(D2:D5)", kRows);
}

TEST_F(AutomationExamples, TheScriptTakesNegativeFactors) {
  run.Write("two.txt", "1 2 3\n4 5 6\n");
  for (const char* factor : {"-0.5", "-5e-1", "-.5"}) {
    const ProgramOutcome outcome = run.Run(kPushTable, std::string("-f ") + factor + " two.txt");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(Read("FactorScale"), StartsWith("(<-")) << factor;
    EXPECT_EQ(run.Run(kPushTable, "two.txt").status, 0);
    EXPECT_EQ(Read("FactorScale"), "(<1.0>,)");
  }
}

TEST_F(AutomationExamples, TheScriptTakes64OfManyRowsAndTellsIt) {
  constexpr int kRowCount = 63 * 400 + 1;
  std::string table, rows;
  for (int i = 0; i < kRowCount; ++i)
    table += std::to_string(i % 400 == 0 ? i : -1) + " " + std::to_string(i * 2) + " 7 " + std::to_string(i) +
             "\n";
  for (int i = 0; i < kRowCount; i += 400)
    rows += std::to_string(i) + "\t" + std::to_string(i * 2) + "\t7\t" + std::to_string(i) + "\r\n";
  ASSERT_GT(table.size(), 256U * 1024) << "more than an argument of a program holds";
  run.Write("long.txt", table);
  const ProgramOutcome outcome = run.Run(kPushTable, "-c 1,2,3,4 long.txt");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(Read("Title"), "(<'long.txt (64 of 25201 rows)'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<63>,)");
  ExpectPictureOf("=LEN(\"long.txt (64 of 25201 rows) kmday\")+MAX(A2:C65)+MAX(D2:D65)", rows);
}

TEST_F(AutomationExamples, TheScriptTellsWhatIsWrongWithItsTable) {
  run.Write("words.txt", "X Y Z\na b c\n");
  run.Write("commas.txt", "1,2,3\n");
  run.Write("open.txt", "1;2;3\n\"4;5;6\n");
  run.Write("empty.txt", "");
  const std::string none = " has no row with numbers in the columns ";
  const std::vector<std::pair<std::string, std::string>> faults = {
      {"missing.txt", "push-table: cannot read missing.txt: No such file or directory\n"},
      {".", "push-table: cannot read .: Is a directory\n"},
      {"words.txt", "push-table: words.txt" + none +
                        "1, 2, 3 (parted by blanks, decimal mark .): choose with -c, -s and -d\n"},
      {"-c 7,8,9 commas.txt -s ,", "push-table: commas.txt" + none + "7, 8, 9 (parted by ,"},
      {"empty.txt", "push-table: empty.txt" + none},
      {"open.txt", "push-table: cannot read the table, line 3: unexpected end of data\n"}};
  for (const auto& [arguments, text] : faults) {
    const ProgramOutcome outcome = run.Run(kPushTable, arguments);
    EXPECT_EQ(outcome.status, 1) << arguments;
    EXPECT_THAT(outcome.err, HasSubstr(text)) << arguments;
  }
  EXPECT_EQ(Read("Title"), "(<'Long orbit over the north'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<180>,)");
}

TEST_F(AutomationExamples, TheScriptTellsWhatIsWrongWithItsOptions) {
  run.Write("table.txt", "1 2 3\n");
  const std::vector<std::pair<std::string, std::string>> faults = {
      {"-c 3 table.txt", "name three columns, X,Y,Z, or four"},
      {"-c 0,1,2 table.txt", "name three columns"},
      {"-c 1,2,3,4,5 table.txt", "name three columns"},
      {"-f 0 table.txt", "the factor is a number with a decimal point, and not 0"},
      {"-f 0,5 table.txt", "the factor"},
      {"-f nan table.txt", "the factor"},
      {"-s ab table.txt", "name tab, blank or one character"},
      {"-s , -d , table.txt", "the decimal mark"},
      {"-x table.txt", "option -x not recognized"},
      {"", "name one table of text"},
      {"table.txt table.txt", "name one table of text"}};
  for (const auto& [arguments, text] : faults) {
    const ProgramOutcome outcome = run.Run(kPushTable, arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_THAT(outcome.err, StartsWith("push-table: " + text)) << arguments;
  }
  EXPECT_EQ(Read("Title"), "(<'Long orbit over the north'>,)");
  EXPECT_THAT(run.Run(kPushTable, "--help").out, HasSubstr("push-table [-c X,Y,Z[,TIME]]"));
}

TEST_F(AutomationExamples, TheScriptTellsThatThereIsNoViewerNoBusOrNoGdbus) {
  run.Write("table.txt", "1 2 3\n");
  viewer_.reset();
  ASSERT_TRUE(WaitFor([&] { return OwnNames().empty(); }));
  const std::vector<std::pair<std::string, std::string>> faults = {
      {"", "no viewer runs here: start QuorbExcelPro"},
      {"DBUS_SESSION_BUS_ADDRESS=unix:path=/none ", "the title did not reach the plot. Error connecting"},
      {"PATH=/none ", "gdbus is not installed; the package of Debian is libglib2.0-bin"}};
  for (const auto& [environment, text] : faults) {
    const ProgramOutcome outcome =
        run.Run("/usr/bin/env", environment + "/usr/bin/python3 " + kPushTable + " table.txt");
    EXPECT_EQ(outcome.status, 1) << text;
    EXPECT_THAT(outcome.err, StartsWith("push-table: " + text));
  }
}

TEST_F(AutomationExamples, TheScriptWaitsForABusyViewerButNotForEver) {
  run.Write("table.txt", "1 2 3\n4 5 6\n");
  viewer_.reset();
  viewer_ = Start("");
  ASSERT_TRUE(WaitForWindow("Excel not running!")) << "the load waits behind this box";
  const ProgramOutcome refused = run.Run(kPushTable, "table.txt");
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.err, StartsWith("push-table: the title did not reach the plot."));
  EXPECT_THAT(refused.err, HasSubstr("org.quorb.QuorbExcelPro.Error.Busy: The viewer loads a plot"));

  Background patient({kPushTable, run.File("table.txt")}, {});
  std::this_thread::sleep_for(std::chrono::seconds(1));
  EXPECT_TRUE(patient.Runs());
  PressReturnIn("Excel not running!");
  EXPECT_EQ(patient.Wait(std::chrono::seconds(20)), 0);
  EXPECT_EQ(Read("Title"), "(<'table.txt'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<1>,)");
}

TEST_F(AutomationExamples, TheShellScriptPushesACircle) {
  ASSERT_EQ(run.Run(QUORB_AUTOMATION_EXAMPLES "/push-circle", "").status, 0);
  EXPECT_EQ(Read("Title"), "(<'A circle'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<63>,)");
  std::string rows;
  for (int i = 0; i < 64; ++i) {
    std::array<char, 80> row{};
    std::snprintf(row.data(), row.size(), "%.1f\t%.1f\t0\t%.6f\r\n", 8000 * std::cos(i / 10.0),
                  8000 * std::sin(i / 10.0), 45000 + i / 63.0 / 12);
    rows += row.data();
  }
  ExpectPictureOf("=0.001+LEN(\"A circle kmday\")+MAX(A2:C65)+MAX(D2:D65)", rows);

  viewer_.reset();
  ASSERT_TRUE(WaitFor([&] { return OwnNames().empty(); }));
  const ProgramOutcome outcome = run.Run(QUORB_AUTOMATION_EXAMPLES "/push-circle", "");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("push-circle: InterFaceXls failed; does QuorbExcelPro run"));
}

TEST(AutomationExamplesPackages, AreNamedAndStandInTheListOfPackages) {
  const std::string list = ContentsOfFile(QUORB_AUTOMATION_EXAMPLES "/../../packaging/debian-packages.txt");
  const std::vector<std::pair<std::string, std::vector<std::string>>> needs = {
      {"push-circle", {"libglib2.0-bin"}},
      {"push-table", {"python3", "libglib2.0-bin"}},
      {"push_selection.py", {"libreoffice-script-provider-python", "libglib2.0-bin"}}};
  for (const auto& [example, packages] : needs) {
    const std::string text = ContentsOfFile(QUORB_AUTOMATION_EXAMPLES "/" + example);
    for (const std::string& package : packages) {
      EXPECT_THAT(text, HasSubstr(package)) << example;
      EXPECT_THAT(list, HasSubstr("\ntest " + package + "\n"));
    }
  }
}

/// The macro in a real Calc.
class AutomationExamplesMacro : public AutomationExamples {
 protected:
  static void SetUpTestSuite() {
    office_ = std::make_unique<RealOffice>();
    ASSERT_TRUE(office_->Ready());
    std::filesystem::create_directories(office_->PythonMacros());
    std::filesystem::copy(QUORB_AUTOMATION_EXAMPLES "/push_selection.py", office_->PythonMacros());
  }
  static void TearDownTestSuite() { office_.reset(); }

  void SetUp() override {
    AutomationExamples::SetUp();
    ASSERT_TRUE(User().OpenSheet(document_).Good());
  }
  void TearDown() override { EXPECT_TRUE(User().Close(document_).Good()); }

  static OfficeUser& User() { return office_->User(); }
  void Type(int row, int column, const std::string& text) {
    ASSERT_TRUE(User().Type(document_, 0, row, column, text).Good());
  }

  static std::unique_ptr<RealOffice> office_;
  int document_ = 0;
};

std::unique_ptr<RealOffice> AutomationExamplesMacro::office_;

TEST_F(AutomationExamplesMacro, PushesTheSelectedColumns) {
  Type(1, 1, "X");
  ASSERT_TRUE(User()
                  .TypeNumbers(document_, 0, 2, 1, 4,
                               {-9000, -9000, 0, 45000, 9000, -9000, 0, 45001, 9000, 9000, 3000, 45002, -9000,
                                9000, 0, 45003.5})
                  .Good());
  ASSERT_TRUE(User().Select(document_, 0, "A1:D1048576").Good());
  const SheetFault fault = User().RunMacro(document_, kKilometresMacro);
  ASSERT_TRUE(fault.Good()) << fault.description;
  EXPECT_EQ(Read("Title"), "(<'Sheet1'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<3>,)");
  EXPECT_EQ(Read("FlagOptionToPlot"), "(<0>,)");
  ExpectPictureOf("=0.001+LEN(\"Sheet1 kmday\")+MAX(A2:C5)+MAX(D2:D5)", kRows);
}

TEST_F(AutomationExamplesMacro, ColumnsMayStandApartAndTheNumberOfRowsIsTold) {
  constexpr int kRowCount = 127;
  std::vector<double> numbers;
  for (int i = 0; i < kRowCount; ++i)
    numbers.insert(numbers.end(), {i * 1.0, -1, i * 2.0, i * 0.25, i * 1.0});
  ASSERT_TRUE(User().TypeNumbers(document_, 0, 1, 2, 5, numbers).Good());
  ASSERT_TRUE(User().SelectApart(document_, 0, {"D1:F127", "B1:B127"}).Good());
  const SheetFault fault = User().RunMacro(document_, kSelectionMacro);
  ASSERT_TRUE(fault.Good()) << fault.description;
  EXPECT_EQ(Read("Title"), "(<'Sheet1 (64 of 127 rows)'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<63>,)");
  EXPECT_EQ(Read("FactorScale"), "(<1.0>,)");
  // Every second row.
  std::string rows;
  for (int i = 0; i < kRowCount; i += 2)
    rows += std::to_string(i) + "\t" + std::to_string(i * 2) + "\t" + std::to_string(i * 0.25) + "\t" +
            std::to_string(i) + "\r\n";
  ExpectPictureOf("=LEN(\"Sheet1 (64 of 127 rows) kmday\")+MAX(A2:C65)+MAX(D2:D65)", rows);
}

TEST_F(AutomationExamplesMacro, EventsArePushedFromSixColumns) {
  ASSERT_TRUE(
      User().TypeNumbers(document_, 0, 1, 1, 5, {1, 0, 0, 10, 11, 0, 1, 0, 11, 12, 0, 0, 1, 12, 99}).Good());
  Type(1, 6, "S");
  Type(2, 6, "E");
  Type(3, 6, "E");
  ASSERT_TRUE(User().Select(document_, 0, "A1:F3").Good());
  const SheetFault fault = User().RunMacro(document_, kSelectionMacro);
  ASSERT_TRUE(fault.Good()) << fault.description;
  EXPECT_EQ(Read("NbEvents"), "(<2>,)");
  EXPECT_EQ(Read("FlagOptionToPlot"), "(<1>,)");
}

TEST_F(AutomationExamplesMacro, AnEventOfOneIsAStart) {
  // In front of the Earth. Two starts begin and end a coloured part; an end and a start do not.
  ASSERT_TRUE(
      User()
          .TypeNumbers(document_, 0, 1, 1, 5,
                       {-8000, -4000, 7000, 1, 2, -4000, -4000, 7000, 2, 3.5, 4000, -4000, 7000, 3, 92})
          .Good());
  ASSERT_TRUE(User().Select(document_, 0, "A1:F3").Good());
  const auto push = [&](const std::string& start) {
    Type(1, 6, start);
    Type(2, 6, "S");
    Type(3, 6, "E");
    EXPECT_TRUE(User().RunMacro(document_, kKilometresMacro).Good());
  };
  const auto differs = [&](const PixelImage& from) {
    return FindDifference(Plot(), from).share > kTolerance;
  };
  const PixelImage before = Plot();
  push("Start S");
  PixelImage started = before;
  ASSERT_TRUE(WaitFor([&] {
    const PixelImage last = std::exchange(started, Plot());
    return FindDifference(started, before).share > kTolerance && FindDifference(started, last).share == 0;
  }));
  push("0");
  EXPECT_TRUE(WaitFor([&] { return differs(started); }));
  push("1");
  EXPECT_TRUE(WaitFor([&] { return !differs(started); }));
}

TEST_F(AutomationExamplesMacro, AFifthEventIsToldBeforeAnythingIsPushed) {
  std::vector<double> numbers;
  for (int i = 0; i < 5; ++i)
    numbers.insert(numbers.end(), {i * 1.0, 0, 0, i * 1.0, i * 1.0, 1});
  ASSERT_TRUE(User().TypeNumbers(document_, 0, 1, 1, 6, numbers).Good());
  ASSERT_TRUE(User().Select(document_, 0, "A1:F5").Good());
  EXPECT_THAT(User().RunMacro(document_, kSelectionMacro).description,
              HasSubstr("The viewer takes 4 events; 5 are selected."));
  EXPECT_EQ(Read("Title"), "(<'Long orbit over the north'>,)");
  EXPECT_EQ(Read("LastPoint"), "(<180>,)");
  Type(5, 5, "none");
  EXPECT_TRUE(User().RunMacro(document_, kSelectionMacro).Good());
  EXPECT_EQ(Read("LastPoint"), "(<4>,)");
  EXPECT_EQ(Read("NbEvents"), "(<3>,)");
}

TEST_F(AutomationExamplesMacro, ARowWithABadTimeIsLeftOutWhole) {
  ASSERT_TRUE(User()
                  .TypeNumbers(document_, 0, 1, 1, 4,
                               {-9000, -9000, 0,    45000, 9000, -9000, 0, 45001, 1,     2,    3, 4,
                                9000,  9000,  3000, 45002, 5,    6,     7, 8,     -9000, 9000, 0, 45003.5})
                  .Good());
  Type(3, 4, "n/a");
  Type(5, 4, "");
  ASSERT_TRUE(User().Select(document_, 0, "A1:D6").Good());
  ASSERT_TRUE(User().RunMacro(document_, kKilometresMacro).Good());
  EXPECT_EQ(Read("LastPoint"), "(<3>,)");
  ExpectPictureOf("=0.001+LEN(\"Sheet1 kmday\")+MAX(A2:C5)+MAX(D2:D5)", kRows);
}

TEST_F(AutomationExamplesMacro, TheTitleIsTheSheetsNameWhateverItHolds) {
  ASSERT_TRUE(User()
                  .AddSheet(document_,
                            "\xc3\x89t\xc3\xa9 d'Orl\xc3\xa9"
                            "ans")
                  .Good());
  ASSERT_TRUE(User().ShowSheet(document_, 1).Good());
  ASSERT_TRUE(User().TypeNumbers(document_, 1, 1, 1, 3, {1, 2, 3, 4, 5, 6}).Good());
  ASSERT_TRUE(User().Select(document_, 1, "A1:C2").Good());
  ASSERT_TRUE(User().RunMacro(document_, kSelectionMacro).Good());
  EXPECT_EQ(Read("Title"),
            "(<\"\xc3\x89t\xc3\xa9 d'Orl\xc3\xa9"
            "ans\">,)");
}

TEST_F(AutomationExamplesMacro, WhatGoesWrongIsToldToTheUserOfTheOffice) {
  const auto told = [&](const std::string& selection) {
    EXPECT_TRUE(User().Select(document_, 0, selection).Good());
    return User().RunMacro(document_, kSelectionMacro).description;
  };
  Type(1, 1, "word");
  EXPECT_THAT(told("A1:C5"), HasSubstr("No selected row has numbers for X, Y, Z."));
  ASSERT_TRUE(User().TypeNumbers(document_, 0, 1, 1, 3, {1, 2, 3, 4, 5, 6}).Good());
  EXPECT_THAT(told("A1:D2"), HasSubstr("No selected row has numbers for X, Y, Z and time."));
  for (const char* selection : {"A1:B2", "A1:E2"})
    EXPECT_THAT(told(selection), HasSubstr("Select three, four or six columns"));
  EXPECT_EQ(Read("Title"), "(<'Long orbit over the north'>,)");
  viewer_.reset();
  ASSERT_TRUE(WaitFor([&] { return OwnNames().empty(); }));
  EXPECT_THAT(told("A1:C2"), HasSubstr("No viewer runs here: start QuorbExcelPro"));
}

}  // namespace
}  // namespace quorb
