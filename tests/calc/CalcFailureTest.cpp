#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <thread>

#include "CalcFixture.h"

namespace quorb {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr int kGone = -2147417848;

// An office for each test: it does not live through most of them.
class CalcFailure : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(office_.Ready());
    ASSERT_TRUE(office_.User().OpenSheet(document_).Good());
    ASSERT_TRUE(office_.User().Type(document_, 0, 1, 1, "here").Good());
  }

  CalcLinkOptions Hasty() const {
    CalcLinkOptions options = office_.Options();
    options.silence = milliseconds(1000);
    options.pollPatience = milliseconds(200);
    return options;
  }

  static SheetFault Read(CalcLink& link, std::string& formula) {
    Workbook book = kNoWorkbook;
    SheetFault fault = link.GetRunningObject();
    if (fault.Good()) fault = link.ActiveWorkbook(book);
    if (fault.Good()) fault = link.ActiveCellFormula(book, formula);
    return fault;
  }

  // Reads again until it works.
  static bool ReadsWithin(CalcLink& link, milliseconds time) {
    std::string formula;
    const auto deadline = steady_clock::now() + time;
    while (!Read(link, formula).Good()) {
      if (steady_clock::now() > deadline) return false;
      std::this_thread::sleep_for(milliseconds(50));
    }
    return formula == "here";
  }

  RealOffice office_;
  int document_ = 0;
};

TEST_F(CalcFailure, AClosedDocumentIsAnObjectThatIsMissing) {
  CalcLink link(office_.Options());
  Workbook book = kNoWorkbook;
  ASSERT_TRUE(link.GetRunningObject().Good());
  ASSERT_TRUE(link.ActiveWorkbook(book).Good());
  ASSERT_TRUE(office_.User().Close(document_).Good());
  std::string formula;
  EXPECT_EQ(link.ActiveCellFormula(book, formula).number, 424);
  TextSink sink;
  EXPECT_EQ(Pour(link, "Untitled 1", {{"A1:B2", "A2"}}, "A1:B3", sink).number, 424);
  EXPECT_EQ(link.BlockText("A1:B3", sink).number, 424) << "a table that lacks cells is not written out";
}

TEST_F(CalcFailure, AKilledOfficeIsGoneAtOnceAndThenThereIsNone) {
  CalcLink link(office_.Options());
  Workbook book = kNoWorkbook;
  ASSERT_TRUE(link.GetRunningObject().Good());
  ASSERT_TRUE(link.ActiveWorkbook(book).Good());
  office_.Kill();
  std::string formula;
  const auto begin = steady_clock::now();
  EXPECT_EQ(link.ActiveCellFormula(book, formula).number, kGone);
  EXPECT_EQ(link.ActiveSheetName(book, formula).number, kGone) << "everything fails so from here on";
  EXPECT_EQ(link.RangeCopy("A1").number, kGone);
  EXPECT_EQ(link.ActiveWindowClose(false, false).number, kGone);
  EXPECT_EQ(link.GetRunningObject().number, 429) << "its socket is stale";
  EXPECT_LT(steady_clock::now() - begin, milliseconds(2000));
}

TEST_F(CalcFailure, AnOfficeThatIsStartedAgainIsFoundBySameLink) {
  CalcLink link(office_.Options());
  std::string formula;
  ASSERT_TRUE(Read(link, formula).Good());
  office_.Kill();
  EXPECT_EQ(link.GetRunningObject().number, 429);
  RealOffice next;
  ASSERT_TRUE(next.Ready());
  int document = 0;
  ASSERT_TRUE(next.User().OpenSheet(document).Good());
  ASSERT_TRUE(next.User().Type(document, 0, 1, 1, "here").Good());
  const std::string socket = next.Running().socketPath;
  ASSERT_EQ(::link(socket.c_str(), (office_.SocketDirectory() + socket.substr(socket.rfind('/'))).c_str()),
            0);
  EXPECT_TRUE(ReadsWithin(link, milliseconds(5000)));
}

TEST_F(CalcFailure, AFrozenOfficeHoldsAPollForAMomentOnly) {
  office_.LetGo();
  CalcLink link(Hasty());
  std::string formula;
  ASSERT_TRUE(Read(link, formula).Good());
  office_.Freeze();
  auto begin = steady_clock::now();
  EXPECT_EQ(Read(link, formula).number, kFaultBusy);
  EXPECT_LT(steady_clock::now() - begin, milliseconds(600));
  begin = steady_clock::now();
  EXPECT_EQ(Read(link, formula).number, kFaultBusy);
  EXPECT_LT(steady_clock::now() - begin, milliseconds(150)) << "the first question has no answer yet";
  std::this_thread::sleep_for(milliseconds(1500));
  for (int i = 0; i < 10; ++i) {
    begin = steady_clock::now();
    EXPECT_EQ(Read(link, formula).number, kFaultBusy);
    EXPECT_LT(steady_clock::now() - begin, milliseconds(150));
    std::this_thread::sleep_for(milliseconds(100));
  }
  office_.Thaw();
  EXPECT_TRUE(ReadsWithin(link, milliseconds(10000)));
}

