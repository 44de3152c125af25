#include "FrameKey.h"

#include "ClassGl.h"
#include "PlotData.h"
#include "RunState.h"

namespace quorb {

namespace {

void AddCamera(std::vector<double>& numbers, const HostCamera& camera) {
  double left = 0, right = 0, bottom = 0, top = 0;
  camera.GetOrtho(left, right, bottom, top);
  numbers.insert(numbers.end(), {left, right, bottom, top, static_cast<double>(camera.GetProjection())});
  float x = 0, y = 0, z = 0;
  camera.GetPosition(x, y, z);
  numbers.insert(numbers.end(), {x, y, z});
  camera.GetTarget(x, y, z);
  numbers.insert(numbers.end(), {x, y, z});
  camera.GetUp(x, y, z);
  numbers.insert(numbers.end(), {x, y, z});
}

void AddPlot(std::vector<double>& numbers) {
  for (const int number : {DEJADRAW, DEJARESET, LastPoint, NbEvents, ISOmode, PenUpMode, PenUpLabelMode,
                           PenUpLabelShow, ValColour, ValAxis, FlagOptionToPlot, ColumnMode, MoonFocus,
                           FocusBody, EMSystem, MoonSwitch, LocalFollow}) {
    numbers.push_back(number);
  }
  numbers.insert(numbers.end(),
                 {NbQuater, NbSApY, NbSAmY, NbValZ, FactorScale, TimeMin, TimeMax, EMDistance});
}

}  // namespace

FrameKey PresentKey(const ClassGl& scene) {
  FrameKey key{USERFLAG, {}, TitlePrefix + MessageUserToPlot};
  std::vector<double>& numbers = key.numbers;
  numbers.reserve(64);
  for (const std::int32_t number : {scene.CURRINDEXI, scene.CURRINDEXMINI, scene.ViewWidth, scene.ViewHeight,
                                    scene.EventsForced, scene.WhiteBack}) {
    numbers.push_back(number);
  }
  numbers.insert(numbers.end(), {scene.Range, scene.Grids() ? 1.0 : 0.0});
  AddPlot(numbers);
  AddCamera(numbers, scene.Host.Camera());
  if (scene.BodiesShown != nullptr) scene.BodiesShown->AddToKey(numbers);
  return key;
}

bool ClassGl::FrameIsDue() const {
  return LastKey != KeyBefore || LastKey != PresentKey(*this);
}

}  // namespace quorb
