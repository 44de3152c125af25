#include "CameraValues.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quorb {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

void ExpectWindow(const OrthoWindow& window, double left, double right, double bottom, double top) {
  EXPECT_DOUBLE_EQ(window.left, left);
  EXPECT_DOUBLE_EQ(window.right, right);
  EXPECT_DOUBLE_EQ(window.bottom, bottom);
  EXPECT_DOUBLE_EQ(window.top, top);
}

void ExpectTriple(const std::array<double, 3>& found, double x, double y, double z) {
  EXPECT_DOUBLE_EQ(found[0], x);
  EXPECT_DOUBLE_EQ(found[1], y);
  EXPECT_DOUBLE_EQ(found[2], z);
}

TEST(WidenToShape, SquareWindowInAWideViewGrowsSideways) {
  ExpectWindow(WidenToShape({-100, 100, -100, 100}, 1280, 800), -160, 160, -100, 100);
}

TEST(WidenToShape, SquareWindowInATallViewGrowsUpAndDown) {
  ExpectWindow(WidenToShape({-100, 100, -100, 100}, 400, 800), -100, 100, -200, 200);
}

TEST(WidenToShape, WindowOfTheViewsShapeStays) {
  ExpectWindow(WidenToShape({-160, 160, -100, 100}, 1280, 800), -160, 160, -100, 100);
}

TEST(WidenToShape, GrowsAboutTheMiddleOfTheWindow) {
  ExpectWindow(WidenToShape({10, 30, 0, 20}, 200, 100), 0, 40, 0, 20);
}

TEST(WidenToShape, MirroredWindowStaysMirrored) {
  ExpectWindow(WidenToShape({100, -100, -100, 100}, 200, 100), 200, -200, -100, 100);
}

TEST(WidenToShape, WindowWithoutHeightTakesItsWidth) {
  ExpectWindow(WidenToShape({-10, 10, 5, 5}, 100, 100), -10, 10, -5, 15);
}

TEST(WidenToShape, WindowWithoutExtentIsAUnitHigh) {
  ExpectWindow(WidenToShape({3, 3, 7, 7}, 200, 100), 2, 4, 6.5, 7.5);
}

TEST(WidenToShape, ViewWithoutPixelsCountsAsOnePixel) {
  ExpectWindow(WidenToShape({-1, 1, -1, 1}, 0, -5), -1, 1, -1, 1);
}

TEST(CameraValues, GivesBackWhatWasSet) {
  CameraValues camera;
  camera.SetOrtho(-1, 2, -3, 4);
  camera.SetProjection(0);
  camera.Look(1, 2, 3, 4, 5, 6, 7, 8, 9);
  double left = 0;
  double right = 0;
  double bottom = 0;
  double top = 0;
  camera.GetOrtho(left, right, bottom, top);
  ExpectWindow({left, right, bottom, top}, -1, 2, -3, 4);
  EXPECT_EQ(camera.GetProjection(), 0);
  float x = 0;
  float y = 0;
  float z = 0;
  camera.GetPosition(x, y, z);
  ExpectTriple({x, y, z}, 1, 2, 3);
  camera.GetTarget(x, y, z);
  ExpectTriple({x, y, z}, 4, 5, 6);
  camera.GetUp(x, y, z);
  ExpectTriple({x, y, z}, 7, 8, 9);
}

TEST(CameraValues, NumberThatIsNotFiniteChangesNothing) {
  CameraValues camera;
  camera.SetPosition(1, 2, 3);
  camera.SetPosition(1, kNaN, 3);
  camera.SetOrtho(-5, 5, -5, 5);
  camera.SetOrtho(-5, std::numeric_limits<double>::infinity(), -5, 5);
  camera.SetFar(std::numeric_limits<double>::infinity());
  ExpectTriple(camera.SafeViewLine().eye, 1, 2, 3);
  ExpectWindow(camera.Window(), -5, 5, -5, 5);
  EXPECT_DOUBLE_EQ(camera.OrthoClip().farDistance, 10000);
}

TEST(CameraValues, OrthographicClipTakesNegativeDistances) {
  CameraValues camera;
  camera.SetNear(-10000);
  camera.SetFar(10000);
  EXPECT_DOUBLE_EQ(camera.OrthoClip().nearDistance, -10000);
  EXPECT_DOUBLE_EQ(camera.OrthoClip().farDistance, 10000);
}

TEST(CameraValues, OrthographicClipWithoutDepthIsReplaced) {
  CameraValues camera;
  camera.SetNear(7);
  camera.SetFar(7);
  EXPECT_DOUBLE_EQ(camera.OrthoClip().nearDistance, -10000);
  EXPECT_DOUBLE_EQ(camera.OrthoClip().farDistance, 10000);
}

TEST(CameraValues, PerspectiveClipStandsInFrontOfTheEye) {
  CameraValues camera;
  camera.SetNear(-10000);
  camera.SetFar(10000);
  EXPECT_DOUBLE_EQ(camera.PerspectiveClip().nearDistance, 1);
  EXPECT_DOUBLE_EQ(camera.PerspectiveClip().farDistance, 10000);
  camera.SetNear(5);
  EXPECT_DOUBLE_EQ(camera.PerspectiveClip().nearDistance, 5);
  camera.SetFar(-1);
  EXPECT_DOUBLE_EQ(camera.PerspectiveClip().farDistance, 10000);
}

TEST(CameraValues, FieldOf180IsTheHostsOwn) {
  CameraValues camera;
  camera.SetField(180);
  EXPECT_DOUBLE_EQ(camera.PerspectiveField(), 45);
  camera.SetField(30);
  EXPECT_DOUBLE_EQ(camera.PerspectiveField(), 30);
  camera.SetField(0);
  EXPECT_DOUBLE_EQ(camera.PerspectiveField(), 45);
}

TEST(CameraValues, UpVectorAcrossTheSightStays) {
  CameraValues camera;
  camera.Look(0, 0, 100, 0, 0, 0, 0, 2, 0);
  const ViewLine line = camera.SafeViewLine();
  ExpectTriple(line.eye, 0, 0, 100);
  ExpectTriple(line.up, 0, 1, 0);
}

TEST(CameraValues, EyeOnItsTargetLooksAlongMinusZ) {
  CameraValues camera;
  camera.Look(0, 0, 0, 0, 0, 0, 0, 1, 0);
  const ViewLine line = camera.SafeViewLine();
  ExpectTriple(line.eye, 0, 0, 1);
  ExpectTriple(line.target, 0, 0, 0);
  ExpectTriple(line.up, 0, 1, 0);
}

TEST(CameraValues, UpVectorAlongTheSightIsReplaced) {
  CameraValues camera;
  camera.Look(0, 100, 0, 0, 0, 0, 0, 1, 0);
  ExpectTriple(camera.SafeViewLine().up, 1, 0, 0);
  camera.Look(100, 0, 0, 0, 0, 0, -1, 0, 0);
  ExpectTriple(camera.SafeViewLine().up, 0, 1, 0);
}

TEST(CameraValues, UpVectorOfZeroIsReplacedByTheAxisMostAcross) {
  CameraValues camera;
  camera.Look(100, 50, 10, 0, 0, 0, 0, 0, 0);
  ExpectTriple(camera.SafeViewLine().up, 0, 0, 1);
}

}  // namespace
}  // namespace quorb
