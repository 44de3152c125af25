#include <cstdlib>
#include <map>
#include <memory>

#include "BodiesPlot.h"
#include "BodyTextures.h"

namespace quorb {
namespace {

constexpr double kMarch21Of2003 = 37701;
/// The first serial date behind the year 9999, whose sidereal angle is not told.
constexpr double kBehindTheCalendar = 2958466;

/// A scene with bodies around the Earth, one kilometre a unit, at the middle row of a plot with times.
class BodiesFrameTest : public BodiesPlot {
 protected:
  BodiesFrameTest() {
    auto owned = std::make_unique<Bodies>(scene);
    shown = owned.get();
    shown->Random = [] { return 0.5; };
    scene.BodiesShown = std::move(owned);
    StartTimesAt(kMarch21Of2003 - 2);
    TakePlotAsItIs();
    scene.CURRINDEXI = 2;
    scene.Range = 7000;
    ISOmode = 1;
    USERFLAG.TimeInData = 1;
    USERFLAG.SatelliteModelReady = 1;
    TextureDirectory = "/opt/quorb";
    ChooseShape(3);
  }
  ~BodiesFrameTest() override {
    TextureDirectory.clear();
    EarthTextureName = "earthjpg.jpg";
  }

  static void StartTimesAt(double days) {
    for (int row = 0; row <= 4; ++row)
      SetPoint(row, days + row, 7000, 0, 0);
  }

  /// The calls behind the axes that tell which part of the frame is drawn.
  std::vector<std::string> Parts() {
    std::vector<std::string> parts;
    bool isBehindAxes = false;
    for (const std::string& call : Frame()) {
      isBehindAxes = isBehindAxes || call == "glPointSize(1)";
      for (const char* beginning : kBeginnings) {
        if (isBehindAxes && call.starts_with(beginning)) parts.push_back(call.substr(0, call.find('"')));
      }
    }
    return parts;
  }
  static constexpr const char* kBeginnings[] = {
      "glPushMatrix",     "glPopMatrix",       "glNewList(0",
      "Material.SetFace", "glTranslatef(7000", "glClearColor",
      "glDeleteLists(0",  "Text.Draw3D",       "glLightfv(GL_LIGHT0, GL_AMBIENT",
      "Texture(",         "gluSphere",         "PrintText"};

  /// The ray's two ends in a frame: behind the first strip's beginning.
  std::vector<std::string> RayEnds() {
    const std::vector<std::string> calls = Frame();
    const auto strip = std::find(calls.begin(), calls.end(), "glBegin(GL_LINE_STRIP)");
    return {strip[1], strip[3]};
  }

  /// Frames until none is due, as the host draws them.
  void Settle() {
    for (int frame = 0; frame < 5 && scene.FrameIsDue(); ++frame)
      scene.Draw();
    ASSERT_FALSE(scene.FrameIsDue());
  }

