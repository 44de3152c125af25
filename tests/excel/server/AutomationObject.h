#pragma once

#include <oaidl.h>

#include <memory>
#include <string>
#include <vector>

/// An object of the test's automation server: members called by name, arguments by place or by name.
class AutomationObject : public IDispatch {
 public:
  /// A member and the names of its arguments in their order.
  struct Member {
    std::wstring name;
    std::vector<std::wstring> arguments;
  };
  /// The arguments of a call in the member's order; a null pointer for one that is left out. A property that
  /// is written has the value as its only one.
  using Arguments = std::vector<const VARIANT*>;

  explicit AutomationObject(std::vector<Member> members) : members_(std::move(members)) {}
  AutomationObject(const AutomationObject&) = delete;
  AutomationObject& operator=(const AutomationObject&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                          DISPID* numbers) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID reserved, LCID locale, WORD kind,
                                   DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                   UINT* wrongArgument) override;

 protected:
  virtual ~AutomationObject() = default;

  /// Does one call. A failure of the application is thrown as a ServerFailure.
  virtual void Do(const std::wstring& member, bool isPut, const Arguments& arguments, VARIANT& result) = 0;

 private:
  HRESULT Arrange(const Member& member, const DISPPARAMS& parameters, bool isPut, Arguments& arranged) const;

  const std::vector<Member> members_;
  ULONG references_ = 1;
};

/// A failure of the application, which its caller gets as an exception.
struct ServerFailure {
  int number;
  std::wstring description;
};

// ---- values -----------------------------------------------------------------------------------------------

std::wstring TextOf(const VARIANT* value);
int IntegerOf(const VARIANT* value, int otherwise = 0);
bool FlagOf(const VARIANT* value, bool otherwise = false);
void GiveText(VARIANT& result, const std::wstring& text);
void GiveInteger(VARIANT& result, int number);
/// Hands the object over with its reference; a null pointer is "Nothing".
void GiveObject(VARIANT& result, IDispatch* object);
