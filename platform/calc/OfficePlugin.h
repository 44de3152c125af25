#pragma once

#include <atomic>
#include <memory>
#include <string>

#include "OfficeSession.h"

namespace quorb {

/// Where the plug-in stands: beside the running program, or in ../lib/QuorbExcelPro/ from there. Empty when
/// it is in neither place.
std::string OfficePluginPath();

/// Loads the plug-in, the first time with the libraries of that office, and opens a session that is not
/// connected yet. A later call keeps what is loaded: it talks with any office.
/// @param problem out: what is missing, where a null pointer comes back.
std::unique_ptr<OfficeSession> OpenOfficeSession(const std::string& pluginPath,
                                                 const std::string& programDirectory,
                                                 std::atomic<unsigned>& pulse, std::string& problem);

}  // namespace quorb
