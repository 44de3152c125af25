#include <QApplication>

#include "AutomationService.h"
#include "CalcLink.h"
#include "CommandLine.h"
#include "PutBackSpreadsheet.h"
#include "QtDesktop.h"
#include "QtDialogs.h"
#include "QtSettings.h"
#include "SheetLink.h"
#include "SystemDayClock.h"
#include "SystemDirectories.h"
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

// An argument that the shell has taken out of its quotes gets them back: it is one word.
std::string InQuotes(const std::string& argument) {
  const bool isWord = argument.find_first_of(" ,") == argument.npos || argument.starts_with('"');
  return isWord ? argument : '"' + argument + '"';
}

// The whole text behind the program's name.
std::string WholeCommandLine(const std::vector<std::string>& arguments) {
  std::string line;
  for (const std::string& argument : arguments) {
    if (!line.empty()) line += ' ';
    line += InQuotes(argument);
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
  QtDesktop desktop;
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
  SystemDirectories directories;
  SetDirectories(&directories);

  CalcLink spreadsheet;
  SetSheetLink(&spreadsheet);

  ViewerWindow window;
  window.Load(commandLine);
  window.show();
  const AutomationService automation;
  return QApplication::exec();
}
