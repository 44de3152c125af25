#include <iostream>
#include <optional>

#include "CalcLink.h"
#include "CommExcl.h"
#include "CommandLine.h"
#include "ConsoleDialogs.h"
#include "FormulaReport.h"
#include "LoaderLink.h"
#include "NamedFile.h"
#include "Normalise.h"
#include "NumberText.h"
#include "PlotReport.h"
#include "RunState.h"
#include "Settings.h"
#include "SheetReport.h"
#include "SystemDesktop.h"
#include "SystemFiles.h"
#include "SystemRegion.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr std::string_view kHelp =
    R"(Usage: quorb-inspect FILE [--rows ARRAY[:FIRST-LAST]] [--after-reset] [--log]
       quorb-inspect --formula TEXT
       quorb-inspect --sheet [-o FILE]

Tells what the loader makes of a data file, of a specification formula alone, or
of the spreadsheet that runs, one name, a TAB and its value a line.

  --rows ARRAY[:FIRST-LAST]  print the rows of one array and nothing else:
                             dataXYZT, dataEvents, dataEventLog, dataPenUpLabel,
                             dataQuater, dataSApY, dataSAmY or dataValZ
  --after-reset              the plot as the scene has scaled it for drawing
  --log                      print the loader's diagnostic log and nothing else
  --formula TEXT             tell what the formula means, without a file: scale,
                             title with and without its keywords, what these say,
                             and the ranges as columns and rows
  --sheet                    tell what the running spreadsheet holds: application,
                             window, sheet, cell, formula, ranges and rows, or why
                             it does not plot; nothing in it is changed
  -o FILE                    write the ranges of the sheet into that data file
  --help                     show this text
  --version                  show the version

Messages that the viewer would show go to standard error with their titles.
Exit status: 0 rows were read, 1 the file gave none, 2 wrong call; of a formula:
0 it names a range that holds X, Y and Z, 1 it names none; of a sheet: 0 it plots,
1 it does not.
)";

int WrongCall(const std::string& error) {
  std::cerr << "quorb-inspect: " << error << " (see quorb-inspect --help)\n";
  return kExitWrongCall;
}

int Inspect(const CommandLine& call) {
  LoadNamedFile(call.operands[0]);
  if (call.Has("--after-reset") && LastLoad().rows > 0) {
    PlotExtent extent;
    NormalisePlot(extent);
  }
  if (const auto wanted = call.Value("--rows")) {
    const auto rows = RowsReport(*wanted);
    if (!rows) return WrongCall("there are no rows '" + *wanted + "'");
    std::cout << *rows;
  } else if (call.Has("--log")) {
    std::cout << frmMain->Text20.text.Get() << '\n';
  } else {
    std::cout << PlotReport();
  }
  if (LastLoad().rows > 0) return kExitOk;
  std::cerr << "quorb-inspect: no rows were read from " << call.operands[0] << ": " << NoRowsReason() << '\n';
  return kExitFailed;
}

void ShowHints(const std::vector<std::string>& hints) {
  for (const std::string& hint : hints)
    std::cerr << "quorb-inspect: " << hint << '\n';
}

int InspectFormula(const std::string& formula) {
  StartRunState();
  CreateMainWindow();
  OptionsRead();
  const FormulaReport report = ReportFormula(formula, LoaderLinkOfWindow());
  ShowHints(report.hints);
  std::cout << report.text;
  if (report.holdsXYZ) return kExitOk;
  std::cerr << "quorb-inspect: the formula names no range that holds X, Y and Z\n";
  return kExitFailed;
}

int InspectSheet(const std::string& outputName) {
  StartRunState();
  CreateMainWindow();
  OptionsRead();
  CalcLink spreadsheet;
  SetSheetLink(&spreadsheet);
  const SheetReport report = ReportSheet(LoaderLinkOfWindow(), outputName);
  SetSheetLink(nullptr);
  std::cout << report.text;
  ShowHints(report.hints);
  if (report.reason.empty()) return kExitOk;
  std::cerr << "quorb-inspect: the sheet does not plot: " << report.reason << '\n';
  return kExitFailed;
}

/// What is wrong with the call; empty when nothing is.
std::string FaultOfCall(const CommandLine& call) {
  const std::size_t options = call.options.size();
  const bool isSheet = call.Has("--sheet");
  if (call.Value("--formula") && (!call.operands.empty() || options > 1)) {
    return "a formula goes with no file and no other option";
  }
  if (isSheet && (!call.operands.empty() || options > (call.Value("-o") ? 2U : 1U))) {
    return "--sheet goes with no file and no other option than -o";
  }
  if (!isSheet && call.Value("-o")) return "-o goes with --sheet";
  if (!isSheet && !call.Value("--formula") && call.operands.size() != 1) return "name one data file";
  return {};
}

int Run(const std::vector<std::string>& arguments) {
  if (AnswerHelpOrVersion(arguments, "quorb-inspect", kHelp)) return kExitOk;
  const CommandLine call =
      ParseCommandLine(arguments, {"--rows", "--formula", "-o"}, {"--after-reset", "--log", "--sheet"});
  if (!call.error.empty()) return WrongCall(call.error);
  const std::string fault = FaultOfCall(call);
  if (!fault.empty()) return WrongCall(fault);
  ConsoleDialogs dialogs;
  SystemFiles files;
  SystemRegion region;
  SystemDesktop desktop;
  SetDialogs(&dialogs);
  SetFileAccess(&files);
  SetRegionalSettings(&region);
  SetDesktop(&desktop);
  if (call.Has("--sheet")) return InspectSheet(call.Value("-o").value_or(""));
  const auto formula = call.Value("--formula");
  return formula ? InspectFormula(*formula) : Inspect(call);
}

}  // namespace

}  // namespace quorb

int main(int argc, char** argv) {
  return quorb::Run(quorb::ArgumentsOf(argc, argv));
}
