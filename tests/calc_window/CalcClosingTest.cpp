#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <thread>
#include <vector>

#include "ProgramRun.h"
#include "RealOffice.h"
#include "VirtualDisplay.h"
#include "WindowSearch.h"

// The X headers define words of their own: they come last.
#include "CloseWindow.h"

namespace quorb {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// In milliseconds, for a busy machine too: what is under way takes many seconds more.
constexpr double kAtOnce = 3000;

/// The real program on a display and with settings of its own, and a real Calc.
class CalcClosing : public testing::Test {
 protected:
  static void SetUpTestSuite() { office_ = std::make_unique<RealOffice>(); }
  static void TearDownTestSuite() { office_.reset(); }

  void SetUp() override {
    ASSERT_TRUE(display_.Works()) << "Xvfb did not start";
    ASSERT_TRUE(office_->Ready());
    ASSERT_TRUE(User().OpenSheet(document_).Good());
    std::filesystem::create_directories(run_.File("config/QuorbExcelPro"));
    std::filesystem::create_directories(run_.File("images"));
    run_.Write("config/QuorbExcelPro/QuorbExcelProSettings.conf",
               "[Use]\nSetDirBMP=" + run_.File("images") + "\n");
  }
  void TearDown() override { (void)User().Close(document_); }

  static OfficeUser& User() { return office_->User(); }
  UserState State() const {
    UserState state;
    EXPECT_TRUE(User().State(document_, state).Good());
    return state;
  }
  std::unique_ptr<Background> StartViewer() const {
    return std::make_unique<Background>(
        std::vector<std::string>{QUORB_VIEWER_PROGRAM},
        std::vector<std::string>{
            "DISPLAY=" + display_.Name(), "QT_QPA_PLATFORM=xcb", "XDG_CONFIG_HOME=" + run_.File("config"),
            "XDG_DATA_HOME=" + run_.File("data"), "QUORB_OFFICE_SOCKETS=" + office_->SocketDirectory()});
  }
  void KeepScreen(const std::string& name) const {
    std::filesystem::create_directories(QUORB_SCREEN_OUTPUT);
    run_.Run("/usr/bin/env", "DISPLAY=" + display_.Name() + " import -window root '" QUORB_SCREEN_OUTPUT "/" +
                                 name + ".png'");
  }
  unsigned long Window() const {
    const auto limit = steady_clock::now() + std::chrono::seconds(30);
    std::string found;
    while (found.empty() && steady_clock::now() < limit)
      found = SearchWindows(run_, "Quorb", "", display_.Name()).out;
    return found.empty() ? 0 : std::stoul(found);
  }
  /// Closes it, and gives the milliseconds until the process has ended.
  double Close(Background& viewer, unsigned long window) const {
    const auto begin = steady_clock::now();
    EXPECT_TRUE(CloseWindow(display_.Name(), window));
    EXPECT_EQ(viewer.Wait(std::chrono::seconds(10)), 0);
    return std::chrono::duration<double, std::milli>(steady_clock::now() - begin).count();
  }
  std::size_t FilesWritten() const {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(run_.File("images")))
      ++count;
    return count;
  }

  /// Waits until the program has begun its data file.
  bool FileIsBegun() const {
    const auto limit = steady_clock::now() + std::chrono::seconds(60);
    while (FilesWritten() == 0 && steady_clock::now() < limit)
      std::this_thread::sleep_for(milliseconds(2));
    return FilesWritten() != 0;
  }

  ProgramRun run_;
  VirtualDisplay display_{1280, 900};
  int document_ = 0;
  static std::unique_ptr<RealOffice> office_;
};

std::unique_ptr<RealOffice> CalcClosing::office_;

TEST_F(CalcClosing, WhileItWaitsForASpecificationTheProgramEndsAtOnce) {
  ASSERT_TRUE(User().FillNumbers(document_, 0, 2, 1, 10, 4).Good());
  ASSERT_TRUE(User().Select(document_, 0, "B3:C4").Good());
  const UserState before = State();
  const auto viewer = StartViewer();
  const unsigned long window = Window();
  ASSERT_NE(window, 0U);
  std::this_thread::sleep_for(milliseconds(1500));
  KeepScreen("program waits");
  const double time = Close(*viewer, window);
  std::cout << "closed while waiting: " << time << " ms\n";
  EXPECT_LT(time, kAtOnce);
  EXPECT_EQ(State(), before) << "also the number of documents";
  EXPECT_EQ(FilesWritten(), 0U) << "it had not loaded anything";
}

TEST_F(CalcClosing, WhileItPoursTheProgramEndsAtOnce) {
  constexpr int kRows = 600000;
  ASSERT_TRUE(User().FillNumbers(document_, 0, 2, 1, kRows, 4).Good());
  const std::string end = std::to_string(kRows + 1);
  ASSERT_TRUE(
      User()
          .Type(document_, 0, 1, 6, "=0.01+LEN(\"Long kmday\")+MAX(A2:C" + end + ")+MAX(D2:D" + end + ")")
          .Good());
  ASSERT_TRUE(User().Select(document_, 0, "B3:C4").Good());
  const UserState before = State();
  struct Moment {
    std::string name;
    std::function<void()> reached;
  };
  const std::vector<Moment> moments = {
      {"at its start", [] {}},
      {"as it copies", [] { std::this_thread::sleep_for(milliseconds(500)); }},
      {"as the text comes", [this] { EXPECT_TRUE(FileIsBegun()); }},
  };
  for (const Moment& moment : moments) {
    const auto viewer = StartViewer();
    const unsigned long window = Window();
    ASSERT_NE(window, 0U);
    moment.reached();
    const double time = Close(*viewer, window);
    std::cout << "closed " << moment.name << ": " << time << " ms\n";
    EXPECT_LT(time, kAtOnce) << moment.name;
    EXPECT_EQ(State(), before) << "also the number of documents, " << moment.name;
    EXPECT_EQ(FilesWritten(), 0U) << "it was still pouring, and the file that it began is gone, "
                                  << moment.name;
  }
}

}  // namespace
}  // namespace quorb
