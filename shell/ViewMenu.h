#pragma once

namespace quorb {

/// The reference grid goes on or off.
void mnuVGrids_Click();
/// The camera goes to the origin and looks along -Z, with Y upward.
void mnuVReset_Click();

}  // namespace quorb
