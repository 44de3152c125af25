#pragma once

#include <GL/gl.h>
#include <GL/glu.h>

#include <array>
#include <cstdint>
#include <string>

#include "QuaterRoutine.h"
#include "Vector3.h"
#include "glCtl.h"

namespace quorb {

class ClassGl;

/// What the drawing of the spacecraft and of the bodies keeps from frame to frame. Times are days, angles
/// degrees, lengths units of the scene.
struct BodyState {
  /// Time of the row CURRINDEXI of dataXYZT.
  double CurrentTime = 0;
  /// CURRINDEXI at the frame before.
  std::int32_t LastIndexSeen = 0;
  /// Rows found in dataQuater, dataSApY, dataSAmY.
  std::int64_t QuaterIndex = 0, SApYIndex = 0, SAmYIndex = 0;
  /// Position of the current point.
  double SatX = 0, SatY = 0, SatZ = 0;

  /// The attitude, and the same as a rotation about an axis.
  Quater Q;
  double AttitudeAngle = 0;
  double AttAxisX = 0, AttAxisY = 0, AttAxisZ = 0;
  /// Images of the three local axes.
  Vector3 SatAxisX, SatAxisY, SatAxisZ;

  /// Where the Sun or the Moon stands from the Earth, as last asked: ecliptic, metres.
  Vector3 SunVector;
  /// The Sun from the Earth turned to the equator, metres.
  Vector3 SunEquator;
  /// The light's place: SunEquator in thousands of kilometres, and 1.
  std::array<GLfloat, 4> SunPoint = {0, 0, 0, 1};
  /// Length of the drawn ray for a SunPoint of length 1.
  double RayScale = 0;
  /// The Earth from the Sun: ecliptic, metres.
  Vector3 SunFromBody;

  /// Radius of the central body in kilometres, in thousands of kilometres when the sheet's numbers are taken
  /// for metres; the plot's range for a spacecraft without attitude.
  double BodyRadius = 0;
  /// The model's overall size, and the half sizes of its body.
  double SatSize = 0;
  double SatHalfX = 0, SatHalfY = 0, SatHalfZ = 0;

  /// Angle of the array being drawn about the body's Y axis; the sense of the one on the minus Y side; the
  /// angle that turns an array to the Sun.
  double ArrayAngle = 0;
  int ArraySign = 1;
  double BestSunAngle = 0;

  /// Half length of the plume.
  double PlumeHalf = 0;
  /// 1 while the current point lies in an event stretch; the row of dataEventLog that this began at, 0 for
  /// none; and the texts of its start and end.
  int InThrust = 0;
  std::int64_t EventFound = 0;
  std::string EventFrom, EventTo;

  /// Spin angles of the central body and of the Moon.
  double EarthSpin = 0, MoonSpin = 0;
  /// Pictures of the two, made at first use.
  HostTexture* EarthTexture = nullptr;
  HostTexture* MoonTexture = nullptr;
  /// 1 once the picture was loaded, or could not be.
  int EarthTextureReady = 0, MoonTextureReady = 0;
  GLUquadric* EarthQuadric = nullptr;
  GLUquadric* MoonQuadric = nullptr;
};

/// Takes the time of the frame's row; a row outside of the table leaves the time as it was.
void TakeCurrentTime(const ClassGl& scene, BodyState& state);

}  // namespace quorb
