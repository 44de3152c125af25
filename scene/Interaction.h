#pragma once

namespace quorb {

/// What the mouse does in the plot, with the numbers that the toolbar sends.
enum class MouseMode {
  select = 1,
  move = 2,
  rotate = 3,
  arcRotate = 4,
  scale = 5,
  zoom = 6,
  dolly = 7,
  pan = 8,
  orbit = 9,
  pitch = 10,
  yaw = 11,
  roll = 12,
  zMinus = 13,
  zPlus = 14,
  lightBack = 15,
  stop = 16,
  frozenStart = 17,
};

class ClassGl;
class HostCamera;

/// The share of the window that one step of a zoom takes off each of its sides.
double ZoomGain(const ClassGl& scene);

/// One step of a zoom. The orthographic window loses `gain` times its width on the left and on the right, and
/// `gain` times its height at the top and at the bottom; with a gain below 0 it wins as much. A window that
/// would have no extent stays. A perspective view is narrowed by a twentieth, or widened with a gain below 0.
void ZoomStep(HostCamera& camera, double gain);

}  // namespace quorb
