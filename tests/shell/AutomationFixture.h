#pragma once

#include <algorithm>

#include "AutomationCalls.h"
#include "HostEvents.h"
#include "TextHelpers.h"
#include "WindowFixture.h"

namespace quorb {

/// Runs something while a box is up.
class BoxOfTest : public ScriptedDialogs {
 public:
  std::function<void()> whileUp;
  BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override {
    const BoxAnswer answer = ScriptedDialogs::MessageBox(prompt, title, style);
    if (whileUp) whileUp();
    return answer;
  }
};

/// Bodies that do something in the middle of a frame.
class AskingBodies : public SceneBodies {
 public:
  explicit AskingBodies(std::function<void()> act) : act_(std::move(act)) {}
  void Start() override { act_(); }
  void DrawSunRay() override {}
  void DrawSatellite() override {}
  void SunAndLight() override {}
  void DrawCentralBody() override {}
  void DrawMoon() override {}
  void AddToKey(std::vector<double>& /*numbers*/) const override {}

 private:
  std::function<void()> act_;
};

/// The window on a file of four points at the scale 0.01, the third behind a lifted pen, all of it drawn.
class AutomationFixture : public WindowFixture {
 protected:
  AutomationFixture() {
    files.contents["/data/orbit.qbv"] =
        "From: \tBook\tSheet\t=0.01+LEN(\"Test km\")+MAX(A2:C5)+MAX(D2:D5)\t0.0100000000\tTest km\tDate "
        "\tmark\t\r\n"
        "1000\t0\t0\t0\r\n"
        "0\t2000\t0\t86400\r\n"
        "\t3000\t0\t172800\r\n"
        "4000\t0\t0\t259200\r\n";
  }

  void Start() {
    Load("/data/orbit.qbv");
    events.Initialise();
    events.ContextReady();
    events.Resize(640, 480);
    Form_Activate();
  }
  void StartAndShow() {
    Start();
    Settle();
    ASSERT_EQ(TheScene->CURRINDEXI, 3);
    ASSERT_EQ(FactorScale, 0.02);
  }

  /// Frames and ticks until no frame is due; how many frames there were.
  int Settle() {
    int frames = 0;
    for (; frames < 20 && TheScene->FrameIsDue(); ++frames) {
      events.Draw();
      for (int tick = 0; tick < 5; ++tick)
        TheScene->TheUpdateTimer_ThatTime();
    }
    return frames;
  }

  static std::string Rows(int count) {
    std::string text;
    for (int i = 0; i < count; ++i)
      text += "1\t2\t3\r\n";
    return text;
  }
  static std::vector<double> Point(int row) { return {dataXYZT[row][1], dataXYZT[row][2], dataXYZT[row][3]}; }
  static std::vector<float> Eye() {
    std::vector<float> eye(3);
    glxCtl1->Camera().GetPosition(eye[0], eye[1], eye[2]);
    return eye;
  }
  static long Redraws() { return std::count(RecordedCalls().begin(), RecordedCalls().end(), "Redraw()"); }

  static void PressPenUp() {
    auto& bar = frmMain->ToolBoptions;
    for (int position = 1; position <= bar.Positions(); ++position) {
      if (LowerText(bar.Button(position).key) == "optpenup") bar.buttonClicked(bar.Button(position));
    }
  }

  void ExpectRefused() {
    const std::string title = MessageUserToPlot;
    const std::vector<double> before = Point(0);
    const int due = DEJADRAW;
    EXPECT_TRUE(calls.Busy());
    EXPECT_EQ(calls.InterFaceXls("a", "Other", 1).number, kFaultBusy);
    EXPECT_EQ(calls.GlrayonXls("a", Rows(1), 1).number, kFaultBusy);
    EXPECT_EQ(calls.GlrayonXls("a", Rows(1), 0).number, kFaultBusy);
    EXPECT_EQ(calls.GlrayonXlsT("a", "5\r\n", 1).number, kFaultBusy);
    EXPECT_EQ(calls.GlEventsXls("a", "5\tS\r\n", 1).number, kFaultBusy);
    EXPECT_EQ(MessageUserToPlot, title);
    EXPECT_EQ(Point(0), before);
    EXPECT_EQ(DEJADRAW, due);
  }

  static void LoadFromSheet() {
    CommandFileMode = 0;
    DEJADRAW = DEJARESET = FileMode = 0;
    LoadPlot();
  }

  /// The farther one, at 40 from the origin, comes to 80.
  void ExpectTwoPointsAreShown() {
    ASSERT_TRUE(calls.GlrayonXls("a", "10\t0\t0\r\n0\t20\t0\r\n", 2).Good());
    Settle();
    EXPECT_EQ(LastPoint, 1);
    EXPECT_THAT(Point(0), ElementsAre(40, 0, 0));
    EXPECT_THAT(Point(1), ElementsAre(0, 80, 0));
    EXPECT_EQ(FactorScale, 4);
    EXPECT_EQ(DEJADRAW, 1);
    EXPECT_EQ(TheScene->CURRINDEXI, 1);
  }

  HostEvents& events = HostEventsOfWindow();
  AutomationCalls calls;
};

/// The farther one at 20 from the origin.
inline constexpr const char* kTwoPoints = "10\t0\t0\r\n0\t20\t0\r\n";

}  // namespace quorb
