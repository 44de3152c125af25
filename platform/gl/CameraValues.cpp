#include "CameraValues.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "Vectors.h"

namespace quorb {

namespace {

constexpr double kDefaultDepth = 10000.0;
constexpr double kDefaultField = 45.0;
constexpr double kNearShareOfFar = 1.0 / 10000.0;

bool AllFinite(double a, double b, double c) {
  return std::isfinite(a) && std::isfinite(b) && std::isfinite(c);
}

/// Whether the up vector gives a direction on the screen for a unit line of sight.
bool UpIsUsable(const Vector& up, const Vector& sight) {
  const double smallestSine = 1e-6;
  return Length(up) > 0.0 && Length(Cross(Unit(up), sight)) > smallestSine;
}

Vector AxisMostAcross(const Vector& sight) {
  Vector axis{0.0, 0.0, 0.0};
  std::size_t least = 0;
  for (std::size_t i = 1; i < sight.size(); ++i) {
    if (std::abs(sight[i]) < std::abs(sight[least])) least = i;
  }
  axis[least] = 1.0;
  return axis;
}

}  // namespace

void CameraValues::GetOrtho(double& left, double& right, double& bottom, double& top) const {
  left = window.left;
  right = window.right;
  bottom = window.bottom;
  top = window.top;
}

void CameraValues::SetOrtho(double left, double right, double bottom, double top) {
  if (AllFinite(left, right, bottom) && std::isfinite(top)) window = {left, right, bottom, top};
}

void CameraValues::SetFar(double distance) {
  if (std::isfinite(distance)) farDistance = distance;
}

void CameraValues::SetNear(double distance) {
  if (std::isfinite(distance)) nearDistance = distance;
}

void CameraValues::SetField(double degrees) {
  if (std::isfinite(degrees)) field = degrees;
}

void CameraValues::GetPosition(float& x, float& y, float& z) const {
  x = position[0];
  y = position[1];
  z = position[2];
}

void CameraValues::SetPosition(float x, float y, float z) {
  if (AllFinite(x, y, z)) position = {x, y, z};
}

void CameraValues::GetTarget(float& x, float& y, float& z) const {
  x = target[0];
  y = target[1];
  z = target[2];
}

void CameraValues::SetTarget(float x, float y, float z) {
  if (AllFinite(x, y, z)) target = {x, y, z};
}

void CameraValues::GetUp(float& x, float& y, float& z) const {
  x = up[0];
  y = up[1];
  z = up[2];
}

void CameraValues::SetUp(float x, float y, float z) {
  if (AllFinite(x, y, z)) up = {x, y, z};
}

void CameraValues::Look(float positionX, float positionY, float positionZ, float targetX, float targetY,
                        float targetZ, float upX, float upY, float upZ) {
  SetPosition(positionX, positionY, positionZ);
  SetTarget(targetX, targetY, targetZ);
  SetUp(upX, upY, upZ);
}

ViewLine CameraValues::SafeViewLine() const {
  ViewLine line;
  std::copy(position.begin(), position.end(), line.eye.begin());
  std::copy(target.begin(), target.end(), line.target.begin());
  std::copy(up.begin(), up.end(), line.up.begin());

  Vector sight{line.target[0] - line.eye[0], line.target[1] - line.eye[1], line.target[2] - line.eye[2]};
  if (Length(sight) == 0.0) {
    sight = {0.0, 0.0, -1.0};
    line.eye[2] += 1.0;
  }
  sight = Unit(sight);
  line.up = UpIsUsable(line.up, sight) ? Unit(line.up) : AxisMostAcross(sight);
  return line;
}

ClipRange CameraValues::OrthoClip() const {
  if (nearDistance == farDistance) return {-kDefaultDepth, kDefaultDepth};
  return {nearDistance, farDistance};
}

ClipRange CameraValues::PerspectiveClip() const {
  const double farthest = farDistance > 0.0 ? farDistance : kDefaultDepth;
  const bool nearIsUsable = nearDistance > 0.0 && nearDistance < farthest;
  return {nearIsUsable ? nearDistance : farthest * kNearShareOfFar, farthest};
}

double CameraValues::PerspectiveField() const {
  return field > 0.0 && field < 180.0 ? field : kDefaultField;
}

OrthoWindow WidenToShape(const OrthoWindow& window, int width, int height) {
  double across = window.right - window.left;
  double upwards = window.top - window.bottom;
  if (across == 0.0 && upwards == 0.0) upwards = 1.0;
  if (across == 0.0) across = upwards;
  if (upwards == 0.0) upwards = across;

  const double shape = static_cast<double>(std::max(width, 1)) / static_cast<double>(std::max(height, 1));
  if (std::abs(across) < std::abs(upwards) * shape) {
    across = std::copysign(upwards * shape, across);
  } else {
    upwards = std::copysign(across / shape, upwards);
  }

  const double middleX = (window.left + window.right) / 2.0;
  const double middleY = (window.bottom + window.top) / 2.0;
  return {middleX - across / 2.0, middleX + across / 2.0, middleY - upwards / 2.0, middleY + upwards / 2.0};
}

}  // namespace quorb
