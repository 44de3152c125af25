#pragma once

#include "BodyState.h"
#include "ClassGl.h"

namespace quorb {

/// At the head of the bodies' part of a frame: takes the time of the frame's row, and has the pictures loaded
/// anew when USERFLAG.SatelliteModelReady is 0, which becomes 1.
void StartBodies(const ClassGl& scene, BodyState& state);

/// The line from the centre toward the Sun of the frame before, 1.1 (1 + USERFLAG.NoSunRay) radii of the
/// central body long; none with NoSunRay 1.
void DrawSunRay(ClassGl& scene, BodyState& state);

/// Places the light of the scene where the Sun stands at the frame's time, in the current matrix, and turns
/// lighting and the depth test on. A time that is no number leaves the light at its place.
void SunAndLight(BodyState& state);

/// The central body as a textured sphere to scale, turned about the Z axis to its spin angle when the plot
/// has times. Texturing and lighting stay on.
void DrawCentralBody(const ClassGl& scene, BodyState& state);

/// The Moon with its axis where it stands from the Earth, USERFLAG.MoonAmplification times too large; none
/// when the plot is around the Moon or with MoonSwitch 1. The matrix is left at the Moon.
void DrawMoon(const ClassGl& scene, BodyState& state);

/// At the end of the scene: OpenGL objects that are the bodies' own go.
void EndBodies(BodyState& state);

}  // namespace quorb
