#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <utility>

#include "AutomationService.h"
#include "Measured.h"
#include "OpenWindow.h"
#include "VirtualDisplay.h"

namespace quorb {
namespace {

using testing::HasSubstr;

double Milliseconds(std::chrono::steady_clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

/// Times between frames, in milliseconds; nineteen of twenty are no longer than `most`.
struct FrameTimes {
  double mean = 0, most = 0, longest = 0;
};

/// What a user takes for a hang, in milliseconds.
constexpr double kHang = 1000;

/// The real window with the automation object, and clients that are programs of their own. Something changes
/// in the plot all the time, so that frames come as fast as the animation asks.
class AutomationLoad : public OpenWindow {
 protected:
  void OpenAndBeat() {
    Open(QUORB_EXAMPLES "/km.qbv");
    service_ = std::make_unique<AutomationService>();
    ASSERT_THAT(frmMain->Text20.text.Get(), HasSubstr("Automation is on: org.quorb.QuorbExcelPro,"));
    QObject::connect(&beat_, &QTimer::timeout, window.get(),
                     [] { USERFLAG.ThicknessLinePlot = USERFLAG.ThicknessLinePlot == 1 ? 2 : 1; });
    beat_.start(5);
    QTest::qWait(1000);
  }
  void TearDown() override {
    beat_.stop();
    service_.reset();
  }

  /// Lets events through until `over`, and measures the frames meanwhile.
  FrameTimes Watch(const std::function<bool()>& over, int atMost) {
    frameTimes.clear();
    const auto begin = Clock::now();
    EXPECT_TRUE(QTest::qWaitFor(over, atMost));
    frameTimes.push_back(Clock::now());
    std::vector<double> all;
    Clock::time_point last = begin;
    for (const Clock::time_point frame : frameTimes)
      all.push_back(Milliseconds(frame - std::exchange(last, frame)));
    std::sort(all.begin(), all.end());
    return {Milliseconds(last - begin) / static_cast<double>(all.size()), all[(all.size() - 1) * 19 / 20],
            all.back()};
  }
  FrameTimes Watch(int milliseconds) {
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    return Watch([end] { return Clock::now() >= end; }, 2 * milliseconds);
  }

  /// A client that writes what came of its calls into a file.
  std::unique_ptr<Background> Client(const std::string& words) const {
    return std::make_unique<Background>(
        std::vector<std::string>{"/bin/sh", "-c",
                                 "exec '" QUORB_BUS_CLIENT "' " + words + " >'" + run.File("out") + "'"},
        std::vector<std::string>{});
  }
  std::string Said() const { return ContentsOfFile(run.File("out")); }
  static QMessageBox* BoxOnShow() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }
  /// From within the events that the next message lets through: `whileUp`, and some time later its end.
  void AwaitMessage(int milliseconds, const std::function<void()>& whileUp) {
    QObject::connect(&closer_, &QTimer::timeout, window.get(), [this, milliseconds, whileUp] {
      if (BoxOnShow() == nullptr) return;
      closer_.stop();
      whileUp();
      QTimer::singleShot(milliseconds, window.get(), [] { BoxOnShow()->accept(); });
    });
    closer_.start(20);
  }

  /// The plot that the floods show, so that the frames before and behind draw as much.
  void PushRing() {
    const auto client = Client("flood 10 1");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !client->Runs(); }, 10000));
    ASSERT_EQ(LastPoint, 63);
  }

  static void Print(const char* what, const FrameTimes& times) {
    std::printf("%s: a frame every %.1f ms, most within %.1f ms, the longest behind %.1f ms\n", what,
                times.mean, times.most, times.longest);
  }

  std::unique_ptr<AutomationService> service_;
  QTimer beat_, closer_;
  QtDialogs boxes_;
};

TEST_F(AutomationLoad, AThousandCallsASecondForTenSecondsLeaveTheFramesTheirTime) {
  OpenAndBeat();
  PushRing();
  EXPECT_TRUE(OneOfThree([this] {
    const FrameTimes before = Watch(5000);
    const auto client = Client("flood 1000 10");
    const FrameTimes during = Watch([&] { return !client->Runs(); }, 60000);
    const FrameTimes behind = Watch(5000);
    std::printf("%s", Said().c_str());
    Print("before", before);
    Print("during", during);
    Print("behind", behind);
    EXPECT_THAT(Said(), HasSubstr("answered 10000 failed 0"));
    EXPECT_EQ(LastPoint, 63);
    return during.mean <= 2 * std::max(before.mean, behind.mean) &&
           during.most <= 2 * std::max(before.most, behind.most) && during.longest <= kHang;
  }));
}

TEST_F(AutomationLoad, FramesGoOnWhenCallsComeFasterThanTheyCanBeAnswered) {
  OpenAndBeat();
  PushRing();
  EXPECT_TRUE(OneOfThree([this] {
    EXPECT_TRUE(QTest::qWaitFor([this] { return service_->Clients() == 0; }, 10000));
    const FrameTimes before = Watch(3000);
    const auto client = Client("flood 50000 60");
    LastPoint = 0;
    EXPECT_TRUE(QTest::qWaitFor([] { return LastPoint == 63; }, 10000)) << "the calls have begun";
    const FrameTimes during = Watch(5000);
    EXPECT_TRUE(client->Runs());
    Print("before", before);
    Print("during", during);
    // Three programs share the processor.
    return during.mean <= 4 * before.mean && during.longest <= kHang;
  }));
}

