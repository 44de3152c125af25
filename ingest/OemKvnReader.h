#pragma once

#include "StateTable.h"

namespace quorb {

/// Orbit ephemeris messages of CCSDS 502.0-B in keyword = value notation. All segments are joined; comments
/// and covariance blocks are passed over; velocities and accelerations are checked to be numbers and dropped.
class OemKvnReader : public StateReader {
 public:
  std::string_view Name() const override { return "CCSDS OEM (KVN)"; }
  bool Recognises(std::string_view head) const override;
  ReadResult Read(std::string_view text, StateTable& out) const override;
};

}  // namespace quorb
