#include "OemKvnReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::ElementsAre;

constexpr const char* kHeader =
    "CCSDS_OEM_VERS = 2.0\n"
    "COMMENT made by hand\n"
    "CREATION_DATE = 2025-01-01T00:00:00\n"
    "ORIGINATOR = TEST\n";  // lines 1 to 4

constexpr const char* kMetadata =
    "META_START\n"
    "OBJECT_NAME = PROBE\n"
    "OBJECT_ID = 2025-001A\n"
    "CENTER_NAME = MARS\n"
    "REF_FRAME = EME2000\n"
    "TIME_SYSTEM = UTC\n"
    "META_STOP\n";  // seven lines

ReadResult Read(const std::string& text, StateTable& table) {
  return OemKvnReader().Read(text, table);
}

std::string ErrorOf(const std::string& text) {
  StateTable table;
  return Read(text, table).error;
}

TEST(OemKvnReader, RecognisesTheVersionKeyword) {
  EXPECT_TRUE(OemKvnReader().Recognises("CCSDS_OEM_VERS = 2.0\n"));
  EXPECT_TRUE(OemKvnReader().Recognises("\n  CCSDS_OEM_VERS=2.0"));
  EXPECT_FALSE(OemKvnReader().Recognises("CCSDS_AEM_VERS = 2.0\n"));
  EXPECT_FALSE(OemKvnReader().Recognises(""));
}

TEST(OemKvnReader, ReadsMetadataAndStates) {
  StateTable table;
  const ReadResult result = Read(std::string(kHeader) + kMetadata +
                                     "\n"
                                     "COMMENT states follow\n"
                                     "2025-02-26T12:00:00.000 236.5 -5167.25 4405.75 6.35 -2.6 -3.38\n"
                                     "2025-057T18:00:00Z\t+1E3  2  3   4 5 6 0.1 0.2 0.3\n",
                                 table);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(table.objectName, "PROBE");
  EXPECT_EQ(table.centreName, "MARS");
  EXPECT_EQ(table.frame, "EME2000");
  EXPECT_EQ(table.timeSystem, "UTC");
  EXPECT_THAT(table.time, ElementsAre(45714.5, 45714.75));
  EXPECT_THAT(table.x, ElementsAre(236.5, 1000));
  EXPECT_THAT(table.y, ElementsAre(-5167.25, 2));
  EXPECT_THAT(table.z, ElementsAre(4405.75, 3));
}

TEST(OemKvnReader, JoinsSegmentsAndKeepsTheRepeatedEpoch) {
  StateTable table;
  const ReadResult result = Read(std::string(kHeader) + kMetadata + "2025-001T00:00:00 1 2 3 0 0 0\n" +
                                     "2025-001T12:00:00 4 5 6 0 0 0\n" + kMetadata +
                                     "2025-001T12:00:00 4 5 6 1 1 1\n" + "2025-002T00:00:00 7 8 9 0 0 0\n",
                                 table);
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(table.time, ElementsAre(45658, 45658.5, 45658.5, 45659));
  EXPECT_THAT(table.x, ElementsAre(1, 4, 4, 7));
}

TEST(OemKvnReader, PassesOverCovarianceBlocks) {
  StateTable table;
  const ReadResult result = Read(std::string(kHeader) + kMetadata + "2025-001T00:00:00 1 2 3 0 0 0\n" +
                                     "COVARIANCE_START\n"
                                     "EPOCH = 2025-001T00:00:00\n"
                                     "COV_REF_FRAME = RTN\n"
                                     "1.0\n"
                                     "2.0 3.0\n"
                                     "COVARIANCE_STOP\n",
                                 table);
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(table.z, ElementsAre(3));
}

