#pragma once

#include <string>
#include <vector>

#include "ExampleTable.h"

namespace quorb {

/// One example: its file's name and its table.
struct ExampleFile {
  std::string name;
  ExampleTable (*table)();
};

/// All small examples, one or more for each family of keywords.
const std::vector<ExampleFile>& ExampleFiles();

// ---- units: one turn of the same long ellipse over the north, written in three ways -----------------------

ExampleTable MetresSecondsExample();
ExampleTable KmExample();
ExampleTable KmdayExample();

// ---- forms of a table -------------------------------------------------------------------------------------

/// "PENUP": a constellation of 24 at one instant, each a point with a square around it, coloured by the
/// plane.
ExampleTable PenupExample();

/// "penuplabel": the nearest stars with their names in light-years, coloured by the distance.
ExampleTable PenuplabelExample();

/// "column": a curve around a point of balance behind the Moon, one number a line.
ExampleTable ColumnExample();

/// "yzx": a coil along the Y column that comes to stand on Z.
ExampleTable YzxExample();

// ---- what stands beside the points ------------------------------------------------------------------------

/// "valz": three passes of a satellite over a station, with the signal as value, and an attitude.
ExampleTable ValzExample();

/// "XYZW": a satellite that looks at the Earth, its quaternions with the scalar last.
ExampleTable XyzwExample();

// ---- frames -----------------------------------------------------------------------------------------------

/// " ned": a launch and a quarter of a turn as north, east and down of the launch site, in metres.
ExampleTable NedExample();

/// "em_system": a flight to the Moon and turns around it, each arc around its own body.
ExampleTable EmSystemExample();

// ---- central bodies ---------------------------------------------------------------------------------------

ExampleTable MoonExample();     ///< A long orbit over the Moon's poles.
ExampleTable SunExample();      ///< The way from the Earth's orbit to that of Mars.
ExampleTable MercuryExample();  ///< A long orbit over Mercury's poles.
ExampleTable VenusExample();    ///< A long orbit over the poles of Venus.
ExampleTable MarsExample();     ///< Two turns over the poles of Mars, the second one lower.
ExampleTable JupiterExample();  ///< The orbits of the four large satellites of Jupiter.

}  // namespace quorb
