#include "Clipboard.h"

#include <windows.h>

#include <cstring>

#include "Check.h"
#include "ClipboardSetup.h"
#include "ServerRun.h"

namespace quorb {

namespace {

EXCEL_TEST(Clipboard, TextIsPutBackAsItWas) {
  SetClipboard(CF_UNICODETEXT, L"the user's é text");
  ClipboardKeeper keeper;
  CHECK(keeper.Keep().Good());
  CHECK(ClearClipboard().Good());
  CHECK_EQUAL(ClipboardText(), "none");
  keeper.PutBack(0);
  CHECK_EQUAL(ClipboardText(), "the user's é text");
}

EXCEL_TEST(Clipboard, MarkedUpTextIsPutBackBesideThePlainOne) {
  const unsigned markup = RegisterClipboardFormatW(L"HTML Format");
  SetClipboard(markup, L"<b>bold</b>");
  ClipboardKeeper keeper;
  CHECK(keeper.Keep().Good());
  CHECK(ClearClipboard().Good());
  CHECK(IsClipboardFormatAvailable(markup) == 0);
  keeper.PutBack(0);
  CHECK(IsClipboardFormatAvailable(markup) != 0);
  CHECK_EQUAL(ClipboardText(), "none");
}

EXCEL_TEST(Clipboard, AnEmptyOneIsEmptyAgain) {
  CHECK(ClearClipboard().Good());
  ClipboardKeeper keeper;
  CHECK(keeper.Keep().Good());
  SetClipboard(CF_UNICODETEXT, L"a block");
  keeper.PutBack(0);
  CHECK_EQUAL(ClipboardText(), "none");
}

EXCEL_TEST(Clipboard, ItIsKeptOnceAndPutBackOnce) {
  SetClipboard(CF_UNICODETEXT, L"first");
  ClipboardKeeper keeper;
  CHECK(keeper.Keep().Good());
  SetClipboard(CF_UNICODETEXT, L"a block");
  CHECK(keeper.Keep().Good());
  keeper.PutBack(0);
  CHECK_EQUAL(ClipboardText(), "first");
  SetClipboard(CF_UNICODETEXT, L"new");
  keeper.PutBack(0);
  CHECK_EQUAL(ClipboardText(), "new");
}

EXCEL_TEST(Clipboard, WithoutTextItFailsWithItsName) {
  CHECK(ClearClipboard().Good());
  std::wstring text;
  const SheetFault fault = ReadClipboardText(0, text);
  CHECK_EQUAL(fault.number, kFaultClipboard);
  CHECK(fault.description.find("Clipboard") != std::string::npos);
}

// Another program than the one that is said to use the clipboard copies a cell.
EXCEL_TEST(Clipboard, WhatAnotherProgramHasCopiedMeanwhileStays) {
  SetClipboard(CF_UNICODETEXT, L"old");
  ClipboardKeeper keeper;
  CHECK(keeper.Keep().Good());
  ServerRun& server = FreshServer();
  server.AddBook("Book1.xlsx");
  server.SetText(1, 1, "copied by the user");
  CHECK(server.Cell(1, 1).Call(L"Copy").Good());
  std::wstring text;
  CHECK_EQUAL(ReadClipboardText(GetCurrentProcessId(), text).number, kFaultClipboard);
  CHECK(ReadClipboardText(server.Process(), text).Good());
  keeper.PutBack(GetCurrentProcessId());
  CHECK_EQUAL(ClipboardText(), "copied by the user\r\n");
  CHECK(keeper.Keep().Good());
  keeper.PutBack(server.Process());
  CHECK_EQUAL(ClipboardText(), "copied by the user\r\n");
}

EXCEL_TEST(Clipboard, OneThatAnotherThreadHoldsOpenFails) {
  HANDLE held = HoldClipboard();
  std::wstring text;
  CHECK_EQUAL(ReadClipboardText(0, text).number, kFaultClipboard);
  ClipboardKeeper keeper;
  CHECK_EQUAL(keeper.Keep().number, kFaultClipboard);
  LetClipboardGo(held);
  SetClipboard(CF_UNICODETEXT, L"again");
  CHECK(ReadClipboardText(0, text).Good());
}

EXCEL_TEST(Clipboard, WhatCouldNotBePutBackIsPutBackLater) {
  SetClipboard(CF_UNICODETEXT, L"the user's");
  ClipboardKeeper keeper;
  CHECK(keeper.Keep().Good());
  SetClipboard(CF_UNICODETEXT, L"a block");
  HANDLE held = HoldClipboard();
  keeper.PutBack(0);
  LetClipboardGo(held);
  CHECK_EQUAL(ClipboardText(), "a block");
  keeper.PutBack(0);
  CHECK_EQUAL(ClipboardText(), "the user's");
}

EXCEL_TEST(Clipboard, OneThatWasNotUsedIsNotFilledAgain) {
  SetClipboard(CF_UNICODETEXT, L"the user's");
  const DWORD state = GetClipboardSequenceNumber();
  ClipboardKeeper keeper;
  CHECK(keeper.Keep().Good());
  keeper.PutBack(0);
  CHECK_EQUAL(GetClipboardSequenceNumber(), state);
}

}  // namespace

}  // namespace quorb
