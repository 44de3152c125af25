#pragma once

#include <string>

namespace quorb {

/// Where the desktop's conventions keep what belongs to the user.
struct UserDirectories {
  std::string data;    ///< $XDG_DATA_HOME
  std::string config;  ///< $XDG_CONFIG_HOME
};

/// The user's directories as the environment tells, or the conventions' defaults.
UserDirectories CurrentUserDirectories();

}  // namespace quorb
