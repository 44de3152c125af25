#pragma once

#include <array>
#include <string_view>

namespace quorb {

/// Locations, then orientations, of the thrusters that the user typed: x, y, z in columns 1 to 3 of the rows
/// from 1 on, and how many numbers there were in the cell (0, 0).
extern std::array<std::array<double, 4>, 26> ThrusterTable;

/// Reads the text of the thruster box into ThrusterTable: n locations x y z, then n orientations x y z, at
/// most 300 numbers, with blanks, commas, semicolons or braces between them; a word that is no number reads
/// as 0. Numbers behind the table's last row are left out.
/// @return false, behind a box that tells the counts, when there are not 6 n numbers; nothing is stored then.
bool ReadThrusters(std::string_view text);

}  // namespace quorb
