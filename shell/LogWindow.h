#pragma once

namespace quorb {

/// Shows the log window, or hides it: a double click on the status bar or on the message strip at the top.
void ToggleLog();
/// A double click on the log hides it.
void Text20_DblClick();

}  // namespace quorb
