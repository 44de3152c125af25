#include "FrameKey.h"

#include "ScenePlot.h"

namespace quorb {
namespace {

class FrameKeyTest : public ScenePlot {
 protected:
  FrameKeyTest() {
    for (int row = 0; row <= 10; ++row)
      SetPoint(row, row, row, 0, 0);
    TakePlotAsItIs();
    scene.CURRINDEXI = 0;
    STEPPT = 4;
  }

  /// Frames until none is due, as the host draws them.
  void Settle() {
    for (int frame = 0; frame < 5 && scene.FrameIsDue(); ++frame)
      scene.Draw();
    ASSERT_FALSE(scene.FrameIsDue());
  }

  void Tick(int times) {
    for (int tick = 0; tick < times; ++tick)
      scene.TheUpdateTimer_ThatTime();
  }
};

TEST_F(FrameKeyTest, TheFirstTwoFramesAreDue) {
  EXPECT_TRUE(scene.FrameIsDue());
  scene.Draw();
  EXPECT_TRUE(scene.FrameIsDue()) << "the axes lag one frame";
  scene.Draw();
  EXPECT_FALSE(scene.FrameIsDue());
  scene.Draw();
  EXPECT_FALSE(scene.FrameIsDue());
}

TEST_F(FrameKeyTest, EachChangeOfWhatIsShownMakesTwoFramesDue) {
  struct Change {
    const char* name;
    std::function<void()> make;
  };
  int width = 800;
  int height = 600;
  const Change changes[] = {
      {"an option", [] { USERFLAG.LargeCharacters = 1; }},
      {"a colour", [] { USERFLAG.ColourAxis.green = 3; }},
      {"the eye", [&] { host.camera.position.x = 5; }},
      {"the target", [&] { host.camera.target.y = 5; }},
      {"upward", [&] { host.camera.up.z = 5; }},
      {"the window", [&] { host.camera.window[3] = 5; }},
      {"the projection", [&] { host.camera.projection = 0; }},
      {"the size", [&] { scene.Reshape(width, height); }},
      {"the last row", [&] { scene.CURRINDEXI = 3; }},
      {"the first row", [&] { scene.CURRINDEXMINI = 1; }},
      {"the title", [] { MessageUserToPlot = "Transfer"; }},
      {"the head of the title", [] { TitlePrefix = "*"; }},
      {"the grids", [&] { scene.Grids(true); }},
      {"a white background", [&] { scene.EditState(15); }},
      {"the labels", [] { PenUpLabelShow = 1; }},
      {"a plot to digest", [] { DEJADRAW = 0; }},
  };
  Settle();
  for (const Change& change : changes) {
    SCOPED_TRACE(change.name);
    change.make();
    EXPECT_TRUE(scene.FrameIsDue());
    scene.Draw();
    EXPECT_TRUE(scene.FrameIsDue());
    scene.Draw();
    EXPECT_FALSE(scene.FrameIsDue());
  }
}

TEST_F(FrameKeyTest, RowsThatChangedMakeTwoFramesDueThoughAllElseStays) {
  Settle();
  const int row = scene.CURRINDEXI;
  SetPoint(1, 1, 2, 0, 0);
  EXPECT_FALSE(scene.FrameIsDue());
  scene.ShowChangedRows();
  EXPECT_TRUE(scene.FrameIsDue());
  scene.Draw();
  EXPECT_TRUE(scene.FrameIsDue());
  scene.Draw();
  EXPECT_FALSE(scene.FrameIsDue());
  EXPECT_EQ(scene.CURRINDEXI, row);
}

TEST_F(FrameKeyTest, TheRunningTimeMakesFramesDueUntilItStandsAtTheLastRow) {
  Settle();
  for (const int row : {4, 8, 10}) {
    Tick(4);
    EXPECT_FALSE(scene.FrameIsDue()) << "no tick has passed";
    Tick(1);
    EXPECT_EQ(scene.CURRINDEXI, row);
    EXPECT_TRUE(scene.FrameIsDue());
    Settle();
  }
  Tick(50);
  EXPECT_FALSE(scene.FrameIsDue());
}

TEST_F(FrameKeyTest, HeldTimeMakesNoFrameDue) {
  RedrawState = 1;
  Settle();
  Tick(50);
  EXPECT_FALSE(scene.FrameIsDue());
}

TEST_F(FrameKeyTest, AChangeTakenBackBeforeAFrameMakesNoneDue) {
  Settle();
  USERFLAG.CubicView = 1;
  USERFLAG.CubicView = 0;
  EXPECT_FALSE(scene.FrameIsDue());
}

}  // namespace
}  // namespace quorb
