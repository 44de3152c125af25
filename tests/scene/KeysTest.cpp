#include "ScenePlot.h"
#include "TaggedWindow.h"

namespace quorb {
namespace {

constexpr int kPageUp = 33, kPageDown = 34, kLeft = 37, kUp = 38, kRight = 39, kDown = 40, kI = 73;

// Turned by the angle of sine 0.01, the point (3, 4) comes to (3 k + 0.04, 4 k - 0.03) or, the other way, to
// (3 k - 0.04, 4 k + 0.03), with k = sqrt(0.9999) = 0.99995.
constexpr float kThreeOn = 3.03985F, kFourOn = 3.9698F;
constexpr float kThreeBack = 2.95985F, kFourBack = 4.0298F;

class KeysTest : public ScenePlot {
 protected:
  KeysTest() {
    ResizeArmed = 1;
    scene.CameraSteps = {};
  }

  /// Where the eye stands behind a key.
  void ExpectMove(int key, const RecordingHost::Point& from, const RecordingHost::Point& to) {
    SCOPED_TRACE(key);
    host.camera.position = from;
    scene.KeyDown(key, 0);
    EXPECT_NEAR(host.camera.position.x, to.x, 2e-6);
    EXPECT_NEAR(host.camera.position.y, to.y, 2e-6);
    EXPECT_NEAR(host.camera.position.z, to.z, 2e-6);
  }

