#include <algorithm>

#include "HostEvents.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

/// From the command line to a frame: four points in kilometres at the scale 0.01, a day apart, with the pen
/// up before the third one.
class WholeStartTest : public WindowFixture {
 protected:
  WholeStartTest() {
    files.contents["/data/orbit.qbv"] =
        "From: \tBook\tSheet\t=0.01+LEN(\"Test km\")+MAX(A2:C5)+MAX(D2:D5)\t0.0100000000\tTest km\tDate "
        "\tmark\t\r\n"
        "1000\t0\t0\t0\r\n"
        "0\t2000\t0\t86400\r\n"
        "\t3000\t0\t172800\r\n"
        "4000\t0\t0\t259200\r\n";
  }

  /// The host's events in their order, the first frame before the window is shown.
  void StartHost() {
    events.Initialise();
    events.ContextReady();
    events.Resize(640, 480);
    events.Draw();
    events.Overlay();
  }

  void Start(const std::string& commandLine) {
    Load(commandLine);
    StartHost();
    Form_Activate();
  }

  static std::vector<double> Row(int row) { return {dataXYZT[row], dataXYZT[row] + 5}; }

  static void Tick(int count) {
    for (int i = 0; i < count; ++i)
      TheScene->TheUpdateTimer_ThatTime();
  }

  /// The vertices of a frame's trajectory, in order.
  std::vector<std::string> Vertices() {
    ClearCalls();
    events.Draw();
    std::vector<std::string> vertices;
    const auto& calls = RecordedCalls();
    const auto list = std::find(calls.begin(), calls.end(), "glDeleteLists(0, 1)");
    for (auto call = list; call != std::find(list, calls.end(), "glEndList()"); ++call) {
      if (call->starts_with("glVertex3f")) vertices.push_back(*call);
    }
    return vertices;
  }

  HostEvents& events = HostEventsOfWindow();
};

TEST_F(WholeStartTest, TheFirstFrameFindsAnEmptyPlot) {
  Load("/data/orbit.qbv");
  StartHost();
  EXPECT_THAT(RecordedCalls(), testing::Contains("glClear(GL_DEPTH_BUFFER_BIT)"));
  EXPECT_EQ(LastPoint, 0);
  EXPECT_EQ(DEJARESET, 0);
  EXPECT_EQ(DEJADRAW, 0);
}

