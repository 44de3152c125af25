#include <QApplication>

#include "CalcLink.h"
#include "CommandLine.h"
#include "PutBackSpreadsheet.h"
#include "QtDialogs.h"
#include "QtSettings.h"
#include "SheetLink.h"
#include "SystemDayClock.h"
#include "SystemDesktop.h"
#include "SystemFiles.h"
#include "SystemRegion.h"
#include "ViewerWindow.h"

namespace {

constexpr std::string_view kHelp =
    R"(Usage: QuorbExcelPro [FILE]

Shows a trajectory that stands in a spreadsheet in three dimensions, live. With a
data file named, of eight characters or more, it shows that file and nothing else.

  FILE       the data file to show (.qbv)
  --help     show this text
  --version  show the version
)";

// The whole text behind the program's name.
std::string WholeCommandLine(const std::vector<std::string>& arguments) {
  std::string line;
  for (const std::string& argument : arguments) {
    if (!line.empty()) line += ' ';
    line += argument;
  }
  return line;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace quorb;
  if (AnswerHelpOrVersion(ArgumentsOf(argc, argv), "QuorbExcelPro", kHelp)) return kExitOk;
  QApplication application(argc, argv);
  const std::string commandLine = WholeCommandLine(ArgumentsOf(argc, argv));
  QtDialogs dialogs;
  QtSettings settings;
  SystemFiles files;
  SystemRegion region;
  SystemDesktop desktop;
  SystemDayClock clock;
  dialogs.beforeEnd = [&settings] {
    PutBackSpreadsheet();
    settings.Flush();
  };
  SetDialogs(&dialogs);
  SetSettings(&settings);
  SetFileAccess(&files);
  SetRegionalSettings(&region);
  desktop.opensDataFiles = true;
  SetDesktop(&desktop);
  SetDayClock(&clock);

  CalcLink spreadsheet;
  SetSheetLink(&spreadsheet);

  ViewerWindow window;
  window.Load(commandLine);
  window.show();
  return QApplication::exec();
}
