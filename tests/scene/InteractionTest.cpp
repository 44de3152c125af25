#include "Interaction.h"

#include "ScenePlot.h"

namespace quorb {
namespace {

constexpr int kLeft = 1, kRight = 2, kMiddle = 4;

/// A view of 256 x 256 pixels on the window -1 to 7 by -5 to 5, which is sqrt(1 + 49 + 25 + 25) = 10 long.
class InteractionTest : public ScenePlot {
 protected:
  InteractionTest() {
    scene.ViewWidth = scene.ViewHeight = 256;
    scene.InvRange = 0.0625;
    SetWindow(-1, 7, -5, 5);
  }

  void SetWindow(double left, double right, double bottom, double top) {
    const double sides[4] = {left, right, bottom, top};
    std::copy(sides, sides + 4, host.camera.window);
  }

  /// The calls since the last ClearCalls() that change something.
  static std::vector<std::string> Changes() {
    std::vector<std::string> calls = RecordedCalls();
    std::erase_if(calls, [](const std::string& call) { return call.starts_with("Camera.Get"); });
    return calls;
  }

  /// What a move to (x, y) changes.
  std::vector<std::string> Move(int button, double x, double y) {
    ClearCalls();
    scene.MouseMove(button, 0, x, y);
    return Changes();
  }

