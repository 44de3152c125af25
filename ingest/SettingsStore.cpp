#include "SettingsStore.h"

namespace quorb {
namespace {

class EmptySettings : public SettingsStore {
 public:
  std::string Read(const std::string&, const std::string&, const std::string& defaultValue) const override {
    return defaultValue;
  }
  void Write(const std::string&, const std::string&, const std::string&) override {}
};

EmptySettings emptySettings;
SettingsStore* currentSettings = &emptySettings;

}  // namespace

SettingsStore& CurrentSettings() {
  return *currentSettings;
}

void SetSettings(SettingsStore* store) {
  currentSettings = store != nullptr ? store : &emptySettings;
}

}  // namespace quorb
