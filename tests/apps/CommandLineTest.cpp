#include "CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(CommandLine, OperandsAndOptionsMayMix) {
  const CommandLine line =
      ParseCommandLine({"-o", "out", "in", "--scale=2", "--log"}, {"-o", "--scale"}, {"--log"});
  EXPECT_EQ(line.error, "");
  EXPECT_THAT(line.operands, ElementsAre("in"));
  EXPECT_THAT(line.options, ElementsAre(Pair("-o", "out"), Pair("--scale", "2"), Pair("--log", "")));
  EXPECT_TRUE(line.Has("--log"));
  EXPECT_FALSE(line.Has("--other"));
}

TEST(CommandLine, ValueMayBeginWithADash) {
  const CommandLine line = ParseCommandLine({"--scale", "-1"}, {"--scale"});
  EXPECT_EQ(line.error, "");
  EXPECT_EQ(line.Value("--scale"), "-1");
}

TEST(CommandLine, LastValueCountsAndAllAreKept) {
  const CommandLine line = ParseCommandLine({"--set", "a=1", "--set=b=2"}, {"--set"});
  EXPECT_EQ(line.Value("--set"), "b=2");
  EXPECT_THAT(line.Values("--set"), ElementsAre("a=1", "b=2"));
}

TEST(CommandLine, TwoDashesEndTheOptions) {
  EXPECT_THAT(ParseCommandLine({"--", "-x", "--help"}, {}).operands, ElementsAre("-x", "--help"));
}

TEST(CommandLine, DashAloneIsAnOperand) {
  EXPECT_THAT(ParseCommandLine({"-"}, {}).operands, ElementsAre("-"));
}

TEST(CommandLine, WrongOptionsAreErrors) {
  EXPECT_EQ(ParseCommandLine({"--what"}, {"-o"}).error, "unknown option --what");
  EXPECT_EQ(ParseCommandLine({"in", "-o"}, {"-o"}).error, "option -o has no value");
  EXPECT_EQ(ParseCommandLine({"--log=1"}, {}, {"--log"}).error, "unknown option --log=1");
}

TEST(CommandLine, ArgumentsLeaveTheProgramOut) {
  const char* const arguments[] = {"program", "a", "b"};
  EXPECT_THAT(ArgumentsOf(3, arguments), ElementsAre("a", "b"));
  EXPECT_THAT(ArgumentsOf(0, arguments), ElementsAre());
}

TEST(CommandLine, HelpAndVersionAreAnsweredBeforeAnythingElse) {
  testing::internal::CaptureStdout();
  EXPECT_TRUE(AnswerHelpOrVersion({"in", "--nonsense", "--version", "--help"}, "tool", "text\n"));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "tool 2.8.6\n");
  testing::internal::CaptureStdout();
  EXPECT_TRUE(AnswerHelpOrVersion({"--help"}, "tool", "text\n"));
  EXPECT_FALSE(AnswerHelpOrVersion({"in"}, "tool", "text\n"));
  EXPECT_FALSE(AnswerHelpOrVersion({"--", "--help"}, "tool", "text\n"));
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "text\n");
}

}  // namespace
}  // namespace quorb
