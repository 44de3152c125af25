#include "SpecificationHistory.h"

#include <array>

#include "NumberPicture.h"
#include "SettingsStore.h"

namespace quorb {
namespace {

constexpr const char* kSection = "Use";

}  // namespace

std::string HistoryKey(int index) {
  return "SpecsMax" + FormatPicture(index, "00.00");
}

void RecordSpecification(const std::string& formula) {
  if (formula.empty()) return;
  SettingsStore& settings = CurrentSettings();

  std::array<std::string, kHistoryEntries> entries;
  std::size_t match = 0;
  std::size_t firstFree = kHistoryEntries - 1;
  for (std::size_t i = kHistoryEntries; i-- > 0;) {
    entries[i] = settings.Read(kSection, HistoryKey(static_cast<int>(i)), "");
    if (match == 0 && entries[i] == formula) match = i;
    if (entries[i].empty()) firstFree = i;
  }

  const std::size_t hole = match != 0 ? match : firstFree;
  for (std::size_t i = hole; i > 0; --i) {
    settings.Write(kSection, HistoryKey(static_cast<int>(i)), entries[i - 1]);
  }
  settings.Write(kSection, HistoryKey(0), formula);
}

}  // namespace quorb
