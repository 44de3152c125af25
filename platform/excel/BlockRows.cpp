#include "BlockRows.h"

#include <algorithm>
#include <string>

#include "Dialogs.h"
#include "WideText.h"

namespace quorb {

namespace {

constexpr std::size_t kUnitsOfPiece = 1 << 15;

bool EndsCell(wchar_t unit) {
  return unit == L'\t' || unit == L'\r' || unit == L'\n';
}

// A cell in quotes that begins there, with both of them; empty when it is no such cell.
std::wstring_view QuotedCell(std::wstring_view text, std::size_t from) {
  std::size_t end = text.find(L'"', from + 1);
  while (end != std::wstring_view::npos && text.substr(end + 1, 1) == L"\"")
    end = text.find(L'"', end + 2);
  if (end == std::wstring_view::npos) return {};
  const std::wstring_view cell = text.substr(from, end + 1 - from);
  const bool isWhole = end + 1 == text.size() || EndsCell(text[end + 1]);
  const bool needsQuotes = std::any_of(cell.begin(), cell.end(), EndsCell);
  return isWhole && needsQuotes ? cell : std::wstring_view();
}

// The plain text of such a cell, on one row.
std::wstring PlainCell(std::wstring_view quoted) {
  std::wstring plain;
  for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
    if (quoted[i] == L'"') ++i;
    plain += EndsCell(quoted[i]) ? L' ' : quoted[i];
  }
  return plain;
}

}  // namespace

SheetFault GiveBlockRows(std::wstring_view text, bool keepsFirst, BlockTextSink& sink) {
  std::wstring piece;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::wstring_view quoted = text[at] == L'"' ? QuotedCell(text, at) : std::wstring_view();
    if (!quoted.empty()) {
      piece += keepsFirst && at == 0 ? std::wstring(quoted) : PlainCell(quoted);
      at += quoted.size();
    }
    // The rest of the cell, and what ends it.
    const auto mark = std::find_if(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), EndsCell);
    const auto end = std::min(static_cast<std::size_t>(mark - text.begin()), text.size() - 1);
    piece += text.substr(at, end + 1 - at);
    at = end + 1;
    const bool isWhole = at >= text.size() || (text[end] == L'\n' && piece.size() >= kUnitsOfPiece);
    if (!isWhole) continue;
    CurrentDialogs().PumpEvents();
    if (!sink.Take(NarrowText(piece))) return FaultOf(kFaultBadCall);
    piece.clear();
  }
  return {};
}

}  // namespace quorb
