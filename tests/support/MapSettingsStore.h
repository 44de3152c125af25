#pragma once

#include <map>
#include <string>
#include <utility>

#include "SettingsStore.h"

namespace quorb {

/// A settings store in memory, which can be made one that refuses writing. It is the process's settings for
/// as long as it lives.
class MapSettingsStore : public SettingsStore {
 public:
  MapSettingsStore() { SetSettings(this); }
  ~MapSettingsStore() override { SetSettings(nullptr); }
  MapSettingsStore(const MapSettingsStore&) = delete;
  MapSettingsStore& operator=(const MapSettingsStore&) = delete;

  std::string Read(const std::string& section, const std::string& key,
                   const std::string& defaultValue) const override {
    const auto entry = entries.find({section, key});
    return entry == entries.end() ? defaultValue : entry->second;
  }

  void Write(const std::string& section, const std::string& key, const std::string& value) override {
    if (writable) entries[{section, key}] = value;
  }

  std::map<std::pair<std::string, std::string>, std::string> entries;
  bool writable = true;
};

}  // namespace quorb
