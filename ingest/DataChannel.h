#pragma once

#include <string_view>

namespace quorb {

/// The next line of the open channel as bytes that stay valid until the channel is closed; false at its end,
/// and where the line reaches into a part that is no longer in the file.
bool NextLine(int number, std::string_view& line);

/// True once a part of the file was read that is no longer in it.
bool ChannelLostPart(int number);

/// True when the file is shorter now than it was when it was opened.
bool ChannelShrunk(int number);

}  // namespace quorb
