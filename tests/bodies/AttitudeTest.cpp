#include "Attitude.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ScriptedDialogs.h"

namespace quorb {
namespace {

class AttitudeTest : public testing::Test {
 protected:
  /// The bad attitude, reached without a message.
  void ExpectBad() const {
    EXPECT_TRUE(dialogs.boxes.empty());
    EXPECT_EQ(state.AttitudeAngle, 90);
    EXPECT_EQ(state.AttAxisX, 1);
    EXPECT_EQ(state.AttAxisY, 0);
    EXPECT_EQ(state.AttAxisZ, 0);
    EXPECT_NEAR(state.Q(1), 0.70710725, 1e-7) << "the cosine of half of 90 degrees with the short pi";
    EXPECT_NEAR(state.Q(2), 0.70710631, 1e-7);
    EXPECT_EQ(state.Q(3), 0);
    EXPECT_EQ(state.Q(4), 0);
  }

  /// A turn of 60 degrees about Z, from a quaternion of a length.
  void TakeLength(double length) { TakeAttitude(state, length * std::sqrt(0.75), 0, 0, length * 0.5); }

  BodyState state;
  ScriptedDialogs dialogs;
};

TEST_F(AttitudeTest, AUnitQuaternionGivesItsAngleWithTheShortPi) {
  TakeLength(1);
  EXPECT_NEAR(state.AttitudeAngle, 60.0000507, 1e-5) << "60 x 3.14159265 / 3.14159";
  EXPECT_EQ(state.AttAxisX, 0);
  EXPECT_EQ(state.AttAxisY, 0);
  EXPECT_NEAR(state.AttAxisZ, 1, 1e-6);
  EXPECT_EQ(state.Q(4), 0.5F);
}

// A third of a turn about the diagonal: 120 degrees x 3.14159265 / 3.14159, X to Y to Z to X.
TEST_F(AttitudeTest, EqualComponentsTurnAThirdAboutTheDiagonal) {
  TakeAttitude(state, 0.5, 0.5, 0.5, 0.5);
  TurnLocalAxes(state);
  EXPECT_NEAR(state.AttitudeAngle, 120.000101, 1e-5);
  for (const double axis : {state.AttAxisX, state.AttAxisY, state.AttAxisZ})
    EXPECT_NEAR(axis, 0.5773503, 1e-6);
  EXPECT_NEAR(state.SatAxisX(2), 1, 1e-6);
  EXPECT_NEAR(state.SatAxisY(3), 1, 1e-6);
  EXPECT_NEAR(state.SatAxisZ(1), 1, 1e-6);
}

// cos 60 = 0.5; axis (0.36, 0.48, 0.8) x sin 60.
TEST_F(AttitudeTest, EveryComponentGoesToItsOwnAxis) {
  const double sine = std::sqrt(0.75);
  TakeAttitude(state, 0.5, 0.36 * sine, 0.48 * sine, 0.8 * sine);
  EXPECT_NEAR(state.AttAxisX, 0.36, 1e-6);
  EXPECT_NEAR(state.AttAxisY, 0.48, 1e-6);
  EXPECT_NEAR(state.AttAxisZ, 0.8, 1e-6);
}

TEST_F(AttitudeTest, AQuaternionOfLengthThirteenTenthsPassesAndStretchesTheAxis) {
  TakeLength(1.3);
  EXPECT_NEAR(state.AttitudeAngle, 60.0000507, 1e-5);
  EXPECT_NEAR(state.AttAxisZ, 1.3, 1e-6);
  EXPECT_FLOAT_EQ(state.Q(4), 0.65F);
}

TEST_F(AttitudeTest, LengthsWithinFortyFiveHundredthsOfOnePass) {
  TakeLength(1.449);
  EXPECT_NEAR(state.AttAxisZ, 1.449, 1e-6);
  TakeLength(0.551);
  EXPECT_NEAR(state.AttAxisZ, 0.551, 1e-6);
}

TEST_F(AttitudeTest, LengthsBeyondAreBad) {
  for (const double length : {1.451, 0.549, 2.0, 1e30, 1e-30}) {
    TakeLength(1);
    TakeLength(length);
    SCOPED_TRACE(length);
    ExpectBad();
  }
}

TEST_F(AttitudeTest, ARowOfZerosIsBad) {
  TakeAttitude(state, 0, 0, 0, 0);
  ExpectBad();
}

TEST_F(AttitudeTest, TheIdentityHasNoAxisAndIsBad) {
  TakeAttitude(state, 1, 0, 0, 0);
  ExpectBad();
  TakeLength(1);
  TakeAttitude(state, -1, 0, 0, 0);
  ExpectBad();
}

TEST_F(AttitudeTest, TheScalarPartIsRaisedToMinusOne) {
  TakeAttitude(state, -2, 0.5, 0, 0);
  EXPECT_EQ(state.Q(1), -1);
  EXPECT_NEAR(state.AttitudeAngle, 306.870157, 1e-5) << "2 (180 - 26.565051), with the short pi";
  EXPECT_NEAR(state.AttAxisX, 1.118034, 1e-6) << "0.5 / sin 26.565051";
}

TEST_F(AttitudeTest, ComponentsThatAreNoNumbersAreBad) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double wrong : {nan, HUGE_VAL, -HUGE_VAL, 1e300}) {
    TakeLength(1);
    TakeAttitude(state, 0.5, wrong, 0, 0);
    ExpectBad();
  }
  TakeLength(1);
  TakeAttitude(state, nan, 0, 0, 1);
  ExpectBad();
}

TEST_F(AttitudeTest, TheLocalAxesAreTurnedByTheQuaternion) {
  TakeAttitude(state, std::sqrt(0.5), 0, 0, std::sqrt(0.5));
  TurnLocalAxes(state);
  EXPECT_NEAR(state.SatAxisX(1), 0, 1e-6);
  EXPECT_NEAR(state.SatAxisX(2), 1, 1e-6);
  EXPECT_NEAR(state.SatAxisY(1), -1, 1e-6);
  EXPECT_NEAR(state.SatAxisY(2), 0, 1e-6);
  EXPECT_NEAR(state.SatAxisZ(3), 1, 1e-6);
}

TEST_F(AttitudeTest, AnImageBeyondSinglePrecisionLeavesTheAxis) {
  state.SatAxisX = state.SatAxisZ = {{1, 2, 3}};
  state.Q = {{1, 3e38F, 0, 0}};
  TurnLocalAxes(state);
  EXPECT_EQ(state.SatAxisZ, (Vector3{{1, 2, 3}}));
}

}  // namespace
}  // namespace quorb
