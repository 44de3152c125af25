#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "ProgramRun.h"

namespace {

namespace fs = std::filesystem;
using quorb::ContentsOfFile;
using quorb::ProgramOutcome;
using quorb::ProgramRun;
using testing::HasSubstr;
using testing::StartsWith;

std::vector<std::string> LinesOf(const fs::path& path) {
  std::vector<std::string> lines;
  std::istringstream text(ContentsOfFile(path));
  for (std::string line; std::getline(text, line);)
    lines.push_back(line);
  return lines;
}

/// Runs the program in a directory of its own for each test.
class QuorbConvert : public testing::Test {
 protected:
  ProgramOutcome Run(const std::string& arguments) const {
    return run_.Run(QUORB_CONVERT_PROGRAM, arguments);
  }
  void Write(const std::string& name, const std::string& text) const { run_.Write(name, text); }
  bool Exists(const std::string& name) const { return fs::exists(run_.File(name)); }

  ProgramRun run_;
};

TEST_F(QuorbConvert, HelpIsAnsweredBeforeAnythingElse) {
  const ProgramOutcome outcome = Run("--nonsense --help");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_EQ(outcome.out,
            "Usage: quorb-convert IN -o OUT.qbv [--scale S] [--title T]\n"
            "\n"
            "Turns an ephemeris into a data file for the viewer: positions in kilometres,\n"
            "times as serial days (days since 1899-12-30).\n"
            "\n"
            "  IN          one of these, told apart by what the file holds:\n"
            "              - a CCSDS orbit ephemeris message, KVN or XML\n"
            "              - a table of text whose header line names the columns time, x, y, z\n"
            "                (epochs or serial days; kilometres; other columns are ignored)\n"
            "  -o OUT.qbv  the data file to write; one of that name is replaced\n"
            "  --scale S   the scale factor, above 0 (default 0.01); with 1 the viewer scales\n"
            "              each axis by itself and draws no bodies\n"
            "  --title T   the title (default: the object's name, else the name of IN)\n"
            "  --help      show this text\n"
            "  --version   show the version\n"
            "\n"
            "The title must not hold a keyword that changes how the rows are read, such as\n"
            "\"km\" or \"day\".\n"
            "\n"
            "Exit status: 0 done, 1 a file could not be read or written, 2 wrong call.\n");
}

TEST_F(QuorbConvert, VersionIsAnswered) {
  const ProgramOutcome outcome = Run("--version");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "quorb-convert 2.8.6\n");
}

TEST_F(QuorbConvert, TableBecomesADataFile) {
  Write("orbit.txt", "t x y z\n45714.5 1 2 3\n");
  const ProgramOutcome outcome = Run("orbit.txt -o out.qbv --scale 0.5 --title 'First leg'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.err, "");
  const std::string text = ContentsOfFile(run_.File("out.qbv"));
  EXPECT_THAT(text,
              StartsWith("From: \torbit.txt\t\t= 0.5 + LEN(\"First leg kmday\") + MAX(A2:C2) + MAX(D2:D2)\t"
                         "0.5000000000\tFirst leg kmday\tDate 20"));
  EXPECT_THAT(text, HasSubstr("\r\n1.0000000000\t2.0000000000\t3.0000000000\t45714.5000000000\r\n"));
}

TEST_F(QuorbConvert, WrongCallsGiveStatusTwoAndNoFile) {
  Write("orbit.txt", "t x y z\n45714.5 1 2 3\n");
  const std::string hint = " (see quorb-convert --help)\n";
  const std::pair<const char*, const char*> calls[] = {
      {"", "one input file is needed, 0 were named"},
      {"orbit.txt second.txt -o out.qbv", "one input file is needed, 2 were named"},
      {"orbit.txt", "the output file is missing: name it with -o"},
      {"orbit.txt -o", "option -o has no value"},
      {"orbit.txt -o ''", "the output file is missing: name it with -o"},
      {"orbit.txt -o out.qbv --size 3", "unknown option --size"},
      {"orbit.txt -o out.qbv --scale 0", "the scale \"0\" is no number above 0"},
      {"orbit.txt -o out.qbv --scale -1", "the scale \"-1\" is no number above 0"},
      {"orbit.txt -o out.qbv --scale nan", "the scale \"nan\" is no number above 0"},
      {"orbit.txt -o out.qbv --scale 1,5", "the scale \"1,5\" is no number above 0"},
      {"orbit.txt -o out.qbv --scale ''", "the scale \"\" is no number above 0"},
      {"orbit.txt -o out.qbv --title 'a \"b\"'",
       "a title holds no double quote, TAB, line end or other control character: choose another --title"},
      {"orbit.txt -o out.qbv --title Sunday",
       "the title holds the keyword \"day\", which takes the time in days and would spoil the file: choose "
       "another "
       "--title"}};
  for (const auto& [arguments, message] : calls) {
    const ProgramOutcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.err, "quorb-convert: " + std::string(message) + hint) << arguments;
    EXPECT_EQ(outcome.out, "") << arguments;
  }
  EXPECT_FALSE(Exists("out.qbv"));
}

