#pragma once

#include <string>
#include <string_view>

#include "StateTable.h"

namespace quorb {

/// Keeps one entry of the metadata of a CCSDS orbit ephemeris message when it is one that a StateTable holds
/// (OBJECT_NAME, CENTER_NAME, REF_FRAME, TIME_SYSTEM); any other key changes nothing. Segments are joined to
/// one trajectory, so a later segment has to say the same: the text tells the clash and what to do, and is
/// empty when there is none.
std::string KeepOemEntry(std::string_view key, std::string_view value, StateTable& out);

}  // namespace quorb
