#include "CommExcl.h"

#include <algorithm>
#include <filesystem>

#include "CellRange.h"
#include "Conditioning.h"
#include "DataChannel.h"
#include "Dialogs.h"
#include "Faults.h"
#include "FileChoice.h"
#include "PlotData.h"
#include "RunState.h"
#include "SheetSession.h"
#include "SpreadsheetSession.h"
#include "TextHelpers.h"
#include "TitleTerms.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr int kSpeedAfterLoad = 9;
constexpr double kBarAtRows = 30;
constexpr double kBarBehindRows = 90;
constexpr double kBarMoves = 60;

LoaderWindow* loaderWindow = nullptr;
LoadOutcome lastLoad;
int loadsUnderWay = 0;
/// The number that LoadsStarted took when a load was given up last.
int giveUp = 0;

/// One load, from its first statement to its last, whichever that is.
class LoadUse {
 public:
  LoadUse() { ++loadsUnderWay; }
  ~LoadUse() { --loadsUnderWay; }
  LoadUse(const LoadUse&) = delete;
  LoadUse& operator=(const LoadUse&) = delete;
};

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

// A title that the sheet completed from a cell stands whole in the header: its formula names the first part.
bool HeaderCompletesTitle(const DataFileHeader& header, const std::string& title) {
  return IsTitleJoined(header.formula) && header.title.size() > title.size() &&
         header.title.compare(0, title.size(), title) == 0;
}

// The header's own scale and title count only when its formula has none, or only the title's first part.
void TakeSpecification(const DataFileHeader& header, LoadState& load) {
  load.specification = Extraction_info(header.formula, "");
  load.givenScale = load.specification.scale;
  if (!load.specification.hasScale && header.scale != 0) load.givenScale = header.scale;
  load.pass.scale = load.givenScale;
  MessageUserToPlot = load.specification.title;
  const bool isWhole = load.specification.hasTitle && !HeaderCompletesTitle(header, MessageUserToPlot);
  if (!isWhole && !header.title.empty()) MessageUserToPlot = header.title;
}

/// The ranges of the file's formula whose size the load looks at; the others are only empty or not.
struct FileRanges {
  RangeNumbers XYZ, events, quater;
};

FileRanges ConvertRanges(const SpecificationText& specification) {
  FileRanges ranges;
  ConvertA1LC(specification.rangeXYZ, ranges.XYZ);
  ConvertA1LC(specification.rangeEvents, ranges.events);
  ConvertA1LC(specification.rangeQuater, ranges.quater);
  return ranges;
}

void TellStrangeEnd(const RangeNumbers& XYZ, int SpecFound) {
  if (XYZ.num1 != XYZ.num2 || SpecFound != 1) return;
  CurrentDialogs().MessageBox("Strange <num1 = num2 And SpecFound = 1> , see Lamdor", "", kBoxStopIcon);
}

bool IsOnlyXYZ(const SpecificationText& specification, const RangeNumbers& XYZ) {
  return XYZ.Ncol2 == XYZ.Ncol1 + 2 && specification.rangeT.empty() && specification.rangeEvents.empty() &&
         specification.rangeQuater.empty() && specification.rangeSApY.empty() &&
         specification.rangeSAmY.empty() && specification.rangeValZ.empty();
}

void ReadPlotFile(const std::string& headerLine, LoadState& load, LoaderWindow& window) {
  NbQuater = NbSApY = NbSAmY = NbValZ = 0;
  PenUpMode = ColumnMode = PenUpLabelMode = 0;
  const DataFileHeader header = ReadHeader(headerLine);
  if (!load.throughSheet) LastFormula = header.formula;
  window.AppendLog("Extraction_info cellFormula " + header.formula);
  TakeSpecification(header, load);
  Extraction_information_mots_clef(KeywordStage::beforeRows, load.keywords);
  if (load.keywords.clearCheck9) window.SetValue(LoaderControl::Check9, 0);
  if (load.keywords.forcedScale) load.pass.scale = *load.keywords.forcedScale;
  load.pass.TimeInSeconds = load.keywords.TimeInSeconds;
  load.pass.LengthInMetres = load.keywords.LengthInMetres;
  window.AppendLog(" Check SpecialCasesPermutUnitsmoon rangeXYZ$ " + load.specification.rangeXYZ);
  const FileRanges ranges = ConvertRanges(load.specification);
  USERFLAG.TimeInData = load.specification.rangeT.empty() ? 0.0 : 1.0;
  TellStrangeEnd(ranges.XYZ, load.SpecFound);
  load.wholeXYZ = PenUpMode == 1 && IsOnlyXYZ(load.specification, ranges.XYZ);
  load.pass.readValZ = !load.specification.rangeValZ.empty();
  lastLoad.headerRead = true;
  lastLoad.penUp = PenUpMode == 1;
  lastLoad.specification = load.specification;
  load.pass.tick = std::max(ranges.XYZ.num2 - ranges.XYZ.num1, 0) / kBarMoves + 1;
  load.pass.bar = kBarAtRows;
  dataEventLog.text.Restart();
  dataPenUpLabel.Restart();
  ReadRows(load.pass, window);
  lastLoad.rows = load.pass.row;
  window.SetProgress(kBarBehindRows);
}