  /// What a drag from (50, 40) to (x, y) changes in a mode.
  std::vector<std::string> Drag(int mode, int button, double x, double y) {
    scene.EditStateValue = mode;
    scene.MouseDown(button, 0, 50, 40);
    return Move(button, x, y);
  }
};

// ---- the modes ------------------------------------------------------------------------------------------

struct ModeRow {
  int mode;
  int cursor;
};
constexpr ModeRow kModes[] = {{1, 0},   {2, 210}, {3, 211},  {4, 203},  {5, 212},  {6, 200}, {7, 202},
                              {8, 201}, {9, 207}, {10, 204}, {11, 205}, {12, 206}, {16, 0},  {17, 0}};

TEST_F(InteractionTest, EachModeShowsItsCursor) {
  for (const ModeRow& row : kModes) {
    SCOPED_TRACE(row.mode);
    ClearCalls();
    scene.EditState(row.mode);
    EXPECT_EQ(scene.EditState(), row.mode);
    EXPECT_THAT(RecordedCalls(), ElementsAre("SetMousePointer(" + std::to_string(row.cursor) + ", \"\")"));
  }
}

TEST_F(InteractionTest, ZMinusWidensTheWindowThreeTimesAndZPlusNarrowsIt) {
  scene.Range = 90;
  scene.EditState(13);
  EXPECT_EQ(scene.EditState(), 13);
  EXPECT_THAT(RecordedCalls(), ElementsAre("Camera.SetOrtho(-270, 270, -270, 270)"));
  ClearCalls();
  scene.EditState(13);
  scene.EditState(14);
  scene.EditState(14);
  EXPECT_EQ(scene.EditState(), 14);
  scene.EditState(14);
  EXPECT_THAT(RecordedCalls(),
              ElementsAre("Camera.SetOrtho(-810, 810, -810, 810)", "Camera.SetOrtho(-270, 270, -270, 270)",
                          "Camera.SetOrtho(-90, 90, -90, 90)", "Camera.SetOrtho(-30, 30, -30, 30)"));
}

TEST_F(InteractionTest, TheFirstModeSetTakesTheWindowFromTheRange) {
  scene.Range = 90;
  scene.EditState(6);
  EXPECT_EQ(scene.OrthoHalfWidth, 90);
  scene.Range = 50;
  scene.EditState(14);
  EXPECT_EQ(scene.OrthoHalfWidth, 30);
}

TEST_F(InteractionTest, LightBackTurnsTheBackgroundWhiteAndBack) {
  scene.EditState(15);
  EXPECT_THAT(RecordedCalls(), ElementsAre("SetMousePointer(0, \"\")", "MakeCurrent()",
                                           "glClearColor(1, 1, 1, 0)", "DoneCurrent()"));
  EXPECT_EQ(scene.WhiteBack, 1);
  ClearCalls();
  scene.EditState(15);
  EXPECT_THAT(RecordedCalls(),
              ElementsAre("SetMousePointer(0, \"\")", "MakeCurrent()",
                          "glClearColor(0.0390625, 0.078125, 0.2734375, 1)", "DoneCurrent()"));
  EXPECT_EQ(scene.WhiteBack, 0);
}

TEST_F(InteractionTest, TheNextFrameSetsItsOwnBackground) {
  scene.EditState(15);
  EXPECT_EQ(CountOf(Frame(), "glClearColor(0.0390625, 0.078125, 0.2734375, 1)"), 1);
  EXPECT_EQ(scene.WhiteBack, 1) << "the next lightback turns back";
}

// ---- the cursor -----------------------------------------------------------------------------------------

TEST_F(InteractionTest, OnlyKnownCursorsAreTakenByTheirNumber) {
  struct Row {
    int id, expected;
  };
  const Row rows[] = {{-1, 0},    {0, 0},     {1, 1},     {15, 15},   {16, 0},  {98, 0},
                      {100, 0},   {199, 0},   {200, 200}, {207, 207}, {208, 0}, {209, 0},
                      {210, 210}, {211, 211}, {212, 212}, {213, 0}};
  for (const Row& row : rows) {
    ClearCalls();
    scene.SetCursor(row.id);
    EXPECT_THAT(RecordedCalls(), ElementsAre("SetMousePointer(" + std::to_string(row.expected) + ", \"\")"))
        << row.id;
  }
}

TEST_F(InteractionTest, CursorNinetyNineTakesAPicture) {
  scene.SetCursor(99, "ship.png");
  EXPECT_THAT(RecordedCalls(), ElementsAre("SetMousePointer(99, \"ship.png\")"));
}

// ---- the stored positions -------------------------------------------------------------------------------

TEST_F(InteractionTest, APressKeepsItsPlaceRoundedAndNormalised) {
  scene.MouseGain = 5;
  scene.MouseDown(kLeft, 0, 64, 32);
  EXPECT_EQ(scene.MouseGain, 1);
  EXPECT_EQ(scene.MouseNormX, -0.5);  // 2 x 64 / 256 - 1
  EXPECT_EQ(scene.MouseNormY, 0.75);  // 2 x 224 / 256 - 1
  scene.MouseDown(kLeft, 0, 10.5, 11.5);
  EXPECT_EQ(scene.MouseLastX, 10) << "halves to even";
  EXPECT_EQ(scene.MouseLastY, 12);
  EXPECT_EQ(scene.MouseDownX, 10);
  EXPECT_EQ(scene.MouseDownY, 12);
  EXPECT_THAT(RecordedCalls(), IsEmpty());
}

TEST_F(InteractionTest, APressOfAnotherButtonIsTheLastPositionAlone) {
  scene.MouseDown(kLeft, 0, 64, 32);
  scene.MouseDown(kRight, 0, 100, 110);
  EXPECT_EQ(scene.MouseLastX, 100);
  EXPECT_EQ(scene.MouseLastY, 110);
  EXPECT_EQ(scene.MouseDownX, 64);
  EXPECT_EQ(scene.MouseDownY, 32);
  EXPECT_EQ(scene.MouseNormX, -0.5);
  EXPECT_EQ(scene.MouseNormY, 0.75);
}

TEST_F(InteractionTest, AMoveWithoutAButtonDoesNothingAtAll) {
  scene.MouseDown(kLeft, 0, 64, 32);
  EXPECT_THAT(Move(0, 100, 110), IsEmpty());
  EXPECT_EQ(scene.MouseLastX, 64);
  EXPECT_EQ(scene.MouseLastY, 32);
  EXPECT_EQ(scene.MouseNormX, -0.5);
}

TEST_F(InteractionTest, TheNormalisedPlaceLagsOneEvent) {
  for (const int button : {kLeft, kRight}) {
    scene.MouseDown(button, 0, 64, 32);
    Move(button, 96, 160);
    EXPECT_EQ(scene.MouseNormX, -0.5) << "the press";
    EXPECT_EQ(scene.MouseNormY, 0.75);
    Move(button, 0, 0);
    EXPECT_EQ(scene.MouseNormX, -0.25) << "2 x 96 / 256 - 1";
    EXPECT_EQ(scene.MouseNormY, -0.25) << "2 x 96 / 256 - 1, from below";
    EXPECT_EQ(scene.MouseLastX, 0);
    EXPECT_EQ(scene.MouseLastY, 0);
  }
}

TEST_F(InteractionTest, AnotherButtonMovesTheLastPositionAndAsksForAFrame) {
  scene.MouseDown(kLeft, 0, 64, 32);
  EXPECT_THAT(Move(kMiddle, 100, 110), ElementsAre("Redraw()"));
  EXPECT_EQ(scene.MouseLastX, 100);
  EXPECT_EQ(scene.MouseLastY, 110);
  Move(kMiddle, 0, 0);
  EXPECT_EQ(scene.MouseNormX, -0.5);
}

TEST_F(InteractionTest, AViewWithoutSizeIsNotDragged) {
  scene.ViewWidth = scene.ViewHeight = 0;
  EXPECT_THAT(Drag(12, kLeft, 60, 60), ElementsAre("Redraw()"));
  EXPECT_EQ(scene.MouseNormX, 0);
  EXPECT_EQ(scene.MouseLastX, 60);
}

// ---- drags with the left button -------------------------------------------------------------------------

TEST_F(InteractionTest, ThreeModesPan) {
  for (const int mode : {1, 8, 17}) {
    SCOPED_TRACE(mode);
    // 8 right and 4 up, times 0.0025 x 10.
    EXPECT_THAT(Drag(mode, kLeft, 58, 36), ElementsAre("Camera.Pan(0.2, 0.1)", "Redraw()"));
    EXPECT_THAT(Move(kLeft, 57, 76), ElementsAre("Camera.Pan(-0.025, -1)", "Redraw()"))
        << "from the place before";
  }
}

TEST_F(InteractionTest, TheOtherModesLeaveTheCamera) {
  for (const int mode : {2, 3, 4, 5, 9, 13, 14, 15, 16}) {
    SCOPED_TRACE(mode);
    EXPECT_THAT(Drag(mode, kLeft, 58, 36), ElementsAre("Redraw()"));
    EXPECT_EQ(scene.MouseLastX, 58);
  }
}

TEST_F(InteractionTest, DollyComesNearerUpward) {
  EXPECT_THAT(Drag(7, kLeft, 50, 41), ElementsAre("Camera.Dolly(-0.0125)", "Redraw()"));  // 0.0625 / 5
  EXPECT_THAT(Drag(7, kLeft, 50, 10), ElementsAre("Camera.Dolly(0.0125)", "Redraw()"));
  EXPECT_THAT(Drag(7, kLeft, 90, 40), ElementsAre("Redraw()")) << "neither up nor down";
}

TEST_F(InteractionTest, PitchTurnsByTheRowsMoved) {
  EXPECT_THAT(Drag(10, kLeft, 58, 36.25), ElementsAre("Camera.Pitch(3.75)", "Redraw()"));
  EXPECT_EQ(scene.MouseLastY, 36);
  EXPECT_THAT(Move(kLeft, 58, 46), ElementsAre("Camera.Pitch(-10)", "Redraw()"));
}

TEST_F(InteractionTest, YawTurnsByTheColumnsMoved) {
  EXPECT_THAT(Drag(11, kLeft, 58.5, 36), ElementsAre("Camera.Yaw(-8.5)", "Redraw()"));
  EXPECT_EQ(scene.MouseLastX, 58);
  EXPECT_THAT(Move(kLeft, 48, 46), ElementsAre("Camera.Yaw(10)", "Redraw()"));
}

TEST_F(InteractionTest, RollTurnsByTheAngleOfTheMoveBefore) {
  scene.EditStateValue = 12;
  scene.MouseDown(kLeft, 0, 192, 128);  // (0.5, 0)
  EXPECT_THAT(Move(kLeft, 208, 112), ElementsAre("Camera.Roll(0)", "Redraw()")) << "nothing has moved yet";
  // The place of the event before is (0.625, 0.125): one eighth right and one up, 45 degrees in radians.
  EXPECT_THAT(Move(kLeft, 0, 0), ElementsAre("Camera.Roll(0.7853982)", "Redraw()"));
}

TEST_F(InteractionTest, RollIsReversedInTheLeftHalf) {
  scene.EditStateValue = 12;
  scene.MouseDown(kLeft, 0, 64, 128);  // (-0.5, 0)
  Move(kLeft, 80, 112);
  EXPECT_THAT(Move(kLeft, 80, 96), ElementsAre("Camera.Roll(-0.7853982)", "Redraw()"));
  // Now straight up from (-0.375, 0.125) to (-0.375, 0.25), a quarter of a turn.
  EXPECT_THAT(Move(kLeft, 0, 0), ElementsAre("Camera.Roll(-1.5707964)", "Redraw()"));
}

// ---- zoom -----------------------------------------------------------------------------------------------

TEST_F(InteractionTest, ZoomUpwardNarrowsTheWindow) {
  SetWindow(-8, 8, -4, 4);  // 16 / 16 and 8 / 16 on each side
  EXPECT_THAT(Drag(6, kLeft, 50, 39), ElementsAre("Camera.SetOrtho(-7, 7, -3.5, 3.5)", "Redraw()"));
}

TEST_F(InteractionTest, ZoomDownwardWidensTheWindow) {
  SetWindow(-8, 8, -4, 4);
  EXPECT_THAT(Drag(6, kLeft, 50, 90), ElementsAre("Camera.SetOrtho(-9, 9, -4.5, 4.5)", "Redraw()"));
}

TEST_F(InteractionTest, ZoomSidewaysLeavesTheWindow) {
  EXPECT_THAT(Drag(6, kLeft, 90, 40), ElementsAre("Redraw()"));
  host.camera.projection = 0;
  EXPECT_THAT(Drag(6, kLeft, 90, 40), ElementsAre("Redraw()"));
}

TEST_F(InteractionTest, ADataColumnZoomsTenTimesSlower) {
  ColumnMode = 1;
  SetWindow(-8, 8, -4, 4);
  Drag(6, kLeft, 50, 39);
  EXPECT_DOUBLE_EQ(host.camera.window[0], -7.9);
  EXPECT_DOUBLE_EQ(host.camera.window[1], 7.9);
  EXPECT_DOUBLE_EQ(host.camera.window[2], -3.95);
  EXPECT_DOUBLE_EQ(host.camera.window[3], 3.95);
}

TEST_F(InteractionTest, ZoomingPastThePointWhereLeftMeetsRightLeavesTheWindow) {
  SetWindow(-8, 8, -4, 4);
  scene.InvRange = 0.5;
  EXPECT_THAT(Drag(6, kLeft, 50, 39), ElementsAre("Redraw()")) << "they meet";
  scene.InvRange = 0.75;
  EXPECT_THAT(Drag(6, kLeft, 50, 39), ElementsAre("Redraw()")) << "they cross";
  SetWindow(-8, 8, 4, -4);
  scene.InvRange = 0.0625;
  EXPECT_THAT(Drag(6, kLeft, 50, 39), ElementsAre("Redraw()")) << "top lies below bottom";
  SetWindow(3, 3, -4, 4);
  EXPECT_THAT(Drag(6, kLeft, 50, 39), ElementsAre("Redraw()")) << "it has no width";
}

TEST_F(InteractionTest, APerspectiveViewIsNarrowedAndWidenedByATwentieth) {
  host.camera.projection = 0;
  EXPECT_THAT(Drag(6, kLeft, 50, 41), ElementsAre("Camera.Zoom(0.95)", "Redraw()"));
  EXPECT_THAT(Drag(6, kLeft, 50, 39), ElementsAre("Camera.Zoom(1.05)", "Redraw()"));
}

// ---- drags with the right button ------------------------------------------------------------------------

TEST_F(InteractionTest, TheRightButtonDoesNothingInTheModeSelect) {
  EXPECT_THAT(Drag(1, kRight, 58, 36), ElementsAre("Redraw()"));
}

TEST_F(InteractionTest, TheRightButtonPansInTheModeZoom) {
  EXPECT_THAT(Drag(6, kRight, 58, 36), ElementsAre("Camera.Pan(0.2, 0.1)", "Redraw()"));
}

TEST_F(InteractionTest, TheRightButtonZoomsInAllOtherModes) {
  for (const int mode : {2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17}) {
    SCOPED_TRACE(mode);
    SetWindow(-8, 8, -4, 4);
    EXPECT_THAT(Drag(mode, kRight, 58, 36), ElementsAre("Camera.SetOrtho(-7, 7, -3.5, 3.5)", "Redraw()"));
  }
}

// ---- picking --------------------------------------------------------------------------------------------

TEST_F(InteractionTest, PickTakesTheNearestName) {
  scene.Pick({1, 100, 200, 7, 2, 50, 60, 8, 9, 1, 70, 80, 10});
  EXPECT_EQ(scene.PickedName, 8) << "of equal depths the first";
}

TEST_F(InteractionTest, DepthsAreUnsigned) {
  scene.Pick({1, -1, 0, 5, 1, 0x7FFFFFFF, 0, 6});
  EXPECT_EQ(scene.PickedName, 6) << "-1 is the farthest";
  scene.Pick({1, 0x7FFFFFFF, 0, 6, 1, INT32_MIN, 0, 5});
  EXPECT_EQ(scene.PickedName, 6);
  scene.Pick({1, -1, 0, 5});
  EXPECT_EQ(scene.PickedName, 5) << "even the farthest is a hit";
}

TEST_F(InteractionTest, TheNameMinusOneDoesNotCount) {
  scene.Pick({2, 10, 20, -1, 4, 1, 5, 20, -1});
  EXPECT_EQ(scene.PickedName, 4);
}

TEST_F(InteractionTest, NothingHitIsZero) {
  scene.Pick({1, 10, 20, 4});
  scene.Pick({});
  EXPECT_EQ(scene.PickedName, 0);
  scene.Pick({1, 10, 20, 4});
  scene.Pick({1, 10, 20, -1});
  EXPECT_EQ(scene.PickedName, 0);
}

TEST_F(InteractionTest, ARecordWithoutNamesIsPassedOver) {
  scene.Pick({0, 5, 6, 1, 50, 60, 8});
  EXPECT_EQ(scene.PickedName, 8);
}

TEST_F(InteractionTest, ARecordThatEndsBehindTheBufferIsLeftOut) {
  scene.Pick({1, 50, 60, 8, 3, 10, 20, 1, 2});
  EXPECT_EQ(scene.PickedName, 8);
  scene.Pick({1, 50, 60, 8, 1, 10});
  EXPECT_EQ(scene.PickedName, 8);
  scene.Pick({INT32_MAX, 10, 20, 1});
  EXPECT_EQ(scene.PickedName, 0);
}

TEST_F(InteractionTest, APickedNameBelowTenDoesNotStopTheDrag) {
  scene.PickedName = 9;
  EXPECT_THAT(Drag(1, kLeft, 58, 36), ElementsAre("Camera.Pan(0.2, 0.1)", "Redraw()"));
  EXPECT_TRUE(scene.PickDragging);
}

TEST_F(InteractionTest, APickedNameFromTenOnHoldsTheCamera) {
  scene.PickedName = 10;
  EXPECT_THAT(Drag(1, kLeft, 58, 36), ElementsAre("Redraw()"));
  EXPECT_EQ(scene.MouseLastX, 58);
  EXPECT_EQ(scene.MouseLastY, 36);
}

TEST_F(InteractionTest, OnlyAPressInTheModeSelectOnANameStartsAPickDrag) {
  scene.PickedName = 10;
  EXPECT_THAT(Drag(8, kLeft, 58, 36), ElementsAre("Camera.Pan(0.2, 0.1)", "Redraw()"));
  EXPECT_FALSE(scene.PickDragging);
  Drag(1, kRight, 58, 36);
  EXPECT_FALSE(scene.PickDragging);
  scene.PickedName = 0;
  Drag(1, kLeft, 58, 36);
  EXPECT_FALSE(scene.PickDragging);
}

TEST_F(InteractionTest, TheEndOfAButtonEndsThePickDrag) {
  scene.PickedName = 10;
  Drag(1, kLeft, 50, 40);
  scene.MouseUp(0, 0, 50, 40);
  EXPECT_TRUE(scene.PickDragging) << "no button ended";
  scene.MouseUp(kLeft, 0, 50, 40);
  EXPECT_FALSE(scene.PickDragging);
  EXPECT_EQ(scene.PickedName, 10);
  EXPECT_THAT(Move(kLeft, 58, 36), ElementsAre("Camera.Pan(0.2, 0.1)", "Redraw()"));
}

}  // namespace
}  // namespace quorb
