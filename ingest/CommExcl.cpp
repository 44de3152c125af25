#include "CommExcl.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "Conditioning.h"
#include "DataChannel.h"
#include "Faults.h"
#include "FileChoice.h"
#include "Mth.h"
#include "PlotData.h"
#include "RunState.h"
#include "TextHelpers.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr int kSpeedAfterLoad = 9;
constexpr double kBarAtRows = 30;
constexpr double kBarBehindRows = 90;
constexpr double kBarMoves = 60;

LoaderWindow* loaderWindow = nullptr;
LoadOutcome lastLoad;

// A plot in one column leaves the panel alone and takes the bodies off; any other plot reads the panel.
void SetBodiesForColumnMode(LoaderWindow& window) {
  if (ColumnMode == 1) {
    USERFLAG.NoPlotEarth = 1.0;
    USERFLAG.ShowSatellite = 0.0;
  } else {
    window.Command2_Click();
  }
}

void ForgetColumnPlot() {
  if (ColumnMode != 1) return;
  DEJADRAW = 0;
  const std::int64_t rows = std::min<std::int64_t>(std::int64_t{LastPoint} + 1, kRowBound);
  for (std::int64_t i = 0; i < rows; ++i)
    std::fill_n(dataXYZT[i], 5, 0.0);
}

// The header's own scale and title count only when its formula has none.
void TakeSpecification(const DataFileHeader& header, LoadState& load) {
  load.specification = Extraction_info(header.formula, "");
  load.givenScale = load.specification.scale;
  if (!load.specification.hasScale && header.scale != 0) load.givenScale = header.scale;
  load.pass.scale = load.givenScale;
  MessageUserToPlot = load.specification.title;
  if (!load.specification.hasTitle && !header.title.empty()) MessageUserToPlot = header.title;
  LastFormula = header.formula;
}

int TakeColumn(std::string_view& text) {
  int column = 0;
  for (; !text.empty() && text[0] >= 'A' && text[0] <= 'Z' && column <= kRowBound; text.remove_prefix(1)) {
    column = column * 26 + (text[0] - 'A' + 1);
  }
  return column;
}

int TakeRow(std::string_view& text) {
  int row = 0;
  const auto taken = std::from_chars(text.data(), text.data() + text.size(), row);
  text.remove_prefix(static_cast<std::size_t>(taken.ptr - text.data()));
  return row;
}

struct RangeSize {
  int columns = 0;
  int rows = 0;
};

// Size of a range such as "A2:C2000"; 0 by 0 for any other text.
RangeSize SizeOfRange(const std::string& range) {
  const std::string upper = UpTrim(range);
  std::string_view rest = upper;
  const int firstColumn = TakeColumn(rest);
  const int firstRow = TakeRow(rest);
  if (!rest.starts_with(':')) return {};
  rest.remove_prefix(1);
  const int lastColumn = TakeColumn(rest);
  const int lastRow = TakeRow(rest);
  const bool isRange = rest.empty() && firstColumn > 0 && firstRow > 0 && lastColumn >= firstColumn;
  if (!isRange || lastRow < firstRow) return {};
  return {lastColumn - firstColumn + 1, lastRow - firstRow + 1};
}

bool IsOnlyXYZ(const SpecificationText& specification) {
  return SizeOfRange(specification.rangeXYZ).columns == 3 && specification.rangeT.empty() &&
         specification.rangeEvents.empty() && specification.rangeQuater.empty() &&
         specification.rangeSApY.empty() && specification.rangeSAmY.empty() &&
         specification.rangeValZ.empty();
}

