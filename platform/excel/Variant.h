#pragma once

#include <oaidl.h>

#include <optional>
#include <string>

#include "SheetLink.h"

namespace quorb {

/// A value of an automation call; it owns what it holds.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(bool value);
  explicit Variant(int value);
  explicit Variant(double value);
  explicit Variant(const std::string& text);
  Variant(Variant&& other) noexcept;
  Variant& operator=(Variant&& other) noexcept;
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&value_); }

  /// What it holds, to be lent to a call.
  const VARIANT& Held() const { return value_; }
  /// Empty, for a call to fill in.
  VARIANT* ToFill();

  /// The object that it holds; null when there is none ("Nothing").
  IDispatch* Object() const;
  /// A number, a date (days) or a truth value (1 or 0).
  std::optional<double> Number() const;
  /// As text, UTF-8: a number in its general form, a truth value as TRUE or FALSE, an error value by the name
  /// that the sheet shows; empty for what is none of these.
  std::string Text() const;
  /// What a cell of this value is.
  CellValue Cell() const { return {Text(), Number()}; }

 private:
  VARIANT value_;
};

}  // namespace quorb
