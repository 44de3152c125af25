#pragma once

#include <string>

namespace quorb {

/// The line end inside message texts.
inline const std::string CrLf = "\r\n";

/// 0 until `SoftError` is first called, 1 afterwards. Lives as long as the program.
inline double softFirst = 0.0;

/// The last line that the user typed in the fallback dialog of `SoftError`, offered again as its default.
inline std::string softAnswer;

/// Tells the user of a slip that need not end the run: a rounding fault, a vector of length zero.
///
/// A message that begins with "_" is swallowed. Any other opens a box with Abort, Retry and Ignore:
/// - Ignore returns, and the caller carries on with its clamped or partial value;
/// - Abort ends the program at once, closing nothing;
/// - Retry pauses for good, with the window's and the sheet's events served from inside the call.
/// A box that gives none of these answers, as where no dialog can be shown, falls back on a line of text: an
/// empty one or one that begins with "o" returns, one that begins with "s" ends the program, any other is
/// asked for confirmation and ends the program when that begins with "o".
void SoftError(const std::string& message);

}  // namespace quorb
