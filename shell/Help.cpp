#include "Help.h"

#include "CommExcl.h"
#include "Dialogs.h"
#include "HelpPages.h"
#include "RunState.h"
#include "SatelliteControls.h"
#include "Settings.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

int DemoShown = 0;

namespace {

bool ShowPagesAndAskForDemo() {
  for (int page = 1; page < kHelpPages; ++page)
    CurrentDialogs().MessageBox(HelpText(page), HelpTitle(page), kBoxOk + kBoxInformationIcon);
  return CurrentDialogs().MessageBox(HelpText(kHelpPages), HelpTitle(kHelpPages), kBoxOkCancel) ==
         BoxAnswer::ok;
}

// A load reads the option panel, so the panel has to show the options that the load shall run with. Their
// click routines read it half way: the record is put back behind them.
void TakeOptions(const UserFlagRecord& wanted) {
  const UserFlagRecord options = wanted;
  const double sunRayLength = frmMain->sunRayLength;
  USERFLAG = options;
  OptionsPack(1);
  OptionAffecteUser();
  AssignNumber(frmMain->Check9.value, options.CubicView);
  AssignNumber(frmMain->Check10.value, options.InMetres);
  USERFLAG = options;
  int shapes = 0;
  Combo2_InitList(shapes);
  USERFLAG = options;
  frmMain->sunRayLength = sunRayLength;
}

void LoadAgain(int fileMode) {
  DEJADRAW = DEJARESET = 0;
  FileMode = fileMode;
  LoadPlot();
}

void RunDemo() {
  if (DemoShown != 1) USERFLAGsaved = USERFLAG;
  TakeOptions(USERFLAGfactory);
  DemoShown = 1;  // ahead of the load, within which the help may be opened again
  LoadAgain(1);
}

void BringBack() {
  if (DemoShown == 1) TakeOptions(USERFLAGsaved);
  DemoShown = 0;
  if (FileMode <= 1) LoadAgain(CommandFileMode == 1 ? 2 : 0);
}

}  // namespace

void mnuHContents_Click() {
  const bool runsDemo = ShowPagesAndAskForDemo();
  USERFLAG.SatelliteModelReady = 0;
  if (runsDemo) {
    RunDemo();
  } else {
    BringBack();
  }
}

void mnuHAbout_Click() {
  CurrentDialogs().MessageBox(AboutText(), AboutTitle(), kBoxOk + kBoxInformationIcon);
}

}  // namespace quorb
