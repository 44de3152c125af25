#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorb {

/// A keyword of the specification formula that a title holds, wanted or not.
struct TitleWord {
  std::string_view word;
  std::string_view effect;  ///< What the viewer does on it, as "takes the time in days".
  bool changesNumbers;      ///< True when it makes the viewer read the rows in another way.
};

/// The keywords that the viewer would find in `title` when it stands before other words in a formula, in the
/// order in which the viewer looks for them.
std::vector<TitleWord> TitleWordsIn(std::string_view title);

/// Why `title` cannot stand in the formula of a written file, as a message that names the character or the
/// word; empty when it can. Characters: the double quote and every control character. Words: those that
/// change how the rows are read, and "MAX", which marks a range.
std::string TitleFault(std::string_view title);

}  // namespace quorb
