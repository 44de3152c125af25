#pragma once

namespace quorb {

/// Where the walks through the standard views stand. They live as long as the scene; a load keeps them.
/// ViewSign, which turns over with each step of the view, and the two saved steps, those before the last
/// call, choose no view themselves: they are kept for callers that return to a view.
struct CameraMemos {
  int ProjStep = 0;
  int ProjStepSaved = 0;
  int ViewStep = 0;
  int ViewStepSaved = 0;
  int ViewSign = 0;
  double ViewAxis = 0;  ///< the axis that points upward: 1 X, 2 Y, 3 Z
  int RealQuadrant = 0;
  bool RealIso = false;
};

}  // namespace quorb