  Bodies* shown = nullptr;
};

// ---- order ----------------------------------------------------------------------------------------------

TEST_F(BodiesFrameTest, BodiesStandInTheFrameInTheirOrder) {
  USERFLAG.ShowSatellite = 1;
  Frame();
  EXPECT_THAT(
      Parts(),
      ElementsAre("glPushMatrix()", "glNewList(0, GL_COMPILE)", "glPopMatrix()",              // ray
                  "glPushMatrix()", "Material.SetFace(1028)", "glTranslatef(7000, 0, 0)",     // spacecraft
                  "glPopMatrix()", "glClearColor(0.0390625, 0.078125, 0.2734375, 1)",         //
                  "glDeleteLists(0, 1)", "glNewList(0, GL_COMPILE)", "Text.Draw3D(0, ",       // trajectory
                  "glLightfv(GL_LIGHT0, GL_AMBIENT, 0.2, 0.2, 0.4, 0)",                       // light
                  "glPushMatrix()", "Texture(1).Bind()", "gluSphere(6378, 106, 106)",         // Earth
                  "glPopMatrix()", "glPushMatrix()", "Texture(2).Bind()",                     //
                  "glNewList(0, GL_COMPILE)", "gluSphere(17400, 106, 106)", "glPopMatrix()",  // Moon
                  "PrintText(8, 23, "));
}

TEST_F(BodiesFrameTest, WithoutTheEarthThereIsNoRayAndNoBodyAndTheLightIsStillSet) {
  USERFLAG.NoPlotEarth = 1;
  EXPECT_THAT(Parts(),
              ElementsAre("glClearColor(0.0390625, 0.078125, 0.2734375, 1)", "glDeleteLists(0, 1)",
                          "glNewList(0, GL_COMPILE)", "Text.Draw3D(0, ",
                          "glLightfv(GL_LIGHT0, GL_AMBIENT, 0.2, 0.2, 0.4, 0)", "PrintText(8, 23, "));
}

TEST_F(BodiesFrameTest, APlotThatIsNotToScaleHasTheLightAlone) {
  ISOmode = 0;
  const std::vector<std::string> calls = Frame();
  EXPECT_EQ(CountBeginning(calls, "glLightfv(GL_LIGHT0, GL_POSITION"), 1);
  EXPECT_EQ(CountBeginning(calls, "gluSphere"), 0);
  EXPECT_EQ(CountOf(calls, "glLineWidth(7)"), 0);
}

TEST_F(BodiesFrameTest, AroundTheMoonNoSecondMatrixIsOpened) {
  MoonFocus = 1;
  const std::vector<std::string> calls = Frame();
  const auto sphere = std::find(calls.begin(), calls.end(), "gluSphere(1738, 106, 106)");
  ASSERT_NE(sphere, calls.end());
  EXPECT_EQ(std::count(sphere, calls.end(), "glPushMatrix()"), 0);
  EXPECT_EQ(CountBeginning(calls, "gluSphere"), 1);
}

TEST_F(BodiesFrameTest, TheMoonGoesAroundEveryOtherBody) {
  for (const int body : {1, 2, 3, 4, 5, 6}) {
    FocusBody = body;
    EXPECT_EQ(CountOf(Frame(), "gluSphere(17400, 106, 106)"), 1) << body;
  }
}

TEST_F(BodiesFrameTest, EveryMatrixThatIsOpenedIsClosed) {
  USERFLAG.ShowSatellite = USERFLAG.SolarPanelToSun = 1;
  for (int shape = 0; shape < 7; ++shape) {
    ChooseShape(shape);
    const std::vector<std::string> calls = Frame();
    EXPECT_EQ(CountOf(calls, "glPushMatrix()"), CountOf(calls, "glPopMatrix()")) << shape;
  }
}

// ---- from frame to frame --------------------------------------------------------------------------------

TEST_F(BodiesFrameTest, TheRayLagsAFrameAndHasNoLengthInTheFirst) {
  EXPECT_THAT(RayEnds(), ElementsAre("glVertex3f(0, 0, 0)", "glVertex3f(0, 0, 0)"));
  const std::string march = RayEnds()[1];
  EXPECT_NE(march, "glVertex3f(0, 0, 0)");
  scene.CURRINDEXI = 3;
  EXPECT_EQ(RayEnds()[1], march) << "still toward the Sun of the frame before";
  EXPECT_NE(RayEnds()[1], march);
}

TEST_F(BodiesFrameTest, AnotherRowMakesTheFramesDueThatTheRayNeeds) {
  Settle();
  const std::string before = RayEnds()[1];
  scene.CURRINDEXI = 3;
  ASSERT_TRUE(scene.FrameIsDue());
  scene.Draw();
  ASSERT_TRUE(scene.FrameIsDue());
  EXPECT_NE(RayEnds()[1], before);
  EXPECT_FALSE(scene.FrameIsDue());
}

TEST_F(BodiesFrameTest, AClosedOptionPanelLoadsBothPicturesAnewInTheNextFrame) {
  Settle();
  EarthTextureName = "other.jpg";
  EXPECT_EQ(CountOf(Frame(), "Texture(1).Load(\"/opt/quorb/other.jpg\")"), 0);
  USERFLAG.SatelliteModelReady = 0;
  EXPECT_TRUE(scene.FrameIsDue());
  const std::vector<std::string> calls = Frame();
  EXPECT_EQ(CountOf(calls, "Texture(1).Load(\"/opt/quorb/other.jpg\")"), 1);
  EXPECT_EQ(CountOf(calls, "Texture(2).Load(\"/opt/quorb/moonjpg.jpg\")"), 1);
  EXPECT_EQ(CountOf(calls, "NewTexture()"), 0);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 1);
  EXPECT_EQ(CountBeginning(Frame(), "Texture(1).Load"), 0);
  EXPECT_FALSE(scene.FrameIsDue());
}

TEST_F(BodiesFrameTest, WithoutBodiesTheClosedPanelWaitsForThem) {
  USERFLAG.NoPlotEarth = 1;
  USERFLAG.SatelliteModelReady = 0;
  EXPECT_EQ(CountBeginning(Frame(), "Texture("), 0);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 1);
  USERFLAG.NoPlotEarth = 0;
  EXPECT_EQ(CountBeginning(Frame(), "Texture(1).Load"), 1);
}

