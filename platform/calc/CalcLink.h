#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "OfficeTalk.h"
#include "SheetLink.h"

namespace quorb {

/// The spreadsheet application is the LibreOffice Calc that the user runs. It is never started.
///
/// Nothing of the user's is written or moved: the active workbook, sheet and cell are kept here, beginning
/// with what the user sees at `GetRunningObject`; the scratch workbook is a table in this program's memory,
/// which a paste fills and BlockText writes out; a formula of the user's is evaluated in a document without a
/// window. SetActiveCellFormula fails with 1004.
///
/// Attaching takes the newest running office of this user that has a spreadsheet open, or one in which no
/// document is open at all. An office with documents of other kinds only counts as none. The connection stays
/// open over ReleaseObject, so that the next poll is quick, and ends with the link or with the office. All
/// that stays behind in the office is the acceptor that it opened for this, a socket for its own user alone.
///
/// The talk runs on a thread of its own. While it does, the operations of a load let events through; those of
/// a poll wait for a moment only, and not at all while an earlier question is without an answer. The
/// operations that both have in common go by SpreadsheetInUse(). After 5 seconds without a sign of life the
/// connection is cut; from there on everything fails with 50290 until GetRunningObject attaches anew.
class CalcLink : public SheetLink {
 public:
  explicit CalcLink(CalcLinkOptions options = {});
  ~CalcLink() override;

  SheetFault GetRunningObject() override;
  void ReleaseObject() override;
  SheetFault Version(std::string& version) override;
  SheetFault Name(std::string& name) override;
  SheetFault Visible(bool& visible) override;
  SheetFault SetVisible(bool visible) override;
  SheetFault Quit() override;
  SheetFault ActiveWorkbook(Workbook& workbook) override;
  SheetFault ActiveWorkbookName(std::string& name) override;
  SheetFault WorkbookWindowsCount(Workbook workbook, int& count) override;
  SheetFault WorkbookWindowCaption(Workbook workbook, int index, std::string& caption) override;
  SheetFault WindowsCount(int& count) override;
  SheetFault WindowCaption(int index, std::string& caption) override;
  SheetFault WorkbooksActivate(const std::string& caption) override;
  SheetFault WorkbooksAdd() override;
  SheetFault ActiveWindowClose(bool SaveChanges, bool RouteWorkbook) override;
  SheetFault ActiveSheetName(Workbook workbook, std::string& name) override;
  SheetFault ActiveCellFormula(Workbook workbook, std::string& formula) override;
  SheetFault SetActiveCellFormula(Workbook workbook, const std::string& formula) override;
  SheetFault ActiveCellValue(Workbook workbook, CellValue& value) override;
  SheetFault ActiveCellRow(Workbook workbook, int& row) override;
  SheetFault ActiveCellColumn(Workbook workbook, int& column) override;
  SheetFault FindActivate(Workbook workbook, const FindArguments& arguments) override;
  SheetFault ApplicationFindActivate(const FindArguments& arguments) override;
  SheetFault CellsValue(Workbook workbook, int row, int column, CellValue& value) override;
  SheetFault CellsSelect(Workbook workbook, int row, int column) override;
  SheetFault EvaluateAside(Workbook workbook, const std::string& formula, CellValue& value,
                           bool& offered) override;
  SheetFault RangeCopy(const std::string& range) override;
  SheetFault RangePasteSpecial(const std::string& range, const PasteArguments& arguments) override;
  SheetFault EndCutCopyMode() override;
  SheetFault RangeSelect(const std::string& range) override;
  SheetFault SetActiveCell(const std::string& text) override;
  SheetFault ColumnsSelect(const std::string& columns) override;
  SheetFault SelectionColumnWidth(double width) override;
  SheetFault SelectionNumberFormat(const std::string& format) override;
  SheetFault BlockText(const std::string& range, BlockTextSink& sink) override;

 private:
  struct Scratch;

  static Asker CurrentAsker();
  SheetFault Held() const;
  SheetFault Ask(Asker asker, Errand& errand, const OfficeTalk::Question& question);
  SheetFault HeldBook(Workbook workbook) const;
  SheetFault HeldScratch() const;
  BookView* Known(Workbook workbook);
  SheetFault LookAtActive();
  SheetFault CellErrand(Asker asker, Workbook workbook, Errand& errand, const OfficeTalk::Question& question);
  SheetFault FindWord(Workbook workbook, const std::string& word, Errand& errand);
  SheetFault FindCall(Workbook workbook, const std::string& call, Errand& errand);
  SheetFault WindowTitles(std::vector<std::string>& titles);

  OfficeTalk talk_;
  int asking_ = 0;  // Questions under way; more than one where an event asks in its turn.
  int releases_ = 0;
  bool held_ = false;  // Between GetRunningObject and ReleaseObject.
  SheetFault lost_;    // Why everything fails from here on.
  std::map<Workbook, BookView> books_;
  Workbook active_ = kNoWorkbook;
  bool lookedAtActive_ = false;
  std::shared_ptr<Scratch> scratch_;
  std::string localKeyword_, englishKeyword_;  // Empty where the word is the same in both.
};

}  // namespace quorb
