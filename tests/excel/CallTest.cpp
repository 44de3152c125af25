#include <windows.h>

#include "CallFaults.h"
#include "Check.h"
#include "ServerRun.h"
#include "WideText.h"

namespace quorb {

namespace {

// ---- numbers of failures ----------------------------------------------------------------------------------

int NumberOf(unsigned long result) {
  return FaultOfResult(static_cast<HRESULT>(result)).number;
}

EXCEL_TEST(CallFaults, ResultsGiveTheNumbersThatTheCallersTellApart) {
  CHECK_EQUAL(NumberOf(0x00000000), 0);
  CHECK_EQUAL(NumberOf(0x00000001), 0);
  CHECK_EQUAL(NumberOf(0x800AC472), 50290);
  CHECK_EQUAL(NumberOf(0x800A03EC), 1004);
  CHECK_EQUAL(NumberOf(0x800A01A8), 424);
  CHECK_EQUAL(NumberOf(0x80020003), 438);
  CHECK_EQUAL(NumberOf(0x80020006), 438);
  CHECK_EQUAL(NumberOf(0x80020004), 448);
  CHECK_EQUAL(NumberOf(0x8002000E), 450);
  CHECK_EQUAL(NumberOf(0x80020005), 13);
  CHECK_EQUAL(NumberOf(0x8002000B), 9);
  CHECK_EQUAL(NumberOf(0x8002000A), 6);
}

EXCEL_TEST(CallFaults, NoRunningApplicationIs429) {
  CHECK_EQUAL(NumberOf(0x800401E3), 429);
  CHECK_EQUAL(NumberOf(0x800401F3), 429);
  CHECK_EQUAL(NumberOf(0x80040154), 429);
}

EXCEL_TEST(CallFaults, AServerThatRefusesDiesOrIsGoneHasItsNumber) {
  CHECK_EQUAL(NumberOf(0x80010001), -2147418111);
  CHECK_EQUAL(NumberOf(0x8001010A), -2147418111);
  CHECK_EQUAL(NumberOf(0x8001010B), -2147418111);
  CHECK_EQUAL(NumberOf(0x80010108), -2147417848);
  CHECK_EQUAL(NumberOf(0x800706BA), -2147417848);
  CHECK_EQUAL(NumberOf(0x800706B5), -2147417848);
  CHECK_EQUAL(NumberOf(0x800401FD), -2147417848);
  CHECK_EQUAL(NumberOf(0x800706BE), -2147023170);
  CHECK_EQUAL(NumberOf(0x80010007), -2147417848);
  CHECK_EQUAL(NumberOf(0x80010012), -2147417848);
  CHECK_EQUAL(NumberOf(0x80010006), -2147417848);
  CHECK_EQUAL(NumberOf(0x80010113), -2147417848);
  CHECK_EQUAL(NumberOf(0x80010114), -2147417848);
  CHECK_EQUAL(NumberOf(0x800706BF), -2147023170);
  CHECK_EQUAL(NumberOf(0x800706BB), -2147418111);
  CHECK_EQUAL(NumberOf(0x800401A8), 424);
  CHECK_EQUAL(NumberOf(0x80004005), static_cast<int>(0x80004005));
}

SheetFault Thrown(unsigned short number, unsigned long scode, const wchar_t* description) {
  EXCEPINFO exception = {};
  exception.wCode = number;
  exception.scode = static_cast<SCODE>(scode);
  exception.bstrDescription = description != nullptr ? SysAllocString(description) : nullptr;
  return FaultOfCall(DISP_E_EXCEPTION, exception);
}

EXCEL_TEST(CallFaults, AnExceptionGivesItsNumberAndItsWords) {
  CHECK_EQUAL(Thrown(1004, 0, L"é refused").number, 1004);
  CHECK_EQUAL(Thrown(1004, 0, L"é refused").description, "é refused");
  CHECK_EQUAL(Thrown(0, 0x800A03EC, nullptr).number, 1004);
  CHECK_EQUAL(Thrown(0, 0x800AC472, nullptr).number, 50290);
  CHECK_EQUAL(Thrown(0, 0x800A005B, nullptr).number, 91);
  CHECK_EQUAL(Thrown(0, 0x800A005B, nullptr).description, FaultText(91));
  CHECK_EQUAL(Thrown(0, 0, nullptr).number, static_cast<int>(0x80020009));
}

// ---- values -----------------------------------------------------------------------------------------------

EXCEL_TEST(Variant, NumbersAndTruthValuesHaveTheirGeneralForm) {
  CHECK_EQUAL(Variant(1.5).Text(), "1.5");
  CHECK_EQUAL(Variant(-7).Text(), "-7");
  CHECK_EQUAL(Variant(true).Text(), "TRUE");
  CHECK_EQUAL(Variant(true).Number().value_or(9), 1.0);
  CHECK_EQUAL(Variant(false).Number().value_or(9), 0.0);
  CHECK_EQUAL(Variant().Text(), "");
  CHECK(!Variant().Number());
  CHECK(!Variant(std::string("12")).Number());
}

EXCEL_TEST(Variant, TextsKeepEveryCharacter) {
  const std::string text = "Orbite é € \xF0\x9F\x9B\xB0 \t\"x\"";
  CHECK_EQUAL(Variant(text).Text(), text);
  CHECK_EQUAL(NarrowText(WideText("\xFF")), "\xEF\xBF\xBD");
}

EXCEL_TEST(Variant, ErrorsHaveTheNamesThatTheSheetShows) {
  const auto name = [](unsigned number) {
    Variant error;
    error.ToFill()->vt = VT_ERROR;
    const_cast<VARIANT&>(error.Held()).scode = static_cast<SCODE>(0x800A0000u | number);
    return error.Text();
  };
  CHECK_EQUAL(name(2000), "#NULL!");
  CHECK_EQUAL(name(2015), "#VALUE!");
  CHECK_EQUAL(name(2029), "#NAME?");
  CHECK_EQUAL(name(2043), "#GETTING_DATA");
  CHECK_EQUAL(name(2045), "#SPILL!");
  CHECK_EQUAL(name(2049), "#FIELD!");
  CHECK_EQUAL(name(2050), "#CALC!");
}

EXCEL_TEST(Variant, MoneyAndDatesAreNumbers) {
  Variant money;
  money.ToFill()->vt = VT_CY;
  const_cast<VARIANT&>(money.Held()).cyVal.int64 = 12500;
  CHECK_EQUAL(money.Text(), "1.25");
  Variant error;
  error.ToFill()->vt = VT_ERROR;
  const_cast<VARIANT&>(error.Held()).scode = static_cast<SCODE>(0x800A07FA);
  CHECK_EQUAL(error.Text(), "#N/A");
  CHECK(!error.Number());
}

// ---- calls ------------------------------------------------------------------------------------------------

std::string Arranged(const CallArguments& arguments) {
  Variant text;
  const SheetFault fault = FreshServer().App().Get(L"TestArguments", text, arguments);
  return fault.Good() ? text.Text() : std::to_string(fault.number);
}

EXCEL_TEST(Calls, ArgumentsGoByPlaceAndByName) {
  const std::string a = "a", b = "b", c = "c";
  CHECK_EQUAL(Arranged({}), "- - - ");
  CHECK_EQUAL(Arranged(CallArguments(a).Add(b).Add(c)), "a b c ");
  CHECK_EQUAL(Arranged(CallArguments(a).Add(L"Third", c)), "a - c ");
  CHECK_EQUAL(Arranged(CallArguments().Add(L"Third", c).Add(L"First", a)), "a - c ");
}

EXCEL_TEST(Calls, WrongArgumentsHaveTheirNumbers) {
  const std::string a = "a";
  CHECK_EQUAL(Arranged(CallArguments(a).Add(a).Add(a).Add(a)), "450");
  CHECK_EQUAL(Arranged(CallArguments().Add(L"Fourth", a)), "448");
  CHECK_EQUAL(FreshServer().App().Call(L"Frobnicate").number, 438);
}

EXCEL_TEST(Calls, TheObjectNothingFailsWith91) {
  ComObject workbook;
  CHECK(FreshServer().App().Follow(L"ActiveWorkbook", workbook).Good());
  CHECK(workbook.IsNothing());
  std::string name = "as before";
  CHECK_EQUAL(workbook.GetText(L"Name", name).number, 91);
  CHECK_EQUAL(name, "as before");
}

EXCEL_TEST(Calls, ATextIsNoWholeNumber) {
  int number = 5;
  CHECK_EQUAL(FreshServer().App().GetInteger(L"Version", number).number, 13);
  CHECK_EQUAL(number, 5);
}

}  // namespace

}  // namespace quorb
