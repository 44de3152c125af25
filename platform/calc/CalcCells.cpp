// The active sheet of a workbook, as the link to Calc sees it.
#include <optional>
#include <string_view>

#include "CalcScratch.h"
#include "ScaleText.h"

namespace quorb {
namespace {

// Every call of the function `from` becomes one of `to`.
std::string WithFunctionName(std::string formula, const std::string& from, const std::string& to) {
  const std::string call = from + "(";
  for (std::size_t at = formula.find(call); at != std::string::npos;
       at = formula.find(call, at + to.size() + 1))
    formula.replace(at, from.size(), to);
  return formula;
}

// The text of a formula that is one literal in double quotes, its own quotes doubled.
std::optional<std::string> PlainLiteral(std::string_view formula) {
  if (formula.substr(0, 1) != "=") return {};
  const std::size_t open = formula.find_first_not_of(' ', 1);
  const std::size_t close = formula.find_last_not_of(' ');
  if (open == std::string_view::npos || close <= open || formula[open] != '"' || formula[close] != '"')
    return {};
  std::string text;
  for (std::size_t i = open + 1; i < close; ++i) {
    if (formula[i] == '"') {
      ++i;
      if (i == close || formula[i] != '"') return {};
    }
    text += formula[i];
  }
  return text;
}

}  // namespace

SheetFault CalcLink::CellErrand(Asker asker, Workbook workbook, Errand& errand,
                                const OfficeTalk::Question& question) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  errand.workbook = workbook;
  return Ask(asker, errand, question);
}

SheetFault CalcLink::ActiveSheetName(Workbook workbook, std::string& name) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  const BookView* book = Known(workbook);
  name = book->sheetName;
  return {};
}

SheetFault CalcLink::ActiveCellFormula(Workbook workbook, std::string& formula) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  const BookView* book = Known(workbook);
  Errand errand;
  errand.row = book->row;
  errand.column = book->column;
  SheetFault fault = CellErrand(CurrentAsker(), workbook, errand, [](OfficeSession& session, Errand& asked) {
    return session.CellFormula(asked.workbook, asked.row, asked.column, asked.text);
  });
  if (!fault.Good()) return fault;
  formula = WithReadableScale(
      localKeyword_.empty() ? errand.text : WithFunctionName(errand.text, englishKeyword_, localKeyword_));
  return {};
}

SheetFault CalcLink::SetActiveCellFormula(Workbook workbook, const std::string& /*formula*/) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  return Refused("The workbook is not written to.");
}

SheetFault CalcLink::ActiveCellValue(Workbook workbook, CellValue& value) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  const BookView* book = Known(workbook);
  return CellsValue(workbook, book->row, book->column, value);
}

SheetFault CalcLink::ActiveCellRow(Workbook workbook, int& row) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  const BookView* book = Known(workbook);
  row = book->row;
  return {};
}

SheetFault CalcLink::ActiveCellColumn(Workbook workbook, int& column) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  const BookView* book = Known(workbook);
  column = book->column;
  return {};
}

SheetFault CalcLink::FindWord(Workbook workbook, const std::string& word, Errand& errand) {
  errand.text = word;
  return CellErrand(Asker::load, workbook, errand, [](OfficeSession& session, Errand& asked) {
    return session.FindInFormulas(asked.workbook, asked.text, asked.row, asked.column);
  });
}

// The active cell goes before all others: its formula was not seen under the name that is looked for.
SheetFault CalcLink::FindCall(Workbook workbook, const std::string& call, Errand& errand) {
  const BookView* book = Known(workbook);
  errand.row = book->row;
  errand.column = book->column;
  SheetFault fault = CellErrand(Asker::load, workbook, errand, [](OfficeSession& session, Errand& asked) {
    return session.CellFormula(asked.workbook, asked.row, asked.column, asked.text);
  });
  if (!fault.Good()) return fault;
  const bool isHere = errand.text.substr(0, 1) == "=" && errand.text.find(call) != std::string::npos;
  return isHere ? fault : FindWord(workbook, call, errand);
}

SheetFault CalcLink::FindActivate(Workbook workbook, const FindArguments& arguments) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  if (arguments.What.empty() || arguments.LookIn != xlFormulas || arguments.LookAt != xlPart ||
      !arguments.MatchCase)
    return Refused("That search is not offered.");
  localKeyword_.clear();
  Errand found;
  SheetFault fault = FindWord(workbook, arguments.What, found);
  if (fault.number == kFaultNoObject) {
    // The user may know the function by its name in the language of the office.
    Errand english;
    english.text = arguments.What;
    SheetFault named = CellErrand(Asker::load, workbook, english, [](OfficeSession& session, Errand& asked) {
      return session.EnglishFunction(asked.workbook, std::string(asked.text), asked.text);
    });
    if (!named.Good() || english.text.empty() || english.text == arguments.What) return fault;
    fault = FindCall(workbook, english.text + "(", found);
    if (!fault.Good()) return fault;
    localKeyword_ = arguments.What;
    englishKeyword_ = english.text;
  }
  if (!fault.Good()) return fault;
  BookView* book = Known(workbook);
  book->row = found.row;
  book->column = found.column;
  return {};
}

SheetFault CalcLink::ApplicationFindActivate(const FindArguments& arguments) {
  SheetFault fault = LookAtActive();
  if (!fault.Good()) return fault;
  if (active_ == kNoWorkbook) return Refused("No workbook is open.");
  return FindActivate(active_, arguments);
}

SheetFault CalcLink::CellsValue(Workbook workbook, int row, int column, CellValue& value) {
  if (!IsCell(row, column)) return Refused("There is no such cell.");
  Errand errand;
  errand.row = row;
  errand.column = column;
  SheetFault fault = CellErrand(Asker::load, workbook, errand, [](OfficeSession& session, Errand& asked) {
    return session.ReadCell(asked.workbook, asked.row, asked.column, asked.value);
  });
  if (fault.Good()) value = errand.value;
  return fault;
}

SheetFault CalcLink::CellsSelect(Workbook workbook, int row, int column) {
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  BookView* book = Known(workbook);
  if (!IsCell(row, column)) return Refused("There is no such cell.");
  book->row = row;
  book->column = column;
  return {};
}

SheetFault CalcLink::EvaluateAside(Workbook workbook, const std::string& formula, CellValue& value,
                                   bool& offered) {
  offered = true;
  if (SheetFault held = HeldBook(workbook); !held.Good()) return held;
  if (const auto literal = PlainLiteral(formula)) {
    value = {*literal, {}};
    return {};
  }
  const BookView* book = Known(workbook);
  Errand errand;
  errand.row = book->row;
  errand.column = book->column;
  errand.text = formula;
  SheetFault fault = CellErrand(Asker::load, workbook, errand, [](OfficeSession& session, Errand& asked) {
    return session.Evaluate(asked.workbook, asked.row, asked.column, asked.text, asked.value);
  });
  if (fault.Good()) value = errand.value;
  return fault;
}

}  // namespace quorb
