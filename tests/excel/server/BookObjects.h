#pragma once

#include "AutomationObject.h"
#include "SheetModel.h"

/// The sheet of a workbook.
class SheetObject : public AutomationObject {
 public:
  SheetObject(BookPointer book, std::wstring name);

 protected:
  void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) override;

 private:
  const BookPointer book_;
  const std::wstring name_;
};

/// A window of a workbook, from 1. Where there are several, the caption ends in ":1", that of "Newer.xlsx" in
/// "  -  1", as newer versions write it.
class WindowObject : public AutomationObject {
 public:
  WindowObject(BookPointer book, int index);

 protected:
  void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) override;

 private:
  const BookPointer book_;
  const int index_;
};

/// The windows of a workbook, or with a null pointer those of all.
class WindowsObject : public AutomationObject {
 public:
  explicit WindowsObject(BookPointer book);

 protected:
  void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) override;

 private:
  std::vector<std::pair<BookPointer, int>> All() const;
  const BookPointer book_;
};

/// A workbook.
class WorkbookObject : public AutomationObject {
 public:
  explicit WorkbookObject(BookPointer book);

 protected:
  void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) override;

 private:
  const BookPointer book_;
};

/// All workbooks.
class WorkbooksObject : public AutomationObject {
 public:
  WorkbooksObject();

 protected:
  void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) override;
};