// The plot reaches 40, the scene 80: the activation has scaled it already.
TEST_F(WholeStartTest, TheActivationFillsTheArraysFromTheNamedFile) {
  Start("/data/orbit.qbv");
  EXPECT_EQ(LastLoad().rows, 4);
  EXPECT_EQ(LastPoint, 3);
  EXPECT_THAT(Row(0), ElementsAre(0, 20, 0, 0, 0));
  EXPECT_THAT(Row(1), ElementsAre(1, 0, 40, 0, 0));
  EXPECT_THAT(Row(2), ElementsAre(2, 0, 60, 0, -1));
  EXPECT_THAT(Row(3), ElementsAre(3, 80, 0, 0, 0));
  EXPECT_EQ(MessageUserToPlot, "Test");
  EXPECT_EQ(FactorScale, 0.02);
  EXPECT_EQ(ISOmode, 1);
  EXPECT_EQ(USERFLAG.TimeInData, 1.0);
  EXPECT_EQ(USERFLAG.SynchroExcelComplete, 1.0);
  EXPECT_EQ(FILEcOMMANDnAME, "/data/orbit.qbv");
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(WholeStartTest, TheWindowShowsOnlyThePlot) {
  Start("/data/orbit.qbv");
  EXPECT_FALSE(frmMain->mnuFile.visible);
  EXPECT_FALSE(frmMain->mnuHelp.visible);
  EXPECT_FALSE(frmMain->ProgressBar1.visible);
  EXPECT_EQ(frmMain->Text14.text.Get(), "/data/orbit.qbv");
  EXPECT_EQ(frmMain->Text4[4].text.Get(), "1.75");
  EXPECT_EQ(frmMain->HScroll2.value, 9);
}

TEST_F(WholeStartTest, TheNextFrameScalesThePlotOnce) {
  Start("/data/orbit.qbv");
  for (int frame = 0; frame < 2; ++frame) {
    events.Draw();
    // The farthest point, at 40, comes to 80; a lifted pen counts for nothing, but is scaled too.
    EXPECT_THAT(Row(0), ElementsAre(0, 20, 0, 0, 0));
    EXPECT_THAT(Row(1), ElementsAre(1, 0, 40, 0, 0));
    EXPECT_THAT(Row(2), ElementsAre(2, 0, 60, 0, -1));
    EXPECT_THAT(Row(3), ElementsAre(3, 80, 0, 0, 0));
    EXPECT_EQ(FactorScale, 0.02);
    EXPECT_EQ(TheScene->Range, 80);
    EXPECT_EQ(DEJARESET, 1);
    EXPECT_EQ(DEJADRAW, 1);
  }
}

TEST_F(WholeStartTest, TicksMoveTheTimeAlongTheRows) {
  Start("/data/orbit.qbv");
  events.Draw();
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
  EXPECT_EQ(TheScene->TheUpdateTimer.Interval(), 1);
  frmMain->HScroll2.value = 0;
  Tick(4);
  EXPECT_EQ(TheScene->CURRINDEXI, 0);
  Tick(1);
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
  Tick(5);
  EXPECT_EQ(TheScene->CURRINDEXI, 2);
  Tick(5);
  EXPECT_EQ(TheScene->CURRINDEXI, 3);
  Tick(50);
  EXPECT_EQ(TheScene->CURRINDEXI, 3);
}

TEST_F(WholeStartTest, AtTheSpeedBehindALoadAShortPlotIsThereAtTheFirstPassedTick) {
  Start("/data/orbit.qbv");
  events.Draw();
  Tick(5);
  EXPECT_EQ(TheScene->CURRINDEXI, 3);
}

TEST_F(WholeStartTest, TheTrajectoryIsDrawnWithItsPenUp) {
  Start("/data/orbit.qbv");
  frmMain->Check9.value = 0;
  events.Draw();
  Tick(5);
  EXPECT_THAT(Vertices(),
              ElementsAre("glVertex3f(20, 0, 0)", "glVertex3f(0, 40, 0)", "glVertex3f(80, 0, 0)"));
}

TEST_F(WholeStartTest, TheRedrawBarGoesBackAlongTheRows) {
  Start("/data/orbit.qbv");
  frmMain->Check9.value = 0;
  events.Draw();
  Tick(5);
  frmMain->HScroll1.value = 3333;
  EXPECT_EQ(TheScene->CURRINDEXI, 1);
  EXPECT_THAT(Vertices(), ElementsAre("glVertex3f(20, 0, 0)", "glVertex3f(0, 40, 0)"));
}

TEST_F(WholeStartTest, APathInQuotesIsOpenedWithoutThem) {
  Start("\"/data/orbit.qbv\"");
  EXPECT_EQ(LastLoad().rows, 4);
}

TEST_F(WholeStartTest, APathWithBlanksIsTheWholeLine) {
  files.contents["/data/orbit two.qbv"] = files.contents["/data/orbit.qbv"];
  Start("/data/orbit two.qbv");
  EXPECT_EQ(LastLoad().rows, 4);
  EXPECT_EQ(FILEcOMMANDnAME, "/data/orbit two.qbv");
}

TEST_F(WholeStartTest, AShortNameStartsAsIfNoFileHadBeenGiven) {
  files.contents["/d.qbv"] = files.contents["/data/orbit.qbv"];
  Start("/d.qbv");
  EXPECT_EQ(LastLoad().rows, 0);
  ASSERT_EQ(dialogs.boxes.size(), 2U);
  EXPECT_EQ(dialogs.boxes[0].title, "Excel not running!");
  EXPECT_EQ(dialogs.boxes[1].title, "Demo default");
  EXPECT_TRUE(frmMain->mnuFile.visible);
}

TEST_F(WholeStartTest, ASecondActivationKeepsThePlot) {
  Start("/data/orbit.qbv");
  events.Draw();
  Tick(5);
  Form_Activate();
  EXPECT_EQ(DEJARESET, 1);
  EXPECT_THAT(Row(3), ElementsAre(3, 80, 0, 0, 0));
  EXPECT_EQ(TheScene->CURRINDEXI, 3);
}

}  // namespace
}  // namespace quorb
