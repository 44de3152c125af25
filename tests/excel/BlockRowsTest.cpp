#include "BlockRows.h"

#include "Check.h"

namespace quorb {

namespace {

class TextSink : public BlockTextSink {
 public:
  bool Take(std::string_view piece) override {
    text += piece;
    return ++pieces < most;
  }
  std::string text;
  int pieces = 0, most = 1000000;
};

std::string RowsOf(std::wstring_view text) {
  TextSink sink;
  CHECK_EQUAL(GiveBlockRows(text, true, sink).number, 0);
  return sink.text;
}

EXCEL_TEST(BlockRows, PlainCellsComeAsTheyAre) {
  CHECK_EQUAL(RowsOf(L"a\t1.5\t\r\n\t\té€\r\n"), "a\t1.5\t\r\n\t\té€\r\n");
  CHECK_EQUAL(RowsOf(L""), "");
  CHECK_EQUAL(RowsOf(L"\r\n\r\n"), "\r\n\r\n");
  CHECK_EQUAL(RowsOf(L"no end"), "no end");
}

EXCEL_TEST(BlockRows, TheFirstCellKeepsItsTabsAndQuotes) {
  CHECK_EQUAL(RowsOf(L"\"From: \tsay \"\"A\"\"\"\t\t\r\n1\t2\r\n"),
              "\"From: \tsay \"\"A\"\"\"\t\t\r\n1\t2\r\n");
}

EXCEL_TEST(BlockRows, AFirstCellOfTheSheetIsACellAsAllOthers) {
  TextSink sink;
  CHECK(GiveBlockRows(L"\"a\tb\"\t2\r\n", false, sink).Good());
  CHECK_EQUAL(sink.text, "a b\t2\r\n");
}

EXCEL_TEST(BlockRows, TabsAndLineEndsInsideOtherCellsBecomeBlanks) {
  CHECK_EQUAL(RowsOf(L"x\t\"a\tb\"\t\"c\nd\"\r\n\"e\r\nf\"\r\n"), "x\ta b\tc d\r\ne  f\r\n");
  CHECK_EQUAL(RowsOf(L"x\t\"say \"\"hi\"\"\tthere\"\r\n"), "x\tsay \"hi\" there\r\n");
}

EXCEL_TEST(BlockRows, QuotesThatBelongToATextStay) {
  CHECK_EQUAL(RowsOf(L"x\t\"quoted\"\r\n"), "x\t\"quoted\"\r\n");
  CHECK_EQUAL(RowsOf(L"x\t\"open\ty\r\n2\t3\r\n"), "x\t\"open\ty\r\n2\t3\r\n");
  CHECK_EQUAL(RowsOf(L"x\t5\" pipe\ty\r\n"), "x\t5\" pipe\ty\r\n");
}

EXCEL_TEST(BlockRows, ManyRowsComeInPiecesOfWholeRows) {
  std::wstring text;
  std::string expected;
  for (int row = 0; row < 20000; ++row) {
    text += std::to_wstring(row) + L"\té\r\n";
    expected += std::to_string(row) + "\té\r\n";
  }
  TextSink sink;
  CHECK_EQUAL(GiveBlockRows(text, true, sink).number, 0);
  CHECK(sink.text == expected);
  CHECK(sink.pieces > 2);
}

EXCEL_TEST(BlockRows, ASinkThatWantsNoMoreEndsItWith5) {
  TextSink sink;
  sink.most = 1;
  CHECK_EQUAL(GiveBlockRows(L"a\r\n", true, sink).number, kFaultBadCall);
}

}  // namespace

}  // namespace quorb
