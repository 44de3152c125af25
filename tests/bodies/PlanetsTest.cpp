#include "Planets.h"

#include <cmath>
#include <cstdlib>
#include <sstream>

#include "BodyTextures.h"
#include "Ephemeris.h"
#include "ModMATHASdbl.h"
#include "ScenePlot.h"

namespace quorb {
namespace {

constexpr double kMarch21Of2003 = 37701;

/// The numbers of a recorded call.
std::vector<double> NumbersOf(const std::string& call) {
  std::vector<double> numbers;
  std::istringstream arguments(call.substr(call.find("GL_POSITION, ") == std::string::npos
                                               ? call.find('(') + 1
                                               : call.find("GL_POSITION, ") + 13));
  for (std::string word; std::getline(arguments, word, ',');) {
    char* end = nullptr;
    const double number = std::strtod(word.c_str(), &end);
    if (end != word.c_str()) numbers.push_back(number);
  }
  return numbers;
}

/// A plot to scale around the Earth, one kilometre a unit of the scene, whose middle row is drawn on the day
/// 21 March 2003, with times.
class PlanetsTest : public ScenePlot {
 protected:
  PlanetsTest() {
    for (int row = 0; row <= 4; ++row)
      SetPoint(row, kMarch21Of2003 + row - 2, 7000, 0, 0);
    TakePlotAsItIs();
    scene.CURRINDEXI = 2;
    scene.Range = 7000;
    ISOmode = 1;
    MoonFocus = EMSystem = MoonSwitch = 0;
    FocusBody = 4;
    EMDistance = 0;
    InputInKm = true;
    USERFLAG.TimeInData = 1;
    USERFLAG.SatelliteModelReady = 1;
    TextureDirectory = "/opt/quorb";
    TextureLog = [this](const std::string& line) { log.push_back(line); };
    StartBodies(scene, state);
  }
  ~PlanetsTest() override {
    TextureLog = nullptr;
    TextureDirectory.clear();
    InputInKm = false;
    MoonFocus = EMSystem = MoonSwitch = 0;
    FocusBody = 4;
    EMDistance = 0;
  }

  std::vector<std::string> CentralBody() {
    ClearCalls();
    DrawCentralBody(scene, state);
    return RecordedCalls();
  }
  std::vector<std::string> Moon() {
    ClearCalls();
    DrawMoon(scene, state);
    return RecordedCalls();
  }
  std::vector<std::string> Ray() {
    ClearCalls();
    DrawSunRay(scene, state);
    return RecordedCalls();
  }
  std::vector<std::string> Light() {
    ClearCalls();
    SunAndLight(state);
    return RecordedCalls();
  }
  static std::string CallNamed(const std::vector<std::string>& calls, const std::string& beginning) {
    for (const std::string& call : calls) {
      if (call.starts_with(beginning)) return call;
    }
    return "none";
  }

