#include "PrintableText.h"

#include <cstddef>

namespace quorb {

namespace {

constexpr std::size_t kLongestText = 1000;

/// Number of bytes that a first byte announces, 0 for one that cannot begin a character.
std::size_t SequenceLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  if (first >= 0xF0 && first < 0xF5) return 4;
  return 0;
}

bool IsScalarValue(char32_t c, std::size_t length) {
  const bool overlong = (length == 3 && c < 0x800) || (length == 4 && c < 0x10000);
  const bool surrogate = c >= 0xD800 && c < 0xE000;
  return !overlong && !surrogate && c < 0x110000;
}

/// The character that begins at `at`; `length` is 0 when the bytes there are no UTF-8.
char32_t DecodeAt(const std::string& text, std::size_t at, std::size_t& length) {
  const auto first = static_cast<unsigned char>(text[at]);
  length = SequenceLength(first);
  if (length == 1) return first;
  if (length == 0 || length > text.size() - at) {
    length = 0;
    return 0;
  }
  char32_t c = first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[at + i]);
    if ((next & 0xC0U) != 0x80U) {
      length = 0;
      return 0;
    }
    c = (c << 6U) | (next & 0x3FU);
  }
  if (!IsScalarValue(c, length)) length = 0;
  return c;
}

bool IsControl(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c < 0xA0);
}

}  // namespace

std::u32string PrintableText(const std::string& text) {
  std::u32string printable;
  std::size_t at = 0;
  while (at < text.size() && printable.size() < kLongestText) {
    std::size_t length = 0;
    const char32_t c = DecodeAt(text, at, length);
    if (length == 0) {
      printable += U'?';
      ++at;
      continue;
    }
    printable += IsControl(c) ? U' ' : c;
    at += length;
  }
  return printable;
}

}  // namespace quorb