void ReadPlotFile(const std::string& headerLine, LoadState& load, LoaderWindow& window) {
  NbQuater = NbSApY = NbSAmY = NbValZ = 0;
  PenUpMode = ColumnMode = PenUpLabelMode = 0;
  TakeSpecification(ReadHeader(headerLine), load);
  window.AppendLog("Extraction_info cellFormula " + LastFormula);
  Extraction_information_mots_clef(KeywordStage::beforeRows, load.keywords);
  if (load.keywords.clearCheck9) window.SetValue(LoaderControl::Check9, 0);
  if (load.keywords.forcedScale) load.pass.scale = *load.keywords.forcedScale;
  load.pass.TimeInSeconds = load.keywords.TimeInSeconds;
  load.pass.LengthInMetres = load.keywords.LengthInMetres;
  window.AppendLog(" Check SpecialCasesPermutUnitsmoon rangeXYZ$ " + load.specification.rangeXYZ);
  USERFLAG.TimeInData = load.specification.rangeT.empty() ? 0.0 : 1.0;
  load.wholeXYZ = PenUpMode == 1 && IsOnlyXYZ(load.specification);
  load.pass.readValZ = !load.specification.rangeValZ.empty();
  lastLoad.headerRead = true;
  lastLoad.specification = load.specification;
  load.pass.tick = std::max(SizeOfRange(load.specification.rangeXYZ).rows - 1, 0) / kBarMoves + 1;
  load.pass.bar = kBarAtRows;
  dataEventLog.text.Restart();
  dataPenUpLabel.Restart();
  ReadRows(load.pass, window);
  lastLoad.rows = load.pass.row;
  window.SetProgress(kBarBehindRows);
}

void ReadChosenFile(LoadState& load, LoaderWindow& window) {
  const PlotFileNames names = BuildPlotFileNames();
  window.AppendLog("NameTempo$ " + names.NameTempo);
  std::error_code unknown;
  window.AppendLog("ccdir$ " + std::filesystem::current_path(unknown).string());
  int ErrorNumber = kFaultNone;
  ChooseFile(names, ErrorNumber, window);
  lastLoad = LoadOutcome();
  lastLoad.ErrorNumber = ErrorNumber;
  std::string headerLine;
  LinInputW(1, headerLine, window);
  window.AppendLog("frmMain.LinInputW  1, lin$ 'Line Input #1, lin " + headerLine);
  if (!AtEndOfFile(1) && ErrorNumber != kFaultBadFileName) ReadPlotFile(headerLine, load, window);
  if (LastPoint >= kRowBound) {
    window.AppendLog("The data file has more rows than the " + std::to_string(kRowBound) +
                     " that a plot takes: the rows behind them are left out.");
  }
  if (!ChannelShrunk(1)) return;
  window.AppendLog("The data file became shorter while it was read: rows are missing behind row " +
                   std::to_string(load.pass.row) + ". Load it again.");
}

}  // namespace

const LoadOutcome& LastLoad() {
  return lastLoad;
}

std::string NoRowsReason() {
  if (lastLoad.ErrorNumber != kFaultNone) return FaultText(lastLoad.ErrorNumber);
  if (!lastLoad.headerRead) return "it has no line behind its header";
  return "every line behind its header is empty";
}

void SetLoaderWindow(LoaderWindow* window) {
  loaderWindow = window;
}

void LoadPlot() {
  if (loaderWindow == nullptr) return;
  LoaderWindow& window = *loaderWindow;
  MainKeyword = Trim(window.MainKeywordText());
  USERFLAG.SynchroExcelComplete = 0.0;
  ForgetColumnPlot();
  SetBodiesForColumnMode(window);
  LoadBusy = 1;
  window.ShowProgress(true);
  FILEcOMMANDnAME = CommandFileName;

  LoadState load;
  load.keywords = StartKeywordPass();
  ReadChosenFile(load, window);
  ConditionPlot(load, window);
  EndKeywordPass();

  USERFLAG.UpdateAsked = 0.0;
  ResizeArmed = 0;
  window.Form_Resize();
  ResizeArmed = 1;
  LoadBusy = 0;
  window.ShowProgress(false);
  window.SetSpeedBar(kSpeedAfterLoad);
  window.CameraSet("isonew", 2, 0);
  window.CameraSet("isonew", 2, 0);
  SetBodiesForColumnMode(window);
  USERFLAG.SynchroExcelComplete = 1.0;
}

}  // namespace quorb
