// Runs the whole loader, twice in one run: the first byte chooses the road to the file, the second the
// separators, the line behind them is the formula, and the rest are the rows.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "FileChoice.h"
#include "MemoryFiles.h"
#include "PlotData.h"
#include "PlotReport.h"
#include "RunState.h"
#include "ScriptedDialogs.h"
#include "Separators.h"
#include "UserFlag.h"

namespace quorb {

namespace {

void CheckEnd(const MemoryFiles& files) {
  const bool ended = LoadBusy == 0 && USERFLAG.SynchroExcelComplete == 1.0 && files.open == 0;
  const bool counted = LastPoint >= 0 && NbEvents >= 0 && NbQuater >= 0 && NbValZ >= -1;
  if (!ended || !counted) std::abort();
}

std::string DataFile(std::string_view formulaAndRows) {
  const std::size_t lineEnd = std::min(formulaAndRows.find('\n'), formulaAndRows.size());
  std::string file = "From: \tBook1\tSheet1\t";
  file.append(formulaAndRows.substr(0, lineEnd));
  file += "\t1.0000000000\tTitle\tDate 2024/05/06 07:08:09\tmark\t\r\n";
  file.append(formulaAndRows.substr(std::min(lineEnd + 1, formulaAndRows.size())));
  return file;
}

void LoadTwice(unsigned road, unsigned separatorChoice, std::string_view formulaAndRows) {
  const Separators separators(separatorChoice);
  static MemoryFiles files;
  static FakeLoaderWindow window;
  static ScriptedDialogs dialogs;
  window.log.clear();
  window.calls.clear();
  window.progress.clear();
  dialogs.boxes.clear();
  files.asked.clear();
  StartRunState();
  AppDir = "/app/";
  CommandFileMode = static_cast<int>(road % 2);
  FileMode = static_cast<int>(road / 2 % 3);
  CommandFileName = "/plot.qbv";
  const PlotFileNames names = BuildPlotFileNames();
  const std::string file = DataFile(formulaAndRows);
  files.contents = {{CommandFileName, file}, {names.NameTempo, file}, {names.NameTempoDemo, file}};
  LoadPlot();
  CheckEnd(files);
  DEJADRAW = DEJARESET = 0;
  LoadPlot();
  CheckEnd(files);
  PlotReport();
}

}  // namespace

}  // namespace quorb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  quorb::LoadTwice(data[0], data[1], {reinterpret_cast<const char*>(data) + 2, size - 2});
  return 0;
}
