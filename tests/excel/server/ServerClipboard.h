#pragma once

#include <windows.h>

#include <string>

/// The server's window, which owns what it puts on the clipboard.
HWND ServerWindow();

/// Puts a text on the clipboard.
void FillClipboard(const std::wstring& text);

/// Takes it off again, unless another program has filled the clipboard since.
void EmptyOwnClipboard();
