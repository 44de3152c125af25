#pragma once

#include "AutomationObject.h"

/// The application, and what a test tells it. The members that begin with "Test" are those of the tests:
/// TestReset takes all workbooks away; TestAddBook adds one of the user's, which becomes active; TestActivate
/// brings one forward; TestMode and TestReject set how the server misbehaves; TestState and TestLog tell what
/// it holds and what it was asked; TestCaption is that of the next new workbook;
/// TestSheet brings a sheet of that name to the front.
class ApplicationObject : public AutomationObject {
 public:
  ApplicationObject();

 protected:
  void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) override;

 private:
  static bool DoForTest(const std::wstring& member, const Arguments& arguments, VARIANT& result);
};
