#include <gmock/gmock.h>

#include <atomic>
#include <thread>

#include "CalcFixture.h"
#include "ProgramRun.h"
#include "VirtualDisplay.h"

namespace quorb {
namespace {

using std::chrono::milliseconds;

// An office with windows, on a display of the test's own.
class CalcDisplay : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(display_.Works()) << "Xvfb did not start";
    office_ = std::make_unique<RealOffice>(display_.Name());
    ASSERT_TRUE(office_->Ready());
    ASSERT_TRUE(office_->User().OpenSheet(document_).Good());
    for (int row = 2; row <= 5; ++row)
      ASSERT_TRUE(User().Type(document_, 0, row, 1, std::to_string(row)).Good());
    ASSERT_TRUE(User().Type(document_, 0, 1, 5, "=LEN(\"Orbit \"&A3)+MAX(A2:C5)").Good());
    ASSERT_TRUE(User().Type(document_, 0, 7, 2, "old").Good());
    ASSERT_TRUE(User().Select(document_, 0, "B7").Good());
    ASSERT_TRUE(User().SetModified(document_, false).Good());
    ASSERT_TRUE(User().ToFront(document_).Good());
    std::this_thread::sleep_for(milliseconds(500));
  }
  OfficeUser& User() { return office_->User(); }
  std::string Drive(const std::string& words) const {
    return run_.Run("/usr/bin/env", "DISPLAY=" + display_.Name() + " xdotool " + words).out;
  }
  std::string FocusedWindow() const { return Drive("getwindowfocus"); }
  int Windows() const {
    const std::string found = Drive("search --onlyvisible --name '.'");
    return static_cast<int>(std::count(found.begin(), found.end(), '\n'));
  }
  std::string Shown(int row, int column) {
    std::string text;
    EXPECT_TRUE(User().Shown(document_, 0, row, column, text).Good());
    return text;
  }

  // All that a load does.
  void Load() {
    CalcLink link(office_->Options());
    // The office may still be busy with its new window.
    SheetFault fault = link.GetRunningObject();
    for (int i = 0; i < 100 && fault.number == kFaultBusy; ++i) {
      std::this_thread::sleep_for(milliseconds(50));
      fault = link.GetRunningObject();
    }
    ASSERT_TRUE(fault.Good()) << fault.number << " " << fault.description;
    Workbook book = kNoWorkbook;
    ASSERT_TRUE(link.ActiveWorkbook(book).Good());
    std::string text, caption;
    ASSERT_TRUE(link.ActiveCellFormula(book, text).Good());
    EXPECT_EQ(text, "old");
    ASSERT_TRUE(link.WorkbookWindowCaption(book, 1, caption).Good());
    FindArguments find;
    find.What = "MAX";
    ASSERT_TRUE(link.FindActivate(book, find).Good());
    CellValue value;
    bool offered = false;
    ASSERT_TRUE(link.EvaluateAside(book, "=\"Orbit \"&A3", value, offered).Good());
    EXPECT_EQ(value.text, "Orbit 3");
    ASSERT_TRUE(link.CellsSelect(book, 7, 2).Good());
    TextSink sink;
    ASSERT_TRUE(Pour(link, caption, {{"A2:C5", "A2"}}, "A1:Q5", sink).Good());
    EXPECT_THAT(sink.text, testing::HasSubstr("3.0000000000\t"));
  }

  ProgramRun run_;
  VirtualDisplay display_{1200, 800};
  std::unique_ptr<RealOffice> office_;
  int document_ = 0;
};

TEST_F(CalcDisplay, ALoadOpensNoWindowAndLeavesTheFocus) {
  UserState before, after;
  ASSERT_TRUE(User().State(document_, before).Good());
  const std::string focus = FocusedWindow();
  const int windows = Windows();
  Load();
  std::this_thread::sleep_for(milliseconds(300));
  ASSERT_TRUE(User().State(document_, after).Good());
  EXPECT_EQ(after, before);
  EXPECT_EQ(FocusedWindow(), focus);
  EXPECT_EQ(Windows(), windows);
}

TEST_F(CalcDisplay, HalfTypedTextIsNeitherTakenOverNorLost) {
  Drive("type 12345");
  std::this_thread::sleep_for(milliseconds(500));
  Load();
  EXPECT_EQ(Shown(7, 2), "old") << "nothing of it was taken over";
  Drive("type 67");
  std::this_thread::sleep_for(milliseconds(300));
  Load();
  Drive("key Return");
  const auto deadline = std::chrono::steady_clock::now() + milliseconds(5000);
  while (Shown(7, 2) == "old" && std::chrono::steady_clock::now() < deadline)
    std::this_thread::sleep_for(milliseconds(50));
  EXPECT_EQ(Shown(7, 2), "1234567") << "the user could type on";
}

// A dialog that waits for the user, and goes on waiting.
TEST_F(CalcDisplay, AnOpenDialogHoldsNeitherALoadNorAPoll) {
  const int windows = Windows();
  Drive("key ctrl+1");
  const auto deadline = std::chrono::steady_clock::now() + milliseconds(10000);
  while (Windows() == windows && std::chrono::steady_clock::now() < deadline)
    std::this_thread::sleep_for(milliseconds(100));
  ASSERT_EQ(Windows(), windows + 1) << "the dialog did not open";
  std::this_thread::sleep_for(milliseconds(500));
  Load();
  CalcLink link(office_->Options());
  ASSERT_TRUE(link.GetRunningObject().Good());
  const auto begin = std::chrono::steady_clock::now();
  ASSERT_TRUE(link.GetRunningObject().Good());
  Workbook book = kNoWorkbook;
  ASSERT_TRUE(link.ActiveWorkbook(book).Good());
  std::string text;
  EXPECT_TRUE(link.ActiveCellFormula(book, text).Good());
  EXPECT_EQ(text, "old");
  EXPECT_LT(std::chrono::steady_clock::now() - begin, milliseconds(100));
  EXPECT_EQ(Windows(), windows + 1);
  Drive("key Escape");
}

// The user ends the office while the watcher asks it.
TEST_F(CalcDisplay, TheUserCanEndTheOfficeWhileItIsAsked) {
  std::atomic<bool> ended{false};
  office_->LetGo();
  std::thread watching([&] {
    CalcLink link(office_->Options());
    std::string text;
    while (!ended) {
      Workbook book = kNoWorkbook;
      if (link.GetRunningObject().Good() && link.ActiveWorkbook(book).Good())
        (void)link.ActiveCellFormula(book, text);
      std::this_thread::sleep_for(milliseconds(100));
    }
  });
  std::this_thread::sleep_for(milliseconds(300));
  Drive("key ctrl+q");
  const auto deadline = std::chrono::steady_clock::now() + milliseconds(5000);
  while (office_->Runs() && std::chrono::steady_clock::now() < deadline)
    std::this_thread::sleep_for(milliseconds(20));
  EXPECT_FALSE(office_->Runs());
  ended = true;
  watching.join();
}

}  // namespace
}  // namespace quorb
