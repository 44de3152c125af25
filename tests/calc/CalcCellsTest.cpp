#include <gmock/gmock.h>

#include <fstream>

#include "CalcFixture.h"

namespace quorb {
namespace {

class CalcCells : public CalcFixture {
 protected:
  static CellValue Value(CalcLink& link, Workbook book, int row, int column) {
    CellValue value;
    EXPECT_TRUE(link.CellsValue(book, row, column, value).Good());
    return value;
  }
  static int Find(CalcLink& link, Workbook book, const std::string& word) {
    FindArguments arguments;
    arguments.What = word;
    return link.FindActivate(book, arguments).number;
  }
  static std::string Evaluated(CalcLink& link, Workbook book, const std::string& formula) {
    CellValue value;
    bool offered = false;
    EXPECT_TRUE(link.EvaluateAside(book, formula, value, offered).Good());
    EXPECT_TRUE(offered);
    return value.text;
  }
};

TEST_F(CalcCells, ReadsNumbersTextsEmptyCellsAndErrors) {
  const int document = OpenSheet();
  Type(document, 1, 1, "0.1");
  Type(document, 2, 1, "Orbit é");
  Type(document, 4, 1, "=1/0");
  Type(document, 5, 1, "=NA()");
  Type(document, 6, 1, "=\"a\"&A1");
  Type(document, 7, 1, "=TRUE()");
  ASSERT_TRUE(User().TypeText(document, 0, 8, 1, "2,5").Good());
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  EXPECT_EQ(Value(link, book, 1, 1).text, "0.1");
  EXPECT_EQ(Value(link, book, 1, 1).number, 0.1);
  EXPECT_EQ(Value(link, book, 2, 1).text, "Orbit é");
  EXPECT_EQ(Value(link, book, 2, 1).number, std::nullopt);
  EXPECT_EQ(Value(link, book, 3, 1).text, "");
  EXPECT_EQ(Value(link, book, 4, 1).text, "#DIV/0!");
  EXPECT_EQ(Value(link, book, 5, 1).text, "#N/A");
  EXPECT_EQ(Value(link, book, 6, 1).text, "a0.1");
  EXPECT_EQ(Value(link, book, 7, 1).number, 1.0);
  EXPECT_EQ(Value(link, book, 8, 1).number, std::nullopt);
  CellValue value;
  EXPECT_EQ(link.CellsValue(book, 1048577, 1, value).number, 1004);
  EXPECT_EQ(link.CellsValue(book, 0, 1, value).number, 1004);
  EXPECT_TRUE(link.CellsValue(book, 1048576, 3, value).Good());
}

TEST_F(CalcCells, FormulasComeInTheNotationOfTheSpecification) {
  const int document = OpenSheet();
  Type(document, 1, 1, "=0.01+LEN(\"Orbit \"&B3)+MAX(A2:C60)+MAX($D$2:D60)");
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  EXPECT_EQ(Formula(link, book), "=0.01+LEN(\"Orbit \"&B3)+MAX(A2:C60)+MAX($D$2:D60)");
}

TEST_F(CalcCells, FindsTheFirstFormulaRowByRowAndLeavesTheSelection) {
  const int document = OpenSheet();
  Type(document, 1, 1, "MAX altitude");
  Type(document, 9, 2, "=MAX(A2:A5)+1");
  Type(document, 5, 7, "=MAX(A2:A5)");
  Type(document, 5, 9, "=1+MAX(A2:A5)");
  ASSERT_TRUE(User().Select(document, 0, "D20:E30").Good());
  const UserState before = StateOf(document);
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  ASSERT_EQ(Find(link, book, "MAX"), 0);
  int row = 0, column = 0;
  ASSERT_TRUE(link.ActiveCellRow(book, row).Good());
  ASSERT_TRUE(link.ActiveCellColumn(book, column).Good());
  EXPECT_EQ(row, 5);
  EXPECT_EQ(column, 7);
  EXPECT_EQ(Formula(link, book), "=MAX(A2:A5)");
  ASSERT_TRUE(link.CellsSelect(book, 20, 4).Good());
  EXPECT_EQ(Formula(link, book), "");
  EXPECT_EQ(StateOf(document), before);
}

TEST_F(CalcCells, FindsAmongManyScatteredFormulas) {
  const int document = OpenSheet();
  for (int i = 1; i <= 600; ++i)
    Type(document, 2 * i, 1 + i % 2, "=1+1");
  Type(document, 800, 2, "=MAX(C1:C9)");
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  ASSERT_EQ(Find(link, book, "MAX"), 0);
  int row = 0;
  ASSERT_TRUE(link.ActiveCellRow(book, row).Good());
  EXPECT_EQ(row, 800);
}

TEST_F(CalcCells, AWordThatNoFormulaHoldsIsNotFound) {
  const int document = OpenSheet();
  Type(document, 1, 1, "=1+1");
  Type(document, 2, 1, "MAX");
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  EXPECT_EQ(Find(link, book, "MAX"), 91);
  EXPECT_EQ(Find(link, book, "NOSUCHFUNCTION"), 91);
  EXPECT_EQ(Find(link, book, ""), 1004);
}

TEST_F(CalcCells, EvaluatesATitleWithoutTouchingTheSheet) {
  const int document = OpenSheet();
  ASSERT_TRUE(User().AddSheet(document, "Other sheet").Good());
  Type(document, 1, 1, "copied");
  Type(document, 3, 2, "42");
  Type(document, 4, 2, "=B3*2");
  Type(document, 1, 1, "far", 1);
  ASSERT_TRUE(User().AddName(document, "Mission", "$Sheet1.$B$4").Good());
  ASSERT_TRUE(User().SetModified(document, false).Good());
  ASSERT_TRUE(User().Select(document, 0, "A1").Good());
  ASSERT_TRUE(User().Copy(document).Good());
  const UserState before = StateOf(document);
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  EXPECT_EQ(Evaluated(link, book, "=\"Orbit \"&B3"), "Orbit 42");
  EXPECT_EQ(Evaluated(link, book, "=\"Orbit \"&$B$4&\" km\""), "Orbit 84 km");
  EXPECT_EQ(Evaluated(link, book, "=$'Other sheet'.A1&\"!\""), "far!");
  EXPECT_EQ(Evaluated(link, book, "=\"M\"&Mission"), "M84");
  EXPECT_EQ(Evaluated(link, book, "=SUM(B1:B1048576)"), "126");
  EXPECT_EQ(Evaluated(link, book, "=\"plain\""), "plain");
  EXPECT_EQ(Evaluated(link, book, "=1/0"), "#DIV/0!");
  EXPECT_EQ(StateOf(document), before);
}

TEST_F(CalcCells, NamesThatTheFormulaDoesNotUseDoNotMatter) {
  const int document = OpenSheet();
  ASSERT_TRUE(User().FillNumbers(document, 0, 1, 5, 60000, 4).Good());
  Type(document, 3, 2, "42");
  ASSERT_TRUE(User().AddName(document, "Everything", "$Sheet1.$E$1:$H$60000").Good());
  ASSERT_TRUE(User().AddName(document, "Mission", "$Sheet1.$B$3").Good());
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  EXPECT_EQ(Evaluated(link, book, "=\"Orbit \"&B3"), "Orbit 42");
  EXPECT_EQ(Evaluated(link, book, "=\"Orbit \"&Mission"), "Orbit 42");
  CellValue value;
  bool offered = false;
  EXPECT_EQ(link.EvaluateAside(book, "=\"\"&SUM(Everything)", value, offered).number, 1004)
      << "240,000 cells are too many";
  EXPECT_EQ(link.EvaluateAside(book, "=\"\"&SUM(A1:XFD1048576)", value, offered).number, 1004);
}

TEST_F(CalcCells, NamesMayNameOtherNames) {
  const int document = OpenSheet();
  Type(document, 3, 2, "42");
  ASSERT_TRUE(User().AddName(document, "Inner", "$Sheet1.$B$3").Good());
  ASSERT_TRUE(User().AddName(document, "Outer", "Inner*2").Good());
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  EXPECT_EQ(Evaluated(link, book, "=\"v\"&Outer+1"), "v85");
}

// A file with names that no other document takes.
TEST_F(CalcCells, ABrokenNameDoesNotMatter) {
  const std::string path = office_->SocketDirectory() + "/broken.fods";
  std::ofstream(path) << R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" office:version="1.2"
 office:mimetype="application/vnd.oasis.opendocument.spreadsheet"><office:body><office:spreadsheet>
<table:table table:name="Sheet1"><table:table-row><table:table-cell/></table:table-row>
<table:table-row><table:table-cell office:value-type="float" office:value="7"/>
</table:table-row></table:table><table:named-expressions>
<table:named-range table:name="two words" table:base-cell-address="$Sheet1.$A$1"
 table:cell-range-address="$Sheet1.$A$2"/>
<table:named-range table:name="Gone" table:base-cell-address="$Sheet1.$A$1"
 table:cell-range-address="$Sheet9.$A$1"/>
<table:named-range table:name="Here" table:base-cell-address="$Sheet1.$A$1"
 table:cell-range-address="$Sheet1.$A$2"/>
</table:named-expressions></office:spreadsheet></office:body></office:document>
)";
  OpenFile(path);
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  EXPECT_EQ(Evaluated(link, book, "=\"Orbit \"&A2"), "Orbit 7");
  EXPECT_EQ(Evaluated(link, book, "=\"Orbit \"&Here"), "Orbit 7");
  EXPECT_THAT(Evaluated(link, book, "=\"Orbit \"&Gone"), testing::StartsWith("#"));
}

TEST_F(CalcCells, AProtectedSheetIsReadLikeAnyOther) {
  const int document = OpenSheet();
  Type(document, 2, 1, "5");
  Type(document, 1, 1, "=MAX(A2:C3)");
  ASSERT_TRUE(User().Protect(document, 0).Good());
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  ASSERT_EQ(Find(link, book, "MAX"), 0);
  EXPECT_EQ(Evaluated(link, book, "=\"v\"&A2"), "v5");
  EXPECT_EQ(Value(link, book, 2, 1).number, 5.0);
}

// An office in another language knows the functions by other names.
TEST(CalcCellsGerman, AKeywordInTheLanguageOfTheOfficeIsFound) {
  RealOffice office("", "de-DE");
  ASSERT_TRUE(office.Ready());
  int document = 0;
  ASSERT_TRUE(office.User().OpenSheet(document).Good());
  ASSERT_TRUE(office.User().Type(document, 0, 3, 3, "=0.01+LEN(\"x\")+SUM(A2:C60)+SUM(D2:D60)").Good());
  CalcLink link(office.Options());
  ASSERT_TRUE(link.GetRunningObject().Good());
  Workbook book = kNoWorkbook;
  ASSERT_TRUE(link.ActiveWorkbook(book).Good());
  std::string name;
  ASSERT_TRUE(link.ActiveWorkbookName(name).Good());
  EXPECT_EQ(name, "Unbenannt 1") << "the office does not speak German";
  FindArguments find;
  find.What = "SUMME";
  const SheetFault fault = link.FindActivate(book, find);
  ASSERT_TRUE(fault.Good()) << fault.number << " " << fault.description;
  std::string formula;
  ASSERT_TRUE(link.ActiveCellFormula(book, formula).Good());
  EXPECT_EQ(formula, "=0.01+LEN(\"x\")+SUMME(A2:C60)+SUMME(D2:D60)");
}

}  // namespace
}  // namespace quorb
