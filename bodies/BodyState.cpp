#include "BodyState.h"

#include "ClassGl.h"
#include "PlotData.h"

namespace quorb {

void TakeCurrentTime(const ClassGl& scene, BodyState& state) {
  if (dataXYZT.Holds(scene.CURRINDEXI)) state.CurrentTime = dataXYZT[scene.CURRINDEXI][0];
}

}  // namespace quorb
