#pragma once

#include "NumberText.h"
#include "RangeAnalysis.h"
#include "SheetSession.h"

namespace quorb {

/// The source sheet of a session as the analysis of the ranges sees it. A cell that could not be read looks
/// empty; `Failed()` is true from then on, and what was found may end too early.
class SourceCells : public SheetCells {
 public:
  explicit SourceCells(SheetSession& session) : session_(session) {}

  bool Failed() const { return failed_; }

  void ActivateSource() override { session_.Done(session_.link.WorkbooksActivate(session_.SourceBook)); }
  std::string CellText(int row, int column) override {
    CellValue value;
    if (!session_.Done(session_.link.CellsValue(session_.workbook, row, column, value))) failed_ = true;
    return value.text;
  }
  double VersionNumber() override {
    std::string& version = session_.ExcelVersion;
    if (version.empty() && !session_.Done(session_.link.Version(version))) failed_ = true;
    return ValText(session_.ExcelVersion);
  }

 private:
  SheetSession& session_;
  bool failed_ = false;
};

}  // namespace quorb
