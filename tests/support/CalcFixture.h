#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "CalcLink.h"
#include "RealOffice.h"

namespace quorb {

/// A test with a link to an office that all tests of its suite share; each test opens documents of its own.
class CalcFixture : public testing::Test {
 protected:
  static void SetUpTestSuite() { office_ = std::make_unique<RealOffice>(); }
  static void TearDownTestSuite() { office_.reset(); }

  void SetUp() override { ASSERT_TRUE(office_->Ready()); }
  void TearDown() override {
    for (const int document : opened_)
      (void)User().Close(document);
  }

  static OfficeUser& User() { return office_->User(); }

  int OpenSheet() {
    int document = 0;
    EXPECT_TRUE(User().OpenSheet(document).Good());
    opened_.push_back(document);
    return document;
  }
  int OpenHiddenSheet() {
    int document = 0;
    EXPECT_TRUE(User().OpenHiddenSheet(document).Good());
    opened_.push_back(document);
    return document;
  }
  int OpenFile(const std::string& path) {
    int document = 0;
    EXPECT_TRUE(User().OpenFile(path, document).Good());
    opened_.push_back(document);
    return document;
  }
  int OpenText() {
    int document = 0;
    EXPECT_TRUE(User().OpenText(document).Good());
    opened_.push_back(document);
    return document;
  }
  const std::vector<int>& Opened() const { return opened_; }
  void Closed(int document) { std::erase(opened_, document); }

  static void Type(int document, int row, int column, const std::string& text, int sheet = 0) {
    EXPECT_TRUE(User().Type(document, sheet, row, column, text).Good());
  }
  static UserState StateOf(int document) {
    UserState state;
    const SheetFault fault = User().State(document, state);
    EXPECT_TRUE(fault.Good()) << fault.description;
    return state;
  }

  /// Attaches and gives the active workbook.
  static Workbook Attach(CalcLink& link) {
    Workbook book = kNoWorkbook;
    const SheetFault fault = link.GetRunningObject();
    EXPECT_TRUE(fault.Good()) << fault.number << " " << fault.description;
    EXPECT_TRUE(link.ActiveWorkbook(book).Good());
    return book;
  }
  static std::string Formula(CalcLink& link, Workbook book) {
    std::string formula;
    EXPECT_TRUE(link.ActiveCellFormula(book, formula).Good());
    return formula;
  }
  static std::string Caption(CalcLink& link, Workbook book) {
    std::string caption;
    EXPECT_TRUE(link.WorkbookWindowCaption(book, 1, caption).Good());
    return caption;
  }

  static std::unique_ptr<RealOffice> office_;

 private:
  std::vector<int> opened_;
};

inline std::unique_ptr<RealOffice> CalcFixture::office_;

/// Keeps the text of a block.
class TextSink : public BlockTextSink {
 public:
  bool Take(std::string_view piece) override {
    text += piece;
    return true;
  }
  std::string text;
};

/// Pours ranges of the active workbook beside each other from A2 on, formats the table and gives its text.
inline SheetFault Pour(CalcLink& link, const std::string& caption,
                       const std::vector<std::pair<std::string, std::string>>& rangesAndTargets,
                       const std::string& block, BlockTextSink& sink) {
  std::string table;
  SheetFault fault = link.WorkbooksAdd();
  if (fault.Good()) fault = link.WindowCaption(1, table);
  if (fault.Good()) fault = link.RangeSelect("A1");
  if (fault.Good()) fault = link.SetActiveCell("From: \theader");
  for (const auto& [range, target] : rangesAndTargets) {
    if (fault.Good()) fault = link.WorkbooksActivate(caption);
    if (fault.Good()) fault = link.RangeCopy(range);
    if (fault.Good()) fault = link.WorkbooksActivate(table);
    if (fault.Good()) fault = link.RangePasteSpecial(target, {});
    if (fault.Good()) fault = link.EndCutCopyMode();
  }
  if (fault.Good()) fault = link.ColumnsSelect("A:R");
  if (fault.Good()) fault = link.SelectionColumnWidth(20);
  if (fault.Good()) fault = link.SelectionNumberFormat("0.0000000000");
  if (fault.Good()) fault = link.BlockText(block, sink);
  if (fault.Good()) fault = link.ActiveWindowClose(false, false);
  return fault;
}

}  // namespace quorb
