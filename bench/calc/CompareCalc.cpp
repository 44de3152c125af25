// Loads from a real Calc beside Calc's own save of the same sheet as TAB-separated text.
//   compare_calc [ROUNDS]
// Starts an office of its own. Rounds alternate; the medians and their ratio are printed.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "CalcLink.h"
#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "MapSettingsStore.h"
#include "RealOffice.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "SheetWatcher.h"
#include "SpreadsheetSession.h"
#include "SystemFiles.h"
#include "TemporaryDirectory.h"
#include "UserFlag.h"

namespace quorb {
namespace {

constexpr int kColumns = 17;

double Seconds(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double Median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

std::string SeventeenColumns(int rows) {
  const std::string last = std::to_string(rows + 1);
  return "=MAX(A2:C" + last + ")+MAX(D2:D" + last + ")+MAX(E2:F" + last + ")+MAX(G2:K" + last + ")+MAX(L2:M" +
         last + ")+MAX(N2:O" + last + ")+MAX(P2:Q" + last + ")";
}

/// A run with an office that holds one sheet.
class Bench {
 public:
  explicit Bench(int rounds) : rounds_(rounds), link_(office_.Options()) {
    StartRunState();
    AppDir = home_.File("");
    SetFileAccess(&files_);
    SetSheetLink(&link_);
  }
  ~Bench() {
    SetSheetLink(nullptr);
    SetFileAccess(nullptr);
  }
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;

  bool Ready() const { return office_.Ready(); }

  /// @param format of the sheet's cells: the save writes them as they are shown, a load with ten decimals.
  void CompareWithSave(int rows, const std::string& format) {
    const int document = Open(rows);
    Check(User().SetFormat(document, 0, "A1:Q" + std::to_string(rows + 1), format));
    std::vector<double> loads, saves;
    for (int i = 0; i < rounds_; ++i) {
      saves.push_back(Seconds([&] { Check(User().SaveAsText(document, home_.File("save.txt"))); }));
      loads.push_back(Seconds([&] { ReadSpreadsheet(window_); }));
    }
    const double load = Median(loads), save = Median(saves);
    std::printf("%8d rows, %-12s   ReadSpreadsheet %7.3f s   Calc's save %7.3f s   ratio %.2f\n", rows,
                format.c_str(), load, save, load / save);
    std::error_code missing;
    const auto bytes = std::filesystem::file_size(home_.File("_QuorbExcelPro.qbv"), missing);
    if (missing || bytes < static_cast<std::uintmax_t>(rows) * kColumns * 13) {
      std::fprintf(stderr, "The load wrote no whole file.\n");
      std::exit(1);
    }
    std::filesystem::remove(home_.File("_QuorbExcelPro.qbv"));
    Check(User().Close(document));
  }

  void WholeLoad(int rows) {
    const int document = Open(rows);
    std::vector<double> loads;
    for (int i = 0; i < rounds_; ++i) {
      CalcLink link(office_.Options());
      SetSheetLink(&link);
      DEJADRAW = DEJARESET = FileMode = 0;
      loads.push_back(Seconds([] { LoadPlot(); }));
    }
    SetSheetLink(&link_);
    std::printf("%8d rows   LoadPlot, attaching included %7.3f s\n", rows, Median(loads));
    Check(User().Close(document));
  }

  void Poll() {
    const int document = Open(5000);
    USERFLAG.InteractiveExcel = 1.0;
    DEJADRAW = DEJARESET = FileMode = 0;
    LoadPlot();
    WatchSheet();
    std::vector<double> polls;
    polls.reserve(201);
    for (int i = 0; i < 201; ++i)
      polls.push_back(Seconds([] { WatchSheet(); }));
    std::printf("WatchSheet without a change: median %.2f ms, longest %.2f ms\n", 1000 * Median(polls),
                1000 * *std::max_element(polls.begin(), polls.end()));
    Check(User().Close(document));
  }

 private:
  OfficeUser& User() { return office_.User(); }

  static void Check(const SheetFault& fault) {
    if (fault.Good()) return;
    std::fprintf(stderr, "%s\n", fault.description.c_str());
    std::exit(1);
  }

  int Open(int rows) {
    int document = 0;
    Check(User().OpenSheet(document));
    Check(User().FillNumbers(document, 0, 2, 1, rows, kColumns));
    Check(User().Type(document, 0, 1, 20, SeventeenColumns(rows)));
    Check(User().Select(document, 0, "T1"));
    return document;
  }

  const int rounds_;
  TemporaryDirectory home_;
  SystemFiles files_;
  FakeLoaderWindow window_;
  ScriptedDialogs dialogs_;
  MapSettingsStore settings_;
  RealOffice office_;
  CalcLink link_;
};

int Run(int rounds) {
  Bench bench(rounds);
  if (!bench.Ready()) return 1;
  bench.Poll();
  bench.WholeLoad(5000);
  for (const char* format : {"0.0000000000", "General"})
    for (const int rows : {100000, 1048575})
      bench.CompareWithSave(rows, format);
  return 0;
}

}  // namespace
}  // namespace quorb

int main(int argc, char** argv) {
  return quorb::Run(argc > 1 ? std::max(1, std::atoi(argv[1])) : 3);
}
