#include "ServerClipboard.h"

#include <cstring>

#include "AutomationObject.h"

HWND ServerWindow() {
  static HWND window =
      CreateWindowExW(0, L"STATIC", L"test sheet", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  return window;
}

void FillClipboard(const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  for (int tries = 0; OpenClipboard(ServerWindow()) == 0; ++tries) {
    if (tries == 50) throw ServerFailure{1234, L"Cannot open the Clipboard"};
    Sleep(10);
  }
  EmptyClipboard();
  SetClipboardData(CF_UNICODETEXT, memory);
  CloseClipboard();
}

void EmptyOwnClipboard() {
  if (GetClipboardOwner() != ServerWindow() || OpenClipboard(ServerWindow()) == 0) return;
  EmptyClipboard();
  CloseClipboard();
}
