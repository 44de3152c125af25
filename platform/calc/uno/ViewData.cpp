#include "ViewData.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <string_view>
#include <vector>

#include "CellNumberText.h"

namespace quorb {
namespace {

std::vector<std::string_view> Parts(std::string_view text, std::string_view marks) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find_first_of(marks);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

bool ReadInt(std::string_view text, int& number) {
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && stop == text.data() + text.size();
}

// The part of one sheet: column and row first, eleven numbers or so in all.
bool SheetPart(std::string_view part, int& row, int& column) {
  const auto numbers = Parts(part, "/+");
  return numbers.size() >= 8 && ReadInt(numbers[0], column) && ReadInt(numbers[1], row);
}

}  // namespace

void CursorCell(const std::string& viewData, int sheet, int& row, int& column) {
  row = column = 1;
  const auto parts = Parts(viewData, ";");
  const bool hasTabBar = parts.size() > 2 && parts[2].substr(0, 3) == "tw:";
  const std::size_t place = (hasTabBar ? 3U : 2U) + static_cast<std::size_t>(sheet);
  int partRow = 0, partColumn = 0;
  if (place >= parts.size() || !SheetPart(parts[place], partRow, partColumn)) return;
  row = partRow + 1;
  column = partColumn + 1;
}

std::string CaptionOfTitle(const std::string& windowTitle, const std::string& documentTitle) {
  // Nothing is searched for in the document's own title.
  const std::size_t own = documentTitle.size();
  const std::size_t from = windowTitle.compare(0, own, documentTitle) == 0 ? own : 0;
  std::string caption = windowTitle;
  for (const std::string_view dash : {" \u2014 ", " \u2013 ", " - "}) {
    const std::size_t at = windowTitle.rfind(dash);
    if (at == std::string::npos || at < from) continue;
    caption.resize(at);
    break;
  }
  if (from == 0 || caption.compare(from, 3, " : ") != 0) return caption;
  const std::size_t behind = caption.find_first_not_of("0123456789", from + 3);
  return caption.erase(from, (behind == std::string::npos ? caption.size() : behind) - from);
}

std::string CellNumberText(double number) {
  std::array<char, 32> text{};
  const int length = std::snprintf(text.data(), text.size(), "%.15g", number);
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace quorb
