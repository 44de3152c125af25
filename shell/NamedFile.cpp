#include "NamedFile.h"

#include "CommExcl.h"
#include "Desktop.h"
#include "RunState.h"
#include "Settings.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

void NameDataFile(const std::string& path) {
  CommandFileMode = 1;
  CommandFileName = path;
}

void LoadNamedFile(const std::string& path) {
  StartRunState();
  NameDataFile(path);
  CreateMainWindow();
  frmMain->fileTypeStored = true;  // a program without a window opens no data files for the desktop
  OptionsRead();
  USERFLAGfactory = USERFLAG;
  AppDir = ProgramDir = CurrentDesktop().ProgramDirectory();
  ImportDirectory = CurrentDesktop().DataDirectory();
  LoadPlot();
}

}  // namespace quorb
