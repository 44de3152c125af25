#include "ComObject.h"

#include <oleauto.h>

#include <cmath>
#include <limits>
#include <utility>

#include "CallFaults.h"

namespace quorb {

namespace {

constexpr LCID kEnglish = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);

// The member's number, and behind it those of the named arguments.
HRESULT FindNames(IDispatch* object, const wchar_t* member, const std::vector<CallArgument>& arguments,
                  std::vector<DISPID>& numbers) {
  std::vector<OLECHAR*> names = {const_cast<OLECHAR*>(member)};
  for (const CallArgument& argument : arguments)
    if (argument.name != nullptr) names.push_back(const_cast<OLECHAR*>(argument.name));
  numbers.assign(names.size(), DISPID_UNKNOWN);
  const HRESULT result = object->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()),
                                               kEnglish, numbers.data());
  const bool onlyArgumentUnknown = result == DISP_E_UNKNOWNNAME && numbers.front() != DISPID_UNKNOWN;
  return onlyArgumentUnknown ? DISP_E_PARAMNOTFOUND : result;
}

}  // namespace

ComObject::ComObject(IDispatch* object) : object_(object) {
  if (object_ != nullptr) object_->AddRef();
}

ComObject::ComObject(ComObject&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

ComObject& ComObject::operator=(ComObject other) noexcept {
  std::swap(object_, other.object_);
  return *this;
}

ComObject::~ComObject() {
  if (object_ != nullptr) object_->Release();
}

SheetFault ComObject::Invoke(const wchar_t* member, WORD kind, const CallArguments& arguments,
                             VARIANT* result) const {
  if (object_ == nullptr) return FaultOf(kFaultNoObject);
  std::vector<DISPID> numbers;
  const HRESULT found = FindNames(object_, member, arguments.All(), numbers);
  if (FAILED(found)) return FaultOfResult(found);

  // The call takes the arguments from the last to the first, those with names before the others. What it is
  // lent here stays the caller's.
  std::vector<VARIANT> values;
  std::vector<DISPID> names;
  for (auto argument = arguments.All().rbegin(); argument != arguments.All().rend(); ++argument)
    values.push_back(argument->value.Held());
  names.assign(numbers.rbegin(), numbers.rend() - 1);
  if (kind == DISPATCH_PROPERTYPUT) names = {DISPID_PROPERTYPUT};

  DISPPARAMS parameters = {values.data(), names.data(), static_cast<UINT>(values.size()),
                           static_cast<UINT>(names.size())};
  EXCEPINFO exception = {};
  UINT wrongArgument = 0;
  const HRESULT called = object_->Invoke(numbers.front(), IID_NULL, kEnglish, kind, &parameters, result,
                                         &exception, &wrongArgument);
  return SUCCEEDED(called) ? SheetFault() : FaultOfCall(called, exception);
}

SheetFault ComObject::Get(const wchar_t* member, Variant& value, const CallArguments& arguments) const {
  Variant result;
  SheetFault fault = Invoke(member, DISPATCH_PROPERTYGET | DISPATCH_METHOD, arguments, result.ToFill());
  if (fault.Good()) value = std::move(result);
  return fault;
}

SheetFault ComObject::Follow(const wchar_t* member, ComObject& object, const CallArguments& arguments) const {
  Variant result;
  SheetFault fault = Get(member, result, arguments);
  if (fault.Good()) object = ComObject(result.Object());
  return fault;
}

SheetFault ComObject::GetText(const wchar_t* member, std::string& text) const {
  Variant result;
  SheetFault fault = Get(member, result);
  if (fault.Good()) text = result.Text();
  return fault;
}

SheetFault ComObject::GetInteger(const wchar_t* member, int& number) const {
  Variant result;
  SheetFault fault = Get(member, result);
  if (!fault.Good()) return fault;
  const double value = result.Number().value_or(0.5);
  const bool isInteger = std::fabs(value) <= std::numeric_limits<int>::max() && value == std::floor(value);
  if (!isInteger) return FaultOf(kFaultTypeMismatch);
  number = static_cast<int>(value);
  return {};
}

SheetFault ComObject::Call(const wchar_t* member, const CallArguments& arguments) const {
  Variant result;
  return Get(member, result, arguments);
}

SheetFault RunningApplication(const wchar_t* programIdentifier, ComObject& application) {
  CLSID identifier = {};
  HRESULT result = CLSIDFromProgID(programIdentifier, &identifier);
  if (FAILED(result)) return FaultOfResult(result);
  IUnknown* running = nullptr;
  result = GetActiveObject(identifier, nullptr, &running);
  if (FAILED(result)) return FaultOfResult(result);
  IDispatch* object = nullptr;
  result = running->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&object));
  running->Release();
  if (FAILED(result)) return FaultOfResult(result);
  application = ComObject(object);
  object->Release();
  return {};
}

}  // namespace quorb
