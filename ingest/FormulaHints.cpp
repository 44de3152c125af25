#include "FormulaHints.h"

#include <algorithm>
#include <utility>

#include "NumberText.h"
#include "RunState.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

constexpr int kMeanings = 7;

int CountOf(const std::string& text, const std::string& word) {
  int count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + word.size()))
    ++count;
  return count;
}

/// A cell as a spreadsheet writes it: one or two letters, then a row from 1 on.
bool IsCell(std::string_view text) {
  std::size_t letters = 0;
  while (letters < text.size() && text[letters] >= 'A' && text[letters] <= 'Z')
    ++letters;
  const std::string_view digits = text.substr(letters);
  const bool isRow = !digits.empty() && digits[0] != '0' && digits.size() <= 7 &&
                     std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
  return (letters == 1 || letters == 2) && isRow;
}

bool IsRange(const std::string& upper) {
  const std::size_t colon = upper.find(':');
  if (colon == std::string::npos) return IsCell(upper);
  return IsCell(std::string_view(upper).substr(0, colon)) &&
         IsCell(std::string_view(upper).substr(colon + 1));
}

/// Row of the cell at the end of a text.
double RowOfLastCell(std::string_view text) {
  std::size_t start = text.size();
  while (start > 0 && text[start - 1] >= '0' && text[start - 1] <= '9')
    --start;
  return PlainNumber(text.substr(start));
}

bool EndsAboveItsStart(const std::string& upper) {
  const std::size_t colon = upper.find(':');
  if (colon == std::string::npos) return false;
  return RowOfLastCell(upper) < RowOfLastCell(std::string_view(upper).substr(0, colon));
}

std::string WithoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

void HintAtRange(const char* name, const std::string& range, std::vector<std::string>& hints) {
  const std::string upper = UpperText(WithoutBlanks(range));
  if (upper.empty()) return;
  if (upper.find('$') != std::string::npos) {
    std::string plain = upper;
    std::erase(plain, '$');
    hints.push_back(std::string(name) + ": \"" + range + "\" holds \"$\", which is not read; write " + plain +
                    ".");
  } else if (!IsRange(upper)) {
    hints.push_back(std::string(name) + ": \"" + range + "\" is no range such as A2:C2000.");
  } else if (EndsAboveItsStart(upper)) {
    hints.push_back(std::string(name) + ": \"" + range + "\" ends above its first row.");
  }
}

}  // namespace

std::vector<std::string> FormulaHints(const std::string& formula, const SpecificationText& specification) {
  std::vector<std::string> hints;
  if (formula.find('=') == std::string::npos) hints.push_back("The formula has no \"=\" at its head.");
  const int terms = CountOf(formula, MainKeyword);
  if (terms == 0) {
    hints.push_back("The formula has no \"" + MainKeyword +
                    "(\", in capitals, which marks a range; write for instance MAX(A2:C2000).");
  }
  if (terms > kMeanings) {
    hints.push_back("The formula has " + std::to_string(terms) + " terms with \"" + MainKeyword +
                    "\"; those behind the seventh are not read.");
  }
  if (CountOf(formula, "(") != CountOf(formula, ")"))
    hints.push_back("The formula has not as many \")\" as \"(\".");
  if (specification.hasTitle && specification.title.find(MainKeyword) != std::string::npos) {
    hints.push_back("The title holds \"" + MainKeyword +
                    "\", which is taken for the first term; write it otherwise.");
  }
  if (CountOf(formula, "\"") % 2 == 1) hints.push_back("A double quote of the formula has no partner.");
  const std::pair<const char*, const std::string*> ranges[] = {
      {"rangeXYZ", &specification.rangeXYZ},       {"rangeT", &specification.rangeT},
      {"rangeEvents", &specification.rangeEvents}, {"rangeQuater", &specification.rangeQuater},
      {"rangeSApY", &specification.rangeSApY},     {"rangeSAmY", &specification.rangeSAmY},
      {"rangeValZ", &specification.rangeValZ}};
  for (const auto& [name, range] : ranges)
    HintAtRange(name, *range, hints);
  return hints;
}

}  // namespace quorb
