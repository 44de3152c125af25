#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorb {

/// States that one data file holds at most: the rows of a worksheet less the header line.
inline constexpr std::size_t kMaxStates = 1048575;

/// A trajectory as an ephemeris gives it: one entry a state in each of the four columns, in the order of the
/// source. Repeated epochs stay. The texts are empty when the source does not tell them.
struct StateTable {
  std::vector<double> time;  ///< Serial days: days since 1899-12-30 00:00 in the time system of the source.
  std::vector<double> x, y, z;  ///< Kilometres.
  std::string objectName;       ///< As "ISS".
  std::string centreName;       ///< As "EARTH".
  std::string frame;            ///< As "EME2000".
  std::string timeSystem;       ///< As "UTC".
};

/// How a reading ended. `error` is empty when all went well, else it names the line (from 1), what is wrong
/// with it and what to do, as `line 12: "1,5" is no number: ...`.
struct ReadResult {
  std::string error;
  bool Ok() const { return error.empty(); }
};

/// A failure at a line, counted from 1.
inline ReadResult FaultAtLine(std::size_t line, std::string_view what) {
  return {"line " + std::to_string(line) + ": " + std::string(what)};
}

/// A reader of one standard.
class StateReader {
 public:
  virtual ~StateReader() = default;

  /// The standard's name for messages, as "CCSDS OEM, KVN".
  virtual std::string_view Name() const = 0;

  /// True when a file that begins with `head` (its first few thousand bytes, without byte order mark) is of
  /// this standard.
  virtual bool Recognises(std::string_view head) const = 0;

  /// Reads the whole text of a file (UTF-8, without byte order mark) into `out`, which is overwritten; after
  /// a failure `out` is as it was. A text without a state is a failure, and so are more than kMaxStates.
  virtual ReadResult Read(std::string_view text, StateTable& out) const = 0;
};

}  // namespace quorb
