#pragma once

#include <string>

namespace quorb {

/// Makes the next load read the named file, whatever the length of its name.
void NameDataFile(const std::string& path);

/// Loads the named file with every option at its factory value, for a program without a window or a scene.
void LoadNamedFile(const std::string& path);

}  // namespace quorb