  BodyState state;
  std::vector<std::string> log;
};

TEST_F(PlanetsTest, CentralBodyIsDrawnInItsOrder) {
  const std::vector<std::string> calls = CentralBody();
  ASSERT_EQ(calls.size(), 11U);
  EXPECT_EQ(calls[0], "gluNewQuadric()");
  EXPECT_EQ(calls[1], "glEnable(GL_TEXTURE_2D)");
  EXPECT_EQ(calls[2], "glMatrixMode(GL_TEXTURE)");
  EXPECT_EQ(calls[3], "glLoadIdentity()");
  EXPECT_EQ(calls[4], "NewTexture()");
  EXPECT_EQ(calls[5], "Texture(1).Load(\"/opt/quorb/earthjpg.jpg\")");
  EXPECT_EQ(calls[6], "Texture(1).Bind()");
  EXPECT_EQ(calls[7], "gluQuadricTexture(GL_TRUE)");
  EXPECT_EQ(calls[8], "glMatrixMode(GL_MODELVIEW)");
  EXPECT_THAT(NumbersOf(calls[9]), ElementsAre(testing::DoubleNear(268.1031, 1e-3), 0, 0, 1));
  EXPECT_EQ(calls[10], "gluSphere(6378, 106, 106)");
}

TEST_F(PlanetsTest, TextureLoadsOnceAndTheOldQuadricGoes) {
  CentralBody();
  const std::vector<std::string> calls = CentralBody();
  EXPECT_EQ(CountBeginning(calls, "Texture(1).Load"), 0);
  EXPECT_EQ(calls[0], "gluDeleteQuadric()");
  EXPECT_EQ(calls[1], "gluNewQuadric()");
}

TEST_F(PlanetsTest, ClosedOptionPanelLoadsBothTexturesAnew) {
  CentralBody();
  Moon();
  USERFLAG.SatelliteModelReady = 0;
  EarthTextureName = "other.jpg";
  StartBodies(scene, state);
  EXPECT_EQ(USERFLAG.SatelliteModelReady, 1.0);
  EXPECT_EQ(CountOf(CentralBody(), "Texture(1).Load(\"/opt/quorb/other.jpg\")"), 1);
  EXPECT_EQ(CountOf(Moon(), "Texture(2).Load(\"/opt/quorb/moonjpg.jpg\")"), 1);
  EarthTextureName = "earthjpg.jpg";
}

TEST_F(PlanetsTest, MissingTextureGivesTheColourOfBodiesAndALineInTheLog) {
  host.missingFile = "earthjpg.jpg";
  const std::vector<std::string> calls = CentralBody();
  EXPECT_EQ(CountOf(calls, "glColor4f(0.1953125, 0.390625, 0.5859375, 1)"), 1);
  EXPECT_EQ(CountOf(calls, "gluSphere(6378, 106, 106)"), 1);
  EXPECT_THAT(log, ElementsAre("No file /opt/quorb/earthjpg.jpg"));
}

TEST_F(PlanetsTest, WithoutATimeRangeTheSphereIsNotTurned) {
  USERFLAG.TimeInData = 0;
  EXPECT_EQ(CountBeginning(CentralBody(), "glRotatef"), 0);
  EXPECT_EQ(state.EarthSpin, 230);
}

TEST_F(PlanetsTest, AtTheFirstRowTheSpinAnglesAre1UnlessTheTimesReplaceThatOfTheEarth) {
  scene.CURRINDEXMINI = 2;
  USERFLAG.TimeInData = 0;
  CentralBody();
  Moon();
  EXPECT_EQ(state.EarthSpin, 1);
  EXPECT_EQ(state.MoonSpin, 1);
  USERFLAG.TimeInData = 1;
  CentralBody();
  Moon();
  EXPECT_NEAR(state.EarthSpin, 268.1031, 1e-3);
  EXPECT_EQ(state.MoonSpin, 1);
}

TEST_F(PlanetsTest, JupiterHasItsRadiusAndPictureAndTheMoonStaysAroundIt) {
  FocusBody = 6;
  const std::vector<std::string> calls = CentralBody();
  EXPECT_EQ(CountOf(calls, "Texture(1).Load(\"/opt/quorb/2k_jupiter.jpg\")"), 1);
  EXPECT_EQ(calls.back(), "gluSphere(71492, 106, 106)");
  EXPECT_EQ(Moon().back(), "gluSphere(17400, 106, 106)");
}

TEST_F(PlanetsTest, AroundTheMoonTheCentralSphereIsTheMoonAndThereIsNoSecondOne) {
  MoonFocus = 1;
  USERFLAG.TimeInData = 0;
  state.CurrentTime = kMarch21Of2003 + 27.32166 / 2;
  const std::vector<std::string> calls = CentralBody();
  EXPECT_EQ(CountOf(calls, "Texture(1).Load(\"/opt/quorb/moonjpg.jpg\")"), 1);
  EXPECT_EQ(calls.back(), "gluSphere(1738, 106, 106)");
  EXPECT_NEAR(state.EarthSpin, 50, 1e-9);  // -130 + 180
  EXPECT_THAT(Moon(), IsEmpty());
}

TEST_F(PlanetsTest, MoonSwitchLeavesTheMoonOut) {
  MoonSwitch = 1;
  EXPECT_THAT(Moon(), IsEmpty());
}

// The Earth's 6378 km are above 2 x 1.1 x 100: the scene is in thousands of km.
TEST_F(PlanetsTest, BodyThatFillsTheSceneTwiceShrinksAThousandTimes) {
  InputInKm = false;
  USERFLAG.LengthAxisFactor = 1;
  scene.Range = 100;
  EXPECT_EQ(CentralBody().back(), "gluSphere(6.378, 106, 106)");
  USERFLAG.InMetres = 1;
  EXPECT_EQ(CentralBody().back(), "gluSphere(6378, 106, 106)");
  USERFLAG.InMetres = 0;
  InputInKm = true;
  EXPECT_EQ(CentralBody().back(), "gluSphere(6378, 106, 106)");
}

TEST_F(PlanetsTest, BodyOfTwiceTheAxesKeepsItsRadius) {
  InputInKm = false;
  USERFLAG.LengthAxisFactor = 1;
  scene.Range = 3189;
  EXPECT_EQ(CentralBody().back(), "gluSphere(6378, 106, 106)");
}

TEST_F(PlanetsTest, LightIsSetInItsOrder) {
  const std::vector<std::string> calls = Light();
  ASSERT_EQ(calls.size(), 10U);
  EXPECT_EQ(calls[0], "glClearDepth(1)");
  EXPECT_EQ(calls[1], "glShadeModel(GL_SMOOTH)");
  EXPECT_EQ(calls[2], "glEnable(GL_DEPTH_TEST)");
  EXPECT_EQ(calls[3], "glEnable(GL_LIGHTING)");
  EXPECT_EQ(calls[4], "glEnable(GL_LIGHT0)");
  EXPECT_EQ(calls[5], "glLightfv(GL_LIGHT0, GL_AMBIENT, 0.2, 0.2, 0.4, 0)");
  EXPECT_EQ(calls[6], "glLightfv(GL_LIGHT0, GL_DIFFUSE, 1, 1, 0.7, 0)");
  EXPECT_EQ(calls[7], "glLightfv(GL_LIGHT0, GL_SPECULAR, 0.9, 0.9, 0.9, 0)");
  EXPECT_TRUE(calls[8].starts_with("glLightfv(GL_LIGHT0, GL_POSITION, ")) << calls[8];
  EXPECT_EQ(calls[9], "glLineWidth(1)");
}

// At the equinox the Sun stands on the X axis of the equator: within a degree on 21 March 2003, a little
// nearer than 150 million km, so at 0.99 x 149,597.
TEST_F(PlanetsTest, LightStandsOnTheXAxisAtTheEquinox) {
  Light();
  EXPECT_NEAR(state.SunPoint[0], 149000, 1000);
  EXPECT_LT(std::abs(state.SunPoint[1]), 2600);
  EXPECT_LT(std::abs(state.SunPoint[2]), 1300);
  EXPECT_EQ(state.SunPoint[3], 1);
}

TEST_F(PlanetsTest, LightAgreesWithTheEphemeridesOnThreeDates) {
  for (const double days : {36526.0, 37793.0, 45713.0}) {
    state.CurrentTime = days;
    const std::vector<double> place = NumbersOf(CallNamed(Light(), "glLightfv(GL_LIGHT0, GL_POSITION"));
    Vector3 helio, geo, equator;
    ASSERT_TRUE(EphemerisAt(days - 366, 0, 0, helio, geo));
    EclipticToEquator(geo, equator);
    ASSERT_EQ(place.size(), 4U);
    for (int k = 1; k <= 3; ++k) {
      EXPECT_NEAR(place[static_cast<std::size_t>(k - 1)], equator(k) / 1e6, 0.02);
      EXPECT_EQ(state.SunFromBody(k), -geo(k));
    }
  }
}

// June's solstice: the Sun stands 23.4 degrees above the equator.
TEST_F(PlanetsTest, LightStandsNorthInJune) {
  state.CurrentTime = 37793;  // 21 June 2003
  Light();
  const double away = std::hypot(state.SunPoint[0], state.SunPoint[1]);
  EXPECT_NEAR(std::atan2(state.SunPoint[2], away) * 180 / 3.14159265, 23.44, 0.05);
}

TEST_F(PlanetsTest, RayOfTheFirstFrameHasNoLength) {
  EXPECT_THAT(Ray(), ElementsAre("glNewList(0, GL_COMPILE)", "glLineWidth(7)", "glColor3f(1, 0, 1)",
                                 "glBegin(GL_LINE_STRIP)", "glVertex3f(0, 0, 0)", "glColor4f(1, 1, 0, 0.6)",
                                 "glVertex3f(0, 0, 0)", "glEnd()", "glEndList()", "glLineWidth(1)"));
}

// 6378 km x 1000 / 150,000,000 x 1.1 = 0.046772 a unit of 1000 km; times 150,000 that is 7015.8 km.
TEST_F(PlanetsTest, RayIs1Point1RadiiLongForASunAtTheAstronomicalUnit) {
  state.SunPoint = {150000, 0, 0, 1};
  const std::vector<double> tip = NumbersOf(Ray()[6]);
  EXPECT_NEAR(state.RayScale, 0.046772, 1e-9);
  EXPECT_NEAR(tip[0], 7015.8, 1e-2);
}

TEST_F(PlanetsTest, RayGrowsWithItsOptionAndGoesAt1) {
  state.SunPoint = {0, 150000, 0, 1};
  USERFLAG.NoSunRay = 2;
  EXPECT_NEAR(NumbersOf(Ray()[6])[1], 3 * 7015.8, 1e-1);
  USERFLAG.NoSunRay = 1;
  EXPECT_THAT(Ray(), IsEmpty());
  EXPECT_NEAR(state.RayScale, 2 * 0.046772, 1e-9);
}

TEST_F(PlanetsTest, MoonIsDrawnInItsOrder) {
  const std::vector<std::string> calls = Moon();
  ASSERT_EQ(calls.size(), 25U);
  EXPECT_EQ(calls[0], "gluNewQuadric()");
  EXPECT_EQ(calls[1], "glColor4f(0.1953125, 0.390625, 0.5859375, 1)");
  EXPECT_EQ(calls[2], "NewTexture()");
  EXPECT_EQ(calls[3], "Texture(1).Load(\"/opt/quorb/moonjpg.jpg\")");
  EXPECT_EQ(calls[4], "Texture(1).Bind()");
  EXPECT_EQ(calls[5], "gluQuadricTexture(GL_TRUE)");
  EXPECT_EQ(calls[6], "glMatrixMode(GL_MODELVIEW)");
  EXPECT_EQ(calls[7], "glRotatef(23.45, 1, 0, 0)");
  EXPECT_TRUE(calls[8].starts_with("glTranslatef(")) << calls[8];
  EXPECT_EQ(calls[9], "glColor4f(0.5, 0.5, 0.5, 1)");
  EXPECT_EQ(calls[10], "glColor3f(1, 1, 0)");
  EXPECT_EQ(calls[11], "glDisable(GL_TEXTURE_2D)");
  EXPECT_EQ(calls[12], "glDisable(GL_LIGHTING)");
  EXPECT_EQ(calls[13], "glNewList(0, GL_COMPILE)");
  EXPECT_EQ(calls[14], "glLineWidth(2)");
  EXPECT_EQ(calls[15], "glBegin(GL_LINES)");
  EXPECT_EQ(calls[16], "glVertex3f(0, 0, -52140)");  // 1738 x 3 x 10
  EXPECT_EQ(calls[17], "glVertex3f(0, 0, 52140)");
  EXPECT_EQ(calls[18], "glEnd()");
  EXPECT_EQ(calls[19], "glLineWidth(1)");
  EXPECT_EQ(calls[20], "glEndList()");
  EXPECT_EQ(calls[21], "glEnable(GL_LIGHTING)");
  EXPECT_EQ(calls[22], "glEnable(GL_TEXTURE_2D)");
  EXPECT_EQ(calls[23], "glRotatef(180, 0, 0, 1)");
  EXPECT_EQ(calls[24], "gluSphere(17400, 106, 106)");
}

TEST_F(PlanetsTest, MoonWithoutItsPictureHasTheColourOfBodiesBehindItsAxisToo) {
  host.missingFile = "moonjpg.jpg";
  const std::vector<std::string> calls = Moon();
  const std::vector<std::string> behindAxis(std::find(calls.begin(), calls.end(), "glEndList()"),
                                            calls.end());
  EXPECT_THAT(behindAxis, ElementsAre("glEndList()", "glEnable(GL_LIGHTING)", "glEnable(GL_TEXTURE_2D)",
                                      "glColor4f(0.1953125, 0.390625, 0.5859375, 1)",
                                      "glRotatef(180, 0, 0, 1)", "gluSphere(17400, 106, 106)"));
  EXPECT_THAT(log, ElementsAre("No file /opt/quorb/moonjpg.jpg"));
}

TEST_F(PlanetsTest, MoonStandsWhereTheEphemeridesPutItOnThreeDates) {
  FactorScale = 0.5;
  for (const double days : {36526.0, 37701.0, 45713.0}) {
    state.CurrentTime = days;
    const std::vector<double> place = NumbersOf(CallNamed(Moon(), "glTranslatef"));
    Vector3 helio, geo;
    ASSERT_TRUE(EphemerisAt(days - 366, kMoonBody, 4, helio, geo));
    ASSERT_EQ(place.size(), 3U);
    for (int k = 1; k <= 3; ++k)
      EXPECT_NEAR(place[static_cast<std::size_t>(k - 1)], geo(k) / 2000, 0.02);
  }
}

TEST_F(PlanetsTest, InTheEarthMoonSystemTheMoonStaysOnTheXAxisWithoutTilt) {
  EMSystem = 1;
  EMDistance = 384400000;
  const std::vector<std::string> calls = Moon();
  EXPECT_EQ(CountOf(calls, "glTranslatef(384400, 0, 0)"), 1);
  EXPECT_EQ(CountOf(calls, "glRotatef(23.45, 1, 0, 0)"), 0);
  EMSystem = 0;
  USERFLAG.EMView = 1;
  EXPECT_EQ(CountOf(Moon(), "glTranslatef(384400, 0, 0)"), 1);
}

TEST_F(PlanetsTest, WithoutATimeRangeTheMoonIsNotTurned) {
  USERFLAG.TimeInData = 0;
  EXPECT_EQ(CountOf(Moon(), "glRotatef(180, 0, 0, 1)"), 0);
}

TEST_F(PlanetsTest, ATimeThatIsNoNumberLeavesTheLightWhereItWas) {
  Light();
  Moon();
  const auto place = state.SunPoint;
  const Vector3 fromBody = state.SunFromBody;
  state.CurrentTime = std::nan("");
  Light();
  EXPECT_EQ(state.SunPoint, place);
  EXPECT_EQ(state.SunFromBody.component, fromBody.component);
}

TEST_F(PlanetsTest, AMissingPictureIsToldOnceUntilThePanelCloses) {
  host.missingFile = "earthjpg.jpg";
  CentralBody();
  CentralBody();
  EXPECT_EQ(log.size(), 1U);
  USERFLAG.SatelliteModelReady = 0;
  StartBodies(scene, state);
  CentralBody();
  EXPECT_EQ(log.size(), 2U);
}

TEST_F(PlanetsTest, APlotLineOfNoWidthIsDrawnAsThinAsOpenGlTakesIt) {
  USERFLAG.ThicknessLinePlot = 0;
  EXPECT_EQ(Light().back(), "glLineWidth(0.1)");
}

TEST_F(PlanetsTest, PicturesAreSoughtInAnyKindOfDirectory) {
  for (const char* const directory : {"/opt/quorb/", "C:\\quorb\\", ""}) {
    TextureDirectory = directory;
    state.EarthTextureReady = 0;
    EXPECT_EQ(CountOf(CentralBody(), "Texture(1).Load(\"" + TextureDirectory + "earthjpg.jpg\")"), 1)
        << directory;
  }
}

TEST_F(PlanetsTest, MoonInItsTrueSizeHas1740Km) {
  USERFLAG.MoonAmplification = 1;
  const std::vector<std::string> calls = Moon();
  EXPECT_EQ(calls.back(), "gluSphere(1740, 106, 106)");
  EXPECT_EQ(CountOf(calls, "glVertex3f(0, 0, 5214)"), 1);
}

TEST_F(PlanetsTest, AxisOptionsChooseTheColourOfTheMoonsAxis) {
  USERFLAG.NoColourAxisX = 1;
  EXPECT_EQ(CountOf(Moon(), "glColor3f(1, 1, 0)"), 0);
  USERFLAG.NoPlotAxis = 1;
  EXPECT_EQ(CountOf(Moon(), "glColor4f(0.5, 0.5, 0.5, 1)"), 0);
}

TEST_F(PlanetsTest, RowOutsideOfTheTableKeepsTheTimeOfTheFrameBefore) {
  scene.CURRINDEXI = -1;
  StartBodies(scene, state);
  EXPECT_EQ(state.CurrentTime, kMarch21Of2003);
}

TEST(CentralTextureNameTest, FollowsTheTable) {
  EXPECT_EQ(CentralTextureName(0, 4), "earthjpg.jpg");
  EXPECT_EQ(CentralTextureName(1, 4), "moonjpg.jpg");
  EXPECT_EQ(CentralTextureName(1, 6), "moonjpg.jpg");
  EXPECT_EQ(CentralTextureName(0, 1), "2k_sun.jpg");
  EXPECT_EQ(CentralTextureName(0, 2), "2k_mercury.jpg");
  EXPECT_EQ(CentralTextureName(0, 3), "2k_venus_atmosphere.jpg");
  EXPECT_EQ(CentralTextureName(0, 5), "2k_mars.jpg");
  EXPECT_EQ(CentralTextureName(0, 6), "2k_jupiter.jpg");
  EXPECT_EQ(CentralTextureName(0, 7), "");
}

}  // namespace
}  // namespace quorb
