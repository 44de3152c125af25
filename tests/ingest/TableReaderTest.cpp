#include "TableReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

StateTable Table(const std::string& text) {
  StateTable table;
  EXPECT_EQ(TableReader().Read(text, table).error, "");
  return table;
}

std::string ErrorOf(const std::string& text) {
  StateTable table;
  return TableReader().Read(text, table).error;
}

TEST(TableReader, RecognisesPlainTextOnly) {
  EXPECT_TRUE(TableReader().Recognises("time\tx\ty\tz\r\n"));
  EXPECT_FALSE(TableReader().Recognises(std::string_view("time\0x", 6)));
}

TEST(TableReader, ReadsColumnsBetweenBlanksAndIgnoresOthers) {
  const StateTable table = Table(
      "time pos_x pos_y pos_z vel_x\n"
      "2022-11-16T09:27:08.381 -31795.5  8313.25 10298.75 -4.5\n"
      "2022-11-17T00:00:00 1 2 3 4\n");
  EXPECT_THAT(table.time, ElementsAre(44881 + (9 * 3600 + 27 * 60 + 8.381) / 86400, 44882));
  EXPECT_THAT(table.x, ElementsAre(-31795.5, 1));
  EXPECT_THAT(table.y, ElementsAre(8313.25, 2));
  EXPECT_THAT(table.z, ElementsAre(10298.75, 3));
  EXPECT_EQ(table.objectName, "");
  EXPECT_EQ(table.centreName, "");
}

TEST(TableReader, ReadsEverySeparator) {
  for (const char separator : {' ', '\t', ',', ';'}) {
    std::string text = "t|x|y|z\n45714.5|1|2|3\n";
    std::replace(text.begin(), text.end(), '|', separator);
    const StateTable table = Table(text);
    EXPECT_THAT(table.time, ElementsAre(45714.5)) << separator;
    EXPECT_THAT(table.z, ElementsAre(3)) << separator;
  }
}

TEST(TableReader, ReadsColumnsInAnyOrderAndCase) {
  const StateTable table = Table("Z_km,Y_KM,X_km,Epoch_UTC\n3,2,1,2025-02-26 12:00:00\n");
  EXPECT_THAT(table.x, ElementsAre(1));
  EXPECT_THAT(table.y, ElementsAre(2));
  EXPECT_THAT(table.z, ElementsAre(3));
  EXPECT_THAT(table.time, ElementsAre(45714.5));
}

TEST(TableReader, ReadsUnitsInBracketsAndQuotedFields) {
  EXPECT_THAT(Table("\"date\";\"x (km)\";\"y[km]\";\"z\"\n\"2025-057T12:00:00Z\"; 1;2 ;\"3\"\n").z,
              ElementsAre(3));
  EXPECT_THAT(Table("time (UTC) x (km) y (km) z (km)\n45714.5 1 2 3\n").y, ElementsAre(2));
}

TEST(TableReader, LengthInAnotherUnitIsNoPosition) {
  EXPECT_THAT(ErrorOf("time x (m) y (m) z (m)\n45714.5 1 2 3\n"),
              StartsWith("line 1: the header line \"time x (m) y (m) z (m)\" names no column for x, y, z: "));
}

TEST(TableReader, EmptyFirstNameKeepsItsColumn) {
  EXPECT_THAT(Table("\ttime\tx\ty\tz\n0\t45714.5\t1\t2\t3\n").x, ElementsAre(1));
}

TEST(TableReader, SeparatorBehindTheLastNameIsNoColumn) {
  EXPECT_THAT(Table("time;x;y;z;\n45714.5;1;2;3\n45715;4;5;6;\n").z, ElementsAre(3, 6));
}

TEST(TableReader, PassesOverEmptyLinesAndComments) {
  const StateTable table = Table("# made by hand\r\n# time x y z\r\n\r\n1.5 1 2 3\r\n# end\r\n2.5 4 5 6");
  EXPECT_THAT(table.time, ElementsAre(1.5, 2.5));
}

TEST(TableReader, RepeatedEpochsStay) {
  EXPECT_THAT(Table("t x y z\n1 1 2 3\n1 1 2 3\n").time, ElementsAre(1, 1));
}

TEST(TableReader, LeapSecondIsRead) {
  EXPECT_THAT(Table("t x y z\n2016-12-31T23:59:60 1 2 3\n").time, ElementsAre(42736));
}

TEST(TableReader, HeaderLineWithoutAColumnNamesIt) {
  EXPECT_EQ(ErrorOf("time,x,y\n1,2,3\n"),
            "line 1: the header line \"time,x,y\" names no column for z: name them time, x, y, z (positions "
            "in km)");
  EXPECT_EQ(
      ErrorOf("\n45714.5 1 2 3\n"),
      "line 2: the header line \"45714.5 1 2 3\" names no column for time, x, y, z: name them time, x, y, z "
      "(positions in km)");
}

TEST(TableReader, FieldThatCannotBeReadNamesItsLine) {
  EXPECT_EQ(ErrorOf("t x y z\n1 1 2 3\n2 1 2 three\n"),
            "line 3: \"three\" for z is no number: correct it or take the state out");
  EXPECT_EQ(ErrorOf("t x y z\n1 nan 2 3\n"),
            "line 2: \"nan\" for x is no number: correct it or take the state out");
  EXPECT_EQ(ErrorOf("t;x;y;z\n1;;2;3\n"),
            "line 2: \"\" for x is no number: correct it or take the state out");
  EXPECT_EQ(
      ErrorOf("t x y z\nnoon 1 2 3\n"),
      "line 2: \"noon\" is no epoch: write it as 2025-02-26T12:00:00, 2025-057T12:00:00 or a serial day");
  EXPECT_THAT(ErrorOf("t x y z\ninf 1 2 3\n"), StartsWith("line 2: \"inf\" is no epoch"));
}

TEST(TableReader, TooFewColumnsNameTheirLine) {
  EXPECT_EQ(ErrorOf("t x y z vx\n1 1 2 3 4\n2 1 2 3\n"),
            "line 3: 4 columns where the header line has 5: fill the line up or take it out");
}

TEST(TableReader, TableWithoutRowsIsRefused) {
  EXPECT_EQ(ErrorOf("t x y z\n"), "line 1: the file ends behind the header line: add a line a state");
  EXPECT_EQ(ErrorOf("# only a comment\n"),
            "line 1: the file ends without a header line: name the columns time, x, y, z");
  EXPECT_THAT(ErrorOf(""), StartsWith("line 1: the file ends without a header line"));
}

}  // namespace
}  // namespace quorb
