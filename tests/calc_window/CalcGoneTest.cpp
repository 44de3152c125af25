#include <unistd.h>

#include <iostream>

#include "CalcWindow.h"

namespace quorb {
namespace {

// What a window may stand still at most.
constexpr double kLongestHang = 500;

/// An office for each test: it does not live through them.
class CalcGone : public CalcWindow {
 protected:
  static void SetUpTestSuite() {}
  static void TearDownTestSuite() {}

  void SetUp() override {
    office_ = std::make_unique<RealOffice>();
    CalcWindow::SetUp();
    if (HasFatalFailure()) return;
    document_ = OpenSheet();
    FillPoints(document_, "First", 5);
    Select(document_, "F1");
  }
  void TearDown() override {
    CalcWindow::TearDown();
    office_.reset();
  }

  /// The window goes on, and no box or prompt came up.
  void ExpectItGoesOn(const std::string& what) const {
    std::cout << what << ": events waited " << Milliseconds(longestBeat) << " ms at most, frames "
              << Milliseconds(longestFrame) << " ms\n";
    EXPECT_LT(Milliseconds(longestBeat), kLongestHang);
    EXPECT_LT(Milliseconds(longestFrame), kLongestHang);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(frmMain->TextTempo.visible);
    EXPECT_FALSE(frmMain->Command6.visible);
    EXPECT_FALSE(frmMain->ProgressBar1.visible);
    EXPECT_EQ(MessageUserToPlot, "First") << "the plot stays";
    EXPECT_EQ(LastPoint, 3);
  }

  int document_ = 0;
};

TEST_F(CalcGone, CalcIsQuitAndStartedAgain) {
  StartWatching();
  StartHeartbeat();
  ASSERT_TRUE(User().Quit(document_).Good());
  ASSERT_TRUE(QTest::qWaitFor([] { return !office_->Runs(); }, 10000));
  WaitForPolls(8);
  ExpectItGoesOn("quit");
  EXPECT_EQ(LoadsStarted, 2);
  Screen("quit");

  RealOffice next;
  ASSERT_TRUE(next.Ready());
  int document = 0;
  ASSERT_TRUE(next.User().OpenSheet(document).Good());
  ASSERT_TRUE(next.User().FillNumbers(document, 0, 2, 1, 6, 4).Good());
  ASSERT_TRUE(next.User().Type(document, 0, 1, 6, Formula("Second", 7)).Good());
  ASSERT_TRUE(next.User().Select(document, 0, "F1").Good());
  const std::string socket = next.Running().socketPath;
  ASSERT_EQ(::link(socket.c_str(), (office_->SocketDirectory() + socket.substr(socket.rfind('/'))).c_str()),
            0);
  ForgetBeats();
  ASSERT_TRUE(WaitUntilShown(3));
  EXPECT_EQ(MessageUserToPlot, "Second");
  EXPECT_LT(Milliseconds(longestBeat), kLongestHang);
}

TEST_F(CalcGone, CalcIsKilled) {
  StartWatching();
  StartHeartbeat();
  office_->Kill();
  WaitForPolls(8);
  ExpectItGoesOn("killed");
  EXPECT_EQ(LoadsStarted, 2);
}

TEST_F(CalcGone, CalcIsFrozenAndThaws) {
  StartWatching();
  StartHeartbeat();
  office_->LetGo();
  office_->Freeze();
  const std::size_t frames = frameTimes.size();
  QTest::qWait(7000);  // past the cut at 5 s
  EXPECT_GT(frameTimes.size() - frames, 50U);
  ExpectItGoesOn("frozen");
  EXPECT_EQ(LoadsStarted, 2);
  Screen("frozen");
  office_->Thaw();
  ASSERT_TRUE(QTest::qWaitFor([&] { return office_->TakeInHand(); }, 15000));
  Closed(document_);
  int document = 0;
  ASSERT_TRUE(User().OpenSheet(document).Good());
  FillPoints(document, "Second", 7);
  Select(document, "F1");
  ForgetBeats();
  ASSERT_TRUE(QTest::qWaitFor([] { return MessageUserToPlot == "Second" && LoadBusy == 0; }, 10000));
  EXPECT_EQ(LastPoint, 5);
  EXPECT_LT(Milliseconds(longestBeat), kLongestHang);
}

TEST_F(CalcGone, CalcFreezesWhileItIsPoured) {
  ASSERT_TRUE(User().FillNumbers(document_, 0, 2, 7, 300000, 4).Good());
  StartWatching();
  StartHeartbeat();
  Type(document_, 1, 6, "=0.01+LEN(\"Second kmday\")+MAX(G2:I300001)+MAX(J2:J300001)");
  office_->LetGo();
  auto frozen = Clock::now();
  const Script script({{[] { return LoadsStarted == 3; },
                        [&] {
                          office_->Freeze();
                          frozen = Clock::now();
                        }}});
  ASSERT_TRUE(QTest::qWaitFor([&] { return LoadsStarted == 3 && LoadBusy == 0; }, 20000));
  std::cout << "the load gave up " << Milliseconds(Clock::now() - frozen) << " ms behind the freeze\n";
  EXPECT_TRUE(script.Done());
  EXPECT_LT(Milliseconds(Clock::now() - frozen), 8000);
  ExpectItGoesOn("frozen while poured");
  office_->Thaw();
}

}  // namespace
}  // namespace quorb
