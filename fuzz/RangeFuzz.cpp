// Reads the bytes as the text of a range, of a cell, and, cut at each "+", as the terms of a formula over a
// sheet with holes.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "CellRange.h"
#include "FakeLoaderWindow.h"
#include "RangeAnalysis.h"
#include "RunState.h"
#include "ScriptedDialogs.h"

namespace quorb {

namespace {

class SheetWithHoles : public SheetCells {
 public:
  void ActivateSource() override {}
  std::string CellText(int row, int column) override {
    return row > 0 && row < 40000 && (row + column) % 613 > 20 ? "1" : "";
  }
  double VersionNumber() override { return 16; }
};

// A range that passes without a message is the one that its numbers write.
void ReadRangeText(const std::string& text, ScriptedDialogs& dialogs) {
  RangeNumbers numbers;
  const bool taken = ConvertA1LC(text, numbers);
  const bool silent = dialogs.boxes.empty();
  const std::string written = RangeText(numbers);
  if (!taken || !silent || written.empty()) return;
  RangeNumbers again;
  if (!ConvertA1LC(written, again) || !(again == numbers)) std::abort();
}

void AnalyseTerms(const std::string& text) {
  static FakeLoaderWindow window;
  window.log.clear();
  window.progress.clear();
  std::string formula = "=1+MAX(";
  for (const char c : text)
    formula += c == '+' ? std::string(")+MAX(") : std::string(1, c);
  formula += ")";
  SheetWithHoles sheet;
  PlotRanges ranges;
  NcolumnsUpdated(Extraction_info(formula, ""), formula, sheet, window, ranges);
  if (ranges.rangeXYZ.numbers.Ncol1 > ranges.rangeXYZ.numbers.Ncol2) std::abort();
}

void ReadText(const std::string& text) {
  static ScriptedDialogs dialogs;
  dialogs.boxes.clear();
  StartRunState();
  ReadRangeText(text, dialogs);
  ConvertCellLC(text);
  ShiftCell(text, 3);
  AnalyseTerms(text);
}

}  // namespace

}  // namespace quorb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorb::ReadText(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
