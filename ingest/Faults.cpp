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
    case kFaultNoNamedArgument:
      return "Named argument not found";
    case kFaultClipboard:
      return "Can't open Clipboard";
    default:
      return "Application-defined error";
  }
}

}  // namespace quorb
