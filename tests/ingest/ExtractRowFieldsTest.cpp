#include "DataFile.h"
#include "LoadFixture.h"

namespace quorb {
namespace {

class ExtractRowFieldsTest : public LoadFixture {
 protected:
  RowFields Split(std::string_view lin) {
    RowFields fields;
    ExtractRowFields(lin, fields);
    return fields;
  }
};

TEST_F(ExtractRowFieldsTest, EachFieldIsANumberByItsPosition) {
  const RowFields fields = Split("1.5\t-2\t+3e2\t4");
  EXPECT_EQ(fields.count, 4);
  EXPECT_EQ(fields.values[1], 1.5);
  EXPECT_EQ(fields.values[2], -2);
  EXPECT_EQ(fields.values[3], 300);
  EXPECT_EQ(fields.values[4], 4);
}

TEST_F(ExtractRowFieldsTest, AnEmptyLineIsOneEmptyField) {
  const RowFields fields = Split("");
  EXPECT_EQ(fields.count, 1);
  EXPECT_EQ(fields.values[1], 0);
  EXPECT_TRUE(fields.emptyX);
}

TEST_F(ExtractRowFieldsTest, ATabAtTheEndOpensOneMoreField) {
  EXPECT_EQ(Split("1\t").count, 2);
  EXPECT_EQ(Split("\t\t\t").count, 4);
}

TEST_F(ExtractRowFieldsTest, FiveFieldsTellThatTheyAreEmpty) {
  const RowFields empty = Split("\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t\t");
  EXPECT_EQ(empty.count, 17);
  EXPECT_TRUE(empty.emptyX);
  EXPECT_TRUE(empty.emptyEventTime);
  EXPECT_TRUE(empty.emptyQuaterTime);
  EXPECT_TRUE(empty.emptySApYTime);
  EXPECT_TRUE(empty.emptySAmYTime);

  const RowFields filled = Split("0\t\t\t\t0\t\t0\t\t\t\t\t0\t\t0\t\t\t");
  EXPECT_FALSE(filled.emptyX);
  EXPECT_FALSE(filled.emptyEventTime);
  EXPECT_FALSE(filled.emptyQuaterTime);
  EXPECT_FALSE(filled.emptySApYTime);
  EXPECT_FALSE(filled.emptySAmYTime);
}

TEST_F(ExtractRowFieldsTest, AFieldThatIsNotThereIsNotAnEmptyOne) {
  const RowFields fields = Split("1\t2\t3");
  EXPECT_FALSE(fields.emptyEventTime);
  EXPECT_FALSE(fields.emptyQuaterTime);
  EXPECT_FALSE(fields.emptySApYTime);
  EXPECT_FALSE(fields.emptySAmYTime);
  EXPECT_EQ(fields.eventText, "");
}

TEST_F(ExtractRowFieldsTest, AFieldOfBlanksIsNotAnEmptyOne) {
  const RowFields fields = Split(" \t\t\t\t  \t");
  EXPECT_FALSE(fields.emptyX);
  EXPECT_FALSE(fields.emptyEventTime);
  EXPECT_EQ(fields.values[1], 0);
}

TEST_F(ExtractRowFieldsTest, NothingOfTheLineBeforeLasts) {
  RowFields fields;
  ExtractRowFields("\t\t\t\t\tS\t\t\t\t\t\t\t\t\t", fields);
  ExtractRowFields("1", fields);
  EXPECT_EQ(fields.count, 1);
  EXPECT_FALSE(fields.emptyX);
  EXPECT_FALSE(fields.emptyEventTime);
  EXPECT_FALSE(fields.emptyQuaterTime);
  EXPECT_FALSE(fields.emptySApYTime);
  EXPECT_FALSE(fields.emptySAmYTime);
  EXPECT_EQ(fields.eventText, "");
}

TEST_F(ExtractRowFieldsTest, FieldsBeyondTwentyAreDroppedButCounted) {
  std::string line = "1";
  for (int field = 2; field <= 25; ++field)
    line += "\t" + std::to_string(field);
  const RowFields fields = Split(line);
  EXPECT_EQ(fields.count, 25);
  EXPECT_EQ(fields.values[20], 20);
}

TEST_F(ExtractRowFieldsTest, NumbersReadInEveryNotation) {
  const RowFields fields = Split(
      "1,5\t1 234,5\t\"12\"\t1,234,567\t1.5D3\t\t1\xA0"
      "000");
  EXPECT_EQ(fields.values[1], 1.5);
  EXPECT_EQ(fields.values[2], 1234.5);
  EXPECT_EQ(fields.values[3], 12);
  EXPECT_EQ(fields.values[4], 1234567);
  EXPECT_EQ(fields.values[5], 1500);
  EXPECT_EQ(fields.values[7], 1000);
}

TEST_F(ExtractRowFieldsTest, WhatIsNoNumberGivesWhatItCan) {
  const RowFields fields = Split("12abc\tabc\tNaN\tinf\t1e400\t1e\t-1e400\t1e-400\t0x10");
  EXPECT_EQ(fields.values[1], 12);
  for (const int zero : {2, 3, 4, 5, 7, 8, 9})
    EXPECT_EQ(fields.values[zero], 0) << zero;
  EXPECT_EQ(fields.values[6], 1);
}

TEST_F(ExtractRowFieldsTest, AZeroByteEndsTheNumberAndNotTheLine) {
  const RowFields fields =
      Split(std::string_view("1\0"
                             "2\t3",
                             5));
  EXPECT_EQ(fields.count, 2);
  EXPECT_EQ(fields.values[1], 1);
  EXPECT_EQ(fields.values[2], 3);
}

class EventFieldTest : public ExtractRowFieldsTest {
 protected:
  std::pair<double, std::string> EventOf(const std::string& field) {
    lin_ = "1\t2\t3\t4\t5\t" + field + "\t7";
    const RowFields fields = Split(lin_);
    return {fields.values[6], std::string(fields.eventText)};
  }

