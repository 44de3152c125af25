#include "SheetWatcher.h"

#include <string>

#include "CommExcl.h"
#include "Dialogs.h"
#include "RunState.h"
#include "SheetSession.h"
#include "UserFlag.h"

namespace quorb {

namespace {

// Differ from each other and from any formula.
constexpr const char* kNoLastFormula = "kkkkkkkkkkkkkkkkkkk";
constexpr const char* kNoSeenFormula = "oooooooooooooooooo";

/// What a poll came to.
enum class Outcome {
  end,        ///< Nothing more.
  reload,     ///< The plot is loaded again.
  typedSpec,  ///< The typed specification is looked at.
  quit,       ///< The application was ended: the plot is loaded without it.
};

/// One look at the sheet.
struct Poll {
  explicit Poll(SheetLink& usedLink) : link(usedLink), sheetName(WatchSheetName), caption(WatchCaption) {}

  SheetLink& link;
  std::string sheetName, caption;  ///< Those of the poll before where they could not be read.
  std::string cellNow;
  bool cellRead = false;
  bool nameRead = false;  ///< The application has a workbook.
  bool failed = false;    ///< Something could not be read.
  bool ended = false;     ///< Nothing more is to be done in this poll.
  bool quit = false;      ///< The application was ended, as the user wished.
  bool released = false;  ///< The application was let go behind a failure.

