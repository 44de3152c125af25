#include "RunState.h"

#include "PlotData.h"
#include "UserFlag.h"

namespace quorb {

int DEJARESET = 0;
int PointsAreScaled = 0;
int DEJADRAW = 0;
int LoadBusy = 0;
int ResizeArmed = 1;
int FileMode = 0;
int CommandFileMode = 0;
std::string CommandFileName;
std::string FILEcOMMANDnAME;
int ExcelLinked = 0;
int WatchStopped = 0;
std::string LastFormula;
std::string SeenFormula;
int FormulaArmed = 0;
int SpecTyped = 0;
std::string SpecTypedText;
std::string WatchSheetName, WatchCaption;
BoxAnswer LastAnswer = BoxAnswer::none;
int NoWorkbookTold = 0;
int WatchFaultTold = 0;
int MaybeExtError = 0;
int LoadsStarted = 0;
std::string MainKeyword = "MAX";
std::string AppDir;
std::string ProgramDir;
std::string ImportDirectory;

int ISOmode = 0;
int ColumnMode = 0;
int PenUpMode = 0;
int PenUpLabelMode = 0;
int PenUpLabelShow = 0;
int ValColour = 0, ValAxis = 0;
int MoonFocus = 0;
int FocusBody = 4;
int EMSystem = 0;
double EMDistance = 0;
int QuaterScalarLast = 0;
bool InputInKm = false;
int FlagOptionToPlot = 0;

int StartFlag = 0;
std::string VersionDigits;
int MoonSwitch = 0;
int LocalFollow = 0;

namespace {

void StartLoadState() {
  DEJARESET = DEJADRAW = LoadBusy = PointsAreScaled = 0;
  ResizeArmed = 1;
  FileMode = CommandFileMode = 0;
  CommandFileName.clear();
  FILEcOMMANDnAME.clear();
  ExcelLinked = WatchStopped = 0;
  LastFormula.clear();
  SeenFormula.clear();
  FormulaArmed = SpecTyped = 0;
  SpecTypedText.clear();
  WatchSheetName.clear();
  WatchCaption.clear();
  LastAnswer = BoxAnswer::none;
  NoWorkbookTold = WatchFaultTold = MaybeExtError = LoadsStarted = 0;
  MainKeyword = "MAX";
  AppDir.clear();
  ProgramDir.clear();
  ImportDirectory.clear();
}

void StartPlotFlags() {
  ISOmode = ColumnMode = PenUpMode = PenUpLabelMode = PenUpLabelShow = 0;
  ValColour = ValAxis = MoonFocus = 0;
  FocusBody = 4;
  EMSystem = 0;
  EMDistance = 0;
  QuaterScalarLast = 0;
  InputInKm = false;
  FlagOptionToPlot = 0;
}

void StartCounters() {
  LastPoint = NbEvents = 0;
  NbQuater = NbSApY = NbSAmY = NbValZ = 0;
  ValZMax = ValZMin = TimeMax = TimeMin = 0;
  FactorScale = 1.0;
  MessageUserToPlot.clear();
}

}  // namespace

void StartRunState() {
  StartLoadState();
  StartPlotFlags();
  StartCounters();
  StartFlag = MoonSwitch = LocalFollow = 0;
  VersionDigits.clear();
  USERFLAG = USERFLAGfactory = USERFLAGsaved = UserFlagRecord();
}

}  // namespace quorb
