#include "CallFaults.h"

#include <oleauto.h>
#include <winerror.h>

#include "WideText.h"

namespace quorb {

namespace {

// Further numbers of failures, which no caller tells apart.
constexpr int kFaultNoMember = 438;
constexpr int kFaultArgumentCount = 450;

constexpr int kFacilityRpc = 7;

// The application's own result for an object that the user has closed.
constexpr HRESULT kClosedObject = static_cast<HRESULT>(0x800401A8);

int FaultNumberOf(HRESULT result) {
  switch (result) {
    case DISP_E_MEMBERNOTFOUND:
    case DISP_E_UNKNOWNNAME:
      return kFaultNoMember;
    case DISP_E_NONAMEDARGS:
    case DISP_E_PARAMNOTFOUND:
      return kFaultNoNamedArgument;
    case DISP_E_BADPARAMCOUNT:
    case DISP_E_PARAMNOTOPTIONAL:
      return kFaultArgumentCount;
    case DISP_E_TYPEMISMATCH:
    case DISP_E_BADVARTYPE:
      return kFaultTypeMismatch;
    case DISP_E_BADINDEX:
      return kFaultOutOfBounds;
    case DISP_E_OVERFLOW:
      return kFaultOverflow;
    case kClosedObject:
      return kFaultObjectRequired;
    case MK_E_UNAVAILABLE:
    case CO_E_CLASSSTRING:
    case REGDB_E_CLASSNOTREG:
      return kFaultNoApplication;
    case RPC_E_CALL_REJECTED:
    case RPC_E_SERVERCALL_RETRYLATER:
    case RPC_E_SERVERCALL_REJECTED:
      return kFaultCallRejected;
    case RPC_E_DISCONNECTED:
    case RPC_E_SERVER_DIED:
    case RPC_E_SERVER_DIED_DNE:
    case RPC_E_CONNECTION_TERMINATED:
    case RPC_E_INVALID_OBJECT:
    case RPC_E_INVALID_IPID:
    case CO_E_OBJNOTCONNECTED:
      return kFaultDisconnected;
    default:
      break;
  }
  if (HRESULT_FACILITY(result) == FACILITY_CONTROL) return HRESULT_CODE(result);
  if (HRESULT_FACILITY(result) == kFacilityRpc) {
    switch (HRESULT_CODE(result)) {
      case RPC_S_SERVER_UNAVAILABLE:
      case RPC_S_UNKNOWN_IF:
        return kFaultDisconnected;
      case RPC_S_CALL_FAILED_DNE:
        return kFaultRemoteCallFailed;
      case RPC_S_SERVER_TOO_BUSY:
        return kFaultCallRejected;
      default:
        break;
    }
  }
  return static_cast<int>(result);
}

std::string TakenText(BSTR& text) {
  std::string taken = text != nullptr ? NarrowText({text, SysStringLen(text)}) : std::string();
  SysFreeString(text);
  text = nullptr;
  return taken;
}

}  // namespace

SheetFault FaultOfResult(HRESULT result) {
  if (SUCCEEDED(result)) return {};
  return FaultOf(FaultNumberOf(result));
}

SheetFault FaultOfCall(HRESULT result, EXCEPINFO& exception) {
  const std::string description = TakenText(exception.bstrDescription);
  TakenText(exception.bstrSource);
  TakenText(exception.bstrHelpFile);
  if (result != DISP_E_EXCEPTION) return FaultOfResult(result);
  int number = exception.wCode;
  if (number == 0) number = FaultNumberOf(FAILED(exception.scode) ? exception.scode : DISP_E_EXCEPTION);
  SheetFault fault = FaultOf(number);
  if (!description.empty()) fault.description = description;
  return fault;
}

}  // namespace quorb
