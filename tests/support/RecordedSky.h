#pragma once

#include <cmath>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Bodies.h"
#include "ScenePlot.h"
#include "Vector3.h"

namespace quorb {

/// The numbers among the arguments of a recorded call.
inline std::vector<double> NumbersOfCall(const std::string& call) {
  std::vector<double> numbers;
  std::istringstream arguments(call.substr(call.find('(') + 1));
  for (std::string word; std::getline(arguments, word, ',');) {
    char* end = nullptr;
    const double number = std::strtod(word.c_str(), &end);
    if (end != word.c_str()) numbers.push_back(number);
  }
  return numbers;
}

/// Whole frames of a plot around the Earth with times, a kilometre a unit of the scene: where they put the
/// Sun, the Moon and the meridian of Greenwich.
class RecordedSky : public ScenePlot {
 protected:
  RecordedSky() {
    scene.BodiesShown = std::make_unique<Bodies>(scene);
    ISOmode = 1;
    InputInKm = true;
    USERFLAG.TimeInData = 1;
    USERFLAG.SatelliteModelReady = 1;
    // Three points, so that the one that is drawn is neither the first nor the last.
    SetPoint(0, 0, 7000, 0, 0);
    SetPoint(1, 1, 7000, 0, 0);
    SetPoint(2, 2, 7000, 0, 0);
    TakePlotAsItIs();
    scene.CURRINDEXI = 1;
    scene.Range = 7000;
  }
  ~RecordedSky() override { InputInKm = false; }

  /// Draws the frame of a serial date and takes what it shows.
  void DrawAt(double day) {
    SetPoint(0, day - 1, 7000, 0, 0);
    SetPoint(1, day, 7000, 0, 0);
    SetPoint(2, day + 1, 7000, 0, 0);
    calls = Frame();
  }

  /// The place of the light, on the axes of the scene.
  Vector3 Sun() const {
    return VectorOf(NumbersOfCall(calls.at(IndexOf("glLightfv(GL_LIGHT0, GL_POSITION"))));
  }

  /// The centre of the Moon's sphere, on the axes of the scene, from the turn about X and the shift before
  /// it.
  Vector3 Moon() const {
    const std::size_t sphere = IndexOf("gluSphere(17400,");
    const std::size_t shift = IndexBefore(sphere, "glTranslatef(");
    const std::vector<double> turn = NumbersOfCall(calls.at(IndexBefore(shift, "glRotatef(")));
    EXPECT_EQ((std::vector<double>{turn.at(1), turn.at(2), turn.at(3)}), (std::vector<double>{1, 0, 0}));
    const Vector3 place = VectorOf(NumbersOfCall(calls.at(shift)));
    const double angle = turn.at(0) * std::acos(-1.0) / 180;
    return {{place(1), place(2) * std::cos(angle) - place(3) * std::sin(angle),
             place(2) * std::sin(angle) + place(3) * std::cos(angle)}};
  }

  /// Degrees from the scene's X axis toward Y: the sphere's picture has Greenwich on -Y before its turn.
  double Greenwich() const {
    const std::size_t sphere = IndexOf("gluSphere(6378,");
    return NumbersOfCall(calls.at(IndexBefore(sphere, "glRotatef("))).at(0) - 90;
  }

  std::vector<std::string> calls;

 private:
  static Vector3 VectorOf(const std::vector<double>& numbers) {
    return {{numbers.at(0), numbers.at(1), numbers.at(2)}};
  }
  std::size_t IndexOf(const std::string& beginning) const {
    for (std::size_t i = 0; i < calls.size(); ++i) {
      if (calls[i].starts_with(beginning)) return i;
    }
    ADD_FAILURE() << "no " << beginning;
    return calls.size();
  }
  std::size_t IndexBefore(std::size_t end, const std::string& beginning) const {
    while (end > 0 && !calls.at(end - 1).starts_with(beginning))
      --end;
    return end - 1;
  }
};

}  // namespace quorb
