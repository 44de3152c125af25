// The viewer as it starts on a data file, up to the first frame that shows the plot.
#include <QApplication>

#include "FirstFrame.h"
#include "QtDialogs.h"
#include "QtSettings.h"
#include "SystemDesktop.h"
#include "SystemFiles.h"
#include "SystemRegion.h"
#include "ViewerWindow.h"
#include "frmMain.h"

int main(int argc, char** argv) {
  using namespace quorb;
  QApplication application(argc, argv);
  QtDialogs dialogs;
  QtSettings settings;
  SystemFiles files;
  SystemRegion region;
  SystemDesktop desktop;
  SetDialogs(&dialogs);
  SetSettings(&settings);
  SetFileAccess(&files);
  SetRegionalSettings(&region);
  SetDesktop(&desktop);
  ViewerWindow window;
  window.frameShown = [] {
    if (FirstActivated == 1 && TheScene->ResetDone) ReportFirstFrameAndEnd();
  };
  window.Load(argc > 1 ? argv[1] : "");
  window.show();
  return QApplication::exec();
}
