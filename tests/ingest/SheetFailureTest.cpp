// Every failure at every call of a whole load and of a poll: nothing of the user's changes, no scratch
// workbook stays, and the plot is the new one or the one before.

#include "SheetSession.h"
#include "SheetSweepFixture.h"
#include "SheetWatcher.h"

namespace quorb {
namespace {

using testing::AnyOf;

const std::vector<int>& AllNumbers() {
  static const std::vector<int> numbers = {
      5, 9, 13, 52, 53, 70, 75, 91, 424, 429, 448, 521, 1004, 50290, -2147418111, -2147417848, -2147023170};
  return numbers;
}

using SheetFailureTest = SheetSweepFixture;

TEST_F(SheetFailureTest, OneFailureAtAnyCall) {
  const int calls = CallsOfALoad();
  ASSERT_GT(calls, 80);
  const std::string newFile = WrittenFile();
  StartAnew();
  const std::string oldFile = WrittenFile();
  // What the sheet may refuse for itself: a title, the times, the events.
  const std::string plainTitle =
      FileBehind([](const std::string& call) { return call == "SetActiveCellFormula =\"Orbit \"&B3"; });
  const std::string noTimes = FileBehind([](const std::string& call) { return call == "RangeCopy D2:D4"; });
  const std::string noEvents = FileBehind([](const std::string& call) { return call == "RangeCopy E2:F4"; });
  ASSERT_NE(newFile, plainTitle);
  ASSERT_NE(newFile, noTimes);
  ASSERT_NE(newFile, noEvents);
  int written = 0;
  for (const int number : AllNumbers()) {
    for (int call = 0; call < calls; ++call) {
      StartAnew();
      sheet.keepsLostNumber = false;
      const std::string before = sheet.UserState();
      std::string failed;
      sheet.onCall = [&](const std::string& name, int index) {
        if (index != call) return SheetFault();
        failed = name;
        return FaultOf(number);
      };
      LoadFromSheet();
      const std::string what = std::to_string(number) + " at " + std::to_string(call) + " " + failed;
      ExpectLeftInOrder(what);
      EXPECT_EQ(sheet.UserState(), before) << what;
      const std::string file = WrittenFile();
      const bool isTransient = IsBusyFault(number) || IsLostFault(number);
      if (number == kFaultApplication) {
        EXPECT_THAT(file, AnyOf(newFile, oldFile, plainTitle, noTimes, noEvents)) << what;
      } else if (!isTransient && file == plainTitle) {
        EXPECT_LT(call, 40) << what;
      } else {
        EXPECT_THAT(file, AnyOf(newFile, oldFile)) << what;
      }
      EXPECT_EQ(LastPoint, file == oldFile ? 0 : 2) << what;
      written += file == newFile ? 1 : 0;
      EXPECT_EQ(files.open, 0) << what;
      if (call > 0) {
        EXPECT_LE(dialogs.boxes.size(), number == kFaultClipboard ? 1U : 0U) << what;
      }
    }
  }
  EXPECT_GT(written, 100);
}

TEST_F(SheetFailureTest, AFailureBehindWhichNoObjectIsThereAsksNobody) {
  const int calls = CallsOfALoad();
  const std::string newFile = WrittenFile();
  StartAnew();
  const std::string oldFile = WrittenFile();
  for (int call = 1; call < calls; ++call) {
    StartAnew();
    sheet.keepsLostNumber = false;
    std::string failed;
    sheet.onCall = [&](const std::string& name, int index) {
      if (index < call) return SheetFault();
      if (failed.empty()) failed = name;
      sheet.Vanish();
      return FaultOf(index == call ? kFaultDisconnected : kFaultNoObject);
    };
    LoadFromSheet();
    const std::string what = std::to_string(call) + " " + failed;
    ExpectLeftInOrder(what);
    EXPECT_EQ(WrittenFile(), failed.rfind("ActiveWindowClose", 0) == 0 ? newFile : oldFile) << what;
    for (const std::string& box : BoxTitles())
      EXPECT_EQ(box, "Error") << what;
  }
}

TEST_F(SheetFailureTest, ALinkThatEvaluatesAsideLeavesNothingToUndo) {
  StartAnew();
  sheet.evaluatesAside = true;
  const std::string before = sheet.UserState();
  LoadFromSheet();
  EXPECT_EQ(LastPoint, 2);
  EXPECT_FALSE(sheet.HasTraces());
  EXPECT_EQ(sheet.UserState(), before);
}

TEST_F(SheetFailureTest, BusyFromAnyCallOn) {
  const int calls = CallsOfALoad();
  const std::string newFile = WrittenFile();
  StartAnew();
  const std::string oldFile = WrittenFile();
  for (const int number : {50290, -2147418111}) {
    for (int call = 0; call < calls; ++call) {
      StartAnew();
      std::string failed;
      sheet.onCall = [&](const std::string& name, int index) {
        if (index < call) return SheetFault();
        if (failed.empty()) failed = name;
        return FaultOf(number);
      };
      LoadFromSheet();
      const std::string what = std::to_string(number) + " from " + std::to_string(call) + " " + failed;
      ExpectLeftInOrder(what);
      const bool isWritten = failed.rfind("ActiveWindowClose", 0) == 0;
      EXPECT_EQ(WrittenFile(), isWritten ? newFile : oldFile) << what;
      EXPECT_EQ(LastPoint, isWritten ? 2 : 0) << what;
    }
  }
}

TEST_F(SheetFailureTest, TheApplicationGoesAtAnyCall) {
  const int calls = CallsOfALoad();
  const std::string newFile = WrittenFile();
  StartAnew();
  const std::string oldFile = WrittenFile();
  for (const int number : {-2147417848, -2147023170}) {
    for (int call = 0; call < calls; ++call) {
      StartAnew();
      std::string failed;
      sheet.onCall = [&](const std::string& name, int index) {
        if (index < call) return SheetFault();
        if (failed.empty()) failed = name;
        sheet.Vanish();
        return FaultOf(number);
      };
      LoadFromSheet();
      const std::string what = std::to_string(number) + " from " + std::to_string(call) + " " + failed;
      ExpectLeftInOrder(what);
      EXPECT_EQ(WrittenFile(), failed.rfind("ActiveWindowClose", 0) == 0 ? newFile : oldFile) << what;
    }
  }
}

TEST_F(SheetFailureTest, TheWorkbookIsClosedAtAnyCall) {
  const int calls = CallsOfALoad();
  for (int call = 0; call < calls; ++call) {
    StartAnew();
    sheet.onCall = [&](const std::string&, int index) {
      if (index == call)
        sheet.books.remove_if([](const MemoryBook& book) { return book.caption == "Book1.xlsx"; });
      return SheetFault();
    };
    LoadFromSheet();
    ExpectLeftInOrder(std::to_string(call));
    for (const MemoryBook& book : sheet.books) {
      EXPECT_EQ(book.caption, "Other.xlsx");
      EXPECT_EQ(book.cells.size(), 10U) << call;
    }
  }
}

TEST_F(SheetFailureTest, AnyFailureAtAnyCallOfAPoll) {
  for (const int number : AllNumbers()) {
    for (int call = 0; call < 8; ++call) {
      StartAnew();
      LoadFromSheet();
      USERFLAG.InteractiveExcel = 1.0;
      WatchSheet();
      const std::string before = sheet.UserState();
      sheet.calls.clear();
      sheet.onCall = [=](const std::string&, int index) {
        return index == call ? FaultOf(number) : SheetFault();
      };
      WatchSheet();
      const std::string what = std::to_string(number) + " at " + std::to_string(call);
      ExpectLeftInOrder(what);
      EXPECT_EQ(WatchStopped, 0) << what;
      EXPECT_EQ(sheet.UserState(), before) << what;
      EXPECT_EQ(LastPoint, 2) << what;
    }
  }
}

}  // namespace
}  // namespace quorb
