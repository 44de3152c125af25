#include "ScenePlot.h"

namespace quorb {
namespace {

struct Colour {
  double red = -1, green = -1, blue = -1, alpha = -1;
};

Colour Ramp(double value, double low, double high) {
  Colour c;
  ClassGl::ColorScale(value, c.red, c.green, c.blue, c.alpha, low, high);
  return c;
}

TEST(ColorScale, EqualLimitsNeverDivideByZeroAndRaiseTheCallersHigh) {
  Colour c;
  double high = 5;
  ClassGl::ColorScale(5.5, c.red, c.green, c.blue, c.alpha, 5, high);
  EXPECT_EQ(high, 6);
  // 0.5 of the ramp: sector 2, half way from cyan to green.
  EXPECT_DOUBLE_EQ(c.red, 0);
  EXPECT_DOUBLE_EQ(c.green, 1);
  EXPECT_DOUBLE_EQ(c.blue, 0.5);
}

TEST(ColorScale, ValueAtHighYieldsRedWithGreenNearZeroNotBlack) {
  const Colour c = Ramp(1, 0, 1);
  EXPECT_EQ(c.red, 1);
  EXPECT_NEAR(c.green, 5e-8, 1e-12);
  EXPECT_EQ(c.blue, 0);
  EXPECT_EQ(c.alpha, 1);
}

TEST(ColorScale, ValueAboveHighIsClampedToIt) {
  const Colour c = Ramp(1e9, 0, 32);
  EXPECT_EQ(c.red, 1);
  EXPECT_NEAR(c.green, 5e-8, 1e-12);
}

TEST(ColorScale, ValueAtLowZeroYieldsMagenta) {
  const Colour c = Ramp(0, 0, 1);
  EXPECT_EQ(c.red, 1);
  EXPECT_EQ(c.green, 0);
  EXPECT_EQ(c.blue, 1);
}

TEST(ColorScale, EachSectorPassesFromItsColourToTheNext) {
  const struct {
    double value, red, green, blue;
  } kPlaces[] = {
      {0.05, 0.75, 0, 1}, {0.25, 0, 0.25, 1}, {0.45, 0, 1, 0.75}, {0.65, 0.25, 1, 0}, {0.85, 1, 0.75, 0}};
  for (const auto& place : kPlaces) {
    const Colour c = Ramp(place.value, 0, 1);
    EXPECT_NEAR(c.red, place.red, 1e-12) << place.value;
    EXPECT_NEAR(c.green, place.green, 1e-12) << place.value;
    EXPECT_NEAR(c.blue, place.blue, 1e-12) << place.value;
  }
}

TEST(ColorScale, LowerClampTestsTheValueThatTheUpperOneLeft) {
  // Limits in the wrong order: 20 is brought to 4.99999995, which stands below low, and then to 10.0000001.
  const Colour c = Ramp(20, 10, 5);
  EXPECT_NEAR(c.red, 1, 1e-6);
  EXPECT_EQ(c.green, 0);
  EXPECT_EQ(c.blue, 1);
}

TEST(ColorScale, NegativeHighLeavesTheRampAndTheColoursAsTheyAre) {
  // 5 is brought to -0.99999999, which lies 1.00000001 of the span above low: behind the last sector.
  const Colour c = Ramp(5, -2, -1);
  EXPECT_EQ(c.red, -1);
  EXPECT_EQ(c.green, -1);
  EXPECT_EQ(c.blue, -1);
  EXPECT_EQ(c.alpha, 1);
}

class ColourScaleTest : public ScenePlot {};

TEST_F(ColourScaleTest, VertexTellsItsSignsByItsColour) {
  ClassGl::glVertex3fColor(2, 0, -3);
  EXPECT_THAT(RecordedCalls(), ElementsAre("glColor3f(1, 0, 0)", "glVertex3f(2, 0, -3)"));
}

TEST_F(ColourScaleTest, DotsStandOnTheLastThirtyTwoUnitsOfTheAxis) {
  ValColour = 1;
  ValAxis = 3;
  scene.Range = 40;
  USERFLAG.ThicknessLinePlot = 2;
  ClearCalls();
  scene.ScaleColorDot();
  const auto& calls = RecordedCalls();
  ASSERT_EQ(calls.size(), 2U + 64 + 2);
  EXPECT_EQ(calls[0], "glPointSize(16)");
  EXPECT_EQ(calls[1], "glBegin(GL_POINTS)");
  EXPECT_EQ(calls[3], "glVertex3f(0, 0, 9)");
  EXPECT_EQ(calls[2 + 2 * 15], "glColor4f(0, 1, 0.5, 1)") << "dot 16 is the middle of the ramp";
  EXPECT_EQ(calls[65], "glVertex3f(0, 0, 40)");
  EXPECT_EQ(calls[66], "glEnd()");
  EXPECT_EQ(calls[67], "glPointSize(2)");
}

TEST_F(ColourScaleTest, LengthAxisFactorZeroFallsBackToElevenTenths) {
  ValAxis = 1;
  scene.Range = 100;
  USERFLAG.LengthAxisFactor = 0;
  ClearCalls();
  scene.ScaleColorDot();
  // 1 + 110 - 32 and 32 + 110 - 32.
  EXPECT_EQ(RecordedCalls()[3], "glVertex3f(79, 0, 0)");
  EXPECT_EQ(RecordedCalls()[65], "glVertex3f(110, 0, 0)");
}

TEST_F(ColourScaleTest, WithoutAnAxisEveryAxisCarriesTheDots) {
  scene.Range = 40;
  ClearCalls();
  scene.ScaleColorDot();
  const auto& calls = RecordedCalls();
  ASSERT_EQ(calls.size(), 2U + 4 * 32 + 2);
  EXPECT_THAT(std::vector(calls.begin() + 3, calls.begin() + 6),
              ElementsAre("glVertex3f(9, 0, 0)", "glVertex3f(0, 9, 0)", "glVertex3f(0, 0, 9)"));
}

TEST_F(ColourScaleTest, DotSizeFollowsTheSecondPoints) {
  LastPoint = 2;
  NbQuater = 4;
  ClearCalls();
  scene.ScaleColorDot();
  EXPECT_EQ(RecordedCalls().front(), "glPointSize(3)");
  EXPECT_EQ(RecordedCalls().back(), "glPointSize(8)");

  NbQuater = 3;
  ClearCalls();
  scene.ScaleColorDot();
  EXPECT_EQ(RecordedCalls().front(), "glPointSize(0)");
  EXPECT_EQ(RecordedCalls().back(), "glPointSize(1)");
}

TEST_F(ColourScaleTest, LegendMarksAreSixBlanksInTheColoursOfTheRamp) {
  SetPoint(0, 0, 0, 0, 0);
  SetPoint(1, 1, 1, 0, 0);
  TakePlotAsItIs();
  scene.Range = 40;
  scene.FontLabelSmall = 3;
  ValColour = 1;
  ValAxis = 2;
  const auto frame = Frame();
  // The last step of a frame. The places are (40 - 32 + share x 32) / 2.
  EXPECT_THAT(std::vector(frame.end() - 6, frame.end()),
              ElementsAre("Text.DrawBitmap(3, \"  \", 0, 4, 0, 16711935)",     // magenta, 0xFF00FF
                          "Text.DrawBitmap(3, \"  \", 0, 7.2, 0, 255)",        // blue
                          "Text.DrawBitmap(3, \"  \", 0, 10.4, 0, 65535)",     // cyan
                          "Text.DrawBitmap(3, \"  \", 0, 13.6, 0, 65280)",     // green
                          "Text.DrawBitmap(3, \"  \", 0, 16.8, 0, 16776960)",  // yellow
                          "Text.DrawBitmap(3, \"  \", 0, 20, 0, 16711680)"));  // red
}

TEST_F(ColourScaleTest, NoLegendWithoutColourValues) {
  ValAxis = 2;
  EXPECT_EQ(CountBeginning(Frame(), "Text.DrawBitmap(0, \"  \""), 0);
}

}  // namespace
}  // namespace quorb
