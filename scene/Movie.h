#pragma once

#include <string>

namespace quorb {

/// Where the frames of the running movie go, and what stands in front of their numbers.
extern std::string MovieDirectory, MoviePrefix;

}  // namespace quorb