TEST_F(CalcFailure, ALoadFromAFrozenOfficeIsCutAndCountsAsBusy) {
  office_.LetGo();
  CalcLink link(Hasty());
  Workbook book = kNoWorkbook;
  ASSERT_TRUE(link.GetRunningObject().Good());
  ASSERT_TRUE(link.ActiveWorkbook(book).Good());
  ASSERT_TRUE(link.WorkbooksAdd().Good());
  office_.Freeze();
  CellValue value;
  const auto begin = steady_clock::now();
  EXPECT_EQ(link.CellsValue(book, 1, 1, value).number, kFaultBusy);
  EXPECT_GE(steady_clock::now() - begin, milliseconds(900));
  EXPECT_LT(steady_clock::now() - begin, milliseconds(3000));
  EXPECT_EQ(link.CellsValue(book, 1, 1, value).number, kFaultBusy);
  EXPECT_LT(steady_clock::now() - begin, milliseconds(3000)) << "it is cut already";
  office_.Thaw();
  EXPECT_TRUE(ReadsWithin(link, milliseconds(10000)));
}

TEST_F(CalcFailure, AFrozenOfficeCannotBeAttachedTo) {
  office_.LetGo();
  office_.Freeze();
  CalcLink link(Hasty());
  EXPECT_EQ(link.GetRunningObject().number, kFaultBusy);
  office_.Thaw();
  EXPECT_TRUE(ReadsWithin(link, milliseconds(10000)));
}

TEST_F(CalcFailure, AProgramThatEndsDoesNotWaitForAFrozenOffice) {
  office_.LetGo();
  auto link = std::make_unique<CalcLink>(Hasty());
  std::string formula;
  ASSERT_TRUE(Read(*link, formula).Good());
  office_.Freeze();
  EXPECT_EQ(Read(*link, formula).number, kFaultBusy);
  const auto begin = steady_clock::now();
  link.reset();
  EXPECT_LT(steady_clock::now() - begin, milliseconds(3000));
}

TEST_F(CalcFailure, OtherSocketsBesideItDoNotMatter) {
  const std::string mark =
      office_.SocketDirectory() + "/OSL_PIPE_" + std::to_string(getuid()) + "_SingleOfficeIPC_";
  const auto put = [](const std::string& path, bool stale) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const int number = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(listen(number, 5), 0);
    if (stale) close(number);
    return number;
  };
  put(mark + "stale", true);
  const int silent = put(mark + "silent", false);
  CalcLink link(office_.Options());
  EXPECT_TRUE(ReadsWithin(link, milliseconds(10000)));
  close(silent);
}

// As a killed office leaves it, whose number this one has got.
TEST_F(CalcFailure, AStaleAcceptorOfThatNameDoesNotMatter) {
  const std::string path =
      "/tmp/OSL_PIPE_" + std::to_string(getuid()) + "_quorb_" + std::to_string(office_.Running().process);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.c_str(), path.size());
  const int number = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  ASSERT_EQ(bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  ASSERT_EQ(listen(number, 5), 0);
  close(number);
  CalcLink link(office_.Options());
  EXPECT_TRUE(ReadsWithin(link, milliseconds(5000)));
}

TEST_F(CalcFailure, OfTwoOfficesTheOneWithASheetIsTaken) {
  RealOffice empty;
  ASSERT_TRUE(empty.Ready());
  const std::string socket = empty.Running().socketPath;
  ASSERT_EQ(::link(socket.c_str(), (office_.SocketDirectory() + socket.substr(socket.rfind('/'))).c_str()),
            0);
  CalcLink link(office_.Options());
  EXPECT_TRUE(ReadsWithin(link, milliseconds(5000)));
}

TEST_F(CalcFailure, OneAcceptorServesAllLinks) {
  const auto acceptors = [this] {
    const std::string name = "_quorb_" + std::to_string(office_.Running().process);
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/tmp"))
      if (entry.path().filename().string().find(name) != std::string::npos) ++count;
    return count;
  };
  for (int i = 0; i < 20; ++i) {
    CalcLink link(office_.Options());
    EXPECT_TRUE(ReadsWithin(link, milliseconds(5000)));
    EXPECT_EQ(acceptors(), 1);
  }
}

TEST_F(CalcFailure, TheOfficeEndsWithTheLastDocumentThoughAttached) {
  CalcLink link(office_.Options());
  std::string formula;
  ASSERT_TRUE(Read(link, formula).Good());
  ASSERT_TRUE(office_.User().Close(document_).Good());
  ASSERT_TRUE(link.GetRunningObject().Good());
  Workbook book = 3;
  ASSERT_TRUE(link.ActiveWorkbook(book).Good());
  EXPECT_EQ(book, kNoWorkbook);
  EXPECT_TRUE(link.Quit().Good());
  const auto deadline = steady_clock::now() + milliseconds(10000);
  while (office_.Runs() && steady_clock::now() < deadline)
    std::this_thread::sleep_for(milliseconds(20));
  EXPECT_FALSE(office_.Runs());
  EXPECT_EQ(link.GetRunningObject().number, 429);
}

}  // namespace
}  // namespace quorb
