#include "Specification.h"

#include "NumberText.h"
#include "RunState.h"

namespace quorb {
namespace {

constexpr std::size_t kAbsent = std::string_view::npos;
constexpr std::string_view kDefaultKeyword = "MAX";

bool HoldsKeyword(std::string_view formula) {
  return !MainKeyword.empty() && formula.find(MainKeyword) != kAbsent;
}

std::string TextInBrackets(std::string_view text) {
  const std::size_t open = text.find('(');
  const std::size_t close = text.find(')');
  if (open == kAbsent || close == kAbsent || close < open) return {};
  return std::string(text.substr(open + 1, close - open - 1));
}

void ReadRanges(std::string_view formula, SpecificationText& found) {
  std::string* const ranges[] = {&found.rangeXYZ,  &found.rangeT,    &found.rangeEvents, &found.rangeQuater,
                                 &found.rangeSApY, &found.rangeSAmY, &found.rangeValZ};
  std::size_t keyword = formula.find(MainKeyword);
  for (std::string* range : ranges) {
    if (keyword == kAbsent) return;
    *range = TextInBrackets(formula.substr(keyword + 1));
    keyword = formula.find(MainKeyword, keyword + 1);
  }
}

void ReadTitle(std::string_view formula, std::string_view titleTail, SpecificationText& found) {
  std::size_t first = formula.find('"');
  if (first == kAbsent) return;
  std::size_t second = formula.find('"', first + 1);
  if (second == kAbsent) return;
  found.hasTitle = true;
  found.title.clear();
  if (second == first + 1) {
    first = second;
    second = formula.find('"', first + 1);
    if (second == kAbsent) return;
  }
  found.title.append(formula.substr(first + 1, second - first - 1)).append(titleTail);
}

void ReadScale(std::string_view formula, SpecificationText& found) {
  const std::size_t equals = formula.find('=');
  if (equals == kAbsent) return;
  const std::string_view behind = formula.substr(equals + 1);
  const std::size_t keyword = behind.find(MainKeyword);
  if (keyword == kAbsent) return;
  const double number = ValText(behind.substr(0, keyword));
  if (number == 0.0) return;
  found.scale = number;
  found.hasScale = true;
}

}  // namespace

SpecificationText Extraction_info(std::string_view cellFormula, std::string_view titleTail) {
  SpecificationText found;
  if (!HoldsKeyword(cellFormula)) MainKeyword = kDefaultKeyword;
  ReadRanges(cellFormula, found);
  ReadTitle(cellFormula, titleTail, found);
  ReadScale(cellFormula, found);
  return found;
}

}  // namespace quorb
