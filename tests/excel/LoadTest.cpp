#include <windows.h>

#include <algorithm>
#include <chrono>

#include "Check.h"
#include "ClipboardSetup.h"
#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "LinkFixture.h"
#include "MemoryFiles.h"
#include "NumberText.h"
#include "PlotData.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "SheetWatcher.h"
#include "UndatedFile.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr const char* kLastFile = "/app/_QuorbExcelPro.qbv";

/// A fresh run of the loader over the link.
struct Loading : AttachedLink {
  Loading() {
    SetRegionalSettings(nullptr);
    StartRunState();
    AppDir = "/app/";
    SpecTypedText.clear();
    CommandFileMode = 0;
    SetSheetLink(link.get());
    dialogs.otherwise = BoxAnswer::cancel;
    dialogs.pumpLimit = 1000000;
  }
  ~Loading() {
    SetSheetLink(nullptr);
    StartRunState();
  }

  void Load() {
    DEJADRAW = DEJARESET = FileMode = 0;
    LoadPlot();
  }

  /// The data file that was written, with the date and time of its header as "Date D".
  std::string WrittenFile() const {
    const auto file = files.contents.find(kLastFile);
    if (file == files.contents.end()) return "none";
    return UndatedFile(file->second);
  }

  MemoryFiles files;
  FakeLoaderWindow window;
  ScriptedDialogs dialogs;
};

std::string HeaderOf(const std::string& formula, const std::string& scale, const std::string& title) {
  std::string doubled;
  for (const char c : formula)
    doubled += c == '"' ? std::string("\"\"") : std::string(1, c);
  return "\"From: \tBook1.xlsx\tSheet1\t" + doubled + "\t" + scale + "\t" + title +
         "\tDate D\tQuorbExcelPro data file\t\"" + std::string(16, '\t') + "\r\n";
}

std::string RowOf(const std::string& fields) {
  const auto tabs = std::count(fields.begin(), fields.end(), '\t');
  return fields + std::string(static_cast<std::size_t>(16 - tabs), '\t') + "\r\n";
}

std::string PlotFile(const std::string& firstX = "21.0000000000") {
  return HeaderOf(AttachedLink::kFormula, "0.0100000000", "Orbit kmday") +
         RowOf(firstX + "\t22.0000000000\t23.0000000000") +
         RowOf("31.0000000000\t32.0000000000\t33.0000000000") +
         RowOf("41.0000000000\t42.0000000000\t43.0000000000");
}

EXCEL_TEST(Load, TheFormulaIsFoundAndTheDataFileWritten) {
  Loading run;
  SetClipboard(CF_UNICODETEXT, L"the user's text");
  run.Load();
  CHECK_EQUAL(run.WrittenFile(), PlotFile());
  CHECK_EQUAL(run.server.State(), run.stateBefore);
  CHECK_EQUAL(ClipboardText(), "the user's text");
  CHECK_EQUAL(LastFormula, AttachedLink::kFormula);
  CHECK_EQUAL(run.dialogs.boxes.size(), 0u);
  CHECK_EQUAL(LastPoint, 2);
  CHECK_EQUAL(dataXYZT[0][1], 0.21);
}

EXCEL_TEST(Load, AllSevenTermsComeToTheirColumns) {
  Loading run;
  const std::string formula =
      "=0.01+LEN(\"Orbit \"&X1)+MAX(A2:C3)+MAX(D2:D3)+MAX(E2:F3)+MAX(G2:K3)+MAX(L2:M3)+MAX(N2:O3)+MAX(P2:Q3)";
  for (int row = 2; row <= 3; ++row)
    for (int column = 1; column <= 17; ++column)
      run.server.SetNumber(row, column, row * 100 + column);
  run.server.SetText(1, 24, "é km");
  run.server.SetFormula(1, 20, formula);
  run.server.Select(1, 20);
  const std::string before = run.server.State();
  run.Load();
  std::string rows;
  for (int row = 2; row <= 3; ++row) {
    std::string fields;
    for (int column = 1; column <= 17; ++column)
      fields += (column == 1 ? "" : "\t") + std::to_string(row * 100 + column) + ".0000000000";
    rows += RowOf(fields);
  }
  const std::string found = run.WrittenFile();
  CHECK_EQUAL(found.substr(found.find("\r\n") + 2), rows);
  CHECK(found.find("LEN(\"\"Orbit é km\"\")+MAX(A2:C3)") != std::string::npos);
  CHECK_EQUAL(run.server.State(), before);
}

