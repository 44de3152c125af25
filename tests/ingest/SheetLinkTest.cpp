#include "SheetLink.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorb {
namespace {

class NoSink : public BlockTextSink {
 public:
  bool Take(std::string_view) override { return true; }
};

TEST(SheetLink, WithoutOneNoApplicationRunsAndNothingCanBeDone) {
  SetSheetLink(nullptr);
  SheetLink& link = CurrentSheetLink();
  EXPECT_EQ(link.GetRunningObject().number, 429);
  link.ReleaseObject();

  std::string text = "kept";
  int number = 7;
  bool flag = true;
  Workbook workbook = 3;
  CellValue value{"kept", 7.0};
  NoSink sink;
  const std::vector<SheetFault> faults = {link.Version(text),
                                          link.Name(text),
                                          link.Visible(flag),
                                          link.SetVisible(true),
                                          link.Quit(),
                                          link.ActiveWorkbook(workbook),
                                          link.ActiveWorkbookName(text),
                                          link.WorkbookWindowsCount(1, number),
                                          link.WorkbookWindowCaption(1, 1, text),
                                          link.WindowsCount(number),
                                          link.WindowCaption(1, text),
                                          link.WorkbooksActivate("Book1"),
                                          link.WorkbooksAdd(),
                                          link.ActiveWindowClose(false, false),
                                          link.ActiveSheetName(1, text),
                                          link.ActiveCellFormula(1, text),
                                          link.SetActiveCellFormula(1, "=1"),
                                          link.ActiveCellValue(1, value),
                                          link.ActiveCellRow(1, number),
                                          link.ActiveCellColumn(1, number),
                                          link.FindActivate(1, {}),
                                          link.ApplicationFindActivate({}),
                                          link.CellsValue(1, 1, 1, value),
                                          link.CellsSelect(1, 1, 1),
                                          link.RangeCopy("A1"),
                                          link.RangePasteSpecial("A1", {}),
                                          link.EndCutCopyMode(),
                                          link.RangeSelect("A1"),
                                          link.SetActiveCell("x"),
                                          link.ColumnsSelect("A:R"),
                                          link.SelectionColumnWidth(20),
                                          link.SelectionNumberFormat("0"),
                                          link.BlockText("A1:B2", sink)};
  for (std::size_t i = 0; i < faults.size(); ++i) {
    EXPECT_EQ(faults[i].number, 91) << i;
    EXPECT_EQ(faults[i].description, "Object variable not set") << i;
  }
  bool offered = true;
  EXPECT_TRUE(link.EvaluateAside(1, "=1", value, offered).Good());
  EXPECT_FALSE(offered);
  EXPECT_EQ(text, "kept");
  EXPECT_EQ(number, 7);
  EXPECT_EQ(workbook, 3);
  EXPECT_EQ(value.text, "kept");
}

TEST(SheetLink, TheConstantsAreThoseOfTheApplication) {
  EXPECT_EQ(xlFormulas, -4123);
  EXPECT_EQ(xlValues, -4163);
  EXPECT_EQ(xlPart, 2);
  EXPECT_EQ(xlPasteValues, -4163);
  EXPECT_EQ(xlPasteSpecialOperationNone, -4142);
}

}  // namespace
}  // namespace quorb
