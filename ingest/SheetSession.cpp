#include "SheetSession.h"

#include "Dialogs.h"
#include "FileChoice.h"
#include "RunState.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

constexpr int kTriesWhileBusy = 20;
constexpr int kTries = 3;
constexpr double kWaitStep = 0.1;
constexpr const char* kDemoTag = "demo";

bool isInUse = false;
int sessionsThatWait = 0;
SheetSession* currentSession = nullptr;

bool HasOwnMeaning(int number) {
  switch (number) {
    case kFaultFileNotFound:
    case kFaultBadFileName:
    case kFaultBadCall:
    case kFaultNoNamedArgument:
    case kFaultPathAccess:
    case kFaultPermissionDenied:
    case kFaultBusy:
    case kFaultNoObject:
    case kFaultApplication:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool IsBusyFault(int number) {
  return number == kFaultBusy || number == kFaultCallRejected;
}

bool IsLostFault(int number) {
  return number == kFaultDisconnected || number == kFaultRemoteCallFailed;
}

int TriesBehind(int number) {
  return IsBusyFault(number) ? kTriesWhileBusy : kTries;
}

// ---- the use of the application ---------------------------------------------------------------------------

bool SpreadsheetInUse() {
  return isInUse;
}

void SetSpreadsheetInUse(bool inUse) {
  isInUse = inUse;
}

SheetUse::SheetUse(SheetLink& link) : link_(link) {
  SetSpreadsheetInUse(true);
}

SheetUse::~SheetUse() {
  link_.ReleaseObject();
  SetSpreadsheetInUse(false);
}

UserWait::UserWait(SheetSession& session)
    : session_(session), wasInUse_(SpreadsheetInUse()), thisLoad_(LoadsStarted) {
  SetSpreadsheetInUse(false);
  ++sessionsThatWait;
}

UserWait::~UserWait() {
  --sessionsThatWait;
  SetSpreadsheetInUse(wasInUse_);
}

bool UserWait::Step() {
  session_.window.Pause(kWaitStep);
  return !IsOutdated() && session_.window.Tag(LoaderControl::Command6) != kDemoTag;
}

bool UserWait::IsOutdated() const {
  return LoadsStarted != thisLoad_ || session_.ended;
}

int SessionsThatWait() {
  return sessionsThatWait;
}

// ---- the session ------------------------------------------------------------------------------------------

SheetSession* CurrentSheetSession() {
  return currentSession;
}

SheetSession::SheetSession(SheetLink& usedLink, LoaderWindow& usedWindow)
    : link(usedLink),
      window(usedWindow),
      outer(currentSession),
      outputName(CurrentFileAccess().RealLocation(BuildPlotFileNames().NameTempo)) {
  currentSession = this;
}

SheetSession::~SheetSession() {
  currentSession = outer;
}

void SheetSession::StartStage() {
  ErrorNumber = kFaultNone;
  busySeen = false;
}

void SheetSession::GiveUpFile(const std::string& why) {
  whyNotWritten = why;
  window.AppendLog(why);
}

bool SheetSession::Done(const SheetFault& fault) {
  if (fault.Good()) return true;
  ErrorNumber = fault.number;
  busySeen = busySeen || IsBusyFault(fault.number);
  serverGone = serverGone || IsLostFault(fault.number);
  if (fault.number == kFaultApplication) NoSheet = 1;
  const bool isShown =
      !HasOwnMeaning(fault.number) && UpperText(fault.description).find("CLIPBOARD") != std::string::npos;
  if (isShown) CurrentDialogs().MessageBox(fault.description, "Error", kBoxOk);
  return false;
}

bool SheetSession::DoneAtLast(const std::function<SheetFault()>& step) {
  SheetFault fault = step();
  for (int tries = 1; !fault.Good() && !ended && tries < TriesBehind(fault.number); ++tries) {
    if (IsBusyFault(fault.number)) window.Pause(kPauseBetweenTries);
    if (!ended) fault = step();
  }
  return Done(fault);
}

}  // namespace quorb
