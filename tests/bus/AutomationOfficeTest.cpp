#include <fstream>
#include <sstream>

#include "AutomationService.h"
#include "CalcWindow.h"
#include "SheetSession.h"

namespace quorb {
namespace {

/// A macro that calls the viewer once from the office's main thread, as the office's menu runs macros: the
/// office answers nobody meanwhile. It leaves "STATUS SECONDS" and what gdbus said.
constexpr const char* kMacro = R"(import os
import subprocess
import time

import unohelper
from com.sun.star.awt import XCallback


class Push(unohelper.Base, XCallback):
    def notify(self, _):
        begin = time.monotonic()
        outcome = subprocess.run(
            ["gdbus", "call", "--session", "--timeout", "60", "-d", "org.quorb.QuorbExcelPro"]
            + ["-o", "/org/quorb/QuorbExcelPro", "-m", "org.quorb.QuorbExcelPro.ClassInterface.GlrayonXls"]
            + ["'10\\t0\\t0\\r\\n0\\t20\\t0\\r\\n'", "2.0"],
            capture_output=True, encoding="utf-8")
        seconds = time.monotonic() - begin
        with open("OUT.part", "w") as out:
            out.write("%d %.3f %s" % (outcome.returncode, seconds, outcome.stderr))
        os.rename("OUT.part", "OUT")


def push(*_):
    XSCRIPTCONTEXT.getComponentContext().ServiceManager.createInstance(
        "com.sun.star.awt.AsyncCallback").addCallback(Push(), None)


g_exportedScripts = (push,)
)";
constexpr const char* kMacroUrl = "vnd.sun.star.script:push.py$push?language=Python&location=user";
// Two that wait for each other do so for five seconds.
constexpr double kMomentInSeconds = 3;

/// What came of a macro's call.
struct MacroOutcome {
  int status = -1;
  double seconds = 0;
  std::string said;
};

/// The real window with its automation object, linked to a real Calc whose macro pushes.
class AutomationOffice : public CalcWindow {
 protected:
  void SetUp() override {
    CalcWindow::SetUp();
    if (HasFatalFailure()) return;
    std::string macro = kMacro;
    for (std::size_t at = macro.find("OUT"); at != std::string::npos; at = macro.find("OUT", at + 1)) {
      const std::string out = run.File("came");
      macro.replace(at, 3, out);
      at += out.size();
    }
    std::filesystem::create_directories(office_->PythonMacros());
    std::ofstream(office_->PythonMacros() + "/push.py") << macro;
    document_ = OpenSheet();
    FillPoints(document_, "First", 5);
    Select(document_, "F1");
  }
  void TearDown() override {
    service_.reset();
    CalcWindow::TearDown();
  }

  void OpenService() {
    service_ = std::make_unique<AutomationService>();
    ASSERT_THAT(frmMain->Text20.text.Get(), testing::HasSubstr("Automation is on: org.quorb.QuorbExcelPro,"));
  }
  void RunMacro() const {
    const SheetFault fault = User().RunMacro(document_, kMacroUrl);
    EXPECT_TRUE(fault.Good()) << fault.description;
  }
  bool HasCome() const { return std::filesystem::exists(run.File("came")); }
  MacroOutcome Outcome() const {
    MacroOutcome outcome;
    std::istringstream text(ContentsOfFile(run.File("came")));
    text >> outcome.status >> outcome.seconds;
    std::getline(text, outcome.said, '\0');
    std::cout << "the macro's call took " << outcome.seconds << " s\n";
    return outcome;
  }

  int document_ = 0;
  std::unique_ptr<AutomationService> service_;
};

TEST_F(AutomationOffice, AMacroOfTheWatchedOfficeIsAnsweredInAMoment) {
  StartWatching();
  OpenService();
  // At several points between one look at the sheet and the next.
  for (int time = 0; time < 4; ++time) {
    std::filesystem::remove(run.File("came"));
    LastPoint = 0;
    WaitForAnswers(1);
    QTest::qWait(40 * time);
    RunMacro();
    ASSERT_TRUE(QTest::qWaitFor([this] { return HasCome(); }, 30000));
    const MacroOutcome outcome = Outcome();
    EXPECT_EQ(outcome.status, 0) << outcome.said;
    EXPECT_LT(outcome.seconds, kMomentInSeconds);
    EXPECT_EQ(LastPoint, 1);
  }
  // The watcher has not lost the office by it.
  Type(document_, 1, 6, Formula("Second", 7));
  EXPECT_TRUE(QTest::qWaitFor([] { return MessageUserToPlot == "Second" && LoadBusy == 0; }, 20000));
}

TEST_F(AutomationOffice, AMacroDuringALoadFromItsOfficeIsRefusedInAMomentAndTheLoadGoesOn) {
  StartAndShow();
  OpenService();
  // Rows enough for the load to take its time.
  constexpr int kRows = 20000;
  std::vector<double> numbers;
  for (int row = 0; row < kRows; ++row) {
    for (const double number : {row * 1.0, row * 2.0, row * 3.0, row * 0.01})
      numbers.push_back(number);
  }
  ASSERT_TRUE(User().TypeNumbers(document_, 0, 2, 1, 4, numbers).Good());
  Type(document_, 1, 6, Formula("Long", kRows + 1));
  bool wasLoading = false;
  QTimer starter;
  QObject::connect(&starter, &QTimer::timeout, window.get(), [&] {
    if (!SpreadsheetInUse()) return;
    starter.stop();
    wasLoading = LoadIsUnderWay();
    RunMacro();
  });
  starter.start(1);
  frmMain->mnuUpdateExcel.clicked();
  EXPECT_TRUE(wasLoading);
  ASSERT_TRUE(QTest::qWaitFor([this] { return HasCome(); }, 30000));
  const MacroOutcome outcome = Outcome();
  EXPECT_NE(outcome.status, 0);
  EXPECT_THAT(outcome.said, testing::HasSubstr("org.quorb.QuorbExcelPro.Error.Busy"));
  EXPECT_LT(outcome.seconds, kMomentInSeconds);
  EXPECT_EQ(MessageUserToPlot, "Long");
  EXPECT_EQ(LastPoint, kRows - 1);
}

}  // namespace
}  // namespace quorb
