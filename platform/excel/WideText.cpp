#include "WideText.h"

#include <windows.h>

namespace quorb {

std::wstring WideText(std::string_view text) {
  const int bytes = static_cast<int>(text.size());
  const int units = MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(units), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, wide.data(), units);
  return wide;
}

std::string NarrowText(std::wstring_view text) {
  const int units = static_cast<int>(text.size());
  const int bytes = WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(bytes), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), units, narrow.data(), bytes, nullptr, nullptr);
  return narrow;
}

}  // namespace quorb
