#pragma once

#include <string>
#include <string_view>

namespace quorb {

/// UTF-8 as the system's UTF-16; bytes that are no UTF-8 become U+FFFD.
std::wstring WideText(std::string_view text);

/// UTF-16 as UTF-8; half a surrogate pair becomes U+FFFD.
std::string NarrowText(std::wstring_view text);

}  // namespace quorb
