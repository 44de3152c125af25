#include "OemMetadata.h"

#include "StateText.h"

namespace quorb {

namespace {

std::string* EntryOf(std::string_view key, StateTable& out) {
  if (key == "OBJECT_NAME") return &out.objectName;
  if (key == "CENTER_NAME") return &out.centreName;
  if (key == "REF_FRAME") return &out.frame;
  if (key == "TIME_SYSTEM") return &out.timeSystem;
  return nullptr;
}

}  // namespace

std::string KeepOemEntry(std::string_view key, std::string_view value, StateTable& out) {
  std::string* const entry = EntryOf(key, out);
  const std::string_view trimmed = TrimSpace(value);
  if (entry == nullptr || *entry == trimmed) return {};
  if (!entry->empty()) {
    return std::string(key) + " changes from " + QuotedForMessage(*entry) + " to " +
           QuotedForMessage(trimmed) +
           ", and such segments make no single trajectory: convert them as files of their own";
  }
  *entry = trimmed;
  return {};
}

}  // namespace quorb
