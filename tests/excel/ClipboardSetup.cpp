#include "ClipboardSetup.h"

#include <windows.h>

#include <atomic>
#include <cstring>
#include <thread>

#include "Check.h"
#include "WideText.h"

namespace quorb {

namespace {

bool OpenWithPatience(HWND window) {
  for (int tries = 0; tries < 100; ++tries) {
    if (OpenClipboard(window) != 0) return true;
    Sleep(10);
  }
  return false;
}

struct Holder {
  std::thread thread;
  std::atomic<bool> isOpen{false};
  std::atomic<bool> mayGo{false};
};

}  // namespace

void SetClipboard(unsigned format, const std::wstring& text) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
  std::memcpy(GlobalLock(memory), text.c_str(), bytes);
  GlobalUnlock(memory);
  HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  CHECK(OpenWithPatience(window));
  EmptyClipboard();
  CHECK(SetClipboardData(format, memory) != nullptr);
  CloseClipboard();
  DestroyWindow(window);
}

std::string ClipboardText() {
  if (!OpenWithPatience(nullptr)) return "not open";
  std::string text = "none";
  HANDLE handle = GetClipboardData(CF_UNICODETEXT);
  if (const auto* start = handle != nullptr ? static_cast<const wchar_t*>(GlobalLock(handle)) : nullptr) {
    text = NarrowText(start);
    GlobalUnlock(handle);
  }
  CloseClipboard();
  return text;
}

void* HoldClipboard() {
  auto* holder = new Holder;
  holder->thread = std::thread([holder] {
    HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    holder->isOpen = OpenWithPatience(window);
    while (!holder->mayGo)
      Sleep(5);
    CloseClipboard();
    DestroyWindow(window);
  });
  while (!holder->isOpen)
    Sleep(5);
  return holder;
}

void LetClipboardGo(void* held) {
  auto* holder = static_cast<Holder*>(held);
  holder->mayGo = true;
  holder->thread.join();
  delete holder;
}

}  // namespace quorb
