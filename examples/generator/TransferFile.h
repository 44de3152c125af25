#pragma once

#include "ExampleTable.h"
#include "TransferFlight.h"

namespace quorb {

/// The table of a flight with all seventeen columns: kilometres, days, the events of the burns, the attitude
/// with the body's Z axis along thrust or velocity, the angles of both arrays, and the propellant left as
/// colour value. The attitude, array and value tables have a row for each point.
ExampleTable TransferTable(const Flight& flight);

}  // namespace quorb
