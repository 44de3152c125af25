#pragma once

#include <string>
#include <string_view>

namespace quorb {

/// True when the bytes are valid UTF-8; plain ASCII is.
bool IsUtf8(std::string_view bytes);

/// Text of a file in UTF-8: the bytes as they stand when they are valid UTF-8, else read as Windows-1252.
std::string DecodeText(std::string_view bytes);

}  // namespace quorb
