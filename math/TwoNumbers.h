#pragma once

namespace quorb {

/// Two numbers on which the processor works in the time of one. The four operations act on both, exactly as
/// on each alone; `pair[0]` and `pair[1]` read them.
using TwoNumbers = double __attribute__((vector_size(16)));

inline TwoNumbers Both(double number) {
  return TwoNumbers{number, number};
}

}  // namespace quorb