TEST(OemKvnReader, SegmentsOfTwoCentresAreRefused) {
  std::string second = kMetadata;
  second.replace(second.find("MARS"), 4, "SUN");
  EXPECT_EQ(
      ErrorOf(std::string(kHeader) + kMetadata + "2025-001T00:00:00 1 2 3 0 0 0\n" + second),
      "line 16: CENTER_NAME changes from \"MARS\" to \"SUN\", and such segments make no single trajectory: "
      "convert them as files of their own");
}

TEST(OemKvnReader, NumberThatCannotBeReadNamesItsLine) {
  const std::string start = std::string(kHeader) + kMetadata + "2025-001T00:00:00 1 2 3 0 0 0\n";
  EXPECT_EQ(ErrorOf(start + "2025-001T01:00:00 1 x2 3 0 0 0\n"),
            "line 13: \"x2\" for y is no number: correct it or take the state out");
  EXPECT_EQ(ErrorOf(start + "2025-001T01:00:00 NaN 2 3 0 0 0\n"),
            "line 13: \"NaN\" for x is no number: correct it or take the state out");
  EXPECT_EQ(ErrorOf(start + "\n2025-001T01:00:00 1 2 inf 0 0 0\n"),
            "line 14: \"inf\" for z is no number: correct it or take the state out");
  EXPECT_EQ(ErrorOf(start + "2025-001T01:00:00 1 2 3 0 0 1e400\n"),
            "line 13: \"1e400\" is no number: correct it or take the state out");
}

TEST(OemKvnReader, EpochThatCannotBeReadNamesItsLine) {
  EXPECT_EQ(
      ErrorOf(std::string(kHeader) + kMetadata + "2025-02-30T00:00:00 1 2 3 0 0 0\n"),
      "line 12: \"2025-02-30T00:00:00\" is no epoch: write it as 2025-02-26T12:00:00 or 2025-057T12:00:00");
}

TEST(OemKvnReader, LeapSecondIsRead) {
  StateTable table;
  EXPECT_TRUE(Read(std::string(kHeader) + kMetadata + "2016-12-31T23:59:60 1 2 3 0 0 0\n", table).Ok());
  EXPECT_THAT(table.time, ElementsAre(42736));
}

TEST(OemKvnReader, StateWithTooFewFieldsIsRefused) {
  EXPECT_EQ(
      ErrorOf(std::string(kHeader) + kMetadata + "2025-001T00:00:00 1 2 3 0 0\n"),
      "line 12: a state has 6 fields: write epoch, x, y, z, and three velocities, with or without three "
      "accelerations");
}

TEST(OemKvnReader, MessageThatIsCutOffIsRefused) {
  EXPECT_EQ(ErrorOf(std::string(kHeader) + "META_START\nOBJECT_NAME = PROBE\n"),
            "line 6: the file ends without META_STOP: it is cut off, fetch it again");
  EXPECT_EQ(
      ErrorOf(std::string(kHeader) + kMetadata + "2025-001T00:00:00 1 2 3 0 0 0\nCOVARIANCE_START\n1.0\n"),
      "line 14: the file ends without COVARIANCE_STOP: it is cut off, fetch it again");
  EXPECT_EQ(ErrorOf(std::string(kHeader) + kMetadata),
            "line 11: the file ends without a state: states stand behind META_STOP, a line each");
}

TEST(OemKvnReader, LineThatIsNoDefinitionIsRefused) {
  EXPECT_EQ(ErrorOf(std::string(kHeader) + "2025-001T00:00:00 1 2 3 0 0 0\n"),
            "line 5: \"2025-001T00:00:00 1 2 3 0 0 0\" is no \"KEYWORD = value\": correct the line");
}

TEST(OemKvnReader, FailureLeavesTheTableAsItWas) {
  StateTable table;
  table.objectName = "OLD";
  table.time = {1};
  EXPECT_FALSE(Read(std::string(kHeader) + kMetadata + "garbage\n", table).Ok());
  EXPECT_EQ(table.objectName, "OLD");
  EXPECT_THAT(table.time, ElementsAre(1));
}

}  // namespace
}  // namespace quorb