  TaggedWindow window;
};

// ---- turning --------------------------------------------------------------------------------------------

TEST_F(KeysTest, EachKeyTurnsInItsPlane) {
  ExpectMove(kLeft, {7, 3, 4}, {7, kThreeOn, kFourOn});
  ExpectMove(kRight, {7, 3, 4}, {7, kThreeBack, kFourBack});
  ExpectMove(kUp, {4, 7, 3}, {kFourOn, 7, kThreeOn});
  ExpectMove(kDown, {4, 7, 3}, {kFourBack, 7, kThreeBack});
  ExpectMove(kPageUp, {3, 4, 7}, {kThreeOn, kFourOn, 7});
  ExpectMove(kPageDown, {3, 4, 7}, {kThreeBack, kFourBack, 7});
}

TEST_F(KeysTest, TheKeyDoesNotLookAtShift) {
  host.camera.position = {7, 3, 4};
  scene.KeyDown(kLeft, 1);
  EXPECT_NEAR(host.camera.position.y, kThreeOn, 2e-6);
}

TEST_F(KeysTest, ANegativeFirstCoordinateTurnsOn) {
  // u = -0.6 and v = 0.8: -0.6 k + 0.008 = -0.59197, whose other coordinate is 0.80596.
  ExpectMove(kLeft, {7, -3, 4}, {7, -kThreeBack, kFourBack});
}

TEST_F(KeysTest, ASecondCoordinateThatJumpedToTheOtherSideIsBroughtBack) {
  // The root gives 4.0298 for z, whose opposite lies near the old -4: so a twentieth more than -4.
  ExpectMove(kLeft, {7, 3, -4}, {7, kThreeBack, -4.2F});
  ExpectMove(kPageUp, {3, -4, 7}, {kThreeBack, -4.2F, 7});
}

TEST_F(KeysTest, ANegativeXBeyondOneKeepsItsSign) {
  ExpectMove(kUp, {-4, 7, 3}, {-kFourBack, 7, kThreeBack});
  ExpectMove(kDown, {-4, 7, 3}, {-kFourOn, 7, kThreeOn});
}

TEST_F(KeysTest, ANegativeXUpToOneComesOutPositiveAndIsTakenWhereThatIsNear) {
  // r is 0.5, u 0.6 and v -0.8: x becomes +0.40298, which lies within 1.04 of -0.4.
  ExpectMove(kUp, {-0.4F, 7, 0.3F}, {0.40298F, 7, 0.295985F});
  // And from -0.8, r being 1, +0.80596 lies too far: a twentieth more than -0.8.
  ExpectMove(kUp, {-0.8F, 7, 0.6F}, {-0.84F, 7, 0.59197F});
}

TEST_F(KeysTest, TwoCoordinatesOfZeroLeaveThePosition) {
  ExpectMove(kLeft, {7, 0, 0}, {7, 0, 0});
  ExpectMove(kRight, {7, 0, 0}, {7, 0, 0});
  ExpectMove(kUp, {0, 7, 0}, {0, 7, 0});
  ExpectMove(kDown, {0, 7, 0}, {0, 7, 0});
  ExpectMove(kPageUp, {0, 0, 7}, {0, 0, 7});
  ExpectMove(kPageDown, {0, 0, 7}, {0, 0, 7});
}

TEST_F(KeysTest, AnyOtherKeyLeavesTheCamera) {
  for (const int key : {0, 32, 35, 36, 41, 72, 74}) {
    ExpectMove(key, {1, 2, 3}, {1, 2, 3});
    EXPECT_EQ(CountBeginning(RecordedCalls(), "Camera.Set"), 0);
  }
}

// ---- the repair of a coordinate -------------------------------------------------------------------------

TEST_F(KeysTest, ANearCoordinateIsTakenAsItIs) {
  EXPECT_EQ(ClassGl::noSteps(10, 10.5, ""), 10.5F);
  EXPECT_EQ(ClassGl::noSteps(10, 12, ""), 12) << "1 + a tenth of 10 away";
  EXPECT_EQ(ClassGl::noSteps(-10, -8, ""), -8);
  EXPECT_EQ(ClassGl::noSteps(0, -1, ""), -1);
}

TEST_F(KeysTest, ACoordinateFarOnEitherSideIsTurnedRound) {
  EXPECT_EQ(ClassGl::noSteps(10, 12.5, ""), -12.5F);
  EXPECT_EQ(ClassGl::noSteps(10, -12.5, ""), 12.5F);
  EXPECT_EQ(ClassGl::noSteps(0, 1.5, ""), -1.5F);
}

TEST_F(KeysTest, AJumpToTheOtherSideIsATwentiethMoreOfTheOldOne) {
  EXPECT_EQ(ClassGl::noSteps(10, -10.25, ""), 10.5F);
  EXPECT_EQ(ClassGl::noSteps(10, -12, ""), 10.5F);
  EXPECT_EQ(ClassGl::noSteps(-10, 8, ""), -10.5F);
}

// ---- the key I ------------------------------------------------------------------------------------------

TEST_F(KeysTest, IWithoutShiftViewsFromTheCornersOfTheCube) {
  scene.KeyDown(kI, 0);
  EXPECT_EQ(window.tag, "REAL_ISO");
  EXPECT_EQ(CountOf(RecordedCalls(), "Camera.SetUp(0, 1, 0)"), 1);
  EXPECT_EQ(CountOf(RecordedCalls(), "Camera.SetPosition(100, 100, -100)"), 1);
}

TEST_F(KeysTest, IWithShiftViewsFromRoundTheAxis) {
  window.tag = "REAL_ISO";
  scene.KeyDown(kI, 1);
  EXPECT_EQ(window.tag, "");
  EXPECT_EQ(CountOf(RecordedCalls(), "Camera.SetUp(0, 1, 0)"), 1);
  EXPECT_EQ(CountOf(RecordedCalls(), "Camera.SetPosition(0, 100, 100)"), 1);
}

TEST_F(KeysTest, IStepsRoundTheAxisChosenLast) {
  DEJADRAW = 1;
  scene.CameraSet("ISONEW", 3, 0);
  ClearCalls();
  scene.KeyDown(kI, 1);
  // The second step, 90 degrees.
  EXPECT_NEAR(host.camera.position.x, 0, 1e-4);
  EXPECT_NEAR(host.camera.position.y, 100, 1e-4);
  EXPECT_NEAR(host.camera.position.z, 100, 1e-4);
  EXPECT_EQ(host.camera.up.z, 1);
}

// ---- characters -----------------------------------------------------------------------------------------

TEST_F(KeysTest, AnyCharacterPutsTheEyeOnTheOrigin) {
  for (const char* character : {"a", " ", "\r", "é", ""}) {
    ClearCalls();
    scene.KeyPress(character);
    EXPECT_THAT(RecordedCalls(), ElementsAre("Camera.SetUp(0, 1, 0)", "Camera.SetPosition(0, 0, 0)"))
        << character;
  }
}

}  // namespace
}  // namespace quorb