TEST_F(QuorbConvert, BadInputGivesStatusOneNamesTheLineAndLeavesNoFile) {
  Write("orbit.txt", "t x y z\n45714.5 1 2 3\n45714.6 1 2 x\n");
  const ProgramOutcome outcome = Run("orbit.txt -o out.qbv");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "quorb-convert: orbit.txt: line 3: \"x\" for z is no number: correct it or take the state out\n");
  EXPECT_FALSE(Exists("out.qbv"));
  EXPECT_FALSE(Exists("out.qbv.part0"));
}

TEST_F(QuorbConvert, InputThatCannotBeReadGivesStatusOne) {
  EXPECT_EQ(Run("none.txt -o out.qbv").err,
            "quorb-convert: none.txt: the file is not there: check the name\n");
  EXPECT_EQ(Run("none.txt -o out.qbv").status, 1);
  EXPECT_EQ(Run(". -o out.qbv").err, "quorb-convert: .: this is a directory: name a file\n");
  Write("empty.txt", "");
  const ProgramOutcome empty = Run("empty.txt -o out.qbv");
  EXPECT_EQ(empty.status, 1);
  EXPECT_EQ(empty.err, "quorb-convert: empty.txt: line 1: the file is empty: give one with states\n");
}

TEST_F(QuorbConvert, KeywordInTheTitleIsWarnedOf) {
  Write("orbit.txt", "t x y z\n45714.5 1 2 3\n");
  const ProgramOutcome outcome = Run("orbit.txt -o out.qbv --title 'To the moon'");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err,
            "quorb-convert: warning: the title holds the keyword \"moon\": the viewer shows the Moon at the "
            "centre\n");
}

TEST_F(QuorbConvert, FileNameThatWouldSpoilTheTitleGivesWay) {
  Write("three_days.txt", "t x y z\n45714.5 1 2 3\n");
  const ProgramOutcome outcome = Run("three_days.txt -o out.qbv");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.err, StartsWith("quorb-convert: warning: the name \"three_days\" gives no title"));
  EXPECT_THAT(ContentsOfFile(run_.File("out.qbv")), HasSubstr("LEN(\"Trajectory kmday\")"));
}

/// Runs over real ephemerides, which lie beside the checkout where there are any.
class QuorbConvertRealData : public QuorbConvert {
 protected:
  void SetUp() override {
    if (fs::is_directory(QUORB_SHARED_DATA)) return;
    const std::string reason = "SKIPPED: no directory " QUORB_SHARED_DATA;
    ASSERT_EQ(std::getenv("CI"), nullptr) << reason;
    std::cout << reason << "\n";
    GTEST_SKIP() << reason;
  }
};

TEST_F(QuorbConvertRealData, SpaceStationMessageIsConverted) {
  const ProgramOutcome outcome = Run("'" QUORB_SHARED_DATA "/iss_2025_02_26.oem.xml' -o iss.qbv");
  EXPECT_EQ(outcome.err, "");
  ASSERT_EQ(outcome.status, 0);
  const std::vector<std::string> lines = LinesOf(run_.File("iss.qbv"));
  ASSERT_EQ(lines.size(), 1U + 5413U);
  EXPECT_THAT(lines[0],
              StartsWith("From: \tiss_2025_02_26.oem.xml\tISS\t= 0.01 + LEN(\"ISS kmday\") + MAX(A2:C5414) + "
                         "MAX(D2:D5414)\t0.0100000000\tISS kmday\tDate "));
  EXPECT_EQ(lines[1], "236.6071897228\t-5167.4525798095\t4405.8223442860\t45714.5000000000\r");
  EXPECT_THAT(lines.back(), HasSubstr("\t45729.5000000000\r"));
}

TEST_F(QuorbConvertRealData, LunarFlightTableIsConverted) {
  const ProgramOutcome outcome =
      Run("'" QUORB_SHARED_DATA "/artemis1_orion_states.txt' -o orion.qbv --title Orion");
  EXPECT_EQ(outcome.err, "");
  ASSERT_EQ(outcome.status, 0);
  const std::vector<std::string> lines = LinesOf(run_.File("orion.qbv"));
  ASSERT_EQ(lines.size(), 1U + 9127U);
  EXPECT_THAT(lines[0], HasSubstr("LEN(\"Orion kmday\") + MAX(A2:C9128) + MAX(D2:D9128)"));
  // 9 h 27 min 8.381 s are 34028.381 s, 0.3938470023 days.
  EXPECT_EQ(lines[1], "-31795.2243215092\t8313.1537047273\t10298.7028644619\t44881.3938470023\r");
  EXPECT_THAT(lines.back(), StartsWith("-4455.4567190747\t-3709.9863446734\t-2972.4812182530\t44906."));
}

}  // namespace
