#include "Keywords.h"

#include <gtest/gtest.h>

#include <cctype>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "Specification.h"
#include "TitleWords.h"
#include "UserFlag.h"

namespace quorb {
namespace {

using Stages = std::vector<KeywordStage>;
const Stages kAllStages = {KeywordStage::beforeRows, KeywordStage::colourValues,
                           KeywordStage::quaternionOrder, KeywordStage::centralBody};

/// All that a title can say; the values are those of a title without keywords.
struct Outcome {
  std::string title;
  bool timeInSeconds = true;
  bool lengthInMetres = true;
  bool inputInKm = false;
  int circularShift = 0;
  int exchange = 0;
  double latitude = 0;
  double longitude = 0;
  double distance = 0;
  double forcedScale = 0;  // 0 for none
  bool clearCheck9 = false;
  bool showCheck5 = false;
  bool showCheck11 = false;
  int penUpLabelMode = 0;
  int penUpMode = 0;
  int columnMode = 0;
  int emSystem = 0;
  double nedInput = 0;
  int valColour = 0;
  int valAxis = 3;
  double logoScale = 0;
  int quaterScalarLast = 0;
  int moonFocus = 0;
  int focusBody = 4;

  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Outcome& o) {
  return stream << "\"" << o.title << "\" seconds " << o.timeInSeconds << " metres " << o.lengthInMetres
                << " km " << o.inputInKm << " shift " << o.circularShift << " exchange " << o.exchange
                << " ned " << o.latitude << " " << o.longitude << " " << o.distance << " forced "
                << o.forcedScale << " checks " << o.clearCheck9 << o.showCheck5 << o.showCheck11 << " pen "
                << o.penUpLabelMode << o.penUpMode << " column " << o.columnMode << " em " << o.emSystem
                << " nedInput " << o.nedInput << " val " << o.valColour << o.valAxis << " logo "
                << o.logoScale << " scalar " << o.quaterScalarLast << " moon " << o.moonFocus << " focus "
                << o.focusBody;
}

Outcome Pass(const std::string& title, const Stages& stages) {
  TitleKeywords found = StartKeywordPass();
  MessageUserToPlot = title;
  for (const KeywordStage stage : stages)
    Extraction_information_mots_clef(stage, found);
  Outcome outcome;
  outcome.title = MessageUserToPlot;
  outcome.timeInSeconds = found.TimeInSeconds;
  outcome.lengthInMetres = found.LengthInMetres;
  outcome.inputInKm = InputInKm;
  outcome.circularShift = found.circularShift;
  outcome.exchange = found.exchange;
  outcome.latitude = found.latitude;
  outcome.longitude = found.longitude;
  outcome.distance = found.distance;
  outcome.forcedScale = found.forcedScale.value_or(0);
  outcome.clearCheck9 = found.clearCheck9;
  outcome.showCheck5 = found.showCheck5;
  outcome.showCheck11 = found.showCheck11;
  outcome.penUpLabelMode = PenUpLabelMode;
  outcome.penUpMode = PenUpMode;
  outcome.columnMode = ColumnMode;
  outcome.emSystem = EMSystem;
  outcome.nedInput = USERFLAG.NedInput;
  outcome.valColour = ValColour;
  outcome.valAxis = ValAxis;
  outcome.logoScale = USERFLAG.LogoScale;
  outcome.quaterScalarLast = QuaterScalarLast;
  outcome.moonFocus = MoonFocus;
  outcome.focusBody = FocusBody;
  return outcome;
}

Outcome BeforeRows(const std::string& title) {
  return Pass(title, {KeywordStage::beforeRows});
}
Outcome ColourValues(const std::string& title) {
  return Pass(title, {KeywordStage::colourValues});
}
Outcome QuaternionOrder(const std::string& title) {
  return Pass(title, {KeywordStage::quaternionOrder});
}
Outcome CentralBody(const std::string& title) {
  return Pass(title, {KeywordStage::centralBody});
}

Outcome Plain(const std::string& title) {
  Outcome outcome;
  outcome.title = title;
  return outcome;
}

Outcome Units(const std::string& title, bool metres, bool seconds) {
  Outcome outcome = Plain(title);
  outcome.lengthInMetres = metres;
  outcome.timeInSeconds = seconds;
  outcome.inputInKm = !metres;
  return outcome;
}

Outcome Axes(const std::string& title, int circularShift, int exchange) {
  Outcome outcome = Plain(title);
  outcome.circularShift = circularShift;
  outcome.exchange = exchange;
  return outcome;
}

Outcome Colours(const std::string& title) {
  Outcome outcome = Plain(title);
  outcome.valColour = 1;
  outcome.showCheck5 = true;
  outcome.showCheck11 = true;
  return outcome;
}

Outcome Focus(const std::string& title, int body) {
  Outcome outcome = Plain(title);
  outcome.focusBody = body;
  return outcome;
}

Outcome Moon(const std::string& title) {
  Outcome outcome = Plain(title);
  outcome.moonFocus = 1;
  return outcome;
}

Outcome Ned(const std::string& title, double latitude, double longitude, double distance) {
  Outcome outcome = Plain(title);
  outcome.latitude = latitude;
  outcome.longitude = longitude;
  outcome.distance = distance;
  outcome.forcedScale = 1.0001;
  outcome.nedInput = 1;
  return outcome;
}

class KeywordsTest : public ::testing::Test {
 protected:
  KeywordsTest() { SetRegionalSettings(nullptr); }
  ~KeywordsTest() override {
    StartKeywordPass();
    ValAxis = 0;
    MessageUserToPlot.clear();
  }
};

// ---- RemoveWord -------------------------------------------------------------------------------------------

std::string Without(std::string_view word, std::string title) {
  RemoveWord(word, title);
  return title;
}

TEST(RemoveWordTest, AWordAtTheEndIsCutAndTheBlankBeforeItStays) {
  EXPECT_EQ(Without("kmday", "Transfer kmday"), "Transfer ");
}

TEST(RemoveWordTest, AWordInsideIsReplacedByOneBlank) {
  EXPECT_EQ(Without("kmday", "Transfer kmday 2"), "Transfer   2");
  EXPECT_EQ(Without("kmday", "kmdayXY"), " XY");
}

TEST(RemoveWordTest, TheTitleIsCutWhenOneCharacterStandsBehindTheWord) {
  EXPECT_EQ(Without("xyz", "Orbit xyzw"), "Orbit ");
  EXPECT_EQ(Without("xyz", "Orbit xyz\xC3\xA9"), "Orbit ");
}

TEST(RemoveWordTest, TheWordAloneLeavesAnEmptyTitle) {
  EXPECT_EQ(Without("column", "column"), "");
}

TEST(RemoveWordTest, AnotherCaseIsNotTheWord) {
  EXPECT_EQ(Without("column", "Column"), "Column");
}

TEST(RemoveWordTest, AWordThatIsNotThereChangesNothing) {
  EXPECT_EQ(Without("column", "Orbit"), "Orbit");
  EXPECT_EQ(Without("column", ""), "");
  EXPECT_EQ(Without("", "Orbit"), "Orbit");
}

TEST(RemoveWordTest, OnlyTheFirstOccurrenceGoes) {
  EXPECT_EQ(Without("day", "a day, a day"), "a  , a day");
}

// ---- the edge cases of a whole formula --------------------------------------------------------------------

struct WholeTitle {
  SpecificationText formula;
  Outcome outcome;
};

WholeTitle Load(std::string_view formula) {
  WholeTitle whole;
  whole.formula = Extraction_info(formula, "");
  whole.outcome = Pass(whole.formula.title, kAllStages);
  EndKeywordPass();
  whole.outcome.title = MessageUserToPlot;
  return whole;
}

TEST_F(KeywordsTest, ARangeAloneGivesScaleOneTheDefaultTitleMetresAndSeconds) {
  const WholeTitle whole = Load("=MAX(A2:C60)");
  EXPECT_EQ(whole.formula.scale, 1.0);
  EXPECT_EQ(whole.outcome, Units("QuorbExcelPro", true, true));
}

TEST_F(KeywordsTest, TransferKmdayGivesItsScaleTheTitleTransferKilometresAndDays) {
  const WholeTitle whole = Load("=0.01+LEN(\"Transfer kmday\")+MAX(A2:C2000)+MAX(D2:D2000)");
  EXPECT_EQ(whole.formula.scale, 0.01);
  EXPECT_EQ(whole.outcome, Units("Transfer", false, false));
}

TEST_F(KeywordsTest, MoonInCapitalsDoesNotSetMoonFocusAndMoonDoes) {
  EXPECT_EQ(Load("=1+LEN(\"To the Moon\")+MAX(A2:C9)").outcome, Plain("To the Moon"));
  EXPECT_EQ(Load("=1+LEN(\"To the moon\")+MAX(A2:C9)").outcome, Moon("To the"));
}

TEST_F(KeywordsTest, EsaGivesKilometresDaysScalarLastAndStaysPrinted) {
  Outcome expected = Units("ESA orbit", false, false);
  expected.quaterScalarLast = 1;
  EXPECT_EQ(Load("=1+LEN(\"ESA orbit\")+MAX(A2:C9)").outcome, expected);
}

TEST_F(KeywordsTest, YzxAndYxzTogetherTheExchangeWins) {
  EXPECT_EQ(Load("=1+LEN(\"Orbit yzx yxz\")+MAX(A2:C9)").outcome, Axes("Orbit", 0, 1));
  EXPECT_EQ(Load("=1+LEN(\"Orbit yxz yzx\")+MAX(A2:C9)").outcome, Axes("Orbit", 0, 1));
}

TEST_F(KeywordsTest, ATitleOfColumnAloneLeavesAnEmptyTitle) {
  Outcome expected = Plain("");
  expected.columnMode = 1;
  EXPECT_EQ(Load("=1+LEN(\"column\")+MAX(A2:C9)").outcome, expected);
}

TEST_F(KeywordsTest, TrailingBlanksGoOnceAtTheEnd) {
  EXPECT_EQ(Pass("Transfer kmday", kAllStages).title, "Transfer ");
  EndKeywordPass();
  EXPECT_EQ(MessageUserToPlot, "Transfer");
  MessageUserToPlot = "  Transfer \t  ";
  EndKeywordPass();
  EXPECT_EQ(MessageUserToPlot, "  Transfer \t");
  MessageUserToPlot = "   ";
  EndKeywordPass();
  EXPECT_EQ(MessageUserToPlot, "");
}

TEST_F(KeywordsTest, TheBlankBehindACutIsSeenByLaterKeywords) {
  // Once "seconds" is cut off, the blank before it is what " s " needs.
  EXPECT_EQ(BeforeRows("Orbit s").title, "Orbit s");
  EXPECT_EQ(BeforeRows("Orbit s seconds").title, "Orbit");
}

TEST_F(KeywordsTest, EveryFlagStartsAtItsDefault) {
  PenUpLabelMode = PenUpMode = ColumnMode = EMSystem = ValColour = QuaterScalarLast = MoonFocus = 1;
  ValAxis = 1;
  FocusBody = 6;
  InputInKm = true;
  USERFLAG.LogoScale = 0.5;
  USERFLAG.NedInput = 1.0;
  EXPECT_EQ(Pass("Orbit", {}), Plain("Orbit"));
}

TEST_F(KeywordsTest, ATitleWithoutKeywordsChangesNothing) {
  EXPECT_EQ(Pass("Orbit 12", kAllStages), Plain("Orbit 12"));
  EXPECT_EQ(Pass("", kAllStages), Plain(""));
}

// ---- before the rows --------------------------------------------------------------------------------------

TEST_F(KeywordsTest, PenuplabelSetsBothPenModesAndClearsTheCubicView) {
  Outcome expected = Plain("Orbit   view");
  expected.penUpLabelMode = 1;
  expected.penUpMode = 1;
  expected.clearCheck9 = true;
  EXPECT_EQ(BeforeRows("Orbit penuplabel view"), expected);
  expected.title = "Orbit PenUpLabel view";
  EXPECT_EQ(BeforeRows("Orbit PenUpLabel view"), expected);
}

TEST_F(KeywordsTest, PenupSetsThePenModeOnly) {
  Outcome expected = Plain("Orbit   view");
  expected.penUpMode = 1;
  EXPECT_EQ(BeforeRows("Orbit penup view"), expected);
  expected.title = "Orbit PENUP view";
  EXPECT_EQ(BeforeRows("Orbit PENUP view"), expected);
}

TEST_F(KeywordsTest, ColumnSetsColumnModeAndStaysPrintedWithACapital) {
  Outcome expected = Plain("Orbit   view");
  expected.columnMode = 1;
  EXPECT_EQ(BeforeRows("Orbit column view"), expected);
  expected.title = "Column";
  EXPECT_EQ(BeforeRows("Column"), expected);
}

TEST_F(KeywordsTest, XyzOnlyLeavesTheTitle) {
  EXPECT_EQ(BeforeRows("Orbit xyz view"), Axes("Orbit   view", 0, 0));
  EXPECT_EQ(BeforeRows("Orbit XYZ view"), Axes("Orbit XYZ view", 0, 0));
}

TEST_F(KeywordsTest, YzxShiftsByOneAndZxyByTwo) {
  EXPECT_EQ(BeforeRows("Orbit yzx view"), Axes("Orbit   view", 1, 0));
  EXPECT_EQ(BeforeRows("Orbit YZX view"), Axes("Orbit YZX view", 1, 0));
  EXPECT_EQ(BeforeRows("Orbit zxy view"), Axes("Orbit   view", 2, 0));
  EXPECT_EQ(BeforeRows("Orbit ZXY view"), Axes("Orbit ZXY view", 2, 0));
}

TEST_F(KeywordsTest, ZxyOverrulesYzxWhereverItStands) {
  EXPECT_EQ(BeforeRows("zxy Orbit yzx"), Axes("  Orbit ", 2, 0));
}

TEST_F(KeywordsTest, ExchangesAreOneTwoAndThree) {
  EXPECT_EQ(BeforeRows("Orbit yxz view"), Axes("Orbit   view", 0, 1));
  EXPECT_EQ(BeforeRows("Orbit YXZ view"), Axes("Orbit YXZ view", 0, 1));
  EXPECT_EQ(BeforeRows("Orbit xzy view"), Axes("Orbit   view", 0, 2));
  EXPECT_EQ(BeforeRows("Orbit XZY view"), Axes("Orbit XZY view", 0, 2));
  EXPECT_EQ(BeforeRows("Orbit zyx view"), Axes("Orbit   view", 0, 3));
  EXPECT_EQ(BeforeRows("Orbit ZYX view"), Axes("Orbit ZYX view", 0, 3));
}

TEST_F(KeywordsTest, EveryExchangeClearsTheShift) {
  EXPECT_EQ(BeforeRows("yxz zxy"), Axes("", 0, 1));
  EXPECT_EQ(BeforeRows("xzy zxy"), Axes("", 0, 2));
  EXPECT_EQ(BeforeRows("zyx zxy"), Axes("", 0, 3));
}

TEST_F(KeywordsTest, TheLaterExchangeOverrulesTheEarlier) {
  EXPECT_EQ(BeforeRows("zyx, xzy, yxz"), Axes(" ,  , ", 0, 3));
  EXPECT_EQ(BeforeRows("xzy, yxz"), Axes(" , ", 0, 2));
}

TEST_F(KeywordsTest, UnitsAreMetresAndSecondsByDefault) {
  EXPECT_EQ(BeforeRows("Orbit"), Units("Orbit", true, true));
}

TEST_F(KeywordsTest, WordsOfSecondsAndMetresLeaveTheTitle) {
  EXPECT_EQ(BeforeRows("Orbit seconds view"), Units("Orbit   view", true, true));
  EXPECT_EQ(BeforeRows("Orbit SECONDS view"), Units("Orbit SECONDS view", true, true));
  EXPECT_EQ(BeforeRows("Orbit metres view"), Units("Orbit   view", true, true));
  EXPECT_EQ(BeforeRows("Orbit Metres view"), Units("Orbit Metres view", true, true));
}

TEST_F(KeywordsTest, LettersBetweenBlanksLoseTheirFirstBlankAndThemselves) {
  EXPECT_EQ(BeforeRows("Orbit s view"), Units("Orbit  view", true, true));
  EXPECT_EQ(BeforeRows("Orbit m view"), Units("Orbit  view", true, true));
  EXPECT_EQ(BeforeRows("Orbit ms view"), Units("Orbit  view", true, true));
  EXPECT_EQ(BeforeRows("Orbit sm view"), Units("Orbit  view", true, true));
  EXPECT_EQ(BeforeRows("Orbit S view"), Units("Orbit S view", true, true));
}

TEST_F(KeywordsTest, LettersThatDoNotStandBetweenBlanksStay) {
  EXPECT_EQ(BeforeRows("s Orbit m"), Units("s Orbit m", true, true));
  EXPECT_EQ(BeforeRows("ms Orbit sm"), Units("ms Orbit sm", true, true));
}

TEST_F(KeywordsTest, LettersBetweenBlanksAreRemovedAtTheFirstPlaceOfTheirWordInsideAnother) {
  EXPECT_EQ(BeforeRows("My sat s view").title, "My at s view");
  EXPECT_EQ(BeforeRows("My map m view").title, "My ap m view");
  EXPECT_EQ(BeforeRows("My msat ms view").title, "My at ms view");
  EXPECT_EQ(BeforeRows("My small sm view").title, "My all sm view");
}

TEST_F(KeywordsTest, KmdaysAndKmdayAreKilometresAndDays) {
  EXPECT_EQ(BeforeRows("Orbit kmdays view"), Units("Orbit   view", false, false));
  EXPECT_EQ(BeforeRows("Orbit KmDays view"), Units("Orbit KmDays view", false, false));
  EXPECT_EQ(BeforeRows("Orbit kmday view"), Units("Orbit   view", false, false));
  EXPECT_EQ(BeforeRows("Orbit KmDay view"), Units("Orbit KmDay view", false, false));
}

TEST_F(KeywordsTest, KmIsKilometresAndSeconds) {
  EXPECT_EQ(BeforeRows("Orbit km view"), Units("Orbit   view", false, true));
  EXPECT_EQ(BeforeRows("Orbit KM view"), Units("Orbit KM view", false, true));
}

TEST_F(KeywordsTest, DaysAndDayAreDaysAndLeaveTheLengths) {
  EXPECT_EQ(BeforeRows("Orbit days view"), Units("Orbit   view", true, false));
  EXPECT_EQ(BeforeRows("Orbit Days view"), Units("Orbit Days view", true, false));
  EXPECT_EQ(BeforeRows("Orbit day view"), Units("Orbit   view", true, false));
  EXPECT_EQ(BeforeRows("Orbit DAY view"), Units("Orbit DAY view", true, false));
}

TEST_F(KeywordsTest, TheLaterUnitWins) {
  EXPECT_EQ(BeforeRows("kmday metres seconds ms x").lengthInMetres, false);
  EXPECT_EQ(BeforeRows("kmday metres seconds ms x").timeInSeconds, false);
  EXPECT_EQ(BeforeRows("kmday km"), Units("  ", false, true));
  EXPECT_EQ(BeforeRows("days km"), Units("", false, false));
  EXPECT_EQ(BeforeRows("ESA km"), Units("ESA ", false, false));
}

TEST_F(KeywordsTest, AWordThatMerelyHoldsAUnitFires) {
  EXPECT_EQ(BeforeRows("Monday noon"), Units("Mon  noon", true, false));
  EXPECT_EQ(BeforeRows("Bookmark 7"), Units("Boo ark 7", false, true));
  EXPECT_EQ(BeforeRows("Kilometres"), Units("Kilo", true, true));
}

TEST_F(KeywordsTest, EsaInAnyCaseIsKilometresAndDaysAndStays) {
  EXPECT_EQ(BeforeRows("Orbit ESA view"), Units("Orbit ESA view", false, false));
  EXPECT_EQ(BeforeRows("Orbit esa view"), Units("Orbit esa view", false, false));
}

TEST_F(KeywordsTest, EmSystemIsRemovedInLowerCaseOnly) {
  Outcome expected = Plain("Orbit   view");
  expected.emSystem = 1;
  EXPECT_EQ(BeforeRows("Orbit em_system view"), expected);
  expected.title = "Orbit EM_System view";
  EXPECT_EQ(BeforeRows("Orbit EM_System view"), expected);
}

// ---- North-East-Down --------------------------------------------------------------------------------------

TEST_F(KeywordsTest, NedReadsLatitudeLongitudeAndDistance) {
  EXPECT_EQ(BeforeRows("Launch ned 48.86 2.35 6378137"),
            Ned("Launch  48.86 2.35 6378137", 48.86, 2.35, 6378137));
}

TEST_F(KeywordsTest, NedInCapitalsStaysPrinted) {
  EXPECT_EQ(BeforeRows("Launch NED 48.86 2.35 7"), Ned("Launch NED 48.86 2.35 7", 48.86, 2.35, 7));
}

TEST_F(KeywordsTest, NedNeedsABlankBeforeIt) {
  EXPECT_EQ(BeforeRows("ned 48.86 2.35 7"), Plain("ned 48.86 2.35 7"));
  EXPECT_EQ(BeforeRows("Planned 48.86 2.35 7"), Plain("Planned 48.86 2.35 7"));
}

TEST_F(KeywordsTest, NedCutsTheLongitudeToTheLengthOfTheLatitude) {
  EXPECT_EQ(BeforeRows("Launch ned 5.2 -52.8 7"), Ned("Launch  5.2 -52.8 7", 5.2, -52, 7));
  EXPECT_EQ(BeforeRows("Launch ned 9 123 7"), Ned("Launch  9 123 7", 9, 1, 7));
  EXPECT_EQ(BeforeRows("Launch ned 5.25 -52.8 7"), Ned("Launch  5.25 -52.8 7", 5.25, -52, 7));
  EXPECT_EQ(BeforeRows("Launch ned 5.257 -52.8 7"), Ned("Launch  5.257 -52.8 7", 5.257, -52.8, 7));
}

TEST_F(KeywordsTest, NedTakesCommasAsSeparatorsOnlyBesideAPoint) {
  EXPECT_EQ(BeforeRows("Launch ned 48.86,2.35,7"), Ned("Launch  48.86,2.35,7", 48.86, 2.35, 7));
  EXPECT_EQ(BeforeRows("Launch ned 48,86 2,35 7"), Ned("Launch  48,86 2,35 7", 48.86, 2.35, 7));
}

TEST_F(KeywordsTest, NedTakesARunOfBlanksAsOne) {
  EXPECT_EQ(BeforeRows("Launch ned   48.86   2.35   7  "),
            Ned("Launch    48.86   2.35   7  ", 48.86, 2.35, 7));
  EXPECT_EQ(BeforeRows("Launch ned 48.86, 2.35, 7"), Ned("Launch  48.86, 2.35, 7", 48.86, 2.35, 7));
}

TEST_F(KeywordsTest, NedMissingWordsAreZero) {
  EXPECT_EQ(BeforeRows("Launch ned 48.86 2.35"), Ned("Launch  48.86 2.35", 48.86, 2.35, 0));
  EXPECT_EQ(BeforeRows("Launch ned 48.86"), Ned("Launch  48.86", 48.86, 0, 0));
  EXPECT_EQ(BeforeRows("Launch ned"), Ned("Launch", 0, 0, 0));
}

TEST_F(KeywordsTest, NedTextRunsToTheEndOfTheTitle) {
  // The point of a later word makes the comma a separator.
  EXPECT_EQ(BeforeRows("Launch ned 48,2 7 v1.0"), Ned("Launch  48,2 7 v1.0", 48, 2, 7));
}

TEST_F(KeywordsTest, NedReadsExponentsInEitherCase) {
  EXPECT_EQ(BeforeRows("Launch ned 4.8e1 2.5d0 6.4E6"), Ned("Launch  4.8e1 2.5d0 6.4E6", 48, 2.5, 6.4e6));
}

TEST_F(KeywordsTest, NedReadsWhatTheRowsBeforeItLeft) {
  Outcome expected = Ned("Launch  48.86  2.35 7", 48.86, 2.35, 7);
  expected.lengthInMetres = false;
  expected.inputInKm = true;
  EXPECT_EQ(BeforeRows("Launch ned 48.86 km2.35 7"), expected);
}

// ---- after the rows ---------------------------------------------------------------------------------------

TEST_F(KeywordsTest, ValzValyAndValxAskForColourValues) {
  EXPECT_EQ(ColourValues("Orbit valz view"), Colours("Orbit   view"));
  EXPECT_EQ(ColourValues("Orbit ValZ view"), Colours("Orbit ValZ view"));
  EXPECT_EQ(ColourValues("Orbit valy view"), Colours("Orbit   view"));
  EXPECT_EQ(ColourValues("Orbit VALY view"), Colours("Orbit VALY view"));
  EXPECT_EQ(ColourValues("Orbit valx view"), Colours("Orbit   view"));
  EXPECT_EQ(ColourValues("Orbit VALX view"), Colours("Orbit VALX view"));
}

TEST_F(KeywordsTest, OnlyTheFirstOfValzValyAndValxIsTried) {
  EXPECT_EQ(ColourValues("valx valy valz"), Colours("valx valy "));
  EXPECT_EQ(ColourValues("valx valy"), Colours("valx "));
  EXPECT_EQ(ColourValues("valx VALZ"), Colours("valx VALZ"));
}

TEST_F(KeywordsTest, LamdorHalvesTheLogoScaleAlsoBehindValz) {
  Outcome expected = Plain("Orbit   view");
  expected.logoScale = 0.5;
  EXPECT_EQ(ColourValues("Orbit lamdor view"), expected);
  expected.title = "Orbit LAMDOR view";
  EXPECT_EQ(ColourValues("Orbit LAMDOR view"), expected);
  expected = Colours("  ");
  expected.logoScale = 0.5;
  EXPECT_EQ(ColourValues("valz lamdor"), expected);
}

TEST_F(KeywordsTest, EsaTurnsTheQuaternionsAndStays) {
  Outcome expected = Plain("Orbit ESA view");
  expected.quaterScalarLast = 1;
  EXPECT_EQ(QuaternionOrder("Orbit ESA view"), expected);
  expected.title = "Orbit Esa view";
  EXPECT_EQ(QuaternionOrder("Orbit Esa view"), expected);
}

TEST_F(KeywordsTest, XyzwTurnsTheQuaternions) {
  Outcome expected = Plain("Orbit   view");
  expected.quaterScalarLast = 1;
  EXPECT_EQ(QuaternionOrder("Orbit xyzw view"), expected);
  expected.title = "Orbit XYZW view";
  EXPECT_EQ(QuaternionOrder("Orbit XYZW view"), expected);
}

TEST_F(KeywordsTest, XyzwIsNotTriedBehindEsa) {
  EXPECT_EQ(QuaternionOrder("ESA xyzw").title, "ESA xyzw");
}

TEST_F(KeywordsTest, XyzTakesItsLettersBeforeXyzwIsLookedFor) {
  EXPECT_EQ(Pass("Orbit xyzw view", kAllStages), Plain("Orbit  w view"));
  Outcome expected = Plain("Orbit XYZW view");
  expected.quaterScalarLast = 1;
  EXPECT_EQ(Pass("Orbit XYZW view", kAllStages), expected);
}

TEST_F(KeywordsTest, MoonAndLuneSetMoonFocus) {
  EXPECT_EQ(CentralBody("Orbit moon view"), Moon("Orbit   view"));
  EXPECT_EQ(CentralBody("Orbit lune view"), Moon("Orbit   view"));
  EXPECT_EQ(CentralBody("Orbit Moon LUNE view"), Plain("Orbit Moon LUNE view"));
}

TEST_F(KeywordsTest, LuneIsNotTriedBehindMoon) {
  EXPECT_EQ(CentralBody("lune moon"), Moon("lune "));
}

TEST_F(KeywordsTest, FocusEarthAndTerreOnlyLeaveTheTitle) {
  EXPECT_EQ(CentralBody("Focus view"), Plain(" view"));
  EXPECT_EQ(CentralBody("Orbit earth view"), Plain("Orbit   view"));
  EXPECT_EQ(CentralBody("Orbit terre view"), Plain("Orbit   view"));
  EXPECT_EQ(CentralBody("focus Focus, Earth Terre"), Plain("focus Focus, Earth Terre"));
}

TEST_F(KeywordsTest, BodiesSetTheFocus) {
  EXPECT_EQ(CentralBody("Orbit sun view"), Focus("Orbit   view", 1));
  EXPECT_EQ(CentralBody("Orbit soleil view"), Focus("Orbit   view", 1));
  EXPECT_EQ(CentralBody("Orbit mercury view"), Focus("Orbit   view", 2));
  EXPECT_EQ(CentralBody("Orbit venus view"), Focus("Orbit   view", 3));
  EXPECT_EQ(CentralBody("Orbit mars view"), Focus("Orbit   view", 5));
  EXPECT_EQ(CentralBody("Orbit jupiter view"), Focus("Orbit   view", 6));
  EXPECT_EQ(CentralBody("Focus mars"), Focus(" ", 5));
}

TEST_F(KeywordsTest, BodiesInCapitalsAreNotKeywords) {
  const std::string title = "Sun Soleil Mercury Venus Mars Jupiter";
  EXPECT_EQ(CentralBody(title), Plain(title));
}

TEST_F(KeywordsTest, TheLaterBodyOverwritesTheFocus) {
  EXPECT_EQ(CentralBody("jupiter, mars, venus"), Focus(" ,  , ", 6));
  EXPECT_EQ(CentralBody("mars, venus, mercury"), Focus(" ,  , ", 5));
  EXPECT_EQ(CentralBody("venus, mercury, soleil"), Focus(" ,  , ", 3));
  EXPECT_EQ(CentralBody("mercury, soleil, sun"), Focus(" ,  , ", 2));
  EXPECT_EQ(CentralBody("earth, terre, sun"), Focus(" ,  , ", 1));
}

TEST_F(KeywordsTest, AStageLooksAtItsOwnWordsOnly) {
  EXPECT_EQ(BeforeRows("valz lamdor moon mars"), Plain("valz lamdor moon mars"));
  EXPECT_EQ(ColourValues("kmday xyzw ESA moon"), Plain("kmday xyzw ESA moon"));
  EXPECT_EQ(QuaternionOrder("kmday valz moon"), Plain("kmday valz moon"));
  EXPECT_EQ(CentralBody("kmday valz ESA xyzw"), Plain("kmday valz ESA xyzw"));
}

// ---- the words that a written title is searched for -------------------------------------------------------

std::string Cased(std::string_view word, int (*change)(int)) {
  std::string text(word);
  for (char& c : text)
    c = static_cast<char>(change(static_cast<unsigned char>(c)));
  return text;
}

/// True when the pass changes a title, or anything that it tells.
bool Acts(const std::string& title, const Stages& stages) {
  return Pass(title, stages) != Plain(title);
}

TEST_F(KeywordsTest, EveryKeywordIsKnownToTheSearchOfWrittenTitles) {
  EXPECT_EQ(SearchedKeywords().size(), 40U);
  for (const std::string_view word : SearchedKeywords()) {
    bool found = false;
    for (const TitleWord& known : TitleWordsIn("Q" + std::string(word) + "QQ"))
      found = found || known.word == word;
    EXPECT_TRUE(found) << word;
  }
}

TEST_F(KeywordsTest, ATitleOfAKeywordIsJudgedAsThePassActs) {
  for (const std::string_view word : SearchedKeywords()) {
    const std::string title = "Q" + std::string(word) + "QQ";
    EXPECT_TRUE(Acts(title, kAllStages)) << title;
    EXPECT_EQ(!TitleFault(title).empty(), Acts(title, {KeywordStage::beforeRows})) << title;
  }
}

TEST_F(KeywordsTest, ATitleOfAKeywordInAnotherCaseIsJudgedAsThePassActs) {
  for (const std::string_view word : SearchedKeywords()) {
    const bool dressesOnly = TitleFault("Q" + std::string(word) + "QQ").empty();
    for (const std::string& cased : {Cased(word, std::tolower), Cased(word, std::toupper)}) {
      const std::string title = "Q" + cased + "QQ";
      const bool found = !TitleWordsIn(title).empty();
      const bool acts = Acts(title, kAllStages);
      EXPECT_TRUE(found || !acts) << title;
      EXPECT_TRUE(acts || !found || !dressesOnly) << title;
      // A unit that is the default anyway, as in "SECONDS", is a fault all the same.
      EXPECT_TRUE(!TitleFault(title).empty() || !Acts(title, {KeywordStage::beforeRows})) << title;
    }
  }
}

// ---- properties -------------------------------------------------------------------------------------------

TEST_F(KeywordsTest, AnyTitleGivesFlagsOfTheirRangeAndGrowsByNothing) {
  const std::vector<std::string> pieces = {
      "penuplabel", "PENUP", "column", "xyz",  "yzx",       "ZXY",  "yxz",     "xzy", "zyx", "xyzw",
      "seconds",    " s ",   "metres", " m ",  " ms ",      "km",   "day",     "s",   "ESA", "ned",
      " ned ",      " NED",  "1.5",    "2,5",  "em_system", "valz", "valy",    "e",   " ",   "moon",
      "sun",        "mars",  "Focus",  "\xC3", "\xA9",      "é",    "lamdor",  "-",   ".",   ",",
      "d",          "9e99",  "lune",   "\t",   "terre",     "\"",   "jupiter", "x"};
  std::mt19937 random(22);
  for (int run = 0; run < 20000; ++run) {
    std::string title;
    for (auto length = random() % 12; length > 0; --length)
      title += pieces[random() % pieces.size()];
    const Outcome outcome = Pass(title, kAllStages);
    ASSERT_LE(outcome.title.size(), title.size()) << title;
    ASSERT_TRUE(outcome.circularShift == 0 || outcome.exchange == 0) << title;
    ASSERT_TRUE(outcome.circularShift >= 0 && outcome.circularShift <= 2) << title;
    ASSERT_TRUE(outcome.exchange >= 0 && outcome.exchange <= 3) << title;
    ASSERT_TRUE(outcome.focusBody >= 1 && outcome.focusBody <= 6) << title;
    ASSERT_EQ(outcome.valAxis, 3) << title;
    ASSERT_EQ(outcome.inputInKm, !outcome.lengthInMetres) << title;
    ASSERT_EQ(outcome.forcedScale != 0, outcome.nedInput == 1.0) << title;
    ASSERT_EQ(outcome.latitude, outcome.latitude) << title;
    EndKeywordPass();
    ASSERT_FALSE(MessageUserToPlot.ends_with(' ')) << title;
  }
}

}  // namespace
}  // namespace quorb
