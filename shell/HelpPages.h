#pragma once

#include <string>

namespace quorb {

inline constexpr int kHelpPages = 4;

/// Title of a page of the help, 1 to 4. The number of the third page reads 31/4.
std::string HelpTitle(int page);

/// Text of a page of the help, 1 to 4: its paragraphs, each on a line of its own.
std::string HelpText(int page);

/// Title and text of the About box; the text names the release, by its nine digits.
std::string AboutTitle();
std::string AboutText();

}  // namespace quorb
