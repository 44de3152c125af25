#include <cmath>
#include <string>

#include "ClassGl.h"
#include "Mth.h"
#include "RunState.h"
#include "SceneWindow.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr float kViewDistance = 10000;
constexpr float kEye = 100;

struct View {
  float up[3];
  float position[3];
};

constexpr View kProjections[8] = {{{0, 0, 1}, {100, 0, 0}},     {{0, 0, 1}, {0, -100, 0}},
                                  {{1, 0, 0}, {0, 0, 100}},     {{1, 0, 0}, {0, 100, 0}},
                                  {{0, 1, 0}, {0, 0, 100}},     {{0, 1, 0}, {100, 0, 0}},
                                  {{0, 1, 0}, {100, 100, 100}}, {{0, 1, 0}, {-100, 100, -100}}};

void ApplyView(HostCamera& camera, const View& view) {
  camera.SetUp(view.up[0], view.up[1], view.up[2]);
  camera.SetPosition(view.position[0], view.position[1], view.position[2]);
  camera.SetTarget(0, 0, 0);
  camera.SetFar(kViewDistance);
  camera.SetNear(-kViewDistance);
  camera.SetField(180);
  camera.SetProjection(1);
}

// Before the first frame of a load DEJADRAW holds the view; ResizeArmed is 0, and holds it too, only while
// the loader lays the window out.
bool MayStep() {
  return ResizeArmed != 0 && DEJADRAW != 0;
}

void StepView(CameraMemos& memos, int views) {
  memos.ViewStepSaved = memos.ViewStep;
  if (!MayStep()) return;
  memos.ViewSign = (memos.ViewSign + 1) % 2;
  memos.ViewStep = (memos.ViewStep + 1) % views;
}

// Round the axis that points upward, in eight steps, or over the corners of a cube.
View RoundAxis(CameraMemos& memos) {
  constexpr float kFirst[4] = {1, -1, -1, 1};
  constexpr float kSecond[4] = {1, 1, -1, -1};
  memos.RealQuadrant = (memos.RealQuadrant + 1) % 4;
  const float a = kFirst[memos.RealQuadrant] * kEye;
  const float b = kSecond[memos.RealQuadrant] * kEye;
  memos.RealIso = CurrentSceneWindow().Check9Tag() == "REAL_ISO";
  const double angle = DegToRad(memos.ViewStep * 45.0);
  const float c = static_cast<float>(std::cos(angle)) * kEye;
  const float s = static_cast<float>(std::sin(angle)) * kEye;
  if (memos.ViewAxis == 1)
    return memos.RealIso ? View{{1, 0, 0}, {kEye, a, b}} : View{{1, 0, 0}, {kEye, c, s}};
  if (memos.ViewAxis == 2)
    return memos.RealIso ? View{{0, 1, 0}, {b, kEye, a}} : View{{0, 1, 0}, {s, kEye, c}};
  if (memos.ViewAxis == 3)
    return memos.RealIso ? View{{0, 0, 1}, {a, b, kEye}} : View{{0, 0, 1}, {c, s, kEye}};
  return {{0, 1, 0}, {kEye, c, s}};
}

// Six views: the axes in turn upward, first from one corner and then from the next. A step that the other
// walk left behind the sixth keeps the direction that is up.
View OverCorners(const CameraMemos& memos, const HostCamera& camera) {
  View view = {{0, 0, 0}, {-kEye, memos.ViewStep > 2 ? -kEye : kEye, kEye}};
  if (memos.ViewStep > 5) {
    camera.GetUp(view.up[0], view.up[1], view.up[2]);
  } else {
    constexpr int kUpAxis[3] = {2, 0, 1};
    view.up[kUpAxis[memos.ViewStep % 3]] = 1;
  }
  return view;
}

}  // namespace

void ClassGl::CameraSet(const std::string& mode, double value, double flag) {
  const std::string wanted = UpTrim(mode);
  CameraMemos& memos = CameraSteps;
  if (value > 0 && value != 2) memos.ViewAxis = value;
  if (memos.ViewAxis == 0 || flag == 1) memos.ViewAxis = value;
  if (USERFLAG.UpdateAsked == 1.0) return;

  if (wanted == "ISO") {
    memos.ViewStepSaved = memos.ViewStep;
    ApplyView(Host.Camera(), {{0, 0, 1}, {kEye, kEye, kEye}});
  } else if (wanted == "ISONEW") {
    StepView(memos, 8);
    ApplyView(Host.Camera(), RoundAxis(memos));
  } else if (wanted == "ISONEWPLUS") {
    StepView(memos, 6);
    ApplyView(Host.Camera(), OverCorners(memos, Host.Camera()));
  } else {
    memos.ProjStepSaved = memos.ProjStep;
    memos.ProjStep = (memos.ProjStep + (wanted == "PROJINVERSE" ? 7 : 1)) % 8;
    ApplyView(Host.Camera(), kProjections[memos.ProjStep]);
  }
}

}  // namespace quorb
