#include "AxisLabels.h"

#include "ScenePlot.h"

namespace quorb {
namespace {

class AxisLabelsTest : public ScenePlot {
 protected:
  AxisLabelsTest() {
    scene.FontOutline = 1;
    scene.FontLabelLarge = 2;
    scene.FontLabelSmall = 3;
  }

  std::vector<std::string> Letters() {
    ClearCalls();
    DrawAxisLetters(scene);
    return RecordedCalls();
  }
  std::vector<std::string> MovingLogo() {
    ClearCalls();
    DrawMovingLogo(scene);
    return RecordedCalls();
  }
  std::vector<std::string> OriginText() {
    ClearCalls();
    DrawOriginText(scene);
    return RecordedCalls();
  }
};

// ---- where the letters stand ----------------------------------------------------------------------------

struct Distance {
  double position, length, expected;
};

TEST_F(AxisLabelsTest, TheDistanceFollowsTheTwoFactors) {
  scene.Range = 100;
  const Distance distances[] = {
      {0, 0, 100},    // the range
      {0.5, 0, 30},   // 0.6 x 100 x 0.5
      {2, 0, 120},    // 0.6 x 100 x 2
      {1, 1, 65},     // 0.65 x 100
      {0.5, 4, 130},  // 0.65 x 100 x 4 x 0.5
  };
  for (const Distance& row : distances) {
    USERFLAG.PositionFactor = row.position;
    USERFLAG.LengthAxisFactor = row.length;
    Frame();
    EXPECT_DOUBLE_EQ(scene.LabelDistance, row.expected) << row.position << " and " << row.length;
  }
}

TEST_F(AxisLabelsTest, WithoutAPositionTheLettersFollowTheLengthAlone) {
  scene.Range = 100;
  USERFLAG.PositionFactor = 0;
  USERFLAG.LengthAxisFactor = 2;
  Frame();
  EXPECT_DOUBLE_EQ(scene.LabelDistance, 130);  // 0.65 x 100 x 2
}

TEST_F(AxisLabelsTest, WithoutAxesTheDistanceIsStillKept) {
  scene.Range = 100;
  USERFLAG.NoPlotAxis = 1;
  Frame();
  EXPECT_DOUBLE_EQ(scene.LabelDistance, 65);
}

// ---- the letters, at the distance 100 -------------------------------------------------------------------

class LettersTest : public AxisLabelsTest {
 protected:
  LettersTest() {
    scene.Range = 100;
    USERFLAG.PositionFactor = 0;
    USERFLAG.LengthAxisFactor = 0;
  }
};

TEST_F(LettersTest, SmallLettersStandOnTheAxes) {
  EXPECT_THAT(Letters(), ElementsAre("Text.DrawBitmap(3, \"X \", 100, 0, 0, 2642040)",
                                     "Text.DrawBitmap(3, \"Y \", 0, 100, 0, 2642040)",
                                     "Text.DrawBitmap(3, \"Z \", 0, 0, 100, 2642040)"));
}

TEST_F(LettersTest, LargeLettersStandOnTheAxes) {
  USERFLAG.LargeCharacters = 1;
  USERFLAG.ColourAxisLabels = {1, 2, 3};  // 65536 + 512 + 3
  EXPECT_THAT(Letters(), ElementsAre("Text.DrawBitmap(2, \"X \", 100, 0, 0, 66051)",
                                     "Text.DrawBitmap(2, \"Y \", 0, 100, 0, 66051)",
                                     "Text.DrawBitmap(2, \"Z \", 0, 0, 100, 66051)"));
}

TEST_F(LettersTest, BrandedLargeLettersStandBesideTheAxes) {
  USERFLAG.LargeCharacters = 1;
  USERFLAG.LogoScale = 1;
  EXPECT_THAT(Letters(), ElementsAre("Text.DrawBitmap(2, \"X \", 95, -2, 0, 2642040)",
                                     "Text.DrawBitmap(2, \"Y \", 5, 92, 0, 2642040)",
                                     "Text.DrawBitmap(2, \"Z \", 0, 0, 135, 2642040)"));
}

TEST_F(LettersTest, SmallLettersStandOnTheAxesWhateverTheLogo) {
  USERFLAG.LogoScale = 1;
  EXPECT_THAT(Letters(), ElementsAre("Text.DrawBitmap(3, \"X \", 100, 0, 0, 2642040)",
                                     "Text.DrawBitmap(3, \"Y \", 0, 100, 0, 2642040)",
                                     "Text.DrawBitmap(3, \"Z \", 0, 0, 100, 2642040)"));
}

TEST_F(LettersTest, WithoutAxesThereAreNoLetters) {
  USERFLAG.NoPlotAxis = 1;
  EXPECT_THAT(Letters(), IsEmpty());
  EXPECT_EQ(CountBeginning(Frame(), "Text.DrawBitmap"), 0) << "from the first frame on";
}

TEST_F(LettersTest, TheBrandedLookMakesItsLargeFontOnce) {
  scene.HostDC = 7;
  host.text.fonts = 40;
  USERFLAG.LogoScale = 0.5;
  const char* making = "Text.NewBitmapFont(7, \"Arial\", true, true, 30)";
  const auto first = Frame();
  EXPECT_EQ(CountOf(first, making), 1);
  EXPECT_EQ(scene.FontLabelLarge, 41);
  EXPECT_EQ(CountBeginning(first, "Text.DrawBitmap(41, \"Z \""), 1) << "the letters of this frame have it";
  EXPECT_EQ(USERFLAG.LogoScale, 1.0);
  EXPECT_EQ(CountOf(Frame(), making), 0);
  EXPECT_EQ(scene.FontLabelLarge, 41);
}

TEST_F(LettersTest, TheBrandedFontIsMadeThoughTheAxesAreOff) {
  USERFLAG.LogoScale = 0.5;
  USERFLAG.NoPlotAxis = 1;
  EXPECT_THAT(Letters(), ElementsAre("Text.NewBitmapFont(0, \"Arial\", true, true, 30)"));
  EXPECT_EQ(USERFLAG.LogoScale, 1.0);
}

// ---- the origin text ------------------------------------------------------------------------------------

TEST_F(AxisLabelsTest, TheOriginTellsHowFarTheDataWereMoved) {
  scene.AxisRange[0].AxisOffset = -1.5;
  scene.AxisRange[1].AxisOffset = 0;
  scene.AxisRange[2].AxisOffset = 7000;
  EXPECT_THAT(OriginText(), ElementsAre("Text.Draw3D(1, \"-1.5 , 0 , 7000 , \", 0, 0, 0, 1.5, 2642040)"));
}

TEST_F(AxisLabelsTest, OnlyAPlotOfScaleOneHasAnOriginText) {
  FactorScale = 1.0000001;
  EXPECT_THAT(OriginText(), IsEmpty());
  FactorScale = 1;
  USERFLAG.NoOriginLabel = 1;
  EXPECT_THAT(OriginText(), IsEmpty());
}

// ---- the moving logo ------------------------------------------------------------------------------------

TEST_F(AxisLabelsTest, TheMovingLogoStandsAtTheRowThatTheFrameEndsAt) {
  SetPoint(0, 45000, 1, 2, 3);
  SetPoint(1, 45292.75, 4, 5, 6);  // 1 January 2024, 18:00
  TakePlotAsItIs();
  FlagOptionToPlot = 1;
  EXPECT_THAT(MovingLogo(),
              ElementsAre("Text.Draw3D(1, \"QuorbExcelPro  01  Jan 2024 18:00 \", 4, 5, 6, 0.5, 2642040)"));
}

TEST_F(AxisLabelsTest, TheMovingLogoWantsEventsAndTheMovingTime) {
  EXPECT_THAT(MovingLogo(), IsEmpty());
  FlagOptionToPlot = 1;
  USERFLAG.NoTimeMoving = 1;
  EXPECT_THAT(MovingLogo(), IsEmpty());
}

TEST_F(AxisLabelsTest, TheMovingLogoOfARowOutsideTheArraysIsLeftOut) {
  FlagOptionToPlot = 1;
  for (const int row : {-1, kRowBound}) {
    scene.CURRINDEXI = row;
    EXPECT_THAT(MovingLogo(), IsEmpty()) << row;
  }
}

// ---- the time text --------------------------------------------------------------------------------------

class TimeTextTest : public AxisLabelsTest {
 protected:
  TimeTextTest() {
    SetPoint(0, 0, 0, 0, 0);
    SetPoint(1, 0, 1, 0, 0);
    TakePlotAsItIs();
    FlagOptionToPlot = 1;
  }

