#pragma once

#include <string>

namespace quorb {

/// The text as a font can draw it: characters of the UTF-8 text as 32-bit code points, control characters as
/// blanks, a byte that is no UTF-8 as a question mark, cut behind 1000 characters.
std::u32string PrintableText(const std::string& text);

}  // namespace quorb
