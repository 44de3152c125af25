#include <cmath>
#include <string>

#include "ClassGl.h"
#include "Mth.h"
#include "SceneWindow.h"

namespace quorb {

namespace {

constexpr int kKeyI = 73;
/// Sine of the angle that one key turns the camera by.
constexpr double kTurn = 0.01;

/// A key that turns the camera in the plane of two of its coordinates.
struct TurnKey {
  int code;
  int p, q;
  double step;
};

constexpr TurnKey kTurnKeys[] = {
    {37, 1, 2, kTurn}, {39, 1, 2, -kTurn},  // left and right
    {38, 2, 0, kTurn}, {40, 2, 0, -kTurn},  // up and down
    {33, 0, 1, kTurn}, {34, 0, 1, -kTurn},  // page up and page down
};

/// The turned coordinates. The second one always comes out with the positive root. False for a camera on the
/// axis, which cannot be turned about it.
bool TurnPosition(const TurnKey& key, double (&eye)[3]) {
  const double r = std::hypot(eye[key.p], eye[key.q]);
  if (r == 0) return false;
  const double cosine = Clamp(std::sqrt(1 - key.step * key.step), -1, 1);
  const double m = Clamp(cosine * (eye[key.p] / r) + eye[key.q] / r * key.step, -1, 1);
  const double n = Clamp(std::sqrt(1 - m * m), -1, 1);
  const double x = eye[0];
  eye[key.p] = m * r;
  eye[key.q] = n * r;
  const bool turnsX = key.q == 0;
  if (turnsX && x < -1) eye[0] = -eye[0];
  return true;
}

std::string NoteOf(int keyCode, const double (&eye)[3]) {
  std::string note = std::to_string(keyCode) + "  rough   ";
  for (const double coordinate : eye)
    note += std::to_string(coordinate) + " ";
  return note;
}

}  // namespace

float ClassGl::noSteps(double old, double wanted, const std::string&) {
  const double limit = 1 + 0.1 * std::abs(old);
  if (std::abs(old - wanted) <= limit) return static_cast<float>(wanted);
  if (std::abs(old + wanted) > limit) return static_cast<float>(-wanted);
  return static_cast<float>(1.05 * old);
}

void ClassGl::KeyDown(int keyCode, int shift) {
  if (keyCode == kKeyI) {
    CurrentSceneWindow().SetCheck9Tag(shift == 0 ? "REAL_ISO" : "");
    CameraSet("ISONEW", 2, 0);
    return;
  }
  float x = 0, y = 0, z = 0;
  Host.Camera().GetPosition(x, y, z);
  for (const TurnKey& key : kTurnKeys) {
    if (key.code != keyCode) continue;
    double eye[3] = {x, y, z};
    if (!TurnPosition(key, eye)) return;
    const std::string note = NoteOf(keyCode, eye);
    Host.Camera().SetPosition(noSteps(x, eye[0], note), noSteps(y, eye[1], note), noSteps(z, eye[2], note));
  }
}

void ClassGl::KeyPress(const std::string&) {
  Host.Camera().SetUp(0, 1, 0);
  Host.Camera().SetPosition(0, 0, 0);
}

}  // namespace quorb
