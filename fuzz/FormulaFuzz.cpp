// Reads the bytes as a specification formula and runs its keywords and its ranges.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FakeLoaderWindow.h"
#include "FormulaReport.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "Specification.h"

namespace quorb {

namespace {

void ReadFormula(const std::string& formula) {
  static ScriptedDialogs dialogs;
  static FakeLoaderWindow window;
  dialogs.boxes.clear();
  window.log.clear();
  window.progress.clear();
  StartRunState();
  const SpecificationText text = Extraction_info(formula, "");
  if (text.scale == 0 || !std::isfinite(text.scale)) std::abort();
  const FormulaReport report = ReportFormula(formula, window);
  if (report.text.empty() || report.text.back() != '\n') std::abort();
}

}  // namespace

}  // namespace quorb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorb::ReadFormula(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
