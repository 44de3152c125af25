#pragma once

#include <ostream>

#include "CellRange.h"

namespace quorb {

/// Shows a range in the messages of failed tests.
inline void PrintTo(const RangeNumbers& numbers, std::ostream* out) {
  *out << numbers.Ncol1 << ", " << numbers.Ncol2 << ", " << numbers.num1 << ", " << numbers.num2;
}

}  // namespace quorb
