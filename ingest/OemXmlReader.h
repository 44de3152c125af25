#pragma once

#include "StateTable.h"

namespace quorb {

/// Orbit ephemeris messages of CCSDS 502.0-B in the XML of CCSDS 505.0-B: <oem> as the root or inside <ndm>,
/// with or without a namespace prefix. All segments are joined; everything but metadata and positions is
/// passed over.
class OemXmlReader : public StateReader {
 public:
  std::string_view Name() const override { return "CCSDS OEM (XML)"; }
  bool Recognises(std::string_view head) const override;
  ReadResult Read(std::string_view text, StateTable& out) const override;
};

}  // namespace quorb
