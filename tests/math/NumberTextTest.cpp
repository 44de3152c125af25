#include "NumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "NumberPicture.h"
#include "ScriptedDialogs.h"

namespace quorb {
namespace {

const std::string kNoBreakSpace = "\xC2\xA0";
const std::string kNarrowNoBreakSpace = "\xE2\x80\xAF";

struct Machine : RegionalSettings {
  Machine(std::string decimalMark, std::string thousandsMark)
      : decimal(std::move(decimalMark)), thousands(std::move(thousandsMark)) {
    SetRegionalSettings(this);
  }
  ~Machine() override { SetRegionalSettings(nullptr); }
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  std::string DecimalSeparator() override {
    ++reads;
    return decimal;
  }
  std::string ThousandsSeparator() override { return thousands; }

  std::string decimal;
  std::string thousands;
  int reads = 0;
};

struct English : Machine {
  English() : Machine(".", ",") {}
};
struct French : Machine {
  French() : Machine(",", kNarrowNoBreakSpace) {}
};
struct German : Machine {
  German() : Machine(",", ".") {}
};
struct Swiss : Machine {
  Swiss() : Machine(".", "'") {}
};

struct Separators {
  const char* decimal;
  const char* thousands;
};
const std::vector<Separators> kEveryPair = {{".", ","},        {",", "."},
                                            {".", "'"},        {",", " "},
                                            {",", "\xC2\xA0"}, {",", "\xE2\x80\xAF"},
                                            {"", ""},          {".", ""},
                                            {",", ""},         {".", "\xE2\x80\x99"},
                                            {",", "'"},        {".", " "},
                                            {".", "\xC2\xA0"}, {".", "\xE2\x80\xAF"},
                                            {".", "."},        {",", ","},
                                            {"", "1"},         {".", "e"}};

struct Reading {
  double value;
  int kind;
  bool operator==(const Reading&) const = default;
};

Reading Read(std::string_view text) {
  int kind = 99;
  const double value = TextToDouble(text, kind);
  return {value, kind};
}

std::ostream& operator<<(std::ostream& out, const Reading& reading) {
  return out << reading.value << " kind " << reading.kind;
}

TEST(TextToDoubleTest, EmptyTextGives0WithKindMinus1) {
  EXPECT_EQ(Read(""), (Reading{0, -1}));
  EXPECT_EQ(Read("   "), (Reading{0, -1}));
}

TEST(TextToDoubleTest, CommaWithOneDigitIsTheDecimalMarkOnAnyMachine) {
  for (const auto& [decimal, thousands] : kEveryPair) {
    if (std::string_view("1") == thousands) continue;
    const Machine machine(decimal, thousands);
    EXPECT_EQ(Read("12,5"), (Reading{12.5, 1})) << decimal << " and " << thousands;
  }
}

TEST(TextToDoubleTest, CommaWithThreeDigitsFollowsTheMachine) {
  {
    const French machine;
    EXPECT_EQ(Read("1,234"), (Reading{1.234, 1}));
  }
  {
    const German machine;
    EXPECT_EQ(Read("1,234"), (Reading{1.234, 1}));
  }
  {
    const English machine;
    EXPECT_EQ(Read("1,234"), (Reading{1234, 0}));
  }
  {
    const Machine machine("", "");
    EXPECT_EQ(Read("1,234"), (Reading{1234, 0}));
  }
}

TEST(TextToDoubleTest, PointAndCommaTogether) {
  {
    const German machine;
    EXPECT_EQ(Read("1.234,5"), (Reading{1234.5, 1}));
  }
  {
    const English machine;
    EXPECT_EQ(Read("1.234,5"), (Reading{1.2345, 0}));
    EXPECT_EQ(Read("1,234.5"), (Reading{1234.5, 0}));
  }
}

TEST(TextToDoubleTest, BlankInsideGives1234OnAllMachines) {
  for (const auto& [decimal, thousands] : kEveryPair) {
    if (std::string_view("1") == thousands) continue;
    const Machine machine(decimal, thousands);
    EXPECT_EQ(Read("1 234"), (Reading{1234, -1})) << decimal << " and " << thousands;
  }
}

TEST(TextToDoubleTest, TwelveWithinDoubleQuotesGives12) {
  EXPECT_EQ(Read("\"12\""), (Reading{12, -1}));
  EXPECT_EQ(Read("\"12"), (Reading{12, -1}));
  EXPECT_EQ(Read("12\""), (Reading{12, -1}));
  EXPECT_EQ(Read("\""), (Reading{0, -1}));
  EXPECT_EQ(Read("\"\"12\"\""), (Reading{0, -1}));
}

TEST(TextToDoubleTest, SeveralCommasReadInTheEnglishWayEverywhere) {
  for (const auto& [decimal, thousands] : kEveryPair) {
    if (std::string_view("1") == thousands) continue;
    const Machine machine(decimal, thousands);
    EXPECT_EQ(Read("1,234,567"), (Reading{1234567, 0})) << decimal << " and " << thousands;
  }
}

TEST(TextToDoubleTest, QuotedNumberWithAThousandsCommaReadsAs0) {
  const English machine;
  EXPECT_EQ(Read("\"1,234.5\""), (Reading{0, 0}));
  EXPECT_EQ(Read("\"1,234,567\""), (Reading{0, 0}));
}

TEST(TextToDoubleTest, QuotedNumberWithALoneCommaKeepsItsQuotesToo) {
  const English machine;
  EXPECT_EQ(Read("\"12,5\""), (Reading{0, 1}));
  EXPECT_EQ(Read("\"1,23\""), (Reading{0, 0}));  // the closing quote is the third character behind the comma
  EXPECT_EQ(Read("12,5\""), (Reading{12.5, 1}));
}

TEST(TextToDoubleTest, ThreeCharactersBehindTheCommaCountDigitsOrNot) {
  const English machine;
  EXPECT_EQ(Read("1,2km"), (Reading{12, 0}));
  EXPECT_EQ(Read("1,234km"), (Reading{1.234, 1}));
  EXPECT_EQ(Read("1,5é\xE9"), (Reading{15, 0}));  // a UTF-8 character, then one of Windows-1252
  EXPECT_EQ(Read("1,"), (Reading{1, 1}));
  EXPECT_EQ(Read(",5"), (Reading{0.5, 1}));
}

TEST(TextToDoubleTest, ThousandsMarkOfTheMachineIsDroppedFirst) {
  {
    const German machine;
    EXPECT_EQ(Read("1.5"), (Reading{15, -1}));
    EXPECT_EQ(Read("1.234.567"), (Reading{1234567, -1}));
  }
  {
    const Swiss machine;
    EXPECT_EQ(Read("1'234'567.5"), (Reading{1234567.5, -1}));
  }
  {
    const French machine;
    EXPECT_EQ(Read("1" + kNarrowNoBreakSpace + "234,5"), (Reading{1234.5, 1}));
  }
  {
    const English machine;
    EXPECT_EQ(Read("1'234"), (Reading{1, -1}));
  }
}

TEST(TextToDoubleTest, NoBreakSpacesAreDroppedInBothEncodings) {
  const English machine;
  EXPECT_EQ(Read("1" + kNoBreakSpace + "234"), (Reading{1234, -1}));
  EXPECT_EQ(Read(kNoBreakSpace + "1234" + kNoBreakSpace), (Reading{1234, -1}));
  EXPECT_EQ(Read("1\xA0"
                 "234\xA0"),
            (Reading{1234, -1}));
  EXPECT_EQ(Read(kNoBreakSpace), (Reading{0, -1}));
}

TEST(TextToDoubleTest, ContinuationByteOfALetterIsNoNoBreakSpace) {
  // Dropping the second byte of "à" (C3 A0) would leave two characters behind the comma, not three.
  const English machine;
  EXPECT_EQ(Read("1,23à"), (Reading{123, 0}));
}

TEST(TextToDoubleTest, BlanksInsideAreDroppedButNotTabs) {
  EXPECT_EQ(Read(" - 1 2 . 5 E 1 "), (Reading{-125, -1}));
  EXPECT_EQ(Read("1\t2"), (Reading{1, -1}));
}

TEST(TextToDoubleTest, HeadOfASpecificationReadsUpToItsFirstWord) {
  EXPECT_EQ(Read(" 0.01 + LEN("), (Reading{0.01, -1}));
  EXPECT_EQ(Read("LEN("), (Reading{0, -1}));
}

TEST(TextToDoubleTest, LongTextsAreRead) {
  EXPECT_EQ(Read(std::string(100000, '1')), (Reading{0, -1}));
  EXPECT_EQ(Read("0." + std::string(100000, '0') + "1"), (Reading{0, -1}));
  EXPECT_EQ(Read("1," + std::string(100000, '0')), (Reading{1, 1}));
}

TEST(TextToDoubleTest, NothingIsShownToTheUser) {
  ScriptedDialogs dialogs;
  for (const char* text : {"1e400", "nan", "-", ",", ",,", "\",\"", "."})
    Read(text);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST(TextToDoubleTest, ValTextIgnoresTheKind) {
  const English machine;
  EXPECT_EQ(ValText("12,5"), 12.5);
  EXPECT_EQ(ValText("1,234"), 1234.0);
  EXPECT_EQ(ValText(""), 0.0);
}

TEST(LocaleTest, SeparatorsAreReadOnceAtTheFirstTextThatIsNotBlank) {
  French machine;
  EXPECT_EQ(LocaleRead, 0);
  Read("");
  Read("  ");
  EXPECT_EQ(LocaleRead, 0);
  EXPECT_EQ(machine.reads, 0);
  Read("1");
  EXPECT_EQ(LocaleRead, 1);
  EXPECT_EQ(DecimalSep, ",");
  EXPECT_EQ(ThousandSep, kNarrowNoBreakSpace);
  machine.decimal = ".";
  Read("2");
  EXPECT_EQ(machine.reads, 1);
  EXPECT_EQ(DecimalSep, ",");
}

TEST(LocaleTest, TextOfNoBreakSpacesReadsThemToo) {
  const English machine;
  Read(kNoBreakSpace);
  EXPECT_EQ(LocaleRead, 1);
}

TEST(LocaleTest, WithoutSettingsBothAreEmpty) {
  { const French machine; }
  Read("1");
  EXPECT_EQ(LocaleRead, 1);
  EXPECT_EQ(DecimalSep, "");
  EXPECT_EQ(ThousandSep, "");
}

TEST(PlainNumberTest, SignDigitsAndOnePoint) {
  EXPECT_EQ(PlainNumber("12"), 12.0);
  EXPECT_EQ(PlainNumber("-12.25"), -12.25);
  EXPECT_EQ(PlainNumber("+3"), 3.0);
  EXPECT_EQ(PlainNumber(".5"), 0.5);
  EXPECT_EQ(PlainNumber("-.5"), -0.5);
  EXPECT_EQ(PlainNumber("5."), 5.0);
  EXPECT_EQ(PlainNumber("007"), 7.0);
}

TEST(PlainNumberTest, ExponentBehindEOrDInEitherCase) {
  EXPECT_EQ(PlainNumber("1e3"), 1000.0);
  EXPECT_EQ(PlainNumber("1E+3"), 1000.0);
  EXPECT_EQ(PlainNumber("1.5d-2"), 0.015);
  EXPECT_EQ(PlainNumber("+1.5D2"), 150.0);
  EXPECT_EQ(PlainNumber("-2.e1"), -20.0);
}

TEST(PlainNumberTest, ExponentWithoutDigitsIsNone) {
  EXPECT_EQ(PlainNumber("1e"), 1.0);
  EXPECT_EQ(PlainNumber("1e+"), 1.0);
  EXPECT_EQ(PlainNumber("1d-x"), 1.0);
  EXPECT_EQ(PlainNumber("2ee5"), 2.0);
}

TEST(PlainNumberTest, StopsAtTheFirstCharacterThatItCannotUse) {
  EXPECT_EQ(PlainNumber("12km"), 12.0);
  EXPECT_EQ(PlainNumber("1.2.3"), 1.2);
  EXPECT_EQ(PlainNumber("1e2.5"), 100.0);
  EXPECT_EQ(PlainNumber("1,5"), 1.0);
  EXPECT_EQ(PlainNumber("1 5"), 1.0);
  EXPECT_EQ(PlainNumber("1-5"), 1.0);
  EXPECT_EQ(PlainNumber("0x10"), 0.0);
  EXPECT_EQ(PlainNumber(std::string_view("1\0002", 3)), 1.0);
}

TEST(PlainNumberTest, TextWithoutANumberIs0) {
  for (const char* text :
       {"", "-", "+", ".", "-.", "e5", ".e5", "abc", "--1", "+-1", "\"1", "nan", "inf", "-inf"}) {
    EXPECT_EQ(PlainNumber(text), 0.0) << text;
  }
}

TEST(PlainNumberTest, BeyondTheRangeReadsAs0) {
  EXPECT_EQ(PlainNumber("1e400"), 0.0);
  EXPECT_EQ(PlainNumber("-1e309"), 0.0);
  EXPECT_EQ(PlainNumber("1d99999999999999999999"), 0.0);
  EXPECT_EQ(PlainNumber("1e-99999999999999999999"), 0.0);
  EXPECT_EQ(PlainNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(PlainNumberTest, IsExactlyRounded) {
  EXPECT_EQ(PlainNumber("0.1"), 0.1);
  EXPECT_EQ(PlainNumber("9007199254740993"), 9007199254740992.0);
  EXPECT_EQ(PlainNumber("5e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(PlainNumber("2.2250738585072011e-308"), 2.2250738585072011e-308);
}

std::uint64_t Bits(double value) {
  return std::bit_cast<std::uint64_t>(value);
}

// Texts around plain numbers: every letter that can stand in one, and some that can't.
std::vector<std::string> FieldsAroundPlainNumbers() {
  std::vector<std::string> fields = {"",         "0",      "-0",      "-0.0", "1.5",  "-.5",   "5.",
                                     "1.e3",     ".e3",    "1e",      "1e+5", "1E-5", "1d5",   "1e400",
                                     "-1e400",   "1e-400", "-1e-400", "inf",  "-inf", "nan",   "-nan",
                                     "infinity", "+1",     " 1",      "1 ",   "--1",  "1'234", "1,5",
                                     "1.2.3",    "0x10",   "5e-324",  "-",    ".",    "-."};
  std::mt19937 random(47);
  const std::string kLetters = "0123456789012345678901234567890123456789..--+eEdD,' \"";
  for (int i = 0; i < 60000; ++i) {
    std::string field(1 + random() % 12, '0');
    for (char& c : field)
      c = kLetters[random() % kLetters.size()];
    fields.push_back(field);
  }
  for (int i = 0; i < 20000; ++i) {
    const double value = std::bit_cast<double>((static_cast<std::uint64_t>(random()) << 32U) | random());
    fields.push_back(FormatPicture(static_cast<double>(random()) / 1000.0 - 2e6, "0.0000000000"));
    fields.push_back(GeneralNumber(value));
  }
  return fields;
}

TEST(ShortNumberTest, AgreesBitForBitWithTextToDoubleForEveryPairOfSeparators) {
  const std::vector<std::string> fields = FieldsAroundPlainNumbers();
  for (const auto& [decimal, thousands] : kEveryPair) {
    const Machine machine(decimal, thousands);
    Read("1");
    int taken = 0;
    for (const std::string& field : fields) {
      const std::optional<double> quick = ShortNumber(field);
      if (!quick) continue;
      ++taken;
      const Reading full = Read(field);
      ASSERT_EQ(Bits(*quick), Bits(full.value)) << field << " with " << decimal << " and " << thousands;
      ASSERT_EQ(full.kind, -1) << field;
    }
    const bool closed = std::string_view(".1e").find(thousands) != std::string_view::npos && *thousands != 0;
    EXPECT_TRUE(closed ? taken == 0 : taken > 20000) << taken << " with " << decimal << " and " << thousands;
  }
}

TEST(ShortNumberTest, TakesPlainDecimalFields) {
  const English machine;
  Read("1");
  EXPECT_EQ(ShortNumber("12.5"), 12.5);
  EXPECT_EQ(ShortNumber("-7000000.0000000000"), -7000000.0);
  EXPECT_EQ(ShortNumber(".5"), 0.5);
  EXPECT_EQ(ShortNumber("-.5"), -0.5);
  EXPECT_EQ(ShortNumber("1e3"), 1000.0);
}

TEST(ShortNumberTest, LeavesEveryOtherFieldToTheFullConversion) {
  const English machine;
  Read("1");
  for (const char* field :
       {"",     "-",     ".",   "-.",   "+1",  " 1",   "1 ",    "1,5",    "1e",   "1d3",
        "12km", "1.2.3", "inf", "-inf", "nan", "-nan", "1e400", "-1e400", "0x10", "\"1\""}) {
    EXPECT_EQ(ShortNumber(field), std::nullopt) << field;
  }
}

TEST(ShortNumberTest, TheLengthEndsWhereTheNumberEnds) {
  const English machine;
  Read("1");
  double value = 0;
  EXPECT_EQ(ShortNumberLength("-12.5\t3", value), 5U);
  EXPECT_EQ(value, -12.5);
  EXPECT_EQ(ShortNumberLength("1e\t3", value), 1U);
  EXPECT_EQ(value, 1);
  value = 7;
  for (const char* text : {"", "\t3", "-\t3", "x", "inf", "1e400"})
    EXPECT_EQ(ShortNumberLength(text, value), 0U) << text;
  EXPECT_EQ(value, 7);
}

TEST(ShortNumberTest, IsOpenWhereTheThousandsMarkCannotStandInAPlainField) {
  for (const std::string& mark : {std::string(), std::string(","), std::string(" "), std::string("'"),
                                  kNoBreakSpace, kNarrowNoBreakSpace}) {
    const Machine machine(".", mark);
    Read("1");
    EXPECT_EQ(ShortNumber("1.5"), 1.5) << mark;
  }
}

TEST(ShortNumberTest, IsClosedWhereTheThousandsMarkMayStandInAPlainField) {
  for (const char* mark : {".", "0", "5", "e", "-", ".0"}) {
    const Machine machine(",", mark);
    Read("1");
    EXPECT_EQ(ShortNumber("1.5"), std::nullopt) << mark;
  }
}

TEST(ShortNumberTest, IsClosedUntilTheSeparatorsAreRead) {
  const English machine;
  EXPECT_EQ(ShortNumber("1.5"), std::nullopt);
  Read("1.5");
  EXPECT_EQ(ShortNumber("1.5"), 1.5);
}

}  // namespace
}  // namespace quorb
