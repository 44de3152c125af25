#pragma once

#include <cmath>
#include <cstdint>

namespace quorb {

/// Gives `target` the whole number nearest to `value`, halves to the even one. A value that is no number or
/// outside 32 bits changes nothing.
inline void AssignRounded(std::int32_t& target, double value) {
  const double whole = std::nearbyint(value);
  if (whole >= INT32_MIN && whole <= INT32_MAX) target = static_cast<std::int32_t>(whole);
}

}  // namespace quorb
