// Loads the bytes as a data file. The plot arrays are never cleared between two files: they are large, and a
// load must not read what it did not write in a way that ends badly.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "CommExcl.h"
#include "FakeLoaderWindow.h"
#include "MemoryFiles.h"
#include "PlotData.h"
#include "PlotReport.h"
#include "RunState.h"
#include "UserFlag.h"

namespace quorb {

namespace {

// Whatever a file holds, the load ends as a load does.
void CheckEnd(const MemoryFiles& files) {
  const bool ended = LoadBusy == 0 && USERFLAG.SynchroExcelComplete == 1.0 && files.open == 0;
  const bool counted = LastPoint >= 0 && NbEvents >= 0 && NbQuater >= 0 && NbValZ >= -1;
  if (!ended || !counted) std::abort();
}

void LoadBytes(const std::uint8_t* data, std::size_t size) {
  static MemoryFiles files;
  static FakeLoaderWindow window;
  window.log.clear();
  window.calls.clear();
  window.progress.clear();
  StartRunState();
  CommandFileMode = 1;
  CommandFileName = "/plot.qbv";
  files.contents[CommandFileName].assign(reinterpret_cast<const char*>(data), size);
  LoadPlot();
  CheckEnd(files);
  PlotReport();
}

}  // namespace

}  // namespace quorb

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quorb::LoadBytes(data, size);
  return 0;
}
