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

class HostCamera;

/// One step of a zoom, as a drag makes it: to `gain` times the window's width and height it is narrowed on
/// each side, or widened with a `gain` below 0; a perspective view is narrowed or widened by a twentieth. A
/// window that would have no extent stays.
void ZoomStep(HostCamera& camera, double gain);

}  // namespace quorb
