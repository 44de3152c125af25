#pragma once

#include <memory>
#include <string>

#include "FileAccess.h"

namespace quorb {

/// Begins a file beside the one of that name, as "NAME.PID.part"; committed, it is on the disk whole and
/// takes the name. A symbolic link stays one: the file that it leads to is replaced. The new file has the old
/// one's mode. Parts that processes left which are gone are removed. A null pointer when it cannot be begun.
std::unique_ptr<OutputFile> CreateStagedFile(const std::string& path);

}  // namespace quorb
