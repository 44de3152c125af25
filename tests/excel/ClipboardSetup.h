#pragma once

#include <string>

namespace quorb {

/// Puts one form alone on the clipboard, as a user's program does.
void SetClipboard(unsigned format, const std::wstring& text);
/// The clipboard's text; "none" when it holds none.
std::string ClipboardText();
/// Keeps the clipboard open on a thread of its own until it is let go.
void* HoldClipboard();
void LetClipboardGo(void* held);

}  // namespace quorb
