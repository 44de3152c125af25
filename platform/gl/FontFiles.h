#pragma once

#include <string>

namespace quorb {

/// File of the installed scalable font that is nearest to a face, by the system's font configuration; empty
/// when no font is installed at all.
std::string FindFontFile(const std::string& face, bool bold, bool italic);

}  // namespace quorb
