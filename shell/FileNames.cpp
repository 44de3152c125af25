#include "FileNames.h"

#include "Desktop.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

bool IsDriveRoot(std::string_view directory) {
  return directory.size() == 1 || (directory.size() == 3 && directory[1] == ':');
}

/// Goes through the name once; behind a star it comes back to the place one further on.
bool SuitsOne(std::string_view name, std::string_view pattern) {
  std::size_t at = 0, place = 0;
  std::size_t star = pattern.npos, starAt = 0;
  while (at < name.size()) {
    if (place < pattern.size() && pattern[place] == '*') {
      star = place++;
      starAt = at;
    } else if (place < pattern.size() && (pattern[place] == '?' || pattern[place] == name[at])) {
      ++at;
      ++place;
    } else if (star != pattern.npos) {
      place = star + 1;
      at = ++starAt;
    } else {
      return false;
    }
  }
  while (place < pattern.size() && pattern[place] == '*')
    ++place;
  return place == pattern.size();
}

}  // namespace

std::string WithoutMark(std::string directory) {
  if (!directory.empty() && IsDirectoryMark(directory.back()) && !IsDriveRoot(directory))
    directory.pop_back();
  return directory;
}

std::string PathOf(const std::string& directory, const std::string& name) {
  if (directory.empty() || IsDirectoryMark(directory.back())) return directory + name;
  return directory + CurrentDesktop().DirectoryMark() + name;
}

std::vector<std::string> WayDown(const std::string& directory) {
  std::vector<std::string> way;
  for (std::size_t i = 0; i < directory.size(); ++i) {
    if (!IsDirectoryMark(directory[i])) continue;
    const std::string upTo = directory.substr(0, i + 1);
    way.push_back(IsDriveRoot(upTo) ? upTo : directory.substr(0, i));
  }
  if (way.empty() ? !directory.empty() : way.back() != WithoutMark(directory))
    way.push_back(WithoutMark(directory));
  return way;
}

bool SuitsPattern(std::string_view name, std::string_view patterns) {
  const std::string lowerName = LowerText(name);
  const std::string lower = LowerText(patterns);
  std::string_view rest = lower;
  for (;;) {
    const std::size_t end = rest.find(';');
    const std::string_view pattern = Trim(rest.substr(0, end));
    if (pattern == "*.*" || (!pattern.empty() && SuitsOne(lowerName, pattern))) return true;
    if (end == rest.npos) return false;
    rest.remove_prefix(end + 1);
  }
}

}  // namespace quorb
