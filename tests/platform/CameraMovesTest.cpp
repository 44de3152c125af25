#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "CameraValues.h"

namespace quorb {
namespace {

using Triple = std::array<float, 3>;

constexpr double kTolerance = 1e-4;

/// A camera 100 in front of the origin, with X to the right and Y upward.
class CameraMoves : public testing::Test {
 protected:
  CameraMoves() {
    camera.Look(0, 0, 100, 0, 0, 0, 0, 1, 0);
    camera.SetOrtho(-40, 40, -20, 20);
  }

  Triple Position() const {
    Triple at{};
    camera.GetPosition(at[0], at[1], at[2]);
    return at;
  }
  Triple Target() const {
    Triple at{};
    camera.GetTarget(at[0], at[1], at[2]);
    return at;
  }
  Triple Up() const {
    Triple at{};
    camera.GetUp(at[0], at[1], at[2]);
    return at;
  }

  static void ExpectNear(const Triple& found, double x, double y, double z, double tolerance = kTolerance) {
    EXPECT_NEAR(found[0], x, tolerance);
    EXPECT_NEAR(found[1], y, tolerance);
    EXPECT_NEAR(found[2], z, tolerance);
  }

  void ExpectWindow(double left, double right, double bottom, double top) const {
    EXPECT_NEAR(camera.Window().left, left, kTolerance);
    EXPECT_NEAR(camera.Window().right, right, kTolerance);
    EXPECT_NEAR(camera.Window().bottom, bottom, kTolerance);
    EXPECT_NEAR(camera.Window().top, top, kTolerance);
  }

  /// Where a direction of the scene points on the screen: to the right, upward, toward the viewer.
  Triple OnScreen(const Triple& direction) const {
    const ViewLine line = camera.SafeViewLine();
    Triple toEye{};
    for (std::size_t i = 0; i < 3; ++i)
      toEye[i] = static_cast<float>((line.eye[i] - line.target[i]) / 100);
    const Triple up = Up();
    const Triple right = {up[1] * toEye[2] - up[2] * toEye[1], up[2] * toEye[0] - up[0] * toEye[2],
                          up[0] * toEye[1] - up[1] * toEye[0]};
    const auto along = [&direction](const Triple& axis) {
      return direction[0] * axis[0] + direction[1] * axis[1] + direction[2] * axis[2];
    };
    return {along(right), along(up), along(toEye)};
  }

