#include "Clipboard.h"

#include <windows.h>

#include <array>
#include <cstring>
#include <utility>

namespace quorb {

namespace {

constexpr int kTries = 50;
constexpr DWORD kPauseBetweenTries = 20;
constexpr std::size_t kMostBytesKept = std::size_t(64) << 20;

// The clipboard, open for as long as this lives. Who fills it must have a window.
class OpenedClipboard {
 public:
  OpenedClipboard()
      : window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
    for (int tries = 1; !isOpen_ && tries <= kTries; ++tries) {
      if (tries > 1) Sleep(kPauseBetweenTries);
      isOpen_ = OpenClipboard(window_) != 0;
    }
  }
  ~OpenedClipboard() {
    if (isOpen_) CloseClipboard();
    if (window_ != nullptr) DestroyWindow(window_);
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;

  bool IsOpen() const { return isOpen_; }

 private:
  HWND window_;
  bool isOpen_ = false;
};

// The bytes of a memory object of the clipboard.
std::string BytesOf(HANDLE handle) {
  const void* start = handle != nullptr ? GlobalLock(handle) : nullptr;
  if (start == nullptr) return {};
  std::string bytes(static_cast<const char*>(start), GlobalSize(handle));
  GlobalUnlock(handle);
  return bytes;
}

void PutBytes(unsigned format, const std::string& bytes) {
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes.size());
  void* start = memory != nullptr ? GlobalLock(memory) : nullptr;
  if (start == nullptr) {
    GlobalFree(memory);
    return;
  }
  std::memcpy(start, bytes.data(), bytes.size());
  GlobalUnlock(memory);
  if (SetClipboardData(format, memory) == nullptr) GlobalFree(memory);
}

// The forms that are plain memory, the same for every program.
std::array<unsigned, 6> PlainFormats() {
  return {CF_UNICODETEXT,
          CF_HDROP,
          CF_DIB,
          RegisterClipboardFormatW(L"PNG"),
          RegisterClipboardFormatW(L"HTML Format"),
          RegisterClipboardFormatW(L"Rich Text Format")};
}

bool FilledBySomebodyElse(unsigned long user) {
  DWORD owner = 0;
  if (user != 0) GetWindowThreadProcessId(GetClipboardOwner(), &owner);
  return owner != 0 && owner != user && owner != GetCurrentProcessId();
}

}  // namespace

SheetFault ReadClipboardText(unsigned long user, std::wstring& text) {
  const OpenedClipboard clipboard;
  if (!clipboard.IsOpen()) return FaultOf(kFaultClipboard);
  if (FilledBySomebodyElse(user)) return {kFaultClipboard, "The Clipboard was filled by another program"};
  HANDLE handle = GetClipboardData(CF_UNICODETEXT);
  const void* start = handle != nullptr ? GlobalLock(handle) : nullptr;
  if (start == nullptr) return {kFaultClipboard, "The Clipboard holds no text"};
  const auto* units = static_cast<const wchar_t*>(start);
  text.assign(units, wcsnlen(units, GlobalSize(handle) / sizeof(wchar_t)));
  GlobalUnlock(handle);
  return {};
}

SheetFault ClearClipboard() {
  const OpenedClipboard clipboard;
  const bool cleared = clipboard.IsOpen() && EmptyClipboard() != 0;
  return cleared ? SheetFault() : FaultOf(kFaultClipboard);
}

SheetFault ClipboardKeeper::Keep() {
  if (keeping_) return {};
  const OpenedClipboard clipboard;
  if (!clipboard.IsOpen()) return FaultOf(kFaultClipboard);
  keeping_ = true;
  contents_.clear();
  std::size_t kept = 0;
  for (const unsigned format : PlainFormats()) {
    if (IsClipboardFormatAvailable(format) == 0) continue;
    std::string bytes = BytesOf(GetClipboardData(format));
    if (bytes.empty() || kept + bytes.size() > kMostBytesKept) continue;
    kept += bytes.size();
    contents_.push_back({format, std::move(bytes)});
  }
  stateKept_ = GetClipboardSequenceNumber();
  return {};
}

void ClipboardKeeper::PutBack(unsigned long user) {
  if (!keeping_) return;
  const bool isTheUsers = GetClipboardSequenceNumber() == stateKept_ || FilledBySomebodyElse(user);
  const OpenedClipboard clipboard;
  if (!isTheUsers && !clipboard.IsOpen()) return;
  keeping_ = false;
  const std::vector<Content> contents = std::exchange(contents_, {});
  if (isTheUsers || EmptyClipboard() == 0) return;
  for (const Content& content : contents)
    PutBytes(content.format, content.bytes);
}

}  // namespace quorb
