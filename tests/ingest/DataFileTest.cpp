#include "DataFile.h"

#include "LoadFixture.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class DataFileTest : public LoadFixture {
 protected:
  ~DataFileTest() override { CloseChannel(1); }

  int Open(const std::string& name) {
    int ErrorNumber = -1;
    OpenfileW(name, 1, ErrorNumber, window);
    return ErrorNumber;
  }

  int OpenBytes(const std::string& bytes) {
    files.contents[kName] = bytes;
    return Open(kName);
  }

  std::string ReadLine() {
    std::string lin = "(as it was)";
    LinInputW(1, lin, window);
    return lin;
  }
};

TEST_F(DataFileTest, OpeningSetsErrorNumberToZeroAndLogsThatTheFileIsOpen) {
  EXPECT_EQ(OpenBytes("a\r\n"), 0);
  EXPECT_THAT(window.log, ElementsAre("/data/plot.qbv is open"));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(DataFileTest, EachFailureHasItsNumberAndItsLogLine) {
  EXPECT_EQ(Open("/none"), 53);
  files.failures["/path"] = 76;
  EXPECT_EQ(Open("/path"), 76);
  files.failures["/bad"] = 52;
  EXPECT_EQ(Open("/bad"), 52);
  files.failures["/closed"] = 70;
  EXPECT_EQ(Open("/closed"), 70);
  files.failures["/directory"] = 75;
  EXPECT_EQ(Open("/directory"), 75);
  EXPECT_THAT(window.log, ElementsAre("/none is NOT open, error:53 File not found",
                                      "/path is NOT open, error:76 Path not found",
                                      "/bad is NOT open, error:52 Bad file name or number",
                                      "/closed is NOT open, error:70 Permission denied",
                                      "/directory is NOT open, error:75 Path/File access error"));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(DataFileTest, OnlyAFailureThatNamesTheClipboardIsShown) {
  for (const int silent : {53, 52, 5, 50290, 91, 448, 75, 70, 1004, 76, 6, 4711}) {
    files.failures["/x"] = silent;
    EXPECT_EQ(Open("/x"), silent);
  }
  EXPECT_THAT(dialogs.boxes, IsEmpty());

  files.failures["/x"] = 521;
  EXPECT_EQ(Open("/x"), 521);
  ASSERT_THAT(dialogs.boxes, SizeIs(1));
  EXPECT_EQ(dialogs.boxes[0].prompt, "Can't open Clipboard");
  EXPECT_EQ(dialogs.boxes[0].title, "Error");
}

TEST_F(DataFileTest, AnyOtherChannelIsABadName) {
  files.contents[kName] = "a";
  int ErrorNumber = 0;
  OpenfileW(kName, 2, ErrorNumber, window);
  EXPECT_EQ(ErrorNumber, 52);
  EXPECT_TRUE(AtEndOfFile(2));
}

TEST_F(DataFileTest, OpeningClosesWhatWasOpen) {
  OpenBytes("a");
  files.contents["/other"] = "b";
  Open("/other");
  EXPECT_EQ(files.open, 1);
  EXPECT_EQ(ReadLine(), "b");
  Open("/none");
  EXPECT_EQ(files.open, 0);
  EXPECT_TRUE(AtEndOfFile(1));
  CloseChannel(1);
  CloseChannel(1);
}

TEST_F(DataFileTest, LinesAreReadWithoutTheirEnd) {
  OpenBytes("first\r\nsecond\nthird\rlast");
  EXPECT_EQ(ReadLine(), "first");
  EXPECT_EQ(ReadLine(), "second");
  EXPECT_EQ(ReadLine(), "third");
  EXPECT_FALSE(AtEndOfFile(1));
  EXPECT_EQ(ReadLine(), "last");
  EXPECT_TRUE(AtEndOfFile(1));
}

TEST_F(DataFileTest, LinesAreGivenInUtf8) {
  OpenBytes("\xE9t\xE9\n\xC3\xA9t\xC3\xA9\n");
  EXPECT_EQ(ReadLine(), "\xC3\xA9t\xC3\xA9");
  EXPECT_EQ(ReadLine(), "\xC3\xA9t\xC3\xA9");
}

TEST_F(DataFileTest, AFailureLeavesTheLineAsItWas) {
  OpenBytes("one");
  EXPECT_EQ(ReadLine(), "one");
  EXPECT_EQ(ReadLine(), "(as it was)");
  CloseChannel(1);
  EXPECT_EQ(ReadLine(), "(as it was)");
}

// The count is of the whole run, so this one runs in a process of its own.
using DataFileDeathTest = DataFileTest;
TEST_F(DataFileDeathTest, OnlyTheFirstNineFailuresOfARunAreLogged) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto failTwelveTimes = [this] {
    OpenBytes("one");
    ReadLine();
    window.log.clear();
    ReadLine();
    CloseChannel(1);
    for (int i = 0; i < 11; ++i)
      ReadLine();
    std::string all;
    for (const std::string& line : window.log)
      all += line + "|";
    std::fputs(all.c_str(), stderr);
    std::exit(window.log.size() == 9 ? 0 : 1);
  };
  EXPECT_EXIT(failTwelveTimes(), testing::ExitedWithCode(0),
              "error:62 Input past end of file.error:52 Bad file name or number.error:52");
}

TEST_F(DataFileTest, WhereTheFileBecameShorterItsLastLineIsNotRead) {
  OpenBytes("whole\r\ncut");
  EXPECT_EQ(ReadLine(), "whole");
  files.shrunk = true;
  EXPECT_EQ(ReadLine(), "(as it was)");
  EXPECT_TRUE(AtEndOfFile(1));
}

// ---- header ---------------------------------------------------------------------------------------------

TEST(ReadHeader, FieldsStandByTheirPosition) {
  const DataFileHeader header = ReadHeader(
      "From: \tBook1\tSheet1\t= 0.01 + MAX(A2:C9)\t0.0100000000\tTransfer kmday\tDate 2024/05/06 "
      "07:08:09\tmark\t");
  EXPECT_EQ(header.source, "Book1/Sheet1");
  EXPECT_EQ(header.formula, "= 0.01 + MAX(A2:C9)");
  EXPECT_EQ(header.scale, 0.01);
  EXPECT_EQ(header.title, "Transfer kmday");
  EXPECT_EQ(header.date, "Date 2024/05/06 07:08:09");
}

TEST(ReadHeader, FurtherEmptyFieldsDoNotMatter) {
  const DataFileHeader header = ReadHeader("From: \tB\tS\t=MAX(A2:C9)\t2\tT\tDate\tmark\t\t\t\t\t\t\t\t\t\t");
  EXPECT_EQ(header.formula, "=MAX(A2:C9)");
  EXPECT_EQ(header.scale, 2);
  EXPECT_EQ(header.title, "T");
}

TEST(ReadHeader, WithFewerThanTwoTabsThereIsNoFormula) {
  EXPECT_EQ(ReadHeader("").formula, "");
  EXPECT_EQ(ReadHeader("=MAX(A2:C9)").formula, "");
  EXPECT_EQ(ReadHeader("From: \t=MAX(A2:C9)").formula, "");
  EXPECT_EQ(ReadHeader("From: \t=MAX(A2:C9)").source, "");
}

TEST(ReadHeader, WithoutAThirdTabTheSourceIsTheBookAlone) {
  const DataFileHeader header = ReadHeader("From: \tBook1\tSheet1");
  EXPECT_EQ(header.source, "Book1");
  EXPECT_EQ(header.formula, "");
}

TEST(ReadHeader, TheFormulaIsSearchedFromTheThirdFieldOn) {
  EXPECT_EQ(ReadHeader("a=b\tc=d\te=f\t5\tT\t").formula, "=f");
  EXPECT_EQ(ReadHeader("a=b\tc=d\te\tx =MAX(A2:C9)\t5\tT\t").formula, "=MAX(A2:C9)");
}

TEST(ReadHeader, AFormulaWithoutATabBehindItIsNone) {
  const DataFileHeader header = ReadHeader("From: \tB\tS\t=MAX(A2:C9)");
  EXPECT_EQ(header.formula, "");
  EXPECT_EQ(header.source, "B/S");
}

TEST(ReadHeader, TheScaleNeedsItsTabAndReadsInAnyNotation) {
  EXPECT_EQ(ReadHeader("a\tb\tc\t=f\t0,5").scale, 0);
  EXPECT_EQ(ReadHeader("a\tb\tc\t=f\t0,5\t").scale, 0.5);
  EXPECT_EQ(ReadHeader("a\tb\tc\t=f\tnothing\t").scale, 0);
}

TEST(ReadHeader, TheTitleFieldMayRunToTheEndOfTheLine) {
  const DataFileHeader header = ReadHeader("a\tb\tc\t=f\t2\tLast field");
  EXPECT_EQ(header.title, "Last field");
  EXPECT_EQ(header.date, "");
}

TEST(ReadHeader, ALineInQuotesGivesTheFormulaAsItStands) {
  const DataFileHeader header =
      ReadHeader("\"From: \tB\tS\t= 2 + LEN(\"\"T\"\") + MAX(A2:C9)\t2.0000000000\tT\tDate\tm\t\"");
  EXPECT_EQ(header.formula, "= 2 + LEN(\"\"T\"\") + MAX(A2:C9)");
  EXPECT_EQ(header.scale, 2);
  EXPECT_EQ(header.title, "T");
}

}  // namespace
}  // namespace quorb
