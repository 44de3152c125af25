#include "HostEvents.h"

#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

class WindowOfScene : public SceneWindow {
 public:
  std::string Check9Tag() const override { return frmMain->Check9.Tag; }
  void SetCheck9Tag(const std::string& tag) override { frmMain->Check9.Tag = tag; }
};

WindowOfScene windowOfScene;

class EventsOfHost : public HostEvents {
 public:
  void Initialise() override { TheScene->init(); }
  void ContextReady() override { TheScene->InitGL(); }
  void Resize(int width, int height) override {
    TheScene->Reshape(width, height);
    PlotWidth = width;
    PlotHeight = height;
  }
  void Draw() override { TheScene->Draw(); }
  void Overlay() override { TheScene->DrawGDI(); }
};

EventsOfHost eventsOfHost;

}  // namespace

HostEvents& HostEventsOfWindow() {
  return eventsOfHost;
}

SceneWindow& SceneWindowOfWindow() {
  return windowOfScene;
}

void glxCtl1_DblClick() {
  const bool on = glxCtl1->Tag.empty();
  glxCtl1->Animation().SetEnabled(on);
  glxCtl1->Tag = on ? "Animate" : "";
  glxCtl1->Animation().Update();
}

void glxCtl1_TimerTick() {
  glxCtl1->Redraw();
  if (!glxCtl1->Tag.empty()) return;
  if (OneShotView == 0) {
    TheScene->CameraSet("ISOnew", 2, 0);
    OneShotView = 1;
  }
  if (USERFLAG.PendingIsoRequest == 2.0) {
    TheScene->CameraSet("ISOnew", 2, 0);
    OneShotView = 1;
    USERFLAG.PendingIsoRequest = 3.0;
  }
  glxCtl1->Tag = "Done one time";
}

}  // namespace quorb
