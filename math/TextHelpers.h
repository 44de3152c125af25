#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorb {

/// The text without its leading and trailing blanks. A blank is code 32 and nothing else.
constexpr std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ')
    text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ')
    text.remove_suffix(1);
  return text;
}

/// The UTF-8 text in upper case: a to z and those letters of Latin-1 that have both cases (à to þ).
std::string UpperText(std::string_view text);

/// The UTF-8 text in lower case: A to Z and those letters of Latin-1 that have both cases (À to Þ).
std::string LowerText(std::string_view text);

/// Bytes of the UTF-8 sequence that begins at `position` (1 to 4), or 0 when the bytes there are none: a
/// stray or missing continuation, an overlong form, a surrogate, a code above 10FFFF. `position` must be
/// inside.
std::size_t Utf8SequenceLength(std::string_view text, std::size_t position);

/// How many characters the text has: UTF-8 sequences, and one for each byte that belongs to none.
std::size_t CharacterCount(std::string_view text);

}  // namespace quorb
