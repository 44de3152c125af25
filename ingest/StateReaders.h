#pragma once

#include <string_view>

#include "StateTable.h"

namespace quorb {

/// Reads a text of any standard that a reader knows, into `out`. A byte order mark is passed over. A text
/// that no reader recognises, and an empty one, are failures; the others are those of StateReader::Read.
ReadResult ReadStates(std::string_view text, StateTable& out);

}  // namespace quorb
