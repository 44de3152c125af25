#pragma once

#include <array>
#include <cstddef>

namespace quorb {

/// Three numbers, X, Y, Z, addressed 1 to 3.
struct Vector3 {
  std::array<double, 3> component{};

  double& operator()(int place) { return component[static_cast<std::size_t>(place - 1)]; }
  double operator()(int place) const { return component[static_cast<std::size_t>(place - 1)]; }

  bool operator==(const Vector3&) const = default;
};

}  // namespace quorb
