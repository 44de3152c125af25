#include "AutomationService.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QProcess>
#include <QTest>
#include <chrono>
#include <filesystem>

#include "LoaderLink.h"
#include "RunState.h"
#include "TemporaryDirectory.h"
#include "frmMain.h"

namespace quorb {
namespace {

using testing::EndsWith;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr const char* kNoBus = "Automation is off: there is no session bus.";
constexpr const char* kOn =
    "Automation is on: org\\.quorb\\.QuorbExcelPro, org\\.quorb\\.QuorbExcelPro\\.pid[0-9]+";

/// What the service says in the window's log, on the bus that the environment names.
class AutomationLog : public testing::Test {
 protected:
  AutomationLog() : bus_(qgetenv("DBUS_SESSION_BUS_ADDRESS")), runtime_(qgetenv("XDG_RUNTIME_DIR")) {
    StartRunState();
    CreateMainWindow();
  }
  ~AutomationLog() override {
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus_);
    qputenv("XDG_RUNTIME_DIR", runtime_);
    frmMain.reset();
    SetLoaderWindow(nullptr);
  }

  static std::string LogOn(const QByteArray& address) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    frmMain->Text20.text = "";
    const AutomationService service;
    return frmMain->Text20.text;
  }

  QByteArray bus_, runtime_;
};

TEST_F(AutomationLog, TellsTheNames) {
  EXPECT_THAT(LogOn(bus_), MatchesRegex(kOn));
  EXPECT_THAT(LogOn(bus_), MatchesRegex(kOn)) << "the name is free again behind the first one's end";
}

TEST_F(AutomationLog, WithoutABusOneLineTellsIt) {
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  EXPECT_EQ(LogOn(""), kNoBus);
  qunsetenv("XDG_RUNTIME_DIR");
  EXPECT_EQ(LogOn(""), kNoBus);
}

TEST_F(AutomationLog, ABusThatIsNoSocketOfThisMachineIsNone) {
  EXPECT_EQ(LogOn("autolaunch:"), kNoBus) << "none is started";
  EXPECT_EQ(LogOn("tcp:host=localhost,port=1"), kNoBus);
  EXPECT_EQ(LogOn("unix:path=/nowhere/bus;unixexec:path=/bin/true"), kNoBus);
}

/// A socket that takes connections and says nothing.
class MuteSocket {
 public:
  explicit MuteSocket(const std::string& path) {
    sockaddr_un place = {};
    place.sun_family = AF_UNIX;
    path.copy(place.sun_path, sizeof place.sun_path - 1);
    listens_ = bind(number_, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 &&
               listen(number_, 5) == 0;
  }
  ~MuteSocket() { close(number_); }
  MuteSocket(const MuteSocket&) = delete;
  MuteSocket& operator=(const MuteSocket&) = delete;
  bool Listens() const { return listens_; }

 private:
  const int number_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  bool listens_ = false;
};

TEST_F(AutomationLog, ABusThatIsSilentIsGivenUpWithinAMoment) {
  const TemporaryDirectory directory;
  const MuteSocket mute(directory.File("bus"));
  ASSERT_TRUE(mute.Listens());
  const std::string address = "unix:path=" + directory.File("bus");
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(LogOn(QByteArray::fromStdString(address)),
            "Automation is off: the session bus does not answer: it is silent.");
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
  EXPECT_GE(time.count(), 0.9);
  EXPECT_LT(time.count(), 3);
  EXPECT_THAT(LogOn(QByteArray::fromStdString(address) + ";" + bus_), MatchesRegex(kOn))
      << "the next one of the list is taken";
}

TEST_F(AutomationLog, ABusThatDoesNotAnswerIsTold) {
  EXPECT_THAT(LogOn("unix:path=/nowhere/bus"),
              StartsWith("Automation is off: the session bus does not answer: "));
}

TEST_F(AutomationLog, TheEndOfTheBusIsTold) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForReadyRead());
  qputenv("DBUS_SESSION_BUS_ADDRESS", daemon.readLine().trimmed());
  frmMain->Text20.text = "";
  const AutomationService service;
  ASSERT_THAT(frmMain->Text20.text.Get(), MatchesRegex(kOn));
  daemon.kill();
  daemon.waitForFinished();
  EXPECT_TRUE(QTest::qWaitFor([] { return frmMain->Text20.text.Get().find("off") != std::string::npos; }));
  EXPECT_THAT(frmMain->Text20.text.Get(), EndsWith("\r\nAutomation is off: the session bus has ended."));
}

TEST_F(AutomationLog, TheSocketOfTheUsersDirectoryIsTakenWhenNothingElseIsNamed) {
  const TemporaryDirectory directory;
  const std::string address = bus_.toStdString();
  const std::string head = "unix:path=";
  ASSERT_THAT(address, StartsWith(head));
  const std::string runtime = directory.File("a runtime, odd");
  std::filesystem::create_directory(runtime);
  std::filesystem::create_symlink(address.substr(head.size(), address.find(',') - head.size()),
                                  runtime + "/bus");
  qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(runtime));
  EXPECT_THAT(LogOn(""), MatchesRegex(kOn));
}

}  // namespace
}  // namespace quorb