void ReadChosenFile(LoadState& load, LoaderWindow& window) {
  PointsAreScaled = 0;
  const PlotFileNames names = BuildPlotFileNames();
  window.AppendLog("NameTempo$ " + names.NameTempo);
  std::error_code unknown;
  window.AppendLog("ccdir$ " + std::filesystem::current_path(unknown).string());
  int ErrorNumber = kFaultNone;
  load.isDemo = ChooseFile(names, ErrorNumber, window);
  lastLoad = LoadOutcome();
  lastLoad.ErrorNumber = ErrorNumber;
  std::string headerLine;
  LinInputW(1, headerLine, window);
  window.AppendLog("frmMain.LinInputW  1, lin$ 'Line Input #1, lin " + headerLine);
  MessageUserToPlot.clear();  // without a header, the title of the plot before says nothing to this one
  if (!AtEndOfFile(1) && ErrorNumber != kFaultBadFileName) ReadPlotFile(headerLine, load, window);
  if (LastPoint >= kRowBound) {
    window.AppendLog("The data file has more rows than the " + std::to_string(kRowBound) +
                     " that a plot takes: the rows behind them are left out.");
  }
  if (!ChannelShrunk(1)) return;
  window.AppendLog("The data file became shorter while it was read: rows are missing behind row " +
                   std::to_string(load.pass.row) + ". Load it again.");
}

// The arrays hold a whole plot: what waits for that goes on.
void EndLoad(LoaderWindow& window) {
  LoadBusy = 0;
  window.ShowProgress(false);
  window.SetSpeedBar(kSpeedAfterLoad);
  window.CameraSet("isonew", 2, 0);
  window.CameraSet("isonew", 2, 0);
  SetBodiesForColumnMode(window);
  USERFLAG.SynchroExcelComplete = 1.0;
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
  if (loaderWindow == nullptr || SpreadsheetInUse()) return;
  const LoadUse use;
  LoaderWindow& window = *loaderWindow;
  const int thisLoad = ++LoadsStarted;
  MainKeyword = Trim(window.MainKeywordText());
  USERFLAG.SynchroExcelComplete = 0.0;
  ForgetColumnPlot();
  SetBodiesForColumnMode(window);
  LoadBusy = 1;
  window.ShowProgress(true);
  LoadState load;
  load.throughSheet = CommandFileMode != 1 && FileMode < 1;
  if (load.throughSheet) {
    const SheetReading reading = ReadSpreadsheet(window);
    if (reading.leavesLoad) return;
    load.SpecFound = reading.SpecFound;
  }
  if (thisLoad != LoadsStarted) return;  // another load ran while this one waited for the user
  FILEcOMMANDnAME = CommandFileName;
  window.RegisterFileType();
  window.ShowProgress(true);
  CloseChannel(1);

  load.keywords = StartKeywordPass();
  ReadChosenFile(load, window);
  ConditionPlot(load, window);
  EndKeywordPass();

  USERFLAG.UpdateAsked = 0.0;
  ResizeArmed = 0;
  window.Form_Resize();
  ResizeArmed = 1;
  EndLoad(window);
}

bool LoadIsUnderWay() {
  return loadsUnderWay > SessionsThatWait();
}

void GiveUpWaitingLoad() {
  if (loadsUnderWay == 0 || LoadIsUnderWay() || LoadBusy == 0) return;
  ++LoadsStarted;  // the load sees by it that it is worth nothing
  giveUp = LoadsStarted;
  SpecTyped = 0;
  USERFLAG.UpdateAsked = 0.0;
  EndLoad(*loaderWindow);
}

bool LoadWasGivenUp(int load) {
  return giveUp == load + 1 && LoadsStarted == giveUp;
}

}  // namespace quorb
