#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorb {

// Names of files and directories as texts. Either mark, "/" or "\", separates directories.

/// True for a character that separates directories.
constexpr bool IsDirectoryMark(char c) {
  return c == '/' || c == '\\';
}

/// The directory without the mark at its end, which the root of a drive ("/", "C:\") keeps.
std::string WithoutMark(std::string directory);

/// The path of a file in a directory, with the desktop's mark between them where the directory has none at
/// its end.
std::string PathOf(const std::string& directory, const std::string& name);

/// True for a path that begins with a mark or a drive ("C:").
constexpr bool IsAbsolute(std::string_view path) {
  return !path.empty() && (IsDirectoryMark(path[0]) || (path.size() > 1 && path[1] == ':'));
}

/// The directories on the way down to one, from the root of its drive on, itself the last: "/", "/home",
/// "/home/user". Empty for an empty text.
std::vector<std::string> WayDown(const std::string& directory);

/// True when a name suits a pattern, in which * stands for any characters and ? for one. Case does not count,
/// nor do blanks around the pattern; several patterns are separated by ";". "*.*" suits every name. An empty
/// pattern suits none.
bool SuitsPattern(std::string_view name, std::string_view patterns);

}  // namespace quorb
