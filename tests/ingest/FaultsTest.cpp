#include "Faults.h"

#include <gtest/gtest.h>

namespace quorb {
namespace {

TEST(Faults, KeepTheirNumbers) {
  EXPECT_EQ(kFaultBadCall, 5);
  EXPECT_EQ(kFaultOutOfBounds, 9);
  EXPECT_EQ(kFaultBadFileName, 52);
  EXPECT_EQ(kFaultFileNotFound, 53);
  EXPECT_EQ(kFaultPermissionDenied, 70);
  EXPECT_EQ(kFaultPathAccess, 75);
  EXPECT_EQ(kFaultPathNotFound, 76);
  EXPECT_EQ(kFaultNoObject, 91);
  EXPECT_EQ(kFaultObjectRequired, 424);
  EXPECT_EQ(kFaultNoApplication, 429);
  EXPECT_EQ(kFaultNoNamedArgument, 448);
  EXPECT_EQ(kFaultApplication, 1004);
  EXPECT_EQ(kFaultBusy, 50290);
  EXPECT_EQ(kFaultCallRejected, -2147418111);
  EXPECT_EQ(kFaultDisconnected, -2147417848);
  EXPECT_EQ(kFaultRemoteCallFailed, -2147023170);
}

TEST(Faults, EachNumberHasItsWords) {
  EXPECT_EQ(FaultText(0), "");
  EXPECT_EQ(FaultText(5), "Invalid procedure call or argument");
  EXPECT_EQ(FaultText(6), "Overflow");
  EXPECT_EQ(FaultText(9), "Subscript out of range");
  EXPECT_EQ(FaultText(52), "Bad file name or number");
  EXPECT_EQ(FaultText(53), "File not found");
  EXPECT_EQ(FaultText(62), "Input past end of file");
  EXPECT_EQ(FaultText(70), "Permission denied");
  EXPECT_EQ(FaultText(75), "Path/File access error");
  EXPECT_EQ(FaultText(76), "Path not found");
  EXPECT_EQ(FaultText(91), "Object variable not set");
  EXPECT_EQ(FaultText(13), "Type mismatch");
  EXPECT_EQ(FaultText(424), "Object required");
  EXPECT_EQ(FaultText(429), "No running application of that kind");
  EXPECT_EQ(FaultText(448), "Named argument not found");
  EXPECT_EQ(FaultText(521), "Can't open Clipboard");
  EXPECT_EQ(FaultText(1004), "Application-defined error");
  EXPECT_EQ(FaultText(-2147418111), "Call was rejected by the application");
  EXPECT_EQ(FaultText(-2147417848), "The application has disconnected");
  EXPECT_EQ(FaultText(-2147023170), "The remote call failed");
}

}  // namespace
}  // namespace quorb
