#pragma once

#include <string>

namespace quorb {

/// Entries of the history of specifications, 0 the latest.
inline constexpr int kHistoryEntries = 21;

/// The key of an entry of the history, 0 to kHistoryEntries - 1, in section "Use" of the settings:
/// "SpecsMax00.00" to "SpecsMax20.00".
std::string HistoryKey(int index);

/// Keeps a formula at the head of the history in CurrentSettings(). Where it already stands behind the head
/// it moves there from its place; otherwise the entries up to the first empty one move by one place, and when
/// none is empty the last is lost. One that stands at the head only is written once more, so that the same
/// formula used twice stands twice. An empty formula is not kept.
void RecordSpecification(const std::string& formula);

}  // namespace quorb
