#pragma once

#include <cstdint>

namespace quorb {

/// Processor time that a process has used so far, in microseconds; 0 when it cannot be told.
std::int64_t ProcessorMicroseconds(unsigned long process);

}  // namespace quorb
