#pragma once

#include <oaidl.h>

#include <string>
#include <vector>

#include "SheetLink.h"
#include "Variant.h"

namespace quorb {

/// An argument of an automation call; without a name it goes by its place. Those with a name stand last.
struct CallArgument {
  const wchar_t* name = nullptr;
  Variant value;
};

/// The arguments of one call, in the caller's order.
class CallArguments {
 public:
  CallArguments() = default;
  /// A single argument by its place.
  template <typename Value>
  explicit CallArguments(const Value& value) {
    Add(value);
  }

  template <typename Value>
  CallArguments& Add(const Value& value) {
    arguments_.push_back({nullptr, Variant(value)});
    return *this;
  }
  template <typename Value>
  CallArguments& Add(const wchar_t* name, const Value& value) {
    arguments_.push_back({name, Variant(value)});
    return *this;
  }
  const std::vector<CallArgument>& All() const { return arguments_; }

 private:
  std::vector<CallArgument> arguments_;
};

/// An object of another program, whose members are called by their names. Formulas and formats go in their
/// English form. Every member of the object "nothing" fails with 91.
class ComObject {
 public:
  ComObject() = default;
  /// Shares the object.
  explicit ComObject(IDispatch* object);
  ComObject(const ComObject& other) : ComObject(other.object_) {}
  ComObject(ComObject&& other) noexcept;
  ComObject& operator=(ComObject other) noexcept;
  ~ComObject();

  bool IsNothing() const { return object_ == nullptr; }
  /// True for two that share one object; the application may hand out several objects for one cell.
  bool Shares(const ComObject& other) const { return object_ == other.object_; }

  /// Reads a property, or calls a method that gives something.
  SheetFault Get(const wchar_t* member, Variant& value, const CallArguments& arguments = {}) const;
  /// The same for one that gives an object; "nothing" is no failure.
  SheetFault Follow(const wchar_t* member, ComObject& object, const CallArguments& arguments = {}) const;
  SheetFault GetText(const wchar_t* member, std::string& text) const;
  /// 13 when the value is no whole number.
  SheetFault GetInteger(const wchar_t* member, int& number) const;
  /// Calls a method.
  SheetFault Call(const wchar_t* member, const CallArguments& arguments = {}) const;
  /// Writes a property.
  template <typename Value>
  SheetFault Put(const wchar_t* member, const Value& value) const {
    return Invoke(member, DISPATCH_PROPERTYPUT, CallArguments(value), nullptr);
  }

 private:
  SheetFault Invoke(const wchar_t* member, WORD kind, const CallArguments& arguments, VARIANT* result) const;

  IDispatch* object_ = nullptr;
};

/// The running application of that program identifier; 429 when none runs.
SheetFault RunningApplication(const wchar_t* programIdentifier, ComObject& application);

}  // namespace quorb
