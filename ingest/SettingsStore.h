#pragma once

#include <string>

namespace quorb {

/// What the program remembers between runs. A store holds the entries of one application key; an entry stands
/// under its section and its key. Values are text; numbers are plain decimal text.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The value of an entry, `defaultValue` when it is absent.
  virtual std::string Read(const std::string& section, const std::string& key,
                           const std::string& defaultValue) const = 0;

  /// Writes an entry. A store that cannot be written is not reported: the entry then stays as it was.
  virtual void Write(const std::string& section, const std::string& key, const std::string& value) = 0;
};

/// The settings of this process. Until a store is set, every entry is absent and nothing is kept.
SettingsStore& CurrentSettings();

/// Sets the settings of this process; a null pointer takes them back. The caller keeps the ownership.
void SetSettings(SettingsStore* store);

}  // namespace quorb
