#pragma once

#include <array>

#include "glCtl.h"

namespace quorb {

/// An orthographic window, in units of the scene.
struct OrthoWindow {
  double left = -100.0;
  double right = 100.0;
  double bottom = -100.0;
  double top = 100.0;
};

/// Eye, point looked at and up vector, as gluLookAt takes them.
struct ViewLine {
  std::array<double, 3> eye{};
  std::array<double, 3> target{};
  std::array<double, 3> up{};
};

/// Clipping distances from the eye.
struct ClipRange {
  double nearDistance = 0.0;
  double farDistance = 0.0;
};

/// The camera of a host as plain numbers. A call with a number that is not finite changes nothing.
class CameraValues : public HostCamera {
 public:
  void GetOrtho(double& left, double& right, double& bottom, double& top) const override;
  void SetOrtho(double left, double right, double bottom, double top) override;
  void SetFar(double distance) override;
  void SetNear(double distance) override;
  void SetField(double degrees) override;
  int GetProjection() const override { return projection; }
  void SetProjection(int newProjection) override { projection = newProjection; }
  void GetPosition(float& x, float& y, float& z) const override;
  void SetPosition(float x, float y, float z) override;
  void GetTarget(float& x, float& y, float& z) const override;
  void SetTarget(float x, float y, float z) override;
  void GetUp(float& x, float& y, float& z) const override;
  void SetUp(float x, float y, float z) override;
  void Look(float positionX, float positionY, float positionZ, float targetX, float targetY, float targetZ,
            float upX, float upY, float upZ) override;
  /// The orthographic view moves its window, the perspective one its eye and target.
  void Pan(float dx, float dy) override;
  /// The orthographic view scales its window.
  void Zoom(float factor) override;
  /// The orthographic view scales its window too, since its picture does not depend on the distance.
  void Dolly(float share) override;
  /// Eye and up vector turn about the target, so that the scene stays in view.
  void Pitch(float degrees) override;
  void Yaw(float degrees) override;
  void Roll(float degrees) override;

  /// Turns eye and up vector about the target, by an angle in degrees about an axis through it.
  void TurnAboutTarget(const std::array<double, 3>& axis, double degrees);

  const OrthoWindow& Window() const { return window; }

  /// Eye, target and up vector that give a view in every case. An eye on its target looks along -Z. An up
  /// vector that is zero or lies on the line of sight is replaced by the axis that stands most across that
  /// line.
  ViewLine SafeViewLine() const;

  /// The clipping distances of the orthographic projection; -10000 and 10000 when both are the same.
  ClipRange OrthoClip() const;

  /// The clipping distances of the perspective projection: near is above 0 and below far. A far of 0 or less
  /// becomes 10000, a near outside these bounds far / 10000.
  ClipRange PerspectiveClip() const;

  /// Vertical field of view of the perspective projection in degrees: 45 unless it lies between 0 and 180.
  double PerspectiveField() const;

 private:
  void ScaleWindow(double factor);

  using Triple = std::array<float, 3>;

  OrthoWindow window;
  double farDistance = 10000.0;
  double nearDistance = -10000.0;
  double field = 180.0;
  int projection = 1;
  Triple position{100.0F, 100.0F, 100.0F};
  Triple target{0.0F, 0.0F, 0.0F};
  Triple up{0.0F, 1.0F, 0.0F};
};

/// The window with its shorter side, measured by the shape of a view of width x height pixels, widened about
/// its middle, so that a unit is as long across as upwards. A window without extent one way takes the other
/// way's; one without any is a unit high. A width or height below 1 counts as 1.
OrthoWindow WidenToShape(const OrthoWindow& window, int width, int height);

}  // namespace quorb
