#pragma once

#include <string>

#include "UserDirectories.h"

namespace quorb {

/// Ties ".qbv" to the program at `program`, for this user: the file type with its extension, the entry that
/// starts the program, and the program as the type's default, unless the user has chosen one. Only what is
/// absent or stands otherwise is written. True when something was written and all of it went well.
bool TieFileType(const UserDirectories& directories, const std::string& program);

/// Lets the desktop notice a new file type; without waiting for it.
void AnnounceFileType(const UserDirectories& directories);

}  // namespace quorb
