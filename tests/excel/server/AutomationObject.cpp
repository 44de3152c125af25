#include "AutomationObject.h"

#include <oleauto.h>

#include "ServerModes.h"

HRESULT AutomationObject::QueryInterface(REFIID identifier, void** object) {
  const bool isKnown =
      IsEqualIID(identifier, IID_IUnknown) != 0 || IsEqualIID(identifier, IID_IDispatch) != 0;
  *object = isKnown ? this : nullptr;
  if (!isKnown) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

ULONG AutomationObject::AddRef() {
  return ++references_;
}

ULONG AutomationObject::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

HRESULT AutomationObject::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

HRESULT AutomationObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
  *info = nullptr;
  return DISP_E_BADINDEX;
}

// A member's number is its place from 1, an argument's its place from 0.
HRESULT AutomationObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) {
  for (UINT i = 0; i < count; ++i)
    numbers[i] = DISPID_UNKNOWN;
  const Member* found = nullptr;
  for (std::size_t i = 0; i < members_.size(); ++i) {
    if (members_[i].name != names[0]) continue;
    found = &members_[i];
    numbers[0] = static_cast<DISPID>(i) + 1;
  }
  if (found == nullptr) return DISP_E_UNKNOWNNAME;
  HRESULT result = S_OK;
  for (UINT i = 1; i < count; ++i) {
    for (std::size_t place = 0; place < found->arguments.size(); ++place)
      if (found->arguments[place] == names[i]) numbers[i] = static_cast<DISPID>(place);
    if (numbers[i] == DISPID_UNKNOWN) result = DISP_E_UNKNOWNNAME;
  }
  return result;
}

HRESULT AutomationObject::Arrange(const Member& member, const DISPPARAMS& parameters, bool isPut,
                                  Arguments& arranged) const {
  if (isPut) {
    const bool isOne = parameters.cArgs == 1 && parameters.cNamedArgs == 1 &&
                       parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    if (isOne) arranged = {&parameters.rgvarg[0]};
    return isOne ? S_OK : DISP_E_BADPARAMCOUNT;
  }
  arranged.assign(member.arguments.size(), nullptr);
  const UINT byPlace = parameters.cArgs - parameters.cNamedArgs;
  if (byPlace > arranged.size()) return DISP_E_BADPARAMCOUNT;
  for (UINT i = 0; i < byPlace; ++i)
    arranged[i] = &parameters.rgvarg[parameters.cArgs - 1 - i];
  for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
    const auto place = static_cast<std::size_t>(parameters.rgdispidNamedArgs[i]);
    if (place >= arranged.size() || arranged[place] != nullptr) return DISP_E_PARAMNOTFOUND;
    arranged[place] = &parameters.rgvarg[i];
  }
  return S_OK;
}

HRESULT AutomationObject::Invoke(DISPID number, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                 VARIANT* result, EXCEPINFO* exception, UINT*) {
  const bool isKnown = number > 0 && static_cast<std::size_t>(number) <= members_.size();
  if (!isKnown) return DISP_E_MEMBERNOTFOUND;
  const Member& member = members_[static_cast<std::size_t>(number) - 1];
  const bool isPut = (kind & DISPATCH_PROPERTYPUT) != 0;
  Arguments arguments;
  const HRESULT arranged = Arrange(member, *parameters, isPut, arguments);
  if (FAILED(arranged)) return arranged;
  try {
    const HRESULT inMode = ApplyMode(member.name);
    if (FAILED(inMode)) return inMode;
    VARIANT value;
    VariantInit(&value);
    Do(member.name, isPut, arguments, value);
    if (result != nullptr) {
      *result = value;
    } else {
      VariantClear(&value);
    }
  } catch (const ServerFailure& failure) {
    if (exception != nullptr) {
      *exception = {};
      exception->scode = static_cast<SCODE>(0x800A0000u | static_cast<unsigned>(failure.number));
      exception->bstrDescription = SysAllocString(failure.description.c_str());
    }
    return DISP_E_EXCEPTION;
  }
  return S_OK;
}

// ---- values -----------------------------------------------------------------------------------------------

std::wstring TextOf(const VARIANT* value) {
  if (value == nullptr || value->vt != VT_BSTR || value->bstrVal == nullptr) return {};
  return {value->bstrVal, SysStringLen(value->bstrVal)};
}

int IntegerOf(const VARIANT* value, int otherwise) {
  return value != nullptr && value->vt == VT_I4 ? value->lVal : otherwise;
}

bool FlagOf(const VARIANT* value, bool otherwise) {
  return value != nullptr && value->vt == VT_BOOL ? value->boolVal != VARIANT_FALSE : otherwise;
}

void GiveText(VARIANT& result, const std::wstring& text) {
  result.vt = VT_BSTR;
  result.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

void GiveInteger(VARIANT& result, int number) {
  result.vt = VT_I4;
  result.lVal = number;
}

void GiveObject(VARIANT& result, IDispatch* object) {
  result.vt = VT_DISPATCH;
  result.pdispVal = object;
}
