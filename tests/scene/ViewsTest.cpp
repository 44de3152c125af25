#include <utility>

#include "ScenePlot.h"
#include "TaggedWindow.h"

namespace quorb {
namespace {

using Triple = RecordingHost::Point;

class ViewsTest : public ScenePlot {
 protected:
  ViewsTest() {
    DEJADRAW = 1;
    ResizeArmed = 1;
  }
  ~ViewsTest() override { ResizeArmed = 1; }

  static void ExpectTriple(const Triple& actual, const Triple& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-4);
    EXPECT_NEAR(actual.y, expected.y, 1e-4);
    EXPECT_NEAR(actual.z, expected.z, 1e-4);
  }

  /// The camera looks at the origin from `position`.
  void ExpectView(const Triple& up, const Triple& position) const {
    ExpectTriple(host.camera.up, up);
    ExpectTriple(host.camera.position, position);
    ExpectTriple(host.camera.target, {0, 0, 0});
  }

  /// The calls of one view.
  std::vector<std::string> Calls(const std::string& mode, double value, double flag) {
    ClearCalls();
    scene.CameraSet(mode, value, flag);
    return RecordedCalls();
  }

  TaggedWindow window;
};

constexpr float kHalf = 70.710678F;  // 100 cos 45°

/// 100 cos and 100 sin of a step's angle, for the steps 1 to 7 and 0 of a walk from its start.
struct Turn {
  float c, s;
};
constexpr Turn kTurns[8] = {{kHalf, kHalf},   {0, 100},  {-kHalf, kHalf}, {-100, 0},
                            {-kHalf, -kHalf}, {0, -100}, {kHalf, -kHalf}, {100, 0}};

/// The two entries, times 100, of the corners 1, 2, 3 and 0 of a walk from its start.
struct Corner {
  float a, b;
};
constexpr Corner kCorners[4] = {{-100, 100}, {-100, -100}, {100, -100}, {100, 100}};

// ---- the edge cases ---------------------------------------------------------------------------------------

TEST_F(ViewsTest, UpdateAskedLeavesTheCameraAsItWasAndTheAxisIsStillTaken) {
  USERFLAG.UpdateAsked = 1.0;
  for (const char* mode : {"ISO", "ISONEW", "ISONEWPLUS", "proj", "projinverse"}) {
    EXPECT_THAT(Calls(mode, 3, 0), IsEmpty()) << mode;
    EXPECT_THAT(Calls(mode, 1, 0), IsEmpty()) << mode;
    EXPECT_EQ(scene.CameraSteps.ViewAxis, 1) << mode;
    EXPECT_THAT(Calls(mode, 2, 1), IsEmpty()) << mode;
    EXPECT_EQ(scene.CameraSteps.ViewAxis, 2) << mode;
  }
  EXPECT_EQ(scene.CameraSteps.ViewStep, 0);
  EXPECT_EQ(scene.CameraSteps.ViewSign, 0);
  EXPECT_EQ(scene.CameraSteps.ProjStep, 0);
  EXPECT_EQ(scene.CameraSteps.RealQuadrant, 0);
}

TEST_F(ViewsTest, ValueTwoKeepsTheAxisChosenLast) {
  scene.CameraSet("ISONEW", 3, 0);
  scene.CameraSet("ISONEW", 2, 0);
  EXPECT_EQ(scene.CameraSteps.ViewAxis, 3);
  ExpectView({0, 0, 1}, {0, 100, 100});
}

TEST_F(ViewsTest, AFreshStartTakesTheAxisTwo) {
  scene.CameraSet("ISONEW", 2, 0);
  EXPECT_EQ(scene.CameraSteps.ViewAxis, 2);
  ExpectView({0, 1, 0}, {kHalf, 100, kHalf});
}

TEST_F(ViewsTest, ProjInverseFromZeroGoesToSeven) {
  scene.CameraSet("projinverse", 2, 0);
  EXPECT_EQ(scene.CameraSteps.ProjStep, 7);
  EXPECT_EQ(scene.CameraSteps.ProjStepSaved, 0);
  ExpectView({0, 1, 0}, {-100, 100, -100});
}

TEST_F(ViewsTest, BeforeAFrameIsonewRepeatsTheView) {
  DEJADRAW = 0;
  for (int call = 0; call < 3; ++call) {
    host.camera = {};
    scene.CameraSet("ISONEW", 3, 0);
    ExpectView({0, 0, 1}, {100, 0, 100});
    EXPECT_EQ(scene.CameraSteps.ViewStep, 0);
    EXPECT_EQ(scene.CameraSteps.ViewSign, 0);
  }
  DEJADRAW = 1;
  scene.CameraSet("ISONEW", 3, 0);
  ExpectView({0, 0, 1}, {kHalf, kHalf, 100});
}

// ---- the axis ---------------------------------------------------------------------------------------------

TEST_F(ViewsTest, FlagOneTakesTheValueAsItIs) {
  scene.CameraSet("ISONEW", 3, 0);
  scene.CameraSet("ISONEW", 2, 1);
  EXPECT_EQ(scene.CameraSteps.ViewAxis, 2);
  scene.CameraSet("ISONEW", 0, 1);
  EXPECT_EQ(scene.CameraSteps.ViewAxis, 0);
}

TEST_F(ViewsTest, ValuesNotAboveZeroKeepTheAxis) {
  scene.CameraSet("ISONEW", 3, 0);
  scene.CameraSet("ISONEW", 0, 0);
  EXPECT_EQ(scene.CameraSteps.ViewAxis, 3);
  scene.CameraSet("ISONEW", -1, 0);
  EXPECT_EQ(scene.CameraSteps.ViewAxis, 3);
}

TEST_F(ViewsTest, TheModeIsComparedTrimmedAndInAnyCase) {
  scene.CameraSet("  isoNew ", 3, 0);
  ExpectView({0, 0, 1}, {kHalf, kHalf, 100});
  scene.CameraSet(" iso", 3, 0);
  ExpectView({0, 0, 1}, {100, 100, 100});
  scene.CameraSet("IsoNewPlus ", 3, 0);
  ExpectView({0, 1, 0}, {-100, 100, 100});
  scene.CameraSet(" ProjInverse ", 3, 0);
  EXPECT_EQ(scene.CameraSteps.ProjStep, 7);
}

// ---- round the upward axis --------------------------------------------------------------------------------

TEST_F(ViewsTest, IsonewStepsRoundTheFirstAxis) {
  for (const Turn& turn : kTurns) {
    scene.CameraSet("ISONEW", 1, 0);
    ExpectView({1, 0, 0}, {100, turn.c, turn.s});
  }
}

TEST_F(ViewsTest, IsonewStepsRoundTheSecondAxis) {
  for (const Turn& turn : kTurns) {
    scene.CameraSet("ISONEW", 2, 0);
    ExpectView({0, 1, 0}, {turn.s, 100, turn.c});
  }
}

TEST_F(ViewsTest, IsonewStepsRoundTheThirdAxis) {
  for (const Turn& turn : kTurns) {
    scene.CameraSet("ISONEW", 3, 0);
    ExpectView({0, 0, 1}, {turn.c, turn.s, 100});
  }
}

TEST_F(ViewsTest, AnotherAxisStepsRoundTheFirstWithTheSecondUpward) {
  for (const Turn& turn : kTurns) {
    scene.CameraSet("ISONEW", 7, 0);
    ExpectView({0, 1, 0}, {100, turn.c, turn.s});
  }
}

TEST_F(ViewsTest, RealIsoWalksTheCornersBehindTheFirstAxis) {
  window.tag = "REAL_ISO";
  for (const Corner& corner : kCorners) {
    scene.CameraSet("ISONEW", 1, 0);
    EXPECT_TRUE(scene.CameraSteps.RealIso);
    ExpectView({1, 0, 0}, {100, corner.a, corner.b});
  }
}

TEST_F(ViewsTest, RealIsoWalksTheCornersBehindTheSecondAxis) {
  window.tag = "REAL_ISO";
  for (const Corner& corner : kCorners) {
    scene.CameraSet("ISONEW", 2, 0);
    ExpectView({0, 1, 0}, {corner.b, 100, corner.a});
  }
}

TEST_F(ViewsTest, RealIsoWalksTheCornersBehindTheThirdAxis) {
  window.tag = "REAL_ISO";
  for (const Corner& corner : kCorners) {
    scene.CameraSet("ISONEW", 3, 0);
    ExpectView({0, 0, 1}, {corner.a, corner.b, 100});
  }
}

TEST_F(ViewsTest, RealIsoLeavesTheViewsOfAnotherAxis) {
  window.tag = "REAL_ISO";
  scene.CameraSet("ISONEW", 7, 0);
  ExpectView({0, 1, 0}, {100, kHalf, kHalf});
}

TEST_F(ViewsTest, OnlyTheExactTagAsksForCorners) {
  window.tag = "REAL_ISO";
  scene.CameraSet("ISONEW", 3, 0);
  for (const char* tag : {"", "real_iso", "REAL_ISO "}) {
    window.tag = tag;
    scene.CameraSteps.RealIso = true;
    scene.CameraSet("ISONEW", 3, 0);
    EXPECT_FALSE(scene.CameraSteps.RealIso) << tag;
  }
  ExpectView({0, 0, 1}, {-100, 0, 100});
}

TEST_F(ViewsTest, TheCornersGoOnInEveryCallOfIsonew) {
  scene.CameraSet("ISONEW", 3, 0);
  EXPECT_EQ(scene.CameraSteps.RealQuadrant, 1);
  DEJADRAW = 0;
  scene.CameraSet("ISONEW", 3, 0);
  EXPECT_EQ(scene.CameraSteps.RealQuadrant, 2);
  window.tag = "REAL_ISO";
  scene.CameraSet("ISONEW", 3, 0);
  ExpectView({0, 0, 1}, {100, -100, 100});
}

TEST_F(ViewsTest, IsonewKeepsTheStepBeforeAndTurnsTheSign) {
  scene.CameraSteps.ViewStep = 6;
  scene.CameraSet("ISONEW", 3, 0);
  EXPECT_EQ(scene.CameraSteps.ViewStepSaved, 6);
  EXPECT_EQ(scene.CameraSteps.ViewStep, 7);
  EXPECT_EQ(scene.CameraSteps.ViewSign, 1);
  scene.CameraSet("ISONEW", 3, 0);
  EXPECT_EQ(scene.CameraSteps.ViewStepSaved, 7);
  EXPECT_EQ(scene.CameraSteps.ViewStep, 0);
  EXPECT_EQ(scene.CameraSteps.ViewSign, 0);
}

// ---- the loader's layout ----------------------------------------------------------------------------------

TEST_F(ViewsTest, WhileTheLoaderLaysTheWindowOutTheViewsStand) {
  ResizeArmed = 0;
  scene.CameraSteps.ViewStep = 2;
  scene.CameraSteps.ViewStepSaved = 1;
  scene.CameraSet("ISONEW", 3, 0);
  ExpectView({0, 0, 1}, {0, 100, 100});
  scene.CameraSet("ISONEWPLUS", 3, 0);
  ExpectView({0, 1, 0}, {-100, 100, 100});
  EXPECT_EQ(scene.CameraSteps.ViewStep, 2);
  EXPECT_EQ(scene.CameraSteps.ViewStepSaved, 2);
  EXPECT_EQ(scene.CameraSteps.ViewSign, 0);
}

TEST_F(ViewsTest, TheProjectionsStepInAnyState) {
  ResizeArmed = 0;
  DEJADRAW = 0;
  scene.CameraSet("proj", 2, 0);
  EXPECT_EQ(scene.CameraSteps.ProjStep, 1);
}

// ---- over the corners -------------------------------------------------------------------------------------

TEST_F(ViewsTest, IsonewPlusWalksSixViewsOverTwoCorners) {
  const std::pair<Triple, Triple> views[] = {{{1, 0, 0}, {-100, 100, 100}},  {{0, 1, 0}, {-100, 100, 100}},
                                             {{0, 0, 1}, {-100, -100, 100}}, {{1, 0, 0}, {-100, -100, 100}},
                                             {{0, 1, 0}, {-100, -100, 100}}, {{0, 0, 1}, {-100, 100, 100}}};
  int step = 0;
  for (const auto& [up, position] : views) {
    scene.CameraSet("ISONEWPLUS", 2, 0);
    ExpectView(up, position);
    EXPECT_EQ(scene.CameraSteps.ViewStepSaved, step);
    step = (step + 1) % 6;
    EXPECT_EQ(scene.CameraSteps.ViewStep, step);
    EXPECT_EQ(scene.CameraSteps.ViewSign, step % 2);
  }
}

TEST_F(ViewsTest, IsonewPlusBeforeAFrameRepeatsTheView) {
  DEJADRAW = 0;
  scene.CameraSteps.ViewStep = 4;
  for (int call = 0; call < 2; ++call) {
    scene.CameraSet("ISONEWPLUS", 2, 0);
    ExpectView({1, 0, 0}, {-100, -100, 100});
  }
}

TEST_F(ViewsTest, AStepOfTheOtherWalkBehindTheSixthKeepsTheUpDirection) {
  ResizeArmed = 0;
  for (const int step : {6, 7}) {
    scene.CameraSteps.ViewStep = step;
    host.camera.up = {0, 0.6F, 0.8F};
    scene.CameraSet("ISONEWPLUS", 2, 0);
    ExpectView({0, 0.6F, 0.8F}, {-100, -100, 100});
  }
}

// ---- one view, and the projections ------------------------------------------------------------------------

TEST_F(ViewsTest, IsoIsOneViewAndKeepsTheStep) {
  scene.CameraSteps.ViewStep = 5;
  for (int call = 0; call < 2; ++call) {
    scene.CameraSet("ISO", 2, 0);
    ExpectView({0, 0, 1}, {100, 100, 100});
    EXPECT_EQ(scene.CameraSteps.ViewStep, 5);
    EXPECT_EQ(scene.CameraSteps.ViewStepSaved, 5);
    EXPECT_EQ(scene.CameraSteps.ViewSign, 0);
  }
}

class ProjectionsTest : public ViewsTest {
 protected:
  const std::pair<Triple, Triple> views[8] = {{{0, 0, 1}, {100, 0, 0}},     {{0, 0, 1}, {0, -100, 0}},
                                              {{1, 0, 0}, {0, 0, 100}},     {{1, 0, 0}, {0, 100, 0}},
                                              {{0, 1, 0}, {0, 0, 100}},     {{0, 1, 0}, {100, 0, 0}},
                                              {{0, 1, 0}, {100, 100, 100}}, {{0, 1, 0}, {-100, 100, -100}}};
};

TEST_F(ProjectionsTest, ForwardTheyFollowTheirOrder) {
  for (const int step : {1, 2, 3, 4, 5, 6, 7, 0}) {
    const int before = scene.CameraSteps.ProjStep;
    scene.CameraSet("proj", 2, 0);
    EXPECT_EQ(scene.CameraSteps.ProjStep, step);
    EXPECT_EQ(scene.CameraSteps.ProjStepSaved, before);
    ExpectView(views[step].first, views[step].second);
  }
}

TEST_F(ProjectionsTest, BackwardTheyGoTheOtherWay) {
  for (const int step : {7, 6, 5, 4, 3, 2, 1, 0}) {
    const int before = scene.CameraSteps.ProjStep;
    scene.CameraSet("projinverse", 2, 0);
    EXPECT_EQ(scene.CameraSteps.ProjStep, step);
    EXPECT_EQ(scene.CameraSteps.ProjStepSaved, before);
    ExpectView(views[step].first, views[step].second);
  }
}

TEST_F(ProjectionsTest, AnyOtherTextWalksForward) {
  scene.CameraSet("", 2, 0);
  scene.CameraSet("iso new", 2, 0);
  EXPECT_EQ(scene.CameraSteps.ProjStep, 2);
  ExpectView(views[2].first, views[2].second);
}

// ---- the calls --------------------------------------------------------------------------------------------

std::vector<std::string> CallsOfView(const std::string& up, const std::string& position) {
  return {"Camera.SetUp(" + up + ")",  "Camera.SetPosition(" + position + ")",
          "Camera.SetTarget(0, 0, 0)", "Camera.SetFar(10000)",
          "Camera.SetNear(-10000)",    "Camera.SetField(180)",
          "Camera.SetProjection(1)"};
}

TEST_F(ViewsTest, EveryModeEndsWithFarNearFieldAndProjection) {
  EXPECT_EQ(Calls("ISO", 2, 0), CallsOfView("0, 0, 1", "100, 100, 100"));
  EXPECT_EQ(Calls("ISONEWPLUS", 2, 0), CallsOfView("1, 0, 0", "-100, 100, 100"));
  EXPECT_EQ(Calls("proj", 2, 0), CallsOfView("0, 0, 1", "0, -100, 0"));
  EXPECT_EQ(Calls("projinverse", 2, 0), CallsOfView("0, 0, 1", "100, 0, 0"));
  DEJADRAW = 0;
  scene.CameraSteps.ViewStep = 0;
  EXPECT_EQ(Calls("ISONEW", 2, 0), CallsOfView("0, 1, 0", "0, 100, 100"));
}

}  // namespace
}  // namespace quorb
