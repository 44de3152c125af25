#pragma once

#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "StateTable.h"

namespace quorb {

/// How the states of a table become a data file.
struct StateFileOptions {
  double scale = 0.01;     ///< Finite, above 0.
  std::string title;       ///< One that TitleFault passes.
  std::string sourceName;  ///< For the header line: the file that the states come from.
  std::tm written = {};    ///< For the header line.
};

/// The data file of `table`, which has at least one state: the header line with the specification formula,
/// kilometres and days, then a row `X TAB Y TAB Z TAB T` a state; lines end in CR LF.
std::string StateFileText(const StateTable& table, const StateFileOptions& options);

/// The keyword of the formula for a central body, as "moon" for "MOON"; empty for the Earth, for an empty
/// name and for any centre that the viewer has no body for. The barycentre of a planet counts as the planet.
std::string_view BodyKeyword(std::string_view centreName);

/// True when the viewer has the body of this centre, or the name is empty.
bool IsKnownCentre(std::string_view centreName);

/// The title when the user gave none: the object's name, else `fileStem`, and "Trajectory" when that name
/// cannot stand in a formula, with a line in `warnings` that says so.
std::string DerivedTitle(const StateTable& table, std::string_view fileStem,
                         std::vector<std::string>& warnings);

/// A warning a keyword that the viewer will find in `title`.
void WarnOfTitleWords(std::string_view title, std::vector<std::string>& warnings);

}  // namespace quorb
