#pragma once

#include "StateTable.h"

namespace quorb {

/// Plain tables of text: a header line that names the columns, then a line a state.
///
/// The columns may stand in any order, others are ignored, and upper or lower case makes no difference:
/// - time: "time", "epoch", "t", "date", "datetime", "timestamp" or "utc", also with "_utc" behind it: epochs
///   (see ParseEpoch) or serial days;
/// - x, likewise y and z: "x", "pos_x", "position_x", "x_pos", "r_x" or "rx", also with "_km", "(km)" or
///   "[km]" behind it: kilometres.
///
/// The separator is the semicolon if the header line holds one, else the comma, else the TAB, else runs of
/// blanks. Numbers have a point. Empty lines and lines that begin with "#" are passed over; the header line
/// itself may begin with "#". The names of object, centre, frame and time system stay empty.
class TableReader : public StateReader {
 public:
  std::string_view Name() const override { return "table of text with a header line"; }
  bool Recognises(std::string_view head) const override;
  ReadResult Read(std::string_view text, StateTable& out) const override;
};

}  // namespace quorb
