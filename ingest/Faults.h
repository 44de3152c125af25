#pragma once

#include <string>

namespace quorb {

/// Numbers of the failures that the loader, the watcher and the scene tell apart.
enum FaultNumber : int {
  kFaultNone = 0,
  kFaultBadCall = 5,
  kFaultOverflow = 6,
  kFaultOutOfBounds = 9,
  kFaultTypeMismatch = 13,
  kFaultBadFileName = 52,
  kFaultFileNotFound = 53,
  kFaultPastEndOfFile = 62,
  kFaultPermissionDenied = 70,
  kFaultPathAccess = 75,
  kFaultPathNotFound = 76,
  kFaultNoObject = 91,
  kFaultObjectRequired = 424,
  kFaultNoApplication = 429,
  kFaultNoNamedArgument = 448,
  kFaultClipboard = 521,
  kFaultApplication = 1004,
  kFaultBusy = 50290,
  kFaultCallRejected = -2147418111,
  kFaultDisconnected = -2147417848,
  kFaultRemoteCallFailed = -2147023170,
};

/// What a failure is, in words; "Application-defined error" for a number that is not listed above.
std::string FaultText(int number);

}  // namespace quorb
