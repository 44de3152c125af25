#include "SoftError.h"

#include <gtest/gtest.h>

#include "ScriptedDialogs.h"

namespace quorb {
namespace {

const std::string kPromptTail =
    "\r\nUne petite erreur s'est produite, erreur d'arrondi ou avertissement de norme nulle, ..."
    ". Si cela perdure, il faudrait modifier les données..."
    "   Tapez *Abandonner* pour stopper l'exectution, *Répéter* pour faire une pause  *Ignorer* pour "
    "continuer "
    "et terminer l'exécution du programme.";

class SoftErrorTest : public testing::Test {
 protected:
  SoftErrorTest() {
    softFirst = 0.0;
    softAnswer.clear();
  }
  ~SoftErrorTest() override {
    softFirst = 0.0;
    softAnswer.clear();
  }
  ScriptedDialogs dialogs;
};

TEST_F(SoftErrorTest, LineEndIsCarriageReturnAndLineFeed) {
  EXPECT_EQ(CrLf, "\r\n");
}

TEST_F(SoftErrorTest, MessageWithUnderscoreNeverOpensADialog) {
  for (const char* message : {"_", "_Acos arrondi", "__", "_s", "_oui, pour Abandonner"})
    SoftError(message);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(dialogs.asked.empty());
  EXPECT_EQ(dialogs.ended, 0);
}

TEST_F(SoftErrorTest, SwallowedMessageCountsAsTheFirstCall) {
  SoftError("_silent");
  EXPECT_EQ(softFirst, 1.0);
}

TEST_F(SoftErrorTest, UnderscoreInsideTheMessageIsNoMark) {
  SoftError("norme_nulle");
  EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(SoftErrorTest, ShowsOneBoxWithThreeButtonsAndTheWholePrompt) {
  dialogs.answers = {BoxAnswer::ignore};
  SoftError("Atn2faute");
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].prompt, "Atn2faute" + kPromptTail);
  EXPECT_EQ(dialogs.boxes[0].title, "Petite erreur");
  EXPECT_EQ(dialogs.boxes[0].style, 50);
}

TEST_F(SoftErrorTest, IgnoreReturnsAtOnce) {
  dialogs.answers = {BoxAnswer::ignore};
  SoftError("x");
  EXPECT_EQ(softFirst, 1.0);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_TRUE(dialogs.asked.empty());
  EXPECT_EQ(dialogs.pumps, 0);
  EXPECT_EQ(dialogs.ended, 0);
}

TEST_F(SoftErrorTest, AbortEndsTheProgramAtOnce) {
  dialogs.answers = {BoxAnswer::abort};
  SoftError("x");
  EXPECT_EQ(dialogs.ended, 1);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(SoftErrorTest, RetryDoesNotReturn) {
  dialogs.answers = {BoxAnswer::retry};
  dialogs.pumpLimit = 5000;
  EXPECT_THROW(SoftError("x"), PumpLimitReached);
  EXPECT_EQ(dialogs.pumps, 5000);
  EXPECT_EQ(dialogs.ended, 0);
}

TEST_F(SoftErrorTest, RetryShowsTheCorrectionBoxBeforeItPauses) {
  dialogs.answers = {BoxAnswer::retry};
  dialogs.pumpLimit = 1;
  EXPECT_THROW(SoftError("x"), PumpLimitReached);
  ASSERT_EQ(dialogs.boxes.size(), 2U);
  EXPECT_EQ(dialogs.boxes[1].prompt, "Corrigez vos données! Cliquer ensuite sur Continuer ...");
  EXPECT_EQ(dialogs.boxes[1].title, "CORRECTION");
  EXPECT_EQ(dialogs.boxes[1].style, 0);
}

TEST_F(SoftErrorTest, EventsServedInThePauseMayReenter) {
  dialogs.answers = {BoxAnswer::retry};
  dialogs.pumpLimit = 3;
  dialogs.onPump = [this] {
    if (dialogs.pumps == 2) SoftError("inner");
  };
  EXPECT_THROW(SoftError("outer"), PumpLimitReached);
  ASSERT_EQ(dialogs.boxes.size(), 3U);
  EXPECT_EQ(dialogs.boxes[2].prompt, "inner" + kPromptTail);
  EXPECT_EQ(dialogs.pumps, 3);
}

TEST_F(SoftErrorTest, AnyOtherAnswerFallsBackOnALineOfText) {
  dialogs.answers = {BoxAnswer::none};
  SoftError("norme");
  ASSERT_EQ(dialogs.asked.size(), 1U);
  EXPECT_EQ(dialogs.asked[0].prompt, "norme" + kPromptTail);
  EXPECT_EQ(dialogs.asked[0].title, "norme Avertissement");
  EXPECT_EQ(dialogs.asked[0].defaultText, "");
  EXPECT_EQ(dialogs.ended, 0);
}

TEST_F(SoftErrorTest, EveryAnswerButTheThreeButtonsFallsBack) {
  dialogs.answers = {BoxAnswer::none, BoxAnswer::ok, BoxAnswer::cancel, BoxAnswer::yes, BoxAnswer::no};
  for (int i = 0; i < 5; ++i)
    SoftError("x");
  EXPECT_EQ(dialogs.asked.size(), 5U);
}

TEST_F(SoftErrorTest, EmptyLineReturns) {
  dialogs.answers = {BoxAnswer::none};
  dialogs.lines = {""};
  softAnswer = "older";
  SoftError("x");
  EXPECT_EQ(dialogs.asked.size(), 1U);
  EXPECT_EQ(dialogs.ended, 0);
  EXPECT_EQ(softAnswer, "");
}

TEST_F(SoftErrorTest, LineWithSEndsTheProgramWithoutASecondQuestion) {
  dialogs.answers = {BoxAnswer::none};
  dialogs.lines = {"stop"};
  SoftError("x");
  EXPECT_EQ(dialogs.ended, 1);
  EXPECT_EQ(dialogs.asked.size(), 1U);
  EXPECT_EQ(softAnswer, "stop");
}

TEST_F(SoftErrorTest, LineWithOReturns) {
  dialogs.answers = {BoxAnswer::none};
  dialogs.lines = {"oui, c'est noté!"};
  SoftError("x");
  EXPECT_EQ(dialogs.ended, 0);
  EXPECT_EQ(dialogs.asked.size(), 1U);
  EXPECT_EQ(softAnswer, "oui, c'est noté!");
}

TEST_F(SoftErrorTest, OtherLineAsksAgainAndOEndsTheProgram) {
  dialogs.answers = {BoxAnswer::none};
  dialogs.lines = {"abandonner", "oui, pour Abandonner"};
  SoftError("x");
  ASSERT_EQ(dialogs.asked.size(), 2U);
  EXPECT_EQ(dialogs.asked[1].prompt, "Vous voulez réellement abandonner");
  EXPECT_EQ(dialogs.asked[1].title, "Re-Avertissement");
  EXPECT_EQ(dialogs.asked[1].defaultText, "oui, pour Abandonner");
  EXPECT_EQ(dialogs.ended, 1);
  EXPECT_EQ(softAnswer, "oui, pour Abandonner");
}

TEST_F(SoftErrorTest, OtherLineAsksAgainAndAnythingElseReturns) {
  for (const char* second : {"", "non", "stop", "Oui"}) {
    dialogs.answers = {BoxAnswer::none};
    dialogs.lines = {"Stop", second};
    SoftError("x");
    EXPECT_EQ(softAnswer, second);
  }
  EXPECT_EQ(dialogs.asked.size(), 8U);
  EXPECT_EQ(dialogs.ended, 0);
}

TEST_F(SoftErrorTest, LastLineIsTheNextDefault) {
  dialogs.answers = {BoxAnswer::none, BoxAnswer::none};
  dialogs.lines = {"plus tard", "non merci", ""};
  SoftError("first");
  SoftError("second");
  ASSERT_EQ(dialogs.asked.size(), 3U);
  EXPECT_EQ(dialogs.asked[0].defaultText, "");
  EXPECT_EQ(dialogs.asked[2].title, "second Avertissement");
  EXPECT_EQ(dialogs.asked[2].defaultText, "non merci");
}

TEST_F(SoftErrorTest, FirstCallOffersNoDefaultEvenWhereAnAnswerStands) {
  softAnswer = "left over";
  dialogs.answers = {BoxAnswer::none};
  SoftError("x");
  ASSERT_EQ(dialogs.asked.size(), 1U);
  EXPECT_EQ(dialogs.asked[0].defaultText, "");
}

TEST_F(SoftErrorTest, SilentFirstCallLetsTheNextOneOfferTheAnswer) {
  softAnswer = "left over";
  SoftError("_silent");
  dialogs.answers = {BoxAnswer::none};
  SoftError("x");
  ASSERT_EQ(dialogs.asked.size(), 1U);
  EXPECT_EQ(dialogs.asked[0].defaultText, "left over");
}

TEST(SoftErrorWithoutDialogsTest, DialogThatCannotBeShownLetsTheCallReturn) {
  SetDialogs(nullptr);
  SoftError("x");
  EXPECT_EQ(softFirst, 1.0);
  softFirst = 0.0;
}

}  // namespace
}  // namespace quorb