  CameraValues camera;
};

TEST_F(CameraMoves, PanMovesTheOrthographicWindowAgainstThePicture) {
  camera.Pan(6, -2);
  ExpectWindow(-46, 34, -18, 22);
  ExpectNear(Position(), 0, 0, 100, 0);
  ExpectNear(Target(), 0, 0, 0, 0);
}

TEST_F(CameraMoves, PanOfThePerspectiveViewMovesEyeAndTargetAlongTheScreen) {
  camera.SetProjection(0);
  camera.Look(100, 0, 0, 10, 0, 0, 0, 0, 1);
  camera.Pan(6, -2);
  // Seen from +X with Z upward, +Y is to the right: the picture goes right by 6 when the eye goes to -6.
  ExpectNear(Position(), 100, -6, 2);
  ExpectNear(Target(), 10, -6, 2);
  ExpectWindow(-40, 40, -20, 20);
}

TEST_F(CameraMoves, ZoomScalesTheOrthographicWindowAboutItsMiddle) {
  camera.SetOrtho(0, 80, -30, 10);
  camera.Zoom(2);
  ExpectWindow(20, 60, -20, 0);
  camera.Zoom(0.5F);
  ExpectWindow(0, 80, -30, 10);
}

TEST_F(CameraMoves, ZoomDividesTheAngleOfThePerspectiveView) {
  camera.SetProjection(0);
  camera.SetField(40);
  camera.Zoom(1.25F);
  EXPECT_NEAR(camera.PerspectiveField(), 32, kTolerance);
  camera.Zoom(0.5F);
  EXPECT_NEAR(camera.PerspectiveField(), 64, kTolerance);
  ExpectWindow(-40, 40, -20, 20);
}

TEST_F(CameraMoves, ZoomBeginsAtTheHostsOwnAngleWhenNoneIsSet) {
  camera.SetProjection(0);
  camera.SetField(180);
  camera.Zoom(1.5F);
  EXPECT_NEAR(camera.PerspectiveField(), 30, kTolerance);
}

TEST_F(CameraMoves, ZoomKeepsTheAngleBetweenOneAndAHundredAndSeventyDegrees) {
  camera.SetProjection(0);
  camera.Zoom(1000);
  EXPECT_DOUBLE_EQ(camera.PerspectiveField(), 1);
  camera.Zoom(0.0001F);
  EXPECT_DOUBLE_EQ(camera.PerspectiveField(), 170);
}

TEST_F(CameraMoves, ZoomByNothingOrLessChangesNothing) {
  camera.Zoom(0);
  camera.Zoom(-2);
  ExpectWindow(-40, 40, -20, 20);
}

TEST_F(CameraMoves, DollyBringsTheEyeNearerByAShareOfItsDistance) {
  camera.SetProjection(0);
  camera.Look(10, 0, 100, 10, 0, 20, 0, 1, 0);
  camera.Dolly(0.25F);
  ExpectNear(Position(), 10, 0, 80);
  camera.Dolly(-0.5F);
  ExpectNear(Position(), 10, 0, 110);
  ExpectNear(Target(), 10, 0, 20, 0);
  ExpectWindow(-40, 40, -20, 20);
}

TEST_F(CameraMoves, DollyOfTheOrthographicViewScalesItsWindowToo) {
  camera.Dolly(0.25F);
  ExpectNear(Position(), 0, 0, 75);
  ExpectWindow(-30, 30, -15, 15);
}

TEST_F(CameraMoves, DollyNeverReachesTheTarget) {
  camera.SetProjection(0);
  camera.Dolly(5);
  ExpectNear(Position(), 0, 0, 1);
}

TEST_F(CameraMoves, PitchAboveZeroBringsTheFrontOfTheSceneUpward) {
  camera.Pitch(30);
  // The eye sinks by 30 degrees: 100 sin 30, 100 cos 30.
  ExpectNear(Position(), 0, -50, 86.60254);
  ExpectNear(Up(), 0, 0.8660254, 0.5);
  ExpectNear(OnScreen({0, 0, 1}), 0, 0.5, 0.8660254);
  ExpectNear(OnScreen({1, 0, 0}), 1, 0, 0);
}

TEST_F(CameraMoves, YawAboveZeroBringsTheFrontOfTheSceneToTheLeft) {
  camera.Yaw(30);
  ExpectNear(Position(), 50, 0, 86.60254);
  ExpectNear(Up(), 0, 1, 0);
  ExpectNear(OnScreen({0, 0, 1}), -0.5, 0, 0.8660254);
  ExpectNear(OnScreen({0, 1, 0}), 0, 1, 0);
}

TEST_F(CameraMoves, RollAboveZeroTurnsTheSceneCounterclockwise) {
  camera.Roll(30);
  ExpectNear(Position(), 0, 0, 100);
  ExpectNear(Up(), 0.5, 0.8660254, 0);
  // What pointed to the right now points upward too.
  ExpectNear(OnScreen({1, 0, 0}), 0.8660254, 0.5, 0);
  ExpectNear(OnScreen({0, 0, 1}), 0, 0, 1);
}

TEST_F(CameraMoves, TurnsGoAboutTheTargetAndLeaveItAndTheWindow) {
  camera.Look(5, 6, 107, 5, 6, 7, 0, 1, 0);
  camera.Yaw(90);
  ExpectNear(Position(), 105, 6, 7);
  camera.Pitch(90);
  ExpectNear(Position(), 5, -94, 7);
  ExpectNear(Target(), 5, 6, 7, 0);
  ExpectWindow(-40, 40, -20, 20);
}

TEST_F(CameraMoves, TurnsAreAboutTheAxesOfTheScreenNotOfTheScene) {
  camera.Roll(90);
  camera.Pitch(90);
  // The screen's X axis is the scene's -Y now: the eye turns from +Z to -X.
  ExpectNear(Position(), -100, 0, 0);
}

TEST_F(CameraMoves, AnUpVectorAlongTheLineOfSightIsReplacedBeforeATurn) {
  camera.SetUp(0, 0, 1);
  camera.Yaw(90);
  // X stands across the line of sight and points upward: the eye turns about it.
  ExpectNear(Position(), 0, -100, 0);
  ExpectNear(Up(), 1, 0, 0);
}

TEST_F(CameraMoves, ArgumentsThatAreNotFiniteChangeNothing) {
  const std::vector<std::function<void(float)>> moves = {
      [this](float value) { camera.Pan(value, 1); }, [this](float value) { camera.Pan(1, value); },
      [this](float value) { camera.Zoom(value); },   [this](float value) { camera.Dolly(value); },
      [this](float value) { camera.Pitch(value); },  [this](float value) { camera.Yaw(value); },
      [this](float value) { camera.Roll(value); }};
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  camera.SetField(40);
  for (const int projection : {0, 1}) {
    camera.SetProjection(projection);
    for (std::size_t move = 0; move < moves.size(); ++move) {
      for (const float value : {std::numeric_limits<float>::quiet_NaN(), kInfinity, -kInfinity}) {
        SCOPED_TRACE(testing::Message() << "projection " << projection << ", move " << move << ", " << value);
        moves[move](value);
        ExpectWindow(-40, 40, -20, 20);
        ExpectNear(Position(), 0, 0, 100, 0);
        ExpectNear(Target(), 0, 0, 0, 0);
        ExpectNear(Up(), 0, 1, 0, 0);
        EXPECT_DOUBLE_EQ(camera.PerspectiveField(), 40);
      }
    }
  }
}

TEST_F(CameraMoves, ManySmallTurnsKeepTheDistanceAndAddUp) {
  for (int step = 0; step < 3600; ++step)
    camera.Yaw(0.1F);
  ExpectNear(Position(), 0, 0, 100, 0.02);
  for (int step = 0; step < 3600; ++step) {
    camera.Pitch(0.1F);
    camera.Roll(-0.1F);
  }
  const Triple eye = Position();
  EXPECT_NEAR(std::hypot(eye[0], eye[1], eye[2]), 100, 0.02);
  const Triple up = Up();
  EXPECT_NEAR(std::hypot(up[0], up[1], up[2]), 1, 1e-5);
}

}  // namespace
}  // namespace quorb
