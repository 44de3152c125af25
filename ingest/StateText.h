#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "StateTable.h"

namespace quorb {

/// Walks the lines of a text. A line ends at CR LF, LF or a lone CR; the last one may go without.
class LineWalk {
 public:
  explicit LineWalk(std::string_view text) : rest_(text) {}

  /// Moves to the next line; false at the end of the text.
  bool Next();

  /// The current line without its end.
  std::string_view Line() const { return line_; }

  /// The current line's number, from 1.
  std::size_t Number() const { return number_; }

 private:
  std::string_view rest_;
  std::string_view line_;
  std::size_t number_ = 0;
};

/// The number, from 1, of the line that holds the byte at `offset`.
std::size_t LineOfOffset(std::string_view text, std::size_t offset);

/// The text without blanks, TABs and line ends at its two ends.
std::string_view TrimSpace(std::string_view text);

/// The words of a line, parted by runs of blanks and TABs.
std::vector<std::string_view> SplitWords(std::string_view line);

/// The number that the whole field holds: sign, digits, a point and an exponent, blanks around it allowed.
/// None for anything else, and for a value that is not finite or that a double cannot hold.
std::optional<double> ParseNumberField(std::string_view field);

/// `text` in double quotes for a message, cut behind 40 bytes, with control characters as blanks.
std::string QuotedForMessage(std::string_view text);

/// The four fields of a state as text.
struct StateFields {
  std::string_view epoch, x, y, z;
};

/// How the time of a state may be written.
enum class EpochForm { epoch, epochOrSerialDay };

/// Why a state could not be added: `field` is 0 for the epoch, 1 to 3 for x, y, z. An empty `what` means that
/// it was.
struct StateFault {
  std::size_t field = 0;
  std::string what;
};

/// Adds one state to `out`. Failures: a field that cannot be read, and a table that is full.
StateFault AppendState(const StateFields& fields, EpochForm form, StateTable& out);

}  // namespace quorb
