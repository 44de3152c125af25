#include "HostEvents.h"

#include <cmath>

#include "MovieDisplay.h"
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

constexpr double kZoomStepsOfANotch = 4;

/// The pixel nearest to a place.
int Pixel(double place) {
  return static_cast<int>(std::lround(place));
}

class EventsOfHost : public HostEvents {
 public:
  void Initialise() override { TheScene->init(); }
  // The window chose the mouse mode in its load sequence; the scene's own start does not take it back.
  void ContextReady() override {
    const int mode = TheScene->EditState();
    TheScene->InitGL();
    TheScene->EditStateValue = mode;
  }
  void Resize(int width, int height) override {
    TheScene->Reshape(width, height);
    PlotWidth = width;
    PlotHeight = height;
  }
  void Draw() override {
    ShowMovieProgress();
    TheScene->Draw();
  }
  void Overlay() override { TheScene->DrawGDI(); }

  void KeyDown(int code, int shift) override {
    TheScene->KeyDown(code, shift);
    glxCtl1->Redraw();
  }
  void KeyPress(const std::string& character) override {
    TheScene->KeyPress(character);
    glxCtl1->Redraw();
  }
  void MouseDown(int button, int shift, double x, double y) override {
    glxCtl1->TrackballStart(button, Pixel(x), Pixel(y));
    TheScene->MouseDown(button, shift, x, y);
  }
  void MouseMove(int button, int shift, double x, double y) override {
    glxCtl1->TrackballMove(Pixel(x), Pixel(y));
    TheScene->MouseMove(button, shift, x, y);
  }
  void MouseUp(int button, int shift, double x, double y) override {
    glxCtl1->TrackballEnd();
    TheScene->MouseUp(button, shift, x, y);
  }
  void DoubleClick() override { glxCtl1_DblClick(); }
  void Pick(const std::vector<std::int32_t>& hits) override { TheScene->Pick(hits); }
  void Wheel(double notches) override {
    const auto steps = std::lround(std::abs(notches) * kZoomStepsOfANotch);
    const double gain = notches > 0 ? ZoomGain(*TheScene) : -ZoomGain(*TheScene);
    for (int step = 0; step < steps; ++step)
      ZoomStep(glxCtl1->Camera(), gain);
    glxCtl1->Redraw();
  }
  void AnimationTick() override { glxCtl1_TimerTick(); }
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
  if (TheScene->FrameIsDue()) glxCtl1->Redraw();
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