// The calendar refuses these dates, so the globe shows the angle that grows by 4 degrees a frame.
TEST_F(BodiesFrameTest, FramesAreDueAsLongAsTheGlobeTurnsAtTheEndOfTheData) {
  StartTimesAt(kBehindTheCalendar);
  scene.CURRINDEXI = LastPoint;
  scene.Draw();
  scene.Draw();
  USERFLAG.MovieFrameTime = 3;
  for (int frame = 0; frame < 100; ++frame) {
    const double before = shown->State.EarthSpin;
    scene.Draw();
    const double grown = shown->State.EarthSpin - before;
    EXPECT_TRUE(grown == 4 || grown == 4 - 360) << grown;
    ASSERT_TRUE(scene.FrameIsDue());
  }
  USERFLAG.NoPlotEarth = 1;
  Settle();
}

TEST_F(BodiesFrameTest, AGlobeThatStandsAtItsSiderealAngleMakesNoFrameDue) {
  scene.CURRINDEXI = LastPoint;
  USERFLAG.MovieFrameTime = 3;
  Settle();
}

TEST_F(BodiesFrameTest, AGlobeThatIsDrawnUnturnedMakesNoFrameDue) {
  scene.CURRINDEXI = LastPoint;
  USERFLAG.MovieFrameTime = 3;
  USERFLAG.TimeInData = 0;
  Settle();
}

// ---- leaks ----------------------------------------------------------------------------------------------

TEST_F(BodiesFrameTest, AThousandFramesLeaveNothingBehind) {
  USERFLAG.ShowSatellite = USERFLAG.SolarPanelToSun = 1;
  std::map<std::string, std::int64_t> sum;
  for (int frame = 0; frame < 1000; ++frame) {
    scene.CURRINDEXI = frame % 5;
    ChooseShape(frame % 7);
    MoonFocus = frame % 11 == 0 ? 1 : 0;
    if (frame % 100 == 0) USERFLAG.SatelliteModelReady = 0;
    const std::vector<std::string> calls = Frame();
    for (const char* name : {"gluNewQuadric", "gluDeleteQuadric", "NewTexture", "NewMaterial", "glGenLists",
                             "ReturnList", "Texture(1).Load", "Texture(2).Load"}) {
      sum[name] += CountBeginning(calls, name);
    }
    ASSERT_EQ(CountOf(calls, "glPushMatrix()"), CountOf(calls, "glPopMatrix()"));
  }
  EXPECT_EQ(sum["gluNewQuadric"] - sum["gluDeleteQuadric"], 2);
  EXPECT_EQ(sum["NewTexture"], 2);
  EXPECT_EQ(sum["NewMaterial"], 1);
  EXPECT_EQ(sum["glGenLists"] - sum["ReturnList"], 1);
  EXPECT_EQ(sum["Texture(1).Load"], 10);
  EXPECT_EQ(sum["Texture(2).Load"], 10);
  ClearCalls();
  scene.BodiesShown.reset();
  EXPECT_EQ(CountOf(RecordedCalls(), "gluDeleteQuadric()"), 2);
}

}  // namespace
}  // namespace quorb
