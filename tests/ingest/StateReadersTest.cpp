#include "StateReaders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorb {
namespace {

using testing::ElementsAre;

TEST(StateReaders, EachStandardFindsItsReader) {
  StateTable table;
  EXPECT_EQ(ReadStates("CCSDS_OEM_VERS = 2.0\nMETA_START\nOBJECT_NAME = A\nMETA_STOP\n"
                       "2025-001T00:00:00 1 2 3 0 0 0\n",
                       table)
                .error,
            "");
  EXPECT_EQ(table.objectName, "A");
  EXPECT_EQ(
      ReadStates("<oem><body><segment><metadata><OBJECT_NAME>B</OBJECT_NAME></metadata><data><stateVector>"
                 "<EPOCH>2025-001T00:00:00</EPOCH><X>4</X><Y>5</Y><Z>6</Z>"
                 "</stateVector></data></segment></body></oem>",
                 table)
          .error,
      "");
  EXPECT_EQ(table.objectName, "B");
  EXPECT_EQ(ReadStates("t x y z\n1 7 8 9\n", table).error, "");
  EXPECT_THAT(table.x, ElementsAre(7));
}

TEST(StateReaders, ByteOrderMarkIsPassedOver) {
  StateTable table;
  EXPECT_TRUE(ReadStates("\xEF\xBB\xBFt x y z\n1 7 8 9\n", table).Ok());
}

TEST(StateReaders, EmptyTextIsRefused) {
  StateTable table;
  EXPECT_EQ(ReadStates("", table).error, "line 1: the file is empty: give one with states");
  EXPECT_EQ(ReadStates(" \r\n\t", table).error, "line 1: the file is empty: give one with states");
}

TEST(StateReaders, BinaryIsRefusedWithTheKindsThatCanBeRead) {
  StateTable table;
  EXPECT_EQ(
      ReadStates(std::string_view("\x7F"
                                  "ELF\0\1\2",
                                  7),
                 table)
          .error,
      "line 1: the file is of no kind that can be read: give one of CCSDS OEM (KVN), CCSDS OEM (XML), table "
      "of text with a header line");
}

}  // namespace
}  // namespace quorb
