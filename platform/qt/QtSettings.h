#pragma once

#include <QSettings>

#include "SettingsStore.h"

namespace quorb {

/// The settings of the user, in the toolkit's native store.
class QtSettings : public SettingsStore {
 public:
  QtSettings();
  std::string Read(const std::string& section, const std::string& key,
                   const std::string& defaultValue) const override;
  void Write(const std::string& section, const std::string& key, const std::string& value) override;

  /// Brings what was written to the disk.
  void Flush() { store_.sync(); }

 private:
  QSettings store_;
};

}  // namespace quorb
