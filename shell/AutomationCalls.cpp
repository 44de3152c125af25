#include "AutomationCalls.h"

#include <utility>

#include "CommExcl.h"
#include "Conditioning.h"
#include "LoaderLink.h"
#include "Normalise.h"
#include "PlotData.h"
#include "RunState.h"
#include "Settings.h"
#include "SheetSession.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

void AskForFrame() {
  if (!glxCtl1->Animation().Enabled()) glxCtl1->Redraw();
}

// What stands in the arrays now is a whole plot, also behind a load that was left early, or waits.
void ShowRows() {
  GiveUpWaitingLoad();
  USERFLAG.SynchroExcelComplete = 1.0;
  TheScene->ShowChangedRows();
  AskForFrame();
}

// A load that was left early asks for points to be scaled that are scaled already.
void ShowBesidePoints() {
  if (PointsAreScaled == 1) DEJARESET = 1;
  ShowRows();
}

// A plot of one column holds the bodies off whatever the panel says.
void EndColumnMode() {
  if (ColumnMode != 1) return;
  ColumnMode = 0;
  OptionsRead();
}

// Only those of the title: what the user's own button has set stays until the button is pressed again.
void EndSeparateObjects(int& loadOfOneLine) {
  if (!LastLoad().penUp || PenUpMode != 1 || loadOfOneLine == LoadsStarted) return;
  loadOfOneLine = LoadsStarted;
  PenUpMode = PenUpLabelMode = 0;
  NbQuater = 0;  // the second points of the objects
}

void MakeOneLine(int& loadOfOneLine) {
  for (std::int32_t row = 0; row <= LastPoint; ++row)
    dataXYZT.Set(row, 4, 0);
  EndColumnMode();
  EndSeparateObjects(loadOfOneLine);
}

// The bar of the first row stands at a share of the plot.
void KeepShareOfStart() {
  const ScrollBar& bar = frmMain->HScroll4;
  AssignRounded(TheScene->CURRINDEXMINI, static_cast<double>(LastPoint) * bar.value / bar.max);
}

void ShowPoints(int& loadOfOneLine) {
  MakeOneLine(loadOfOneLine);
  ChooseScaleMode(FactorScale, FactorScale, LoaderLinkOfWindow());
  KeepShareOfStart();
  DEJARESET = 0;
  ShowRows();
}

}  // namespace

bool PlotIsTaken() {
  return LoadsStarted == 0 || LoadIsUnderWay() || SpreadsheetInUse() || TheScene->IsDrawing();
}

InterfaceFault BusyFault() {
  InterfaceFault fault;
  fault.number = kFaultBusy;
  fault.description = "The viewer loads a plot, or shows a message: call again";
  return fault;
}

PlotOnShow PresentPlot() {
  return {MessageUserToPlot, LastPoint, NbEvents, FlagOptionToPlot, FactorScale};
}

InterfaceFault AutomationCalls::Answer(const std::string& client,
                                       const std::function<InterfaceFault(ClassInterface&)>& call,
                                       const std::function<void(const InterfaceFault&)>& show) {
  if (Busy()) return BusyFault();
  std::shared_ptr<ClassInterface>& known = objects_[client];
  if (known == nullptr) known = std::make_shared<ClassInterface>();
  const std::shared_ptr<ClassInterface> object = known;  // the client may go while its message is up
  answering_ = true;
  const int watchStoppedBefore = std::exchange(WatchStopped, 1);
  InterfaceFault fault = call(*object);
  show(fault);
  WatchStopped = watchStoppedBefore;
  answering_ = false;
  return fault;
}

InterfaceFault AutomationCalls::InterFaceXls(const std::string& client, const std::string& message,
                                             int flag) {
  return Answer(
      client,
      [&](ClassInterface& object) {
        object.InterFaceXls(message, flag);
        return InterfaceFault();
      },
      [](const InterfaceFault&) { AskForFrame(); });
}

InterfaceFault AutomationCalls::GlrayonXls(const std::string& client, std::string_view str, double factor) {
  return Answer(
      client, [&](ClassInterface& object) { return object.GlrayonXls(str, factor); },
      [this](const InterfaceFault& done) {
        if (done.stored) ShowPoints(loadOfOneLine_);
      });
}

InterfaceFault AutomationCalls::GlrayonXlsT(const std::string& client, std::string_view str, double factor) {
  return Answer(
      client, [&](ClassInterface& object) { return object.GlrayonXlsT(str, factor); },
      [](const InterfaceFault& done) {
        if (!done.stored) return;
        USERFLAG.TimeInData = 1.0;
        ShowBesidePoints();
      });
}

InterfaceFault AutomationCalls::GlEventsXls(const std::string& client, std::string_view str, double factor) {
  return Answer(
      client, [&](ClassInterface& object) { return object.GlEventsXls(str, factor); },
      [](const InterfaceFault& done) {
        if (!done.stored) return;
        FactorScale = done.scaleBefore;
        TellEventKind(*TheScene);
        ShowBesidePoints();
      });
}

}  // namespace quorb
