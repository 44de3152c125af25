#include "Faults.h"

namespace quorb {

std::string FaultText(int number) {
  switch (number) {
    case kFaultNone:
      return "";
    case kFaultBadCall:
      return "Invalid procedure call or argument";
    case kFaultOverflow:
      return "Overflow";
    case kFaultOutOfBounds:
      return "Subscript out of range";
    case kFaultTypeMismatch:
      return "Type mismatch";
    case kFaultBadFileName:
      return "Bad file name or number";
    case kFaultFileNotFound:
      return "File not found";
    case kFaultPastEndOfFile:
      return "Input past end of file";
    case kFaultPermissionDenied:
      return "Permission denied";
    case kFaultPathAccess:
      return "Path/File access error";
    case kFaultPathNotFound:
      return "Path not found";
    case kFaultNoObject:
      return "Object variable not set";
    case kFaultObjectRequired:
      return "Object required";
    case kFaultNoApplication:
      return "No running application of that kind";
    case kFaultNoNamedArgument:
      return "Named argument not found";
    case kFaultClipboard:
      return "Can't open Clipboard";
    case kFaultCallRejected:
      return "Call was rejected by the application";
    case kFaultDisconnected:
      return "The application has disconnected";
    case kFaultRemoteCallFailed:
      return "The remote call failed";
    default:
      return "Application-defined error";
  }
}

}  // namespace quorb
