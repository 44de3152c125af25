#include <string>

#include "Ephemeris.h"
#include "ModMATHASdbl.h"
#include "RenderedPlot.h"

namespace quorb {
namespace {

constexpr double kMarch21Of2003 = 37701;
constexpr double kJune21Of2025 = 45829;
constexpr double kNoon = 0.5;

// ---- the spacecraft -----------------------------------------------------------------------------------

struct Shape {
  const char* name;
  const char* view;
};

// By their index, each as large as the picture allows with its long plume.
constexpr Shape kShapes[] = {
    {"geo-satcom", "--zoom 6"},  {"leo-spot", "--zoom 8"},   {"launcher", "--zoom 1.8"},
    {"cubesat", "--zoom 9"},     {"cubesat-3u", "--zoom 6"}, {"smart-1", "--zoom 9"},
    {"cubesat-3u5", "--zoom 6"},
};

class SatellitePictures : public RenderedPlot {
 protected:
  /// A spacecraft turned by 90 degrees about Z at the end of a quarter of a circle: its X stands on the
  /// scene's Y and its Y on the scene's -X. It thrusts in the rows from `thrustFrom` on, for 20 of them, and
  /// the arrays have the angle `arrays`, each told in its own sense.
  void WriteOrbit(int thrustFrom, double arrays) const {
    constexpr double kRadius = 20000, kDay = kJune21Of2025 + kNoon, kMinute = 1.0 / 1440;
    std::string text;
    const std::string points = QuarterCircle(kRadius, kDay);
    std::size_t at = 0;
    for (int row = 0; row <= 60; ++row) {
      const double day = kDay + (row - 60) * kMinute;
      const double change = kDay + (thrustFrom + 20 * row - 60.5) * kMinute;
      const std::string event = row == 0   ? Cells({change}) + "\tS"
                                : row == 1 ? Cells({change}) + "\tE"
                                           : "\t";
      const std::size_t end = points.find("\r\n", at);
      text += points.substr(at, end - at) + "\t" + event + "\t" + Cells({day, 0.70710678, 0, 0, 0.70710678}) +
              "\t" + Cells({day, arrays}) + "\t" + Cells({day, -arrays}) + "\r\n";
      at = end + 2;
    }
    Write("=0.01+LEN(\"Shape kmday\")+MAX(A2:C62)+MAX(D2:D62)+MAX(E2:F3)+MAX(G2:K62)+MAX(L2:M62)+MAX(N2:O62)",
          text);
  }

