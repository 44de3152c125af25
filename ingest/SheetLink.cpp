#include "SheetLink.h"

namespace quorb {

namespace {

SheetFault NoObject() {
  return FaultOf(kFaultNoObject);
}

/// What stands there where no spreadsheet can be reached.
class NoSheetLink : public SheetLink {
 public:
  SheetFault GetRunningObject() override { return FaultOf(kFaultNoApplication); }
  void ReleaseObject() override {}
  SheetFault Version(std::string&) override { return NoObject(); }
  SheetFault Name(std::string&) override { return NoObject(); }
  SheetFault Visible(bool&) override { return NoObject(); }
  SheetFault SetVisible(bool) override { return NoObject(); }
  SheetFault Quit() override { return NoObject(); }
  SheetFault ActiveWorkbook(Workbook&) override { return NoObject(); }
  SheetFault ActiveWorkbookName(std::string&) override { return NoObject(); }
  SheetFault WorkbookWindowsCount(Workbook, int&) override { return NoObject(); }
  SheetFault WorkbookWindowCaption(Workbook, int, std::string&) override { return NoObject(); }
  SheetFault WindowsCount(int&) override { return NoObject(); }
  SheetFault WindowCaption(int, std::string&) override { return NoObject(); }
  SheetFault WorkbooksActivate(const std::string&) override { return NoObject(); }
  SheetFault WorkbooksAdd() override { return NoObject(); }
  SheetFault ActiveWindowClose(bool, bool) override { return NoObject(); }
  SheetFault ActiveSheetName(Workbook, std::string&) override { return NoObject(); }
  SheetFault ActiveCellFormula(Workbook, std::string&) override { return NoObject(); }
  SheetFault SetActiveCellFormula(Workbook, const std::string&) override { return NoObject(); }
  SheetFault ActiveCellValue(Workbook, CellValue&) override { return NoObject(); }
  SheetFault ActiveCellRow(Workbook, int&) override { return NoObject(); }
  SheetFault ActiveCellColumn(Workbook, int&) override { return NoObject(); }
  SheetFault FindActivate(Workbook, const FindArguments&) override { return NoObject(); }
  SheetFault ApplicationFindActivate(const FindArguments&) override { return NoObject(); }
  SheetFault CellsValue(Workbook, int, int, CellValue&) override { return NoObject(); }
  SheetFault CellsSelect(Workbook, int, int) override { return NoObject(); }
  SheetFault RangeCopy(const std::string&) override { return NoObject(); }
  SheetFault RangePasteSpecial(const std::string&, const PasteArguments&) override { return NoObject(); }
  SheetFault EndCutCopyMode() override { return NoObject(); }
  SheetFault RangeSelect(const std::string&) override { return NoObject(); }
  SheetFault SetActiveCell(const std::string&) override { return NoObject(); }
  SheetFault ColumnsSelect(const std::string&) override { return NoObject(); }
  SheetFault SelectionColumnWidth(double) override { return NoObject(); }
  SheetFault SelectionNumberFormat(const std::string&) override { return NoObject(); }
  SheetFault BlockText(const std::string&, BlockTextSink&) override { return NoObject(); }
};

NoSheetLink noLink;
SheetLink* currentLink = &noLink;

}  // namespace

SheetLink& CurrentSheetLink() {
  return *currentLink;
}

void SetSheetLink(SheetLink* link) {
  currentLink = link != nullptr ? link : &noLink;
}

}  // namespace quorb
