// An office that answers late, at polls and at loads, with the times of a user's desktop.
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <thread>

#include "CalcLoadFixture.h"
#include "SheetSession.h"

namespace quorb {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// A socket of an office's name on which nobody says anything.
class CalcSilentSocket : public testing::Test {
 protected:
  void SetUp() override {
    std::array<char, 32> name{"/tmp/quorb-silent-XXXXXX"};
    directory_ = mkdtemp(name.data());
    const std::string path = directory_ + "/OSL_PIPE_" + std::to_string(getuid()) + "_SingleOfficeIPC_a";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size());
    socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    ASSERT_EQ(listen(socket_, 5), 0);
    options_.socketDirectories = {directory_};
    options_.pluginPath = QUORB_CALC_PLUGIN;
  }
  void TearDown() override {
    SetSpreadsheetInUse(false);
    close(socket_);
    std::filesystem::remove_all(directory_);
  }

  static milliseconds TimeOf(const std::function<void()>& work) {
    const auto begin = steady_clock::now();
    work();
    return std::chrono::duration_cast<milliseconds>(steady_clock::now() - begin);
  }

  std::string directory_;
  int socket_ = -1;
  CalcLinkOptions options_;
};

// One poll in twenty may meet a moment in which the machine does something else.
TEST_F(CalcSilentSocket, HoldsNoPoll) {
  CalcLink link(options_);
  std::vector<milliseconds> times;
  for (int i = 0; i < 20; ++i) {
    times.push_back(TimeOf([&] { EXPECT_EQ(link.GetRunningObject().number, kFaultBusy); }));
    std::this_thread::sleep_for(milliseconds(100));
  }
  std::sort(times.begin(), times.end());
  EXPECT_LT(times[18], milliseconds(50));
  EXPECT_LT(times[19], milliseconds(200));
}

TEST_F(CalcSilentSocket, HoldsALoadForTheSilenceOnly) {
  options_.silence = milliseconds(1000);
  CalcLink link(options_);
  SetSpreadsheetInUse(true);
  const auto time = TimeOf([&] { EXPECT_EQ(link.GetRunningObject().number, kFaultBusy); });
  EXPECT_GE(time, milliseconds(900));
  EXPECT_LT(time, milliseconds(3000));
}

// The program ends in an event that is let through while a load waits.
TEST_F(CalcSilentSocket, HoldsNoProgramThatEnds) {
  class Ending : public ScriptedDialogs {
   public:
    void PumpEvents() override { link->ReleaseObject(); }
    CalcLink* link = nullptr;
  };
  auto link = std::make_unique<CalcLink>(options_);
  Ending ending;
  ending.link = link.get();
  SetDialogs(&ending);
  SetSpreadsheetInUse(true);
  const auto time = TimeOf([&] {
    EXPECT_FALSE(link->GetRunningObject().Good());
    link.reset();
  });
  SetDialogs(nullptr);
  EXPECT_LT(time, milliseconds(1000));
}

TEST_F(CalcSilentSocket, HoldsNoLinkThatEndsBehindAPoll) {
  auto link = std::make_unique<CalcLink>(options_);
  EXPECT_EQ(link->GetRunningObject().number, kFaultBusy);
  EXPECT_LT(TimeOf([&] { link.reset(); }), milliseconds(500));
}

class CalcSlowOffice : public CalcLoadFixture {
 protected:
  void TearDown() override {
    if (thaws_.joinable()) thaws_.join();
    CalcLoadFixture::TearDown();
  }
  CalcLinkOptions Options() const override {
    CalcLinkOptions options = office_->Options();
    options.pollPatience = CalcLinkOptions().pollPatience;
    options.attachPatience = CalcLinkOptions().attachPatience;
    return options;
  }
  void FreezeFor(milliseconds time) {
    office_->Freeze();
    thaws_ = std::thread([time] {
      std::this_thread::sleep_for(time);
      office_->Thaw();
    });
  }
  void ExpectPlot() {
    EXPECT_THAT(WrittenFile(), testing::EndsWith(PlotRows()));
    EXPECT_EQ(LastPoint, 2);
    EXPECT_THAT(dialogs_.boxes, testing::IsEmpty());
  }

 private:
  std::thread thaws_;
};

TEST_F(CalcSlowOffice, ALoadWaitsUntilItCanAttach) {
  OpenPlot("=MAX(A2:C4)");
  atStart_ = [this](CalcLink&) { FreezeFor(milliseconds(1200)); };
  Load();
  ExpectPlot();
}

TEST_F(CalcSlowOffice, ALoadWaitsWhereThePollsHaveAttachedAlready) {
  OpenPlot("=MAX(A2:C4)");
  atStart_ = [this](CalcLink& link) {
    const auto deadline = steady_clock::now() + milliseconds(10000);
    while (!link.GetRunningObject().Good() && steady_clock::now() < deadline)
      std::this_thread::sleep_for(milliseconds(50));
    FreezeFor(milliseconds(1200));
  };
  Load();
  ExpectPlot();
}

TEST_F(CalcSlowOffice, APollAttachesOnceItAnswers) {
  OpenSheet();
  CalcLink link(Options());
  FreezeFor(milliseconds(1000));
  const auto begin = steady_clock::now();
  EXPECT_EQ(link.GetRunningObject().number, kFaultBusy);
  EXPECT_LT(steady_clock::now() - begin, milliseconds(200));
  const auto deadline = begin + milliseconds(10000);
  while (!link.GetRunningObject().Good() && steady_clock::now() < deadline)
    std::this_thread::sleep_for(milliseconds(50));
  EXPECT_TRUE(link.GetRunningObject().Good());
}

// A title that is one literal asks nothing of the office: no document is made there, were it but for a
// moment.
TEST_F(CalcSlowOffice, ALiteralTitleIsKnownWithoutIt) {
  OpenSheet();
  CalcLink link(office_->Options());
  const Workbook book = Attach(link);
  FreezeFor(milliseconds(2000));
  const auto begin = steady_clock::now();
  CellValue value;
  bool offered = false;
  EXPECT_TRUE(link.EvaluateAside(book, "=\"Orbit \"\"kmday\"\", & more\"", value, offered).Good());
  EXPECT_TRUE(offered);
  EXPECT_EQ(value.text, "Orbit \"kmday\", & more");
  EXPECT_EQ(value.number, std::nullopt);
  EXPECT_TRUE(link.EvaluateAside(book, "= \"\" ", value, offered).Good());
  EXPECT_EQ(value.text, "");
  EXPECT_LT(steady_clock::now() - begin, milliseconds(1000));
  EXPECT_TRUE(link.EvaluateAside(book, "=\"a\"&\"b\"", value, offered).Good());
  EXPECT_EQ(value.text, "ab");
}

}  // namespace
}  // namespace quorb