  static std::string Shown(int shape, const std::string& view) {
    return "--centre 60 --set ShowSatellite=1 --set SatelliteSize=4000 --set NoTimeMoving=1 --set "
           "SatelliteShape=" +
           std::to_string(shape) + " " + view;
  }
};

constexpr int kEarlyThrust = 10;
constexpr int kThrustAtTheEnd = 45;

TEST_F(SatellitePictures, EachShapeHasAShortPlumeWithoutThrust) {
  WriteOrbit(kEarlyThrust, 0);
  for (int shape = 0; shape < 7; ++shape) {
    SCOPED_TRACE(kShapes[shape].name);
    ExpectPicture(std::string("satellite-") + kShapes[shape].name,
                  Shown(shape, std::string("--view from:40,25 ") + kShapes[shape].view));
  }
}

TEST_F(SatellitePictures, EachShapeHasALongPlumeInThrust) {
  WriteOrbit(kThrustAtTheEnd, 0);
  for (int shape = 0; shape < 7; ++shape) {
    SCOPED_TRACE(kShapes[shape].name);
    ExpectPicture(std::string("satellite-") + kShapes[shape].name + "-thrust",
                  Shown(shape, std::string("--view from:40,25 ") + kShapes[shape].view));
  }
}

constexpr const char* kAlongTheArrays = "--view from:150,20 --zoom 6";

TEST_F(SatellitePictures, TheArraysStandAtTheAngleOfTheData) {
  for (const int angle : {0, 45}) {
    SCOPED_TRACE(angle);
    WriteOrbit(kEarlyThrust, angle);
    ExpectPicture("satellite-arrays-" + std::to_string(angle), Shown(0, kAlongTheArrays));
  }
}

// At the solstice of June the Sun stands over the scene's Y axis, which is X of the body.
TEST_F(SatellitePictures, TheArraysLookToTheSun) {
  WriteOrbit(kEarlyThrust, 45);
  ExpectPicture("satellite-arrays-sun", Shown(0, std::string(kAlongTheArrays) + " --set SolarPanelToSun=1"));
}

// ---- the bodies ---------------------------------------------------------------------------------------

class BodyPictures : public RenderedPlot {
 protected:
  /// A quarter of a circle of three radii of a body.
  void WriteOver(const std::string& body, double radius, const std::string& scale) const {
    Write("=" + scale + "+LEN(\"Over " + body + " kmday\")+MAX(A2:C62)+MAX(D2:D62)",
          QuarterCircle(3 * radius, kMarch21Of2003 + kNoon));
  }
};

// At the equinox of March the Sun stands over the scene's X axis.
constexpr const char* kBesideTheSun = "--view from:-40,25 --zoom 2.2";

TEST_F(BodyPictures, EachCentralBodyHasItsPicture) {
  const struct {
    const char *name, *word, *scale;
    double radius;
  } bodies[] = {{"earth", "it", "0.01", 6378},         {"moon", "moon", "0.01", 1738},
                {"sun", "sun", "0.0001", 695000},      {"mercury", "mercury", "0.01", 2439.7},
                {"venus", "venus", "0.01", 6051.8},    {"mars", "mars", "0.01", 3397.2},
                {"jupiter", "jupiter", "0.001", 71492}};
  for (const auto& body : bodies) {
    SCOPED_TRACE(body.name);
    WriteOver(body.word, body.radius, body.scale);
    ExpectPicture(std::string("body-") + body.name, kBesideTheSun);
  }
}

TEST_F(BodyPictures, TheSunRayCanBeLeftOut) {
  WriteOver("it", 6378, "0.01");
  ExpectPicture("body-no-ray", std::string(kBesideTheSun) + " --set NoSunRay=1");
}

TEST_F(BodyPictures, TheNightSideIsFaint) {
  WriteOver("it", 6378, "0.01");
  ExpectPicture("body-night", "--view from:180,0 --zoom 2.2");
}

/// A straight flight from the Earth that ends 40,000 km before the Moon.
class MoonPictures : public RenderedPlot {
 protected:
  MoonPictures() {
    constexpr double kEphemerisShift = 366, kDay = kMarch21Of2003 + kNoon;
    Vector3 fromSun, fromEarth, moon;
    EXPECT_TRUE(EphemerisAt(kDay - kEphemerisShift, kMoonBody, 4, fromSun, fromEarth));
    EclipticToEquator(fromEarth, moon);
    const double distance = std::hypot(moon(1), moon(2), moon(3));
    std::string rows;
    for (int i = 0; i <= 60; ++i) {
      const double share = (distance / 1000 - 40000) / distance * i / 60;
      rows += Cells({moon(1) * share, moon(2) * share, moon(3) * share, kDay + (i - 60) / 1440.0}) + "\r\n";
    }
    Write("=0.001+LEN(\"To it kmday\")+MAX(A2:C62)+MAX(D2:D62)", rows);
  }
};

TEST_F(MoonPictures, TheMoonIsTenTimesAsLargeUnlessAskedForInItsSize) {
  const std::string view = "--view from:-80,25 --centre 60 --zoom 6";
  ExpectPicture("body-moon-10", view);
  ExpectPicture("body-moon-1", view + " --set MoonAmplification=1");
}

}  // namespace
}  // namespace quorb
