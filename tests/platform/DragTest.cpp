#include <cmath>

#include "ClassGl.h"
#include "FrameFixture.h"

namespace quorb {
namespace {

/// A scene of the range 50 over the camera of a real host: a view of 200 x 200 pixels, an eye at (0, 0, 100)
/// that looks at the origin through a window of 200 x 200.
class Drag : public FrameFixture {
 protected:
  void SetUp() override {
    FrameFixture::SetUp();
    scene = std::make_unique<ClassGl>(*host);
    scene->ViewWidth = scene->ViewHeight = 200;
    scene->Range = 50;
    scene->InvRange = 0.02;
  }

  /// A drag with the left button in a mode.
  void DragLeft(int mode, double fromX, double fromY, double toX, double toY) {
    scene->EditState(mode);
    scene->MouseDown(1, 0, fromX, fromY);
    scene->MouseMove(1, 0, toX, toY);
    scene->MouseUp(1, 0, toX, toY);
  }

  void ExpectWindow(double left, double right, double bottom, double top) const {
    double found[4] = {};
    host->Camera().GetOrtho(found[0], found[1], found[2], found[3]);
    EXPECT_NEAR(found[0], left, 1e-5);
    EXPECT_NEAR(found[1], right, 1e-5);
    EXPECT_NEAR(found[2], bottom, 1e-5);
    EXPECT_NEAR(found[3], top, 1e-5);
  }

  void ExpectEye(double x, double y, double z) const {
    float found[3] = {};
    host->Camera().GetPosition(found[0], found[1], found[2]);
    EXPECT_NEAR(found[0], x, 1e-4);
    EXPECT_NEAR(found[1], y, 1e-4);
    EXPECT_NEAR(found[2], z, 1e-4);
  }

  void ExpectUp(double x, double y, double z) const {
    float found[3] = {};
    host->Camera().GetUp(found[0], found[1], found[2]);
    EXPECT_NEAR(found[0], x, 1e-5);
    EXPECT_NEAR(found[1], y, 1e-5);
    EXPECT_NEAR(found[2], z, 1e-5);
  }

  std::unique_ptr<ClassGl> scene;
};

// The window counts sqrt(4 x 100 x 100) = 200: ten pixels are 10 x 0.0025 x 200 = 5 units.
TEST_F(Drag, PanMovesTheWindowAgainstTheMouse) {
  for (const int mode : {1, 8, 17}) {
    host->Camera().SetOrtho(-100, 100, -100, 100);
    DragLeft(mode, 50, 50, 60, 70);
    ExpectWindow(-105, 95, -90, 110);
  }
}

// A step upward takes a fiftieth of 200 units off each side.
TEST_F(Drag, ZoomNarrowsTheWindowUpwardAndWidensItDownward) {
  DragLeft(6, 50, 50, 50, 40);
  ExpectWindow(-96, 96, -96, 96);
  host->Camera().SetOrtho(-100, 100, -100, 100);
  DragLeft(6, 50, 50, 50, 51);
  ExpectWindow(-104, 104, -104, 104);
}

// A fifth of a fiftieth of the distance of 100.
TEST_F(Drag, DollyBringsTheEyeNearerUpwardAndFartherDownward) {
  DragLeft(7, 50, 50, 50, 40);
  ExpectEye(0, 0, 99.6);
  ExpectWindow(-99.6, 99.6, -99.6, 99.6);
  DragLeft(7, 50, 50, 50, 60);
  ExpectEye(0, 0, 99.6 * 1.004);
}

TEST_F(Drag, PitchTurnsADegreeAPixelWithTheMouse) {
  DragLeft(10, 50, 50, 50, 20);  // 30 pixels up: the front goes up, the eye down
  ExpectEye(0, -50, 86.602540);
  ExpectUp(0, 0.8660254, 0.5);
}

TEST_F(Drag, YawTurnsADegreeAPixelWithTheMouse) {
  DragLeft(11, 50, 50, 20, 50);  // 30 pixels to the left: the front goes left, the eye right
  ExpectEye(50, 0, 86.602540);
  ExpectUp(0, 1, 0);
}

// The first move finds the place of the press; the second sees it go 10 pixels up, a tenth of the view: an
// angle of pi/2, taken as degrees, and negative in the left half of the view.
TEST_F(Drag, RollTurnsByTheDirectionOfTheMove) {
  scene->EditState(12);
  scene->MouseDown(1, 0, 150, 50);
  scene->MouseMove(1, 0, 150, 40);
  ExpectUp(0, 1, 0);
  scene->MouseMove(1, 0, 150, 30);
  const double angle = 1.5707963 * 3.14159265 / 180;
  ExpectEye(0, 0, 100);
  // Counterclockwise for the scene is clockwise for the camera.
  ExpectUp(std::sin(angle), std::cos(angle), 0);

  scene->MouseDown(1, 0, 50, 50);
  scene->MouseMove(1, 0, 50, 40);
  scene->MouseMove(1, 0, 50, 30);
  ExpectUp(0, 1, 0);
}

TEST_F(Drag, TheModesOfTheWindowMakeItThreeTimesAsWideOrAThirdAsWide) {
  scene->EditState(13);
  ExpectWindow(-150, 150, -150, 150);
  scene->EditState(14);
  scene->EditState(14);
  ExpectWindow(-50.0 / 3, 50.0 / 3, -50.0 / 3, 50.0 / 3);
}

TEST_F(Drag, TheOtherModesLeaveTheCamera) {
  for (const int mode : {2, 3, 4, 5, 9, 15, 16}) {
    DragLeft(mode, 50, 50, 90, 20);
    ExpectEye(0, 0, 100);
    ExpectUp(0, 1, 0);
    ExpectWindow(-100, 100, -100, 100);
  }
}

}  // namespace
}  // namespace quorb
