#include "ServerModes.h"

#include <objbase.h>

#include "AutomationObject.h"

namespace {

ServerMode mode;
ULONGLONG rejectUntil = 0;
IUnknown* objectToDisconnect = nullptr;

constexpr HRESULT kBusy = static_cast<HRESULT>(0x800AC472);

// It lives for as long as the process does.
class RejectingFilter : public IMessageFilter {
 public:
  virtual ~RejectingFilter() = default;
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identifier, void** object) override {
    const bool isKnown =
        IsEqualIID(identifier, IID_IUnknown) != 0 || IsEqualIID(identifier, IID_IMessageFilter) != 0;
    *object = isKnown ? this : nullptr;
    return isKnown ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) override {
    return GetTickCount64() < rejectUntil ? SERVERCALL_REJECTED : SERVERCALL_ISHANDLED;
  }
  DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK, DWORD, DWORD) override { return static_cast<DWORD>(-1); }
  DWORD STDMETHODCALLTYPE MessagePending(HTASK, DWORD, DWORD) override { return PENDINGMSG_WAITDEFPROCESS; }
};

RejectingFilter filter;

}  // namespace

void SetMode(const ServerMode& newMode) {
  mode = newMode;
}

void RejectCallsFor(int milliseconds) {
  rejectUntil = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
}

void RegisterMessageFilter() {
  IMessageFilter* before = nullptr;
  CoRegisterMessageFilter(&filter, &before);
}

void SetObjectToDisconnect(IUnknown* object) {
  objectToDisconnect = object;
}

HRESULT ApplyMode(const std::wstring& member) {
  const bool isServed = member.rfind(L"Test", 0) == 0 || (!mode.member.empty() && mode.member != member);
  if (mode.kind.empty() || isServed) return S_OK;
  const ServerMode now = mode;
  if (now.kind == L"hang" || --mode.amount <= 0) mode = {};
  if (now.kind == L"busy") return kBusy;
  if (now.kind == L"rejected") return RPC_E_CALL_REJECTED;
  if (now.kind == L"disconnected") return RPC_E_DISCONNECTED;
  if (now.kind == L"busy exception") throw ServerFailure{0xC472, L"busy"};
  if (now.kind == L"refuse") throw ServerFailure{1004, L"The sheet refuses " + member};
  if (now.kind == L"clipboard") throw ServerFailure{1234, L"The Clipboard is in use é"};
  if (now.kind == L"hang") Sleep(static_cast<DWORD>(now.amount));
  if (now.kind == L"die") TerminateProcess(GetCurrentProcess(), 1);
  if (now.kind == L"disconnect") CoDisconnectObject(objectToDisconnect, 0);
  return S_OK;
}