EXCEL_TEST(Load, AnApplicationThatBecomesBusyLeavesTheFileBefore) {
  Loading run;
  run.files.contents[kLastFile] = "the file before";
  run.server.Mode("busy", "PasteSpecial");
  run.Load();
  CHECK_EQUAL(run.files.contents[kLastFile], "the file before");
  run.server.Mode("");
  CHECK_EQUAL(run.server.State(), run.stateBefore);
}

EXCEL_TEST(Load, AnApplicationThatDiesLeavesTheFileBefore) {
  Loading run;
  run.files.contents[kLastFile] = "the file before";
  run.server.Mode("die", "PasteSpecial", 1);
  run.Load();
  CHECK_EQUAL(run.files.contents[kLastFile], "the file before");
  EndSharedServer();
}

EXCEL_TEST(Load, WithoutAnApplicationTheUserIsAsked) {
  Loading run;
  EndSharedServer();
  run.Load();
  CHECK(!run.dialogs.boxes.empty());
  if (!run.dialogs.boxes.empty()) CHECK_EQUAL(run.dialogs.boxes[0].title, "Excel not running!");
}

EXCEL_TEST(Load, AThousandRowsComeThrough) {
  Loading run;
  ComObject block;
  run.server.SetFormula(1, 20, "=LEN(\"kmday\")+MAX(A2:C1001)");
  run.server.SetNumber(1001, 3, 7);
  run.server.Select(1, 20);
  const auto start = std::chrono::steady_clock::now();
  run.Load();
  const auto spent = std::chrono::steady_clock::now() - start;
  const std::string found = run.WrittenFile();
  CHECK_EQUAL(std::count(found.begin(), found.end(), '\n'), 1001);
  CHECK(spent < std::chrono::seconds(5));
}

// ---- the watcher ------------------------------------------------------------------------------------------

EXCEL_TEST(Watch, AChangeOfTheFormulaLoadsAgain) {
  Loading run;
  run.server.Select(1, 20);
  run.Load();
  USERFLAG.InteractiveExcel = 1.0;
  WatchSheet();
  const int loads = LoadsStarted;
  WatchSheet();
  CHECK_EQUAL(LoadsStarted, loads);
  run.server.SetNumber(2, 1, 99);
  run.server.SetFormula(1, 20, AttachedLink::kFormula + std::string("+0"));
  WatchSheet();
  CHECK_EQUAL(LoadsStarted, loads + 1);
  CHECK(run.WrittenFile().find("99.0000000000\t22.0000000000") != std::string::npos);
}

EXCEL_TEST(Watch, AnApplicationThatIsBusyOrGoneEndsThePollQuietly) {
  Loading run;
  run.Load();
  USERFLAG.InteractiveExcel = 1.0;
  WatchSheet();
  const int loads = LoadsStarted;
  run.server.Mode("busy", "Name", 1);
  WatchSheet();
  run.server.Mode("rejected", "Name", 1);
  WatchSheet();
  run.server.Mode("disconnected", "Name", 1);
  WatchSheet();
  EndSharedServer();
  WatchSheet();
  CHECK_EQUAL(LoadsStarted, loads);
  CHECK_EQUAL(run.dialogs.boxes.size(), 0u);
}

EXCEL_TEST(Watch, APollIsShort) {
  Loading run;
  run.server.Select(1, 20);
  run.Load();
  USERFLAG.InteractiveExcel = 1.0;
  WatchSheet();
  constexpr int kPolls = 50;
  const auto start = std::chrono::steady_clock::now();
  for (int poll = 0; poll < kPolls; ++poll)
    WatchSheet();
  const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
  std::printf("  a poll takes %.2f ms\n", spent.count() / kPolls);
  CHECK(spent.count() / kPolls < 500.0);
}

}  // namespace

}  // namespace quorb
