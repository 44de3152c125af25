#include <cmath>
#include <numbers>

#include "Ellipse.h"
#include "ExampleFiles.h"

namespace quorb {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kDegree = std::numbers::pi / 180;

// ---- a constellation --------------------------------------------------------------------------------------

constexpr int kPlanes = 3;
constexpr int kInPlane = 8;
constexpr double kConstellationRadius = 29600;
constexpr double kHalfSide = 2500;
/// Rows of the second points for one object: four corners, the first one again, and a gap.
constexpr int kRowsOfObject = 6;

int PlaneOf(int number) {
  return number / kInPlane;
}

OrbitState Member(int number) {
  const int plane = PlaneOf(number);
  const double place = kTurn * (number % kInPlane + plane / 3.0) / kInPlane;
  return PointOnEllipse({kEarthMu, kConstellationRadius, kConstellationRadius, 56, 120.0 * plane}, place)
      .state;
}

Vec3 Corner(const OrbitState& member, int corner) {
  const Vec3 along = Unit(member.velocity);
  const Vec3 across = Unit(Cross(member.position, member.velocity));
  const double u = corner == 1 || corner == 2 ? -1 : 1;
  const double v = corner >= 2 && corner < 4 ? -1 : 1;
  return member.position + kHalfSide * (u * along + v * across);
}

// ---- stars ------------------------------------------------------------------------------------------------

struct Star {
  const char* name;
  double hours, degrees, lightYears;  ///< Right ascension, declination, distance.
};

constexpr Star kStars[] = {
    {"Sol", 0, 0, 0},
    {"Alpha Centauri", 14.660, -60.83, 4.37},
    {"Barnard", 17.963, 4.69, 5.96},
    {"Wolf 359", 10.941, 7.01, 7.86},
    {"Lalande 21185", 11.056, 35.97, 8.31},
    {"Sirius", 6.752, -16.72, 8.60},
    {"Luyten 726-8", 1.650, -17.95, 8.73},
    {"Epsilon Eridani", 3.549, -9.46, 10.47},
    {"61 Cygni", 21.115, 38.75, 11.40},
    {"Procyon", 7.655, 5.22, 11.46},
    {"Epsilon Indi", 22.056, -56.79, 11.87},
    {"Tau Ceti", 1.734, -15.94, 11.91},
};

}  // namespace

ExampleTable PenupExample() {
  ExampleTable table;
  table.sheetName = "Objects";
  table.title = "Constellation of 24 penup metres";
  table.scale = 0.01;
  table.terms = 4;
  constexpr int kMembers = kPlanes * kInPlane;
  constexpr double kMetres = 1000;
  for (int i = 0; i < kRowsOfObject * kMembers; ++i) {
    // The squares take the times of the first rows, a square each, so the points come round again below.
    const int number = i % kMembers;
    RowText text;
    for (const double coordinate : Member(number).position)
      text.Number(kMetres * coordinate);
    text.Number(1 + PlaneOf(number)).Empty(2);
    const int corner = i % kRowsOfObject;
    if (corner == kRowsOfObject - 1) {
      text.Empty(5);
    } else {
      for (const double coordinate : Corner(Member(i / kRowsOfObject), corner % 4))
        text.Number(kMetres * coordinate);
      text.Empty(2);
    }
    table.rows.push_back(text.Line());
  }
  return table;
}

ExampleTable PenuplabelExample() {
  ExampleTable table;
  table.sheetName = "Labels";
  table.title = "Nearest stars penuplabel";
  table.terms = 3;
  for (const Star& star : kStars) {
    const double ascension = 15 * star.hours * kDegree;
    const double declination = star.degrees * kDegree;
    RowText text;
    text.Number(star.lightYears * std::cos(declination) * std::cos(ascension));
    text.Number(star.lightYears * std::cos(declination) * std::sin(ascension));
    text.Number(star.lightYears * std::sin(declination));
    text.Number(star.lightYears).Empty(1).Text(star.name);
    table.rows.push_back(text.Line());
  }
  return table;
}

ExampleTable ColumnExample() {
  ExampleTable table;
  table.sheetName = "One column";
  table.title = "Curve around a point of balance column km";
  table.scale = 0.001;
  table.terms = 1;
  table.oneColumn = true;
  constexpr int kPoints = 160;
  for (int i = 0; i <= kPoints; ++i) {
    const double phase = 4 * kTurn * i / kPoints;
    const double coordinates[] = {11000 * std::cos(phase), 33000 * std::sin(phase),
                                  20000 * std::sin(1.25 * phase)};
    for (const double coordinate : coordinates)
      table.rows.push_back(RowText().Number(coordinate).Line());
  }
  return table;
}

ExampleTable YzxExample() {
  ExampleTable table;
  table.sheetName = "Axes";
  table.title = "Coil that stands on Z yzx kmday";
  table.scale = 0.01;
  constexpr int kPoints = 240;
  for (int i = 0; i <= kPoints; ++i) {
    const double phase = 5 * kTurn * i / kPoints;
    RowText text;
    text.Number(9000 * std::sin(phase))
        .Number(75.0 * i)
        .Number(9000 * std::cos(phase))
        .Number(45809 + 0.01 * i);
    table.rows.push_back(text.Line());
  }
  return table;
}

}  // namespace quorb
