#include <unistd.h>

#include "AutomationService.h"
#include "CommExcl.h"
#include "RunState.h"
#include "ViewerOnBus.h"
#include "frmMain.h"

namespace quorb {
namespace {

constexpr const char* kNobody = "setpriv --reuid 65534 --regid 65534 --clear-groups ";

/// A bus that lets everybody in. To be somebody else for a moment, the tests have to run as root.
class AutomationAccess : public ViewerOnBus {
 protected:
  void SetUp() override {
    if (getuid() != 0) GTEST_SKIP() << "only root can call as another user";
    std::filesystem::create_directory(run.File("open"));
    std::filesystem::permissions(run.File("open"), std::filesystem::perms::all);
    run.Write("open/bus.conf",
              R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:path=)" +
                  run.File("open/bus") + R"(</listen><auth>EXTERNAL</auth>
<policy context="default"><allow user="*"/><allow send_destination="*" eavesdrop="true"/>
<allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>)");
  }

  /// Starts the bus in somebody's hands; `words` stand in front of its command line.
  void StartBus(const std::string& words) {
    bus_ = std::make_unique<Background>(
        std::vector<std::string>{"/bin/sh", "-c",
                                 "exec " + words + "dbus-daemon --nofork --config-file='" +
                                     run.File("open/bus.conf") + "' 2>/dev/null"},
        std::vector<std::string>{});
    ASSERT_TRUE(WaitFor([this] { return std::filesystem::exists(run.File("open/bus")); }));
    std::filesystem::permissions(run.File("open/bus"), std::filesystem::perms::all);
  }
  std::string Address() const { return "DBUS_SESSION_BUS_ADDRESS=unix:path=" + run.File("open/bus"); }
  /// A call on that bus; `words` stand in front of the command line.
  ProgramOutcome CallOnBus(const std::string& words, const std::string& call) const {
    return run.Run("/usr/bin/env", Address() + " " + words + "gdbus " + call);
  }

  std::unique_ptr<Background> bus_;
};

TEST_F(AutomationAccess, AnotherUserMayNeitherPushNorRead) {
  StartBus("");
  const auto viewer = Start(QUORB_EXAMPLES "/km.qbv", {Address()});
  const std::string read = Words("org.freedesktop.DBus.Properties.Get", kBusName) + kBusInterface + " Title";
  ASSERT_TRUE(WaitFor([&] { return CallOnBus("", read).out == "(<'Long orbit over the north'>,)\n"; }));
  const std::string push = Words(std::string(kBusInterface) + ".InterFaceXls", kBusName) + "Pushed 1";
  for (const std::string& call : {push, read}) {
    const ProgramOutcome outcome = CallOnBus(kNobody, call);
    EXPECT_NE(outcome.status, 0);
    EXPECT_EQ(
        outcome.err,
        "Error: GDBus.Error:org.freedesktop.DBus.Error.AccessDenied: Only programs of the same user are "
        "served\n");
  }
  EXPECT_EQ(CallOnBus("", read).out, "(<'Long orbit over the north'>,)\n");
  EXPECT_EQ(CallOnBus("", push).out, "()\n");
  EXPECT_EQ(CallOnBus("", read).out, "(<'Pushed'>,)\n");
}

/// What the service of this process says in the window's log, on that bus.
class AutomationAccessLog : public AutomationAccess {
 protected:
  AutomationAccessLog() : session_(qgetenv("DBUS_SESSION_BUS_ADDRESS")) {
    StartRunState();
    CreateMainWindow();
  }
  ~AutomationAccessLog() override {
    qputenv("DBUS_SESSION_BUS_ADDRESS", session_);
    frmMain.reset();
    SetLoaderWindow(nullptr);
  }
  std::string Log() const {
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray::fromStdString("unix:path=" + run.File("open/bus")));
    const AutomationService service;
    return frmMain->Text20.text;
  }

 private:
  const QByteArray session_;
};

TEST_F(AutomationAccessLog, ABusOfTheSameUserIsUsed) {
  StartBus("");
  EXPECT_THAT(Log(), testing::StartsWith("Automation is on: org.quorb.QuorbExcelPro, "));
}

TEST_F(AutomationAccessLog, ABusOfAnotherUserIsNotUsed) {
  StartBus(kNobody);
  EXPECT_EQ(Log(), "Automation is off: the session bus is another user's.");
}

}  // namespace
}  // namespace quorb
