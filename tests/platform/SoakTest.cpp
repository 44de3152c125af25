#include <GL/gl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>

#include "ClassGl.h"
#include "FrameFixture.h"
#include "OffscreenHost.h"
#include "PlotData.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr int kFramesOfAShortRun = 3000;
/// Lists wait to be deleted, fonts and the driver fill their caches: from here on nothing may grow.
constexpr int kFramesAhead = 1000;
constexpr double kMostGrowthMegabytes = 16;
/// The letters of the fonts, and a batch of axes lists that waits to be deleted.
constexpr int kMostListsInUse = 1500;

double ResidentMegabytes() {
  std::ifstream status("/proc/self/statm");
  double total = 0;
  double resident = 0;
  status >> total >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

int ListsUpTo(unsigned last) {
  int lists = 0;
  for (unsigned name = 1; name <= last; ++name)
    lists += glIsList(name) == GL_TRUE ? 1 : 0;
  return lists;
}

/// Frames to draw: QUORB_SOAK_FRAMES asks for another number than that of a short run.
int WantedFrames() {
  const char* const wanted = std::getenv("QUORB_SOAK_FRAMES");
  return wanted != nullptr ? std::atoi(wanted) : kFramesOfAShortRun;
}

class Soak : public testing::Test {
 protected:
  Soak() {
    for (int row = 0; row < 50; ++row) {
      dataXYZT.Set(row, 0, 45000 + row);
      dataXYZT.Set(row, 1, row);
      dataXYZT.Set(row, 2, row % 7);
      dataXYZT.Set(row, 3, row % 5);
    }
    LastPoint = 49;
    NbEvents = 1;
    FlagOptionToPlot = 1;
    USERFLAG.SynchroExcelComplete = 1.0;
    USERFLAG.TimeInData = 1.0;
    USERFLAG.CubicView = 1.0;
    MessageUserToPlot = "Soak";
  }
  ~Soak() override { StartRunState(); }
};

TEST_F(Soak, AWindowLeftOpenDoesNotGrow) {
  std::string error;
  const auto host = OffscreenHost::Create(64, 48, error);
  ASSERT_NE(host, nullptr) << error;
  auto scene = std::make_unique<ClassGl>(*host);
  ScriptedEvents events;
  events.onInitialise = [&] { scene->init(); };
  events.onReady = [&] { scene->InitGL(); };
  events.onDraw = [&] {
    events.log.clear();
    scene->Draw();
  };
  events.onOverlay = [&] { scene->DrawGDI(); };
  ASSERT_TRUE(host->Start(events, error)) << error;

  const auto draw = [&](int frames) {
    for (int frame = 0; frame < frames; ++frame) {
      scene->CURRINDEXI = frame % (LastPoint + 1);
      host->Frame();
    }
  };
  draw(kFramesAhead);
  const double before = ResidentMegabytes();
  draw(WantedFrames());
  const double growth = ResidentMegabytes() - before;
  RecordProperty("growth_megabytes", std::to_string(growth));
  EXPECT_LT(growth, kMostGrowthMegabytes);
  EXPECT_LT(ListsUpTo(scene->glLISTE.Axes), kMostListsInUse) << "the axes' lists are given back";
}

}  // namespace
}  // namespace quorb
