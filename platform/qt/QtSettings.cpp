#include "QtSettings.h"

namespace quorb {

namespace {

constexpr const char* kOrganisation = "QuorbExcelPro";
constexpr const char* kSettingsAppKey = "QuorbExcelProSettings";

QString EntryOf(const std::string& section, const std::string& key) {
  return QString::fromStdString(section) + '/' + QString::fromStdString(key);
}

}  // namespace

QtSettings::QtSettings() : store_(kOrganisation, kSettingsAppKey) {}

std::string QtSettings::Read(const std::string& section, const std::string& key,
                             const std::string& defaultValue) const {
  const QString entry = EntryOf(section, key);
  if (!store_.contains(entry)) return defaultValue;
  return store_.value(entry).toString().toStdString();
}

void QtSettings::Write(const std::string& section, const std::string& key, const std::string& value) {
  store_.setValue(EntryOf(section, key), QString::fromStdString(value));
}

}  // namespace quorb
