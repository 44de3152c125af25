#include "TitleTerms.h"

#include <algorithm>
#include <string_view>

#include "CellRange.h"
#include "UserCell.h"

namespace quorb {

namespace {

constexpr std::size_t kAbsent = std::string::npos;
constexpr std::string_view kLen = "LEN(";

// The formula without the blanks behind the first ")" of its LEN term; empty when it has none.
std::string WithoutBlanksBehindTerm(const std::string& formula) {
  const std::size_t term = formula.find(kLen);
  const std::size_t close = term == kAbsent ? kAbsent : formula.find(')', term);
  if (close == kAbsent) return {};
  std::string working = formula.substr(0, close + 1);
  std::copy_if(formula.begin() + static_cast<std::ptrdiff_t>(close) + 1, formula.end(),
               std::back_inserter(working), [](char c) { return c != ' '; });
  return working;
}

std::size_t FirstTerm(std::string_view formula) {
  for (const std::string_view name : {"NB(", "NBCAR(", "COUNT(", "LEN("}) {
    const std::size_t term = formula.find(name);
    if (term != kAbsent) return term;
  }
  return kAbsent;
}

// The first "&" behind `from` that stands outside double quotes.
std::size_t FindConcatenation(std::string_view formula, std::size_t from) {
  bool isQuoted = false;
  for (std::size_t i = from; i < formula.size(); ++i) {
    if (formula[i] == '"') isQuoted = !isQuoted;
    if (formula[i] == '&' && !isQuoted) return i;
  }
  return kAbsent;
}

// What stands beside the literal of a concatenated title.
std::string CellNameInTitle(const std::string& formula) {
  const std::size_t term = FirstTerm(formula);
  if (term == kAbsent) return {};
  const std::size_t open = formula.find('(', term);
  const std::size_t joint = FindConcatenation(formula, open);
  if (joint == kAbsent) return {};
  std::string name = formula.substr(open + 1, joint - open - 1);
  if (name.find('"') != kAbsent) {
    const std::size_t close = formula.find(')', joint);
    if (close == kAbsent) return {};
    name = formula.substr(joint + 1, close - joint - 1);
  }
  std::erase(name, '$');
  return name;
}

// A way that is offered and fails is no leave to write.
bool Evaluate(SheetSession& session, const std::string& formula, CellValue& value) {
  bool isOffered = true;
  if (!session.Done(session.link.EvaluateAside(session.workbook, formula, value, isOffered))) return false;
  return isOffered || EvaluateInUserCell(session, formula, value);
}

}  // namespace

void ExpandLenTerm(SheetSession& session) {
  const std::string working = WithoutBlanksBehindTerm(session.cellFormula);
  const std::size_t term = working.find(kLen);
  if (term == kAbsent) return;
  const std::size_t argument = term + kLen.size();
  const std::size_t close = working.find(")+", term);
  if (close == kAbsent) return;

  const std::string formula = "=" + working.substr(argument, close - argument);
  CellValue value;
  if (!Evaluate(session, formula, value)) return;
  std::replace(value.text.begin(), value.text.end(), '"', '\'');
  session.cellFormula = working.substr(0, argument) + '"' + value.text + '"' + working.substr(close);
}

bool IsTitleJoined(std::string_view formula) {
  const std::size_t term = FirstTerm(formula);
  return term != kAbsent && FindConcatenation(formula, term) != kAbsent;
}

std::string TitleCellText(SheetSession& session) {
  const std::string name = CellNameInTitle(session.cellFormula);
  if (name.empty()) return {};
  const CellPlace place = ConvertCellLC(name);
  if (place.row < 1 || place.col < 1) return {};
  CellValue value;
  session.Done(session.link.CellsValue(session.workbook, static_cast<int>(place.row),
                                       static_cast<int>(place.col), value));
  std::replace(value.text.begin(), value.text.end(), '"', '\'');
  return value.text;
}

}  // namespace quorb