  /// The calls of a frame whose last row has this time that print into the corner.
  std::vector<std::string> TimeText(double time) {
    dataXYZT.Set(1, 0, time);
    std::vector<std::string> calls = Frame();
    std::erase_if(calls, [](const std::string& call) { return !call.starts_with("PrintText"); });
    return calls;
  }
};

TEST_F(TimeTextTest, ATimeUpToTheEndOf1957ShowsTheTimeOfDay) {
  EXPECT_THAT(TimeText(21184.5), ElementsAre("PrintText(8, 23, \" 12:00:00.00 \")"));
  EXPECT_THAT(TimeText(10 + 3661.25 / 86400), ElementsAre("PrintText(8, 23, \" 01:01:01.25 \")"));
  EXPECT_EQ(USERFLAG.MovieDataTime, 10 + 3661.25 / 86400);
}

TEST_F(TimeTextTest, AnyLaterTimeShowsTheDate) {
  EXPECT_THAT(TimeText(21184.75), ElementsAre("PrintText(8, 23, \" 30  Dec 1957 18:00 \")"));
  EXPECT_THAT(TimeText(45292), ElementsAre("PrintText(8, 23, \" 01  Jan 2024 00:00 \")"));
}

TEST_F(TimeTextTest, ATimeInTheDataShowsItToo) {
  FlagOptionToPlot = 0;
  EXPECT_THAT(TimeText(0.5), IsEmpty());
  USERFLAG.TimeInData = 1;
  EXPECT_THAT(TimeText(0.5), ElementsAre("PrintText(8, 23, \" 12:00:00.00 \")"));
}

TEST_F(TimeTextTest, WithoutTheLogoThereIsNoTime) {
  USERFLAG.NoLogoLabel = 1;
  EXPECT_THAT(TimeText(0.5), IsEmpty());
}

TEST_F(TimeTextTest, SeparateObjectsHaveNoTime) {
  PenUpMode = 1;
  USERFLAG.TimeInData = 1;
  EXPECT_THAT(TimeText(0.5), IsEmpty());
}

TEST_F(TimeTextTest, ARowOutsideTheArraysKeepsTheTime) {
  TimeText(0.25);
  scene.CURRINDEXI = -1;
  EXPECT_THAT(TimeText(0.5), ElementsAre("PrintText(8, 23, \" 06:00:00.00 \")"));
}

}  // namespace
}  // namespace quorb
