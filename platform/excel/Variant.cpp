#include "Variant.h"

#include <oleauto.h>

#include "NumberPicture.h"
#include "WideText.h"

namespace quorb {

namespace {

constexpr double kTicksOfCurrency = 10000.0;

// Error values of a sheet, which come as the scodes 0x800A0000 + number.
std::string ErrorName(SCODE code) {
  switch (HRESULT_CODE(code)) {
    case 2000:
      return "#NULL!";
    case 2007:
      return "#DIV/0!";
    case 2015:
      return "#VALUE!";
    case 2023:
      return "#REF!";
    case 2029:
      return "#NAME?";
    case 2036:
      return "#NUM!";
    case 2042:
      return "#N/A";
    case 2043:
      return "#GETTING_DATA";
    case 2045:
      return "#SPILL!";
    case 2046:
      return "#CONNECT!";
    case 2047:
      return "#BLOCKED!";
    case 2048:
      return "#UNKNOWN!";
    case 2049:
      return "#FIELD!";
    case 2050:
      return "#CALC!";
    default:
      return "#ERROR!";
  }
}

}  // namespace

Variant::Variant(bool value) : Variant() {
  value_.vt = VT_BOOL;
  value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant::Variant(int value) : Variant() {
  value_.vt = VT_I4;
  value_.lVal = value;
}

Variant::Variant(double value) : Variant() {
  value_.vt = VT_R8;
  value_.dblVal = value;
}

Variant::Variant(const std::string& text) : Variant() {
  const std::wstring wide = WideText(text);
  value_.vt = VT_BSTR;
  value_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

Variant::Variant(Variant&& other) noexcept : value_(other.value_) {
  VariantInit(&other.value_);
}

Variant& Variant::operator=(Variant&& other) noexcept {
  if (this == &other) return *this;
  VariantClear(&value_);
  value_ = other.value_;
  VariantInit(&other.value_);
  return *this;
}

VARIANT* Variant::ToFill() {
  VariantClear(&value_);
  return &value_;
}

IDispatch* Variant::Object() const {
  return value_.vt == VT_DISPATCH ? value_.pdispVal : nullptr;
}

std::optional<double> Variant::Number() const {
  switch (value_.vt) {
    case VT_R8:
      return value_.dblVal;
    case VT_R4:
      return static_cast<double>(value_.fltVal);
    case VT_I4:
      return static_cast<double>(value_.lVal);
    case VT_I2:
      return static_cast<double>(value_.iVal);
    case VT_DATE:
      return value_.date;
    case VT_CY:
      return static_cast<double>(value_.cyVal.int64) / kTicksOfCurrency;
    case VT_BOOL:
      return value_.boolVal != VARIANT_FALSE ? 1.0 : 0.0;
    default:
      return std::nullopt;
  }
}

std::string Variant::Text() const {
  switch (value_.vt) {
    case VT_BSTR:
      return NarrowText({value_.bstrVal != nullptr ? value_.bstrVal : L"", SysStringLen(value_.bstrVal)});
    case VT_BOOL:
      return value_.boolVal != VARIANT_FALSE ? "TRUE" : "FALSE";
    case VT_ERROR:
      return ErrorName(value_.scode);
    default:
      break;
  }
  const auto number = Number();
  return number ? GeneralNumber(*number) : std::string();
}

}  // namespace quorb
