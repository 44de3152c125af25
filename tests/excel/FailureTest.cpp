#include <windows.h>

#include <chrono>
#include <thread>

#include "Check.h"
#include "LinkFixture.h"
#include "ScriptedDialogs.h"

namespace quorb {

namespace {

using Clock = std::chrono::steady_clock;

int MillisecondsSince(Clock::time_point start) {
  return static_cast<int>(
      std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count());
}

int NumberOfPoll(ExcelLink& link) {
  std::string name;
  return link.Name(name).number;
}

int NumberOfLoadStep(ExcelLink& link) {
  std::string version;
  return link.Version(version).number;
}

// ---- refusals ---------------------------------------------------------------------------------------------

EXCEL_TEST(Failures, ABusyApplicationIs50290) {
  AttachedLink at;
  at.server.Mode("busy", "Name", 1);
  CHECK_EQUAL(NumberOfPoll(*at.link), 50290);
  at.server.Mode("busy", "Version", 1);
  CHECK_EQUAL(NumberOfLoadStep(*at.link), 50290);
  CHECK_EQUAL(NumberOfPoll(*at.link), 0);
  at.server.Mode("busy exception", "", 1);
  CHECK_EQUAL(NumberOfPoll(*at.link), 50290);
}

EXCEL_TEST(Failures, ARejectedPollEndsAtOnce) {
  AttachedLink at;
  at.server.RejectFor(2000);
  const auto start = Clock::now();
  CHECK_EQUAL(NumberOfPoll(*at.link), -2147418111);
  CHECK(MillisecondsSince(start) < 900);
  Sleep(2200);
  CHECK_EQUAL(NumberOfPoll(*at.link), 0);
}

EXCEL_TEST(Failures, ARejectedStepOfALoadIsTriedAgain) {
  AttachedLink at;
  at.server.RejectFor(300);
  CHECK_EQUAL(NumberOfLoadStep(*at.link), 0);
  at.server.Mode("rejected");
  const auto start = Clock::now();
  CHECK_EQUAL(NumberOfLoadStep(*at.link), -2147418111);
  CHECK(MillisecondsSince(start) >= 900);
  at.server.Mode("");
}

EXCEL_TEST(Failures, AFailureKeepsItsNumberAndItsWords) {
  AttachedLink at;
  std::string text = "as before";
  at.server.Mode("refuse", "Caption");
  CHECK_EQUAL(at.link->WorkbookWindowCaption(at.book, 1, text).number, 1004);
  CHECK_EQUAL(text, "as before");
  at.server.Mode("clipboard", "Range", 1);
  const SheetFault fault = at.link->RangeCopy("A1");
  CHECK_EQUAL(fault.number, 1234);
  CHECK_EQUAL(fault.description, "The Clipboard is in use é");
}

// ---- no answer --------------------------------------------------------------------------------------------

EXCEL_TEST(Failures, AHangIsCutAndBusyUntilItHasComeBack) {
  AttachedLink at(500);
  at.server.Mode("hang", "Name", 5000);
  auto start = Clock::now();
  CHECK_EQUAL(NumberOfPoll(*at.link), 50290);
  const int first = MillisecondsSince(start);
  CHECK(first >= 450 && first < 2500);
  start = Clock::now();
  CHECK_EQUAL(NumberOfPoll(*at.link), 50290);
  CHECK_EQUAL(at.link->GetRunningObject().number, 50290);
  at.link->ReleaseObject();
  CHECK(MillisecondsSince(start) < 1200);
  Sleep(6000);
  CHECK_EQUAL(at.link->GetRunningObject().number, 0);
  CHECK_EQUAL(NumberOfPoll(*at.link), 0);
}

EXCEL_TEST(Failures, AttachingToOneThatHangsIsCutToo) {
  AttachedLink at(400);
  at.link->ReleaseObject();
  at.server.Mode("hang", "Name", 2500);
  std::thread somebodyElse([&] {
    std::string name;
    static_cast<void>(at.server.App().GetText(L"Name", name));
  });
  Sleep(500);
  const auto start = Clock::now();
  const int attached = at.link->GetRunningObject().number;
  CHECK_EQUAL(attached == 0 ? NumberOfPoll(*at.link) : attached, 50290);
  CHECK(MillisecondsSince(start) < 1800);
  somebodyElse.join();
  Sleep(1000);
  CHECK_EQUAL(at.link->GetRunningObject().number, 0);
}

EXCEL_TEST(Failures, AStepOfALoadMayTakeLongWhileTheApplicationComputes) {
  AttachedLink at;
  ScriptedDialogs dialogs;
  std::int64_t used = 1;
  std::int64_t usedMore = 100000;
  unsigned long asked = 0;
  ExcelLink link(std::chrono::milliseconds(400), [&](unsigned long process) {
    asked = process;
    return used += usedMore;
  });
  CHECK(link.GetRunningObject().Good());
  at.server.Mode("hang", "Version", 1500);
  CHECK_EQUAL(NumberOfLoadStep(link), 0);
  CHECK_EQUAL(asked, at.server.Process());
  CHECK(dialogs.pumps > 5);
  usedMore = 30000;
  at.server.Mode("hang", "Version", 1500);
  CHECK_EQUAL(NumberOfLoadStep(link), 50290);
  Sleep(2500);
}

EXCEL_TEST(Failures, ProcessorTimeIsTold) {
  const auto before = ProcessorMicroseconds(GetCurrentProcessId());
  const auto start = Clock::now();
  std::int64_t used = 0;
  while (used < 200000 && MillisecondsSince(start) < 10000)
    used = ProcessorMicroseconds(GetCurrentProcessId()) - before;
  CHECK(used >= 200000);
  // Other threads of the program may use the second processor.
  CHECK(used / 1000 < 2 * MillisecondsSince(start) + 100);
  CHECK_EQUAL(ProcessorMicroseconds(0), 0);
}

EXCEL_TEST(Failures, EventsAreLetThroughInALoadAndNeverInAPoll) {
  AttachedLink at;
  ScriptedDialogs dialogs;
  at.server.Mode("hang", "Name", 200);
  CHECK_EQUAL(NumberOfPoll(*at.link), 0);
  CHECK_EQUAL(dialogs.pumps, 0);
  // The step may come to its end within an event that lasts; only the first one is surely inside it.
  int inner = 0;
  dialogs.onPump = [&] {
    if (dialogs.pumps == 1) inner = NumberOfPoll(*at.link);
  };
  at.server.Mode("hang", "Version", 200);
  CHECK_EQUAL(NumberOfLoadStep(*at.link), 0);
  CHECK(dialogs.pumps > 0);
  CHECK_EQUAL(inner, 50290);
}

// The program ends in an event that a step of a load lets through.
EXCEL_TEST(Failures, AReleaseInAnEventWaitsForTheStepAndMakesItFail) {
  AttachedLink at;
  ScriptedDialogs dialogs;
  bool released = false;
  dialogs.onPump = [&] {
    if (released) return;
    released = true;
    CHECK(at.link->CellsSelect(at.book, 2, 2).Good());
    CHECK(at.link->ActiveWindowClose(false, false).Good());
    at.link->ReleaseObject();
  };
  at.server.Mode("hang", "Add", 300);
  CHECK_EQUAL(at.link->WorkbooksAdd().number, 91);
  CHECK(released);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
  CHECK_EQUAL(NumberOfPoll(*at.link), 91);
}

EXCEL_TEST(Failures, ALinkEndsWhileItsCallHangs) {
  AttachedLink at(300);
  at.server.Mode("hang", "Name", 3000);
  CHECK_EQUAL(NumberOfPoll(*at.link), 50290);
  const auto start = Clock::now();
  at.link.reset();
  CHECK(MillisecondsSince(start) < 1500);
  Sleep(4000);
}

EXCEL_TEST(Failures, AReleaseTakesPlaceWhenTheCallThatHangsHasComeBack) {
  AttachedLink at(300);
  at.server.Mode("hang", "Add", 1000);
  CHECK_EQUAL(at.link->WorkbooksAdd().number, 50290);
  at.link->ReleaseObject();
  Sleep(2500);
  CHECK_EQUAL(at.server.Log(), "Add Scratch1\nClose Scratch1 unsaved\n");
  CHECK_EQUAL(at.server.State(), at.stateBefore);
  CHECK_EQUAL(NumberOfPoll(*at.link), 91);
  CHECK_EQUAL(NumberOfLoadStep(*at.link), 91);
}

EXCEL_TEST(Failures, ALinkThatEndsWhileItsCallHangsLeavesNoWorkbook) {
  AttachedLink at(300);
  at.server.Mode("hang", "Add", 1000);
  CHECK_EQUAL(at.link->WorkbooksAdd().number, 50290);
  at.link.reset();
  Sleep(2500);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

EXCEL_TEST(Failures, AReleaseBetweenTwoPiecesOfTheTextEndsIt) {
  AttachedLink at;
  ScriptedDialogs dialogs;
  CHECK(at.link->WorkbooksAdd().Good());
  KeptText sink;
  std::size_t taken = 0;
  dialogs.onPump = [&] {
    if (sink.text.empty() || taken != 0) return;
    taken = sink.text.size();
    at.link->ReleaseObject();
  };
  CHECK_EQUAL(at.link->BlockText("A1:Q4000", sink).number, 91);
  CHECK(taken > 0);
  CHECK_EQUAL(sink.text.size(), taken);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
}

// The steps with which the program puts back what it moved, in an event of a step that hangs.
EXCEL_TEST(Failures, AStepThatHangsIsWaitedForOnce) {
  AttachedLink at(600);
  ScriptedDialogs dialogs;
  int spent = 0;
  dialogs.onPump = [&] {
    if (spent != 0) return;
    const auto start = Clock::now();
    CHECK_EQUAL(at.link->CellsSelect(at.book, 2, 2).number, 50290);
    CHECK_EQUAL(at.link->ActiveWindowClose(false, false).number, 50290);
    at.link->ReleaseObject();
    spent = MillisecondsSince(start);
  };
  at.server.Mode("hang", "Add", 2000);
  CHECK_EQUAL(at.link->WorkbooksAdd().number, 50290);
  CHECK(spent >= 550 && spent < 1100);
  Sleep(3000);
  CHECK_EQUAL(at.server.State(), at.stateBefore);
  CHECK_EQUAL(NumberOfPoll(*at.link), 91);
}

// ---- the end of the application ---------------------------------------------------------------------------

bool IsGone(int number) {
  return number == -2147417848 || number == -2147023170;
}

EXCEL_TEST(Failures, AKilledApplicationIsGoneAndThenNoneRuns) {
  AttachedLink at;
  CHECK(at.link->WorkbooksAdd().Good());
  at.server.Kill();
  const int number = NumberOfPoll(*at.link);
  CHECK(IsGone(number));
  CHECK_EQUAL(NumberOfLoadStep(*at.link), number);
  CHECK_EQUAL(at.link->RangeCopy("A1").number, number);
  CHECK_EQUAL(at.link->CellsSelect(99, 1, 1).number, number);
  EndSharedServer();
  CHECK_EQUAL(at.link->GetRunningObject().number, 429);
  CHECK_EQUAL(NumberOfPoll(*at.link), 91);
}

EXCEL_TEST(Failures, OneThatWasKilledDoesNotRun) {
  AttachedLink at;
  at.server.Kill();
  CHECK_EQUAL(at.link->GetRunningObject().number, 429);
  CHECK_EQUAL(NumberOfPoll(*at.link), 91);
  EndSharedServer();
}

EXCEL_TEST(Failures, OneThatDiesInTheCallIsGone) {
  AttachedLink at;
  at.server.Mode("die", "Version", 1);
  CHECK(IsGone(NumberOfLoadStep(*at.link)));
  at.link->ReleaseObject();
  EndSharedServer();
  CHECK_EQUAL(at.link->GetRunningObject().number, 429);
}

EXCEL_TEST(Failures, ADisconnectedObjectIsGone) {
  AttachedLink at;
  at.server.Mode("disconnected", "Name", 1);
  CHECK_EQUAL(NumberOfPoll(*at.link), -2147417848);
  at.server.Mode("disconnect", "Name", 1);
  NumberOfPoll(*at.link);
  CHECK(IsGone(NumberOfPoll(*at.link)));
  at.link.reset();
  at.server.Kill();
  EndSharedServer();
}

EXCEL_TEST(Failures, QuitEndsTheApplicationAndAnotherStartIsSeen) {
  AttachedLink at;
  CHECK_EQUAL(at.link->Quit().number, 0);
  at.link->ReleaseObject();
  EndSharedServer();
  CHECK_EQUAL(at.link->GetRunningObject().number, 429);
  FreshServer();
  CHECK_EQUAL(at.link->GetRunningObject().number, 0);
  CHECK_EQUAL(NumberOfPoll(*at.link), 0);
}

}  // namespace

}  // namespace quorb