TEST_F(AutomationLoad, AThousandCallsWaitAndMoreAreRefused) {
  OpenAndBeat();
  LastPoint = 0;
  const auto client = Client("burst 2500");
  // The window has no turn until all of them stand before it.
  const auto limit = Clock::now() + std::chrono::seconds(20);
  while (Said() != "sent\n" && Clock::now() < limit)
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  ASSERT_EQ(Said(), "sent\n");
  std::this_thread::sleep_for(std::chrono::seconds(2));  // their way through the bus
  ASSERT_TRUE(QTest::qWaitFor([&] { return !client->Runs(); }, 30000));
  int answered = 0, busy = 0, failed = 0;
  ASSERT_EQ(std::sscanf(Said().c_str(), "sent\nanswered %d busy %d failed %d", &answered, &busy, &failed), 3)
      << Said();
  std::printf("answered %d busy %d\n", answered, busy);
  EXPECT_EQ(failed, 0);
  EXPECT_EQ(answered + busy, 2500);
  EXPECT_GE(answered, 1000);
  EXPECT_GE(busy, 1);
  EXPECT_EQ(LastPoint, 63);
}

TEST_F(AutomationLoad, AMegabyteShowsTheMessageAndIsReadWhileFramesGoOn) {
  OpenAndBeat();
  SetDialogs(&boxes_);
  EXPECT_EQ(LastPoint, 180);
  EXPECT_TRUE(OneOfThree([this] {
    const FrameTimes before = Watch(3000);
    int messages = 0;
    const std::int32_t points = LastPoint;
    AwaitMessage(3000, [&] {
      ++messages;
      EXPECT_EQ(BoxOnShow()->text().toStdString(), "Overflow");
      EXPECT_EQ(BoxOnShow()->windowTitle().toStdString(), "Some Data are to be lost");
      EXPECT_EQ(BoxOnShow()->icon(), QMessageBox::Critical);
      EXPECT_EQ(LastPoint, points);
    });
    const auto client = Client("block 1000000");
    const FrameTimes during = Watch([this] { return Said() == "good\n"; }, 60000);
    QObject::disconnect(&closer_, nullptr, nullptr, nullptr);
    EXPECT_EQ(messages, 1);
    Print("before", before);
    Print("during", during);
    EXPECT_EQ(LastPoint, 2);
    std::filesystem::remove(run.File("out"));
    return during.mean <= 2 * before.mean && during.longest <= kHang;
  }));
  SetDialogs(&dialogs);
}

TEST_F(AutomationLoad, ATitleOfAMegabyteLeavesTheFramesTheirTime) {
  OpenAndBeat();
  EXPECT_TRUE(OneOfThree([this] {
    MessageUserToPlot = "short";
    const FrameTimes before = Watch(3000);
    const auto client = Client("title 1000000");
    const FrameTimes during = Watch([this] { return Said() == "good\n"; }, 60000);
    EXPECT_EQ(MessageUserToPlot.size(), 1000000U);
    const FrameTimes behind = Watch(3000);
    Print("before", before);
    Print("during", during);
    Print("behind", behind);
    std::filesystem::remove(run.File("out"));
    return during.longest <= kHang && behind.mean <= 2 * before.mean;
  }));
}

TEST_F(AutomationLoad, AClientThatDiesAmongItsCallsLeavesAllAsItWas) {
  OpenAndBeat();
  PushRing();
  const FrameTimes before = Watch(3000);
  Print("before", before);
  for (int dying = 0; dying < 4; ++dying) {
    ASSERT_TRUE(QTest::qWaitFor([this] { return service_->Clients() == 0; }, 10000));
    const auto client = Client("flood 1000 60");
    LastPoint = 0;
    ASSERT_TRUE(QTest::qWaitFor([] { return LastPoint == 63; }, 10000));
    EXPECT_EQ(service_->Clients(), 1U);
    if (dying % 2 == 0) QTest::qWait(300);  // in the middle of it, and at its beginning
  }
  EXPECT_TRUE(QTest::qWaitFor([this] { return service_->Clients() == 0; }, 10000)) << service_->Clients();
  auto staging = Client("stage");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Said() == "good\n"; }, 10000));
  EXPECT_EQ(service_->Clients(), 1U);
  staging.reset();
  EXPECT_TRUE(QTest::qWaitFor([this] { return service_->Clients() == 0; }, 10000));
  EXPECT_TRUE(OneOfThree([&] {
    const FrameTimes behind = Watch(3000);
    Print("behind", behind);
    return behind.mean <= 2 * before.mean;
  }));
}

TEST_F(AutomationLoad, AClientThatDiesBehindItsMessageIsReadAndForgotten) {
  OpenAndBeat();
  SetDialogs(&boxes_);
  auto client = Client("block 70000");
  AwaitMessage(500, [&] {
    EXPECT_EQ(service_->Clients(), 1U);
    client.reset();
  });
  ASSERT_TRUE(QTest::qWaitFor([] { return LastPoint == 2; }, 30000));
  EXPECT_TRUE(QTest::qWaitFor([this] { return service_->Clients() == 0; }, 10000));
  SetDialogs(&dialogs);
  client = Client("block 100");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Said() == "good\n"; }, 10000));
}

}  // namespace
}  // namespace quorb
