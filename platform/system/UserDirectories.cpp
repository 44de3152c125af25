#include "UserDirectories.h"

#include <cstdlib>

namespace quorb {

namespace {

std::string Environment(const char* name, const std::string& otherwise) {
  const char* const value = std::getenv(name);
  return value != nullptr && *value != '\0' ? value : otherwise;
}

}  // namespace

UserDirectories CurrentUserDirectories() {
  const std::string home = Environment("HOME", "");
  return {Environment("XDG_DATA_HOME", home + "/.local/share"),
          Environment("XDG_CONFIG_HOME", home + "/.config")};
}

}  // namespace quorb