  bool Done(const SheetFault& fault);
};

bool HoldsKeyword(const std::string& formula) {
  return formula.find(MainKeyword) != std::string::npos;
}

void AskForReload() {
  DEJADRAW = 0;
  DEJARESET = 0;
  FileMode = 0;
}

// ---- failures ---------------------------------------------------------------------------------------------

void EndQuietly(Poll& poll) {
  poll.link.ReleaseObject();
  WatchStopped = 0;
  poll.ended = true;
}

void QuitApplication(Poll& poll) {
  static_cast<void>(poll.link.Quit());
  poll.link.ReleaseObject();
  poll.quit = poll.ended = true;
}

void TellHowToQuit() {
  CurrentDialogs().MessageBox(
      "Close Excel or use  the keys \"Control+Alt+Supp\" and in the task window, terminate the process Excel",
      "Help", kBoxStopIcon);
}

// The application runs with no workbook. Where one was there at this poll already, something else is in front
// of it, or it is being closed: the next poll will tell.
void DealWithoutWorkbook(Poll& poll) {
  if (poll.nameRead) return EndQuietly(poll);
  WatchStopped = 1;
  bool visible = false;
  if (!poll.link.Visible(visible).Good() || !visible) {
    static_cast<void>(poll.link.SetVisible(true));
    EndQuietly(poll);
    return;
  }
  if (NoWorkbookTold == 1) {
    EndQuietly(poll);
    return;
  }
  NoWorkbookTold = 1;
  LastAnswer = CurrentDialogs().MessageBox(
      "The Excel Worksheet do not answer. Do you want to quit Excel (recommended) ?",
      "Excel Still running in the memory", kBoxOkCancel);
  if (LastAnswer == BoxAnswer::ok) {
    QuitApplication(poll);
  } else {
    TellHowToQuit();
    EndQuietly(poll);
  }
}

// Behind a failure that has no number of its own here the application is let go: nothing more can be read.
// One that comes at every poll is shown once.
void ShowFailure(Poll& poll, const SheetFault& fault) {
  poll.link.ReleaseObject();
  poll.released = true;
  if (fault.number == WatchFaultTold) return;
  WatchFaultTold = fault.number;
  WatchStopped = 1;
  CurrentDialogs().MessageBox(fault.description, "Error", kBoxStopIcon);
  WatchStopped = 0;
}

void DealWith(Poll& poll, const SheetFault& fault) {
  switch (fault.number) {
    case kFaultObjectRequired:
    case kFaultDisconnected:
    case kFaultCallRejected:
    case kFaultRemoteCallFailed:
    case kFaultBusy:
      return EndQuietly(poll);
    case kFaultNoObject:
      return DealWithoutWorkbook(poll);
    case kFaultFileNotFound:
    case kFaultBadFileName:
      return;
    default:
      return ShowFailure(poll, fault);
  }
}

bool Poll::Done(const SheetFault& fault) {
  if (fault.Good()) return true;
  failed = true;
  DealWith(*this, fault);
  return false;
}

// ---- one look ---------------------------------------------------------------------------------------------

SheetFault Attach(SheetLink& link) {
  SheetFault fault = link.GetRunningObject();
  if (!fault.Good() && LastAnswer == BoxAnswer::ok) fault = link.GetRunningObject();
  return fault;
}

bool GoesOn(const Poll& poll) {
  return !poll.ended && !poll.released;
}

void ReadSheet(Poll& poll) {
  SheetLink& link = poll.link;
  std::string name;
  poll.Done(link.Name(name));
  if (GoesOn(poll)) poll.nameRead = poll.Done(link.ActiveWorkbookName(name));
  Workbook workbook = kNoWorkbook;
  if (GoesOn(poll)) poll.Done(link.ActiveWorkbook(workbook));
  int windows = 0;
  if (GoesOn(poll)) poll.Done(link.WorkbookWindowsCount(workbook, windows));
  if (GoesOn(poll)) poll.Done(link.WorkbookWindowCaption(workbook, windows, poll.caption));
  if (GoesOn(poll)) poll.Done(link.ActiveSheetName(workbook, poll.sheetName));
  if (GoesOn(poll)) poll.cellRead = poll.Done(link.ActiveCellFormula(workbook, poll.cellNow));
  if (!poll.failed) NoWorkbookTold = WatchFaultTold = 0;
}

// Another name than at the last poll: whatever the cell holds now is then a change.
void CompareName(const std::string& name, std::string& watched) {
  if (name == watched) return;
  watched = name;
  LastFormula = kNoLastFormula;
  SeenFormula = kNoSeenFormula;
  FormulaArmed = 1;
}

Outcome CompareFormula(const std::string& cellNow) {
  if (cellNow == LastFormula) return Outcome::end;
  if (FormulaArmed == 0) {
    if (HoldsKeyword(cellNow) && HoldsKeyword(LastFormula)) return Outcome::reload;
    SeenFormula = cellNow;
    FormulaArmed = 1;
  }
  return cellNow != SeenFormula ? Outcome::reload : Outcome::typedSpec;
}

Outcome LookAtSheet(Poll& poll) {
  ReadSheet(poll);
  if (poll.quit) return Outcome::quit;
  if (poll.ended) return Outcome::end;
  CompareName(poll.sheetName, WatchSheetName);
  CompareName(poll.caption, WatchCaption);
  poll.link.ReleaseObject();
  if (USERFLAG.InteractiveExcel != 1.0) return Outcome::reload;
  return poll.cellRead ? CompareFormula(poll.cellNow) : Outcome::typedSpec;
}

Outcome CompareTypedSpecification(std::string& cellNow) {
  if (HoldsKeyword(cellNow) || HoldsKeyword(SeenFormula) || SpecTyped < 1) return Outcome::end;
  cellNow = SpecTypedText;
  return LastFormula != cellNow ? Outcome::reload : Outcome::end;
}

Outcome LookForChange(std::string& cellNow) {
  if (USERFLAG.UpdateAsked == 1.0) return Outcome::reload;
  if (ExcelLinked != 1 || LoadBusy == 1 || FileMode >= 1 || CommandFileMode == 1) return Outcome::end;
  Poll poll(CurrentSheetLink());
  Outcome outcome = Outcome::typedSpec;
  const SheetFault attached = Attach(poll.link);
  if (IsBusyFault(attached.number)) {
    EndQuietly(poll);
    outcome = Outcome::end;
  } else if (attached.Good()) {
    outcome = LookAtSheet(poll);
  } else {
    NoWorkbookTold = WatchFaultTold = 0;
  }
  cellNow = poll.cellNow;
  if (outcome == Outcome::typedSpec) outcome = CompareTypedSpecification(cellNow);
  return outcome;
}

void Reload(const std::string& cellNow) {
  AskForReload();
  FlagOptionToPlot = 0;
  const int thisLoad = LoadsStarted + 1;
  LoadPlot();
  FormulaArmed = 0;
  // Another load that began while this one waited knows better what the sheet holds.
  const bool isLatest = LoadsStarted == thisLoad || LoadWasGivenUp(thisLoad);
  if (isLatest && cellNow != LastFormula) LastFormula = cellNow;
}

void LoadWithoutApplication() {
  AskForReload();
  LoadPlot();
  WatchStopped = 0;
}

bool isLooking = false;

/// One look; another one that is asked for meanwhile, behind a box, is none.
class Look {
 public:
  Look() { isLooking = true; }
  ~Look() { isLooking = false; }
  Look(const Look&) = delete;
  Look& operator=(const Look&) = delete;
};

Outcome LookOnce(std::string& cellNow) {
  const Look look;
  return LookForChange(cellNow);
}

}  // namespace

void WatchSheet() {
  if (SpreadsheetInUse() || isLooking) return;
  WatchStopped = 0;
  std::string cellNow;
  switch (LookOnce(cellNow)) {
    case Outcome::reload:
      return Reload(cellNow);
    case Outcome::quit:
      return LoadWithoutApplication();
    case Outcome::typedSpec:
    case Outcome::end:
      return;
  }
}

}  // namespace quorb
