#pragma once

#include <string>

#include "ProgramRun.h"

namespace quorb {

/// What xdotool knows of the visible windows with this text in their titles, on a display by its name or on
/// the test's own. `then` is done with the first of them. A search that comes upon a window, such as a menu,
/// which goes away meanwhile ends with an error of the display, and is done again.
inline ProgramOutcome SearchWindows(const ProgramRun& run, const std::string& title,
                                    const std::string& then = "", const std::string& display = "") {
  const std::string words = (display.empty() ? "" : "DISPLAY=" + display + " ") +
                            "timeout 15 xdotool search --onlyvisible --name '" + title + "' " + then;
  ProgramOutcome found;
  for (int attempt = 0; attempt < 5; ++attempt) {
    found = run.Run("/usr/bin/env", words);
    if (found.err.find("BadWindow") == found.err.npos && found.err.find("BadMatch") == found.err.npos) break;
  }
  return found;
}

}  // namespace quorb
