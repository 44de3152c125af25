// The moves of the camera that the mouse makes.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "CameraValues.h"
#include "Vectors.h"

namespace quorb {

namespace {

constexpr double kNarrowestField = 1;
constexpr double kWidestField = 170;
/// A single move brings the eye no nearer to the target than to this share of its distance.
constexpr double kNearestShare = 0.01;

Vector Sum(const Vector& a, const Vector& b, double factor) {
  return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

double Dot(const Vector& a, const Vector& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/// The axes of the screen in the scene.
struct ScreenAxes {
  Vector right, up, sight;
};

ScreenAxes AxesOf(const ViewLine& line) {
  ScreenAxes axes;
  axes.sight = Unit(Sum(line.target, line.eye, -1));
  axes.right = Unit(Cross(axes.sight, line.up));
  axes.up = Cross(axes.right, axes.sight);
  return axes;
}

/// Rodrigues' formula, for a unit axis and an angle in radians.
Vector Turned(const Vector& v, const Vector& axis, double angle) {
  const Vector across = Cross(axis, v);
  const double along = Dot(axis, v) * (1 - std::cos(angle));
  return Sum(Sum(Sum({}, v, std::cos(angle)), across, std::sin(angle)), axis, along);
}

std::array<float, 3> Singles(const Vector& v) {
  return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

}  // namespace

void CameraValues::Pan(float dx, float dy) {
  if (projection != 0) {
    SetOrtho(window.left - dx, window.right - dx, window.bottom - dy, window.top - dy);
    return;
  }
  const ViewLine line = SafeViewLine();
  const ScreenAxes axes = AxesOf(line);
  const Vector shift = Sum(Sum({}, axes.right, -dx), axes.up, -dy);
  const auto eye = Singles(Sum(line.eye, shift, 1));
  const auto aim = Singles(Sum(line.target, shift, 1));
  SetPosition(eye[0], eye[1], eye[2]);
  SetTarget(aim[0], aim[1], aim[2]);
}

void CameraValues::ScaleWindow(double factor) {
  const double middleX = (window.left + window.right) / 2;
  const double middleY = (window.bottom + window.top) / 2;
  const double halfWidth = (window.right - window.left) / 2 * factor;
  const double halfHeight = (window.top - window.bottom) / 2 * factor;
  SetOrtho(middleX - halfWidth, middleX + halfWidth, middleY - halfHeight, middleY + halfHeight);
}

void CameraValues::Zoom(float factor) {
  if (!(factor > 0) || !std::isfinite(factor)) return;
  if (projection != 0) return ScaleWindow(1 / static_cast<double>(factor));
  SetField(std::clamp(PerspectiveField() / factor, kNarrowestField, kWidestField));
}

void CameraValues::Dolly(float share) {
  if (!std::isfinite(share)) return;
  const double remaining = std::max(1.0 - share, kNearestShare);
  if (projection != 0) ScaleWindow(remaining);
  const ViewLine line = SafeViewLine();
  const auto eye = Singles(Sum(line.target, Sum(line.eye, line.target, -1), remaining));
  SetPosition(eye[0], eye[1], eye[2]);
}

void CameraValues::TurnAboutTarget(const std::array<double, 3>& axis, double degrees) {
  const ViewLine line = SafeViewLine();
  const Vector unitAxis = Unit(axis);
  const double angle = degrees * std::numbers::pi / 180;
  const auto eye = Singles(Sum(line.target, Turned(Sum(line.eye, line.target, -1), unitAxis, angle), 1));
  const auto upward = Singles(Turned(line.up, unitAxis, angle));
  SetPosition(eye[0], eye[1], eye[2]);
  SetUp(upward[0], upward[1], upward[2]);
}

// The camera turns the other way round than the scene appears to.
void CameraValues::Pitch(float degrees) {
  TurnAboutTarget(AxesOf(SafeViewLine()).right, degrees);
}

void CameraValues::Yaw(float degrees) {
  TurnAboutTarget(AxesOf(SafeViewLine()).up, degrees);
}

void CameraValues::Roll(float degrees) {
  TurnAboutTarget(AxesOf(SafeViewLine()).sight, degrees);
}

}  // namespace quorb
