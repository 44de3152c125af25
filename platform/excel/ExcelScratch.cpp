#include "ExcelSession.h"

namespace quorb {

// A block of the scratch workbook; 1004 when another workbook is active.
SheetFault ExcelSession::ScratchRange(const std::string& range, ComObject& block) {
  if (app_.IsNothing()) return FaultOf(kFaultNoObject);
  const bool isActive = scratchBook_ != kNoWorkbook && active_ == scratchBook_;
  if (!isActive) return {kFaultApplication, "The workbook is not written to"};
  ComObject sheet;
  SheetFault fault = SheetOf(scratchBook_, sheet);
  return fault.Good() ? sheet.Follow(L"Range", block, CallArguments(range)) : fault;
}

// The block is copied when it is pasted: until then the clipboard is the user's.
SheetFault ExcelSession::RangeCopy(const std::string& range) {
  ComObject sheet, block;
  SheetFault fault = TakeActive();
  if (fault.Good() && active_ != kNoWorkbook && active_ == scratchBook_)
    return {kFaultApplication, "The scratch workbook is not copied from"};
  if (fault.Good()) fault = SheetOf(active_, sheet);
  if (fault.Good()) fault = sheet.Follow(L"Range", block, CallArguments(range));
  if (fault.Good()) marked_ = block;
  return fault;
}

// Copies in the application, with what the user has on the clipboard kept.
SheetFault ExcelSession::CopyBlock(const ComObject& block) {
  SheetFault fault = clipboard_.Keep();
  if (fault.Good()) fault = block.Call(L"Copy");
  copying_ = copying_ || fault.Good();
  return fault;
}

SheetFault ExcelSession::RangePasteSpecial(const std::string& range, const PasteArguments& arguments) {
  ComObject block;
  SheetFault fault = ScratchRange(range, block);
  if (!fault.Good()) return fault;
  if (marked_.IsNothing()) return {kFaultApplication, "No block is marked"};
  CallArguments named;
  named.Add(L"Paste", arguments.Paste);
  if (arguments.Operation) named.Add(L"Operation", *arguments.Operation);
  if (arguments.SkipBlanks) named.Add(L"SkipBlanks", *arguments.SkipBlanks);
  if (arguments.Transpose) named.Add(L"Transpose", *arguments.Transpose);
  fault = CopyBlock(marked_);
  if (fault.Good()) fault = block.Call(L"PasteSpecial", named);
  SheetFault ended = EndCopying();
  return fault.Good() ? ended : fault;
}

// Takes the application's own mark off, if it is this program's, and gives the clipboard back.
SheetFault ExcelSession::EndCopying() {
  SheetFault fault;
  if (copying_) fault = app_.Put(L"CutCopyMode", false);
  if (fault.Good()) copying_ = false;
  clipboard_.PutBack(process_);
  return fault;
}

SheetFault ExcelSession::EndCutCopyMode() {
  if (app_.IsNothing()) return FaultOf(kFaultNoObject);
  marked_ = ComObject();
  return EndCopying();
}

SheetFault ExcelSession::RangeSelect(const std::string& range) {
  ComObject block;
  SheetFault fault = ScratchRange(range, block);
  if (fault.Good()) selection_ = range;
  return fault;
}

SheetFault ExcelSession::SetActiveCell(const std::string& text) {
  ComObject block, cell;
  SheetFault fault = ScratchRange(selection_, block);
  if (fault.Good()) fault = block.Follow(L"Item", cell, CallArguments(1).Add(1));
  if (fault.Good()) fault = cell.Put(L"Value", text);
  if (fault.Good()) written_ = selection_.substr(0, selection_.find(':'));
  return fault;
}

SheetFault ExcelSession::ColumnsSelect(const std::string& columns) {
  ComObject block;
  SheetFault fault = ScratchRange(columns, block);
  if (fault.Good()) selection_ = columns;
  return fault;
}

SheetFault ExcelSession::SelectionColumnWidth(double width) {
  ComObject block;
  SheetFault fault = ScratchRange(selection_, block);
  return fault.Good() ? block.Put(L"ColumnWidth", width) : fault;
}

SheetFault ExcelSession::SelectionNumberFormat(const std::string& format) {
  ComObject block;
  SheetFault fault = ScratchRange(selection_, block);
  return fault.Good() ? block.Put(L"NumberFormat", format) : fault;
}

SheetFault ExcelSession::BlockText(const std::string& range, TextOfBlock& text) {
  ComObject block;
  SheetFault fault = ScratchRange(range, block);
  if (!fault.Good()) return fault;
  fault = CopyBlock(block);
  if (fault.Good()) fault = ReadClipboardText(process_, text.rows);
  text.beginsWritten = !written_.empty() && range.substr(0, range.find(':')) == written_;
  SheetFault ended = EndCopying();
  return fault.Good() ? ended : fault;
}

}  // namespace quorb
