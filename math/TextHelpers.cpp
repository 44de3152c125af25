#include "TextHelpers.h"

#include <array>
#include <cstdint>

namespace quorb {
namespace {

// In UTF-8 the Latin-1 letters are this byte and a second one, whose bit 20 (hex) tells upper from lower
// case. The signs × and ÷ stand among them.
constexpr char kLatin1Lead = '\xC3';
constexpr char kCaseDistance = 0x20;

bool IsLatin1Upper(char second) {
  const auto code = static_cast<unsigned char>(second);
  return code >= 0x80 && code <= 0x9E && code != 0x97;
}

bool IsLatin1Lower(char second) {
  return IsLatin1Upper(static_cast<char>(second - kCaseDistance));
}

}  // namespace

std::string UpperText(std::string_view text) {
  std::string result(text);
  for (std::size_t i = 0; i < result.size(); ++i) {
    const bool ascii = result[i] >= 'a' && result[i] <= 'z';
    const bool latin1 = i > 0 && result[i - 1] == kLatin1Lead && IsLatin1Lower(result[i]);
    if (ascii || latin1) result[i] = static_cast<char>(result[i] - kCaseDistance);
  }
  return result;
}

std::string LowerText(std::string_view text) {
  std::string result(text);
  for (std::size_t i = 0; i < result.size(); ++i) {
    const bool ascii = result[i] >= 'A' && result[i] <= 'Z';
    const bool latin1 = i > 0 && result[i - 1] == kLatin1Lead && IsLatin1Upper(result[i]);
    if (ascii || latin1) result[i] = static_cast<char>(result[i] + kCaseDistance);
  }
  return result;
}

std::size_t Utf8SequenceLength(std::string_view text, std::size_t position) {
  const auto lead = static_cast<unsigned char>(text[position]);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
  if (length == 0 || lead >= 0xF8 || text.size() - position < length) return 0;

  std::uint32_t code = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[position + i]);
    if ((next & 0xC0U) != 0x80U) return 0;
    code = (code << 6U) | (next & 0x3FU);
  }
  constexpr std::array<std::uint32_t, 5> kLowestCode = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return code < kLowestCode[length] || code > 0x10FFFF || surrogate ? 0 : length;
}

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++count) {
    const std::size_t length = Utf8SequenceLength(text, i);
    i += length == 0 ? 1 : length;
  }
  return count;
}

}  // namespace quorb