  std::string lin_;
};

TEST_F(EventFieldTest, SAndEInEitherCaseAreStartAndEnd) {
  EXPECT_EQ(EventOf("S"), std::make_pair(1.0, std::string("1")));
  EXPECT_EQ(EventOf("s"), std::make_pair(1.0, std::string("1")));
  EXPECT_EQ(EventOf("E"), std::make_pair(0.0, std::string("0")));
  EXPECT_EQ(EventOf("e"), std::make_pair(0.0, std::string("0")));
}

TEST_F(EventFieldTest, TheLastLetterOfTheTrimmedTextCounts) {
  EXPECT_EQ(EventOf("BURNS"), std::make_pair(1.0, std::string("1")));
  EXPECT_EQ(EventOf("eclipse  "), std::make_pair(0.0, std::string("0")));
  EXPECT_EQ(EventOf("Start"), std::make_pair(0.0, std::string("Start")));
  EXPECT_EQ(EventOf("  S  "), std::make_pair(1.0, std::string("1")));
}

TEST_F(EventFieldTest, ANumberKeepsItsValueAndItsTrimmedText) {
  EXPECT_EQ(EventOf("1"), std::make_pair(1.0, std::string("1")));
  EXPECT_EQ(EventOf("0"), std::make_pair(0.0, std::string("0")));
  EXPECT_EQ(EventOf(" 2.5 "), std::make_pair(2.5, std::string("2.5")));
  EXPECT_EQ(EventOf("0.0000000000"), std::make_pair(0.0, std::string("0.0000000000")));
}

TEST_F(EventFieldTest, ANumberBeforeTheLetterHidesTheLetter) {
  EXPECT_EQ(EventOf("3S"), std::make_pair(3.0, std::string("3S")));
  EXPECT_EQ(EventOf("1E"), std::make_pair(1.0, std::string("1E")));
  EXPECT_EQ(EventOf("0S"), std::make_pair(1.0, std::string("1")));
}

TEST_F(EventFieldTest, ABlankEventReadsAsZero) {
  EXPECT_EQ(EventOf(""), std::make_pair(0.0, std::string("0")));
  EXPECT_EQ(EventOf("   "), std::make_pair(0.0, std::string("0")));
}

TEST_F(EventFieldTest, WithLabelsTheTextStaysAsItIs) {
  PenUpLabelMode = 1;
  const RowFields fields = Split("1\t2\t3\t4\t5\t Paris \t7");
  EXPECT_EQ(fields.label, " Paris ");
  EXPECT_EQ(fields.eventText, "Paris");
  EXPECT_EQ(EventOf("S"), std::make_pair(0.0, std::string("S")));
}

TEST_F(EventFieldTest, WithoutLabelsThereIsNone) {
  EXPECT_EQ(Split("1\t2\t3\t4\t5\tParis").label, "");
}

}  // namespace
}  // namespace quorb
