// Reads the bytes behind the first one, which chooses the separators, as a number.

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "NumberText.h"
#include "Separators.h"

namespace quorb {

namespace {

void ReadNumber(std::string_view text) {
  int kind = 0;
  const double number = TextToDouble(text, kind);
  if (!std::isfinite(number) || kind < -1 || kind > 1) std::abort();
  if (!std::isfinite(PlainNumber(text))) std::abort();
  const auto quick = ShortNumber(text);
  if (quick && std::bit_cast<std::uint64_t>(*quick) != std::bit_cast<std::uint64_t>(number)) std::abort();
}

}  // namespace

}  // namespace quorb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const quorb::Separators separators(data[0]);
  quorb::ReadNumber({reinterpret_cast<const char*>(data) + 1, size - 1});
  return 0;
}
