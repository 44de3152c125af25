#pragma once

#include "AutomationObject.h"
#include "SheetModel.h"

/// Cells of a workbook's sheet.
class RangeObject : public AutomationObject {
 public:
  RangeObject(BookPointer book, const CellBlock& block);

 protected:
  void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) override;

 private:
  void Find(const Arguments& arguments, VARIANT& result) const;
  void Copy() const;
  void PasteSpecial(const Arguments& arguments) const;
  void Put(const std::wstring& member, const VARIANT& value);
  bool Get(const std::wstring& member, VARIANT& result) const;

  const BookPointer book_;
  const std::wstring sheetName_;
  const CellBlock block_;
};

/// Gives a cell's content as the variant of its kind.
void GiveContent(VARIANT& result, const CellContent& content);
