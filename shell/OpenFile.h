#pragma once

#include <string>

namespace quorb {

/// Splits a path behind its last directory mark, of either kind.
/// @param dirOut out: everything up to the mark and with it; `defaultDir` when there is none.
/// @param fileOut out: the rest.
void SplitPath(const std::string& path, std::string& dirOut, std::string& fileOut,
               const std::string& defaultDir);

/// Key of a directory of opened files, 1 the latest to 10, in section "OpenQBV" of the settings.
std::string RecentDirectoryKey(int rank);

/// Lets the user choose a data file and loads it. With Cancel nothing is loaded. Either way the window is
/// activated again.
void mnuFOpen_Click();

}  // namespace quorb
