#include <gtest/gtest.h>

#include <array>

#include "FrameFixture.h"

namespace quorb {
namespace {

constexpr int kOrbitPointer = 207;
constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr double kTolerance = 1e-3;

/// The host of 200 x 200 pixels, whose camera stands 100 in front of the origin.
class Trackball : public FrameFixture {
 protected:
  void ExpectEye(double x, double y, double z) const {
    std::array<float, 3> eye{};
    host->Camera().GetPosition(eye[0], eye[1], eye[2]);
    EXPECT_NEAR(eye[0], x, kTolerance);
    EXPECT_NEAR(eye[1], y, kTolerance);
    EXPECT_NEAR(eye[2], z, kTolerance);
  }
};

TEST_F(Trackball, ADragOverTheWholeHeightTurnsTheSceneHalfwayRound) {
  host->SetMousePointer(kOrbitPointer, "");
  host->TrackballStart(kLeft, 100, 0);
  host->TrackballMove(100, 200);
  ExpectEye(0, 0, -100);
}

TEST_F(Trackball, TheSceneFollowsTheMouse) {
  host->SetMousePointer(kOrbitPointer, "");
  host->TrackballStart(kLeft, 50, 50);
  // A quarter of the height: 45 degrees. The front goes to the right, so the eye goes to the left.
  host->TrackballMove(83, 50);
  host->TrackballMove(100, 50);
  ExpectEye(-70.71068, 0, 70.71068);
  host->TrackballEnd();
  host->Camera().Look(0, 0, 100, 0, 0, 0, 0, 1, 0);
  host->TrackballStart(kLeft, 50, 50);
  // Upward: the front goes upward, the eye sinks.
  host->TrackballMove(50, 0);
  ExpectEye(0, -70.71068, 70.71068);
}

TEST_F(Trackball, ADragThereAndBackLeavesTheCameraWhereItWas) {
  host->SetMousePointer(kOrbitPointer, "");
  host->TrackballStart(kLeft, 100, 100);
  for (int y = 101; y <= 180; ++y)
    host->TrackballMove(100, y);
  for (int y = 179; y >= 100; --y)
    host->TrackballMove(100, y);
  ExpectEye(0, 0, 100);
}

TEST_F(Trackball, AnotherPointerTurnsNothing) {
  for (const int pointer : {0, 201, 203, 206, 210, 211}) {
    host->SetMousePointer(pointer, "");
    host->TrackballStart(kLeft, 100, 0);
    host->TrackballMove(100, 200);
    ExpectEye(0, 0, 100);
  }
}

TEST_F(Trackball, WithTheArrowTheRightButtonTurns) {
  host->SetMousePointer(0, "");
  host->TrackballStart(kRight, 100, 0);
  host->TrackballMove(100, 100);
  ExpectEye(0, 100, 0);
}

TEST_F(Trackball, WithAnotherPointerTheRightButtonTurnsNothing) {
  for (const int pointer : {200, 201, 202, 204, 206}) {
    host->SetMousePointer(pointer, "");
    host->TrackballStart(kRight, 100, 0);
    host->TrackballMove(100, 100);
    ExpectEye(0, 0, 100);
  }
}

TEST_F(Trackball, AnotherButtonTurnsNothing) {
  host->SetMousePointer(kOrbitPointer, "");
  for (const int button : {0, kRight, 4}) {
    host->TrackballStart(button, 100, 0);
    host->TrackballMove(100, 200);
    ExpectEye(0, 0, 100);
  }
}

TEST_F(Trackball, WithoutAPressOrBehindTheReleaseItTurnsNothing) {
  host->SetMousePointer(kOrbitPointer, "");
  host->TrackballMove(100, 200);
  ExpectEye(0, 0, 100);
  host->TrackballStart(kLeft, 100, 0);
  host->TrackballEnd();
  host->TrackballMove(100, 200);
  ExpectEye(0, 0, 100);
}

TEST_F(Trackball, ASecondPressStartsAnew) {
  host->SetMousePointer(kOrbitPointer, "");
  host->TrackballStart(kLeft, 0, 0);
  host->TrackballStart(kLeft, 100, 100);
  host->TrackballMove(100, 100);
  ExpectEye(0, 0, 100);
}

}  // namespace
}  // namespace quorb
