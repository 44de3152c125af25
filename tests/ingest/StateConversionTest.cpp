#include "StateConversion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "TemporaryDirectory.h"

namespace quorb {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

/// A directory of its own for each test.
class StateConversionTest : public testing::Test {
 protected:
  void SetUp() override {
    conversion_.inputPath = directory_.File("in.txt");
    conversion_.outputPath = directory_.File("out.qbv");
  }

  void WriteInput(const std::string& text) const {
    std::ofstream(conversion_.inputPath, std::ios::binary) << text;
  }

  std::string Output() const {
    std::stringstream text;
    text << std::ifstream(conversion_.outputPath, std::ios::binary).rdbuf();
    return text.str();
  }

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory_.File(".")))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  TemporaryDirectory directory_;
  StateConversion conversion_;
};

TEST_F(StateConversionTest, WritesTheDataFileAndNothingBeside) {
  WriteInput("t x y z\n1 2 3 4\n");
  const ConversionResult result = ConvertStates(conversion_);
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(result.warnings, ElementsAre());
  EXPECT_THAT(Output(),
              HasSubstr("From: \tin.txt\t\t= 0.01 + LEN(\"in kmday\") + MAX(A2:C2) + MAX(D2:D2)\t"));
  EXPECT_THAT(Output(), HasSubstr("\r\n2.0000000000\t3.0000000000\t4.0000000000\t1.0000000000\r\n"));
  EXPECT_THAT(Names(), ElementsAre("in.txt", "out.qbv"));
}

TEST_F(StateConversionTest, GivenTitleGoesBeforeTheName) {
  WriteInput("t x y z\n1 2 3 4\n");
  conversion_.title = "First leg";
  EXPECT_EQ(ConvertStates(conversion_).error, "");
  EXPECT_THAT(Output(), HasSubstr("LEN(\"First leg kmday\")"));
}

TEST_F(StateConversionTest, ReplacesAnOlderFile) {
  WriteInput("t x y z\n1 2 3 4\n");
  std::ofstream(conversion_.outputPath) << "old";
  EXPECT_EQ(ConvertStates(conversion_).error, "");
  EXPECT_THAT(Output(), HasSubstr("From: "));
}

TEST_F(StateConversionTest, TemporaryNameTakesNoOtherFile) {
  WriteInput("t x y z\n1 2 3 4\n");
  std::ofstream(conversion_.outputPath + ".part0") << "mine";
  EXPECT_EQ(ConvertStates(conversion_).error, "");
  EXPECT_THAT(Names(), ElementsAre("in.txt", "out.qbv", "out.qbv.part0"));
}

TEST_F(StateConversionTest, BadInputLeavesTheOlderFileAsItWas) {
  WriteInput("t x y z\n1 2 3\n");
  std::ofstream(conversion_.outputPath) << "old";
  EXPECT_EQ(ConvertStates(conversion_).error,
            conversion_.inputPath +
                ": line 2: 3 columns where the header line has 4: fill the line up or take it out");
  EXPECT_EQ(Output(), "old");
  EXPECT_THAT(Names(), ElementsAre("in.txt", "out.qbv"));
}

TEST_F(StateConversionTest, InputThatIsNotThereIsNamed) {
  EXPECT_EQ(ConvertStates(conversion_).error,
            conversion_.inputPath + ": the file is not there: check the name");
}

TEST_F(StateConversionTest, InputThatIsADirectoryIsNamed) {
  conversion_.inputPath = directory_.File("");
  EXPECT_EQ(ConvertStates(conversion_).error, directory_.File("") + ": this is a directory: name a file");
}

TEST_F(StateConversionTest, OutputThatIsADirectoryIsNamed) {
  WriteInput("t x y z\n1 2 3 4\n");
  fs::create_directories(conversion_.outputPath);
  EXPECT_EQ(ConvertStates(conversion_).error, conversion_.outputPath + ": this is a directory: name a file");
}

TEST_F(StateConversionTest, OutputInADirectoryThatIsNotThereIsNamed) {
  WriteInput("t x y z\n1 2 3 4\n");
  conversion_.outputPath = directory_.File("none/out.qbv");
  EXPECT_EQ(ConvertStates(conversion_).error,
            conversion_.outputPath +
                ": no file can be made in that directory: check that it is there and its permissions");
}

TEST_F(StateConversionTest, InputIsNotWrittenOver) {
  WriteInput("t x y z\n1 2 3 4\n");
  conversion_.outputPath = conversion_.inputPath;
  EXPECT_EQ(ConvertStates(conversion_).error,
            conversion_.inputPath + ": this is the input file: name another one");
  EXPECT_EQ(Output(), "t x y z\n1 2 3 4\n");
}

TEST_F(StateConversionTest, CentreWithoutABodyIsWarnedOf) {
  WriteInput(
      "CCSDS_OEM_VERS = 2.0\nMETA_START\nOBJECT_NAME = A\nCENTER_NAME = SATURN\nMETA_STOP\n"
      "2025-001T00:00:00 1 2 3 0 0 0\n");
  EXPECT_THAT(ConvertStates(conversion_).warnings,
              ElementsAre("the viewer has no body for the centre \"SATURN\" and shows the Earth there"));
}

}  // namespace
}  // namespace quorb
