#include "FileChoice.h"

#include <filesystem>

#include "DataFile.h"
#include "Dialogs.h"
#include "Faults.h"
#include "FileAccess.h"
#include "RunState.h"

namespace quorb {

namespace {

constexpr const char* kDemonstration = "QuorbExcelProDemo.qbv";
constexpr auto kDirectoryMark = static_cast<char>(std::filesystem::path::preferred_separator);

bool EndsWithMark(const std::string& text) {
  return text.ends_with('/') || text.ends_with('\\');
}

std::string WithMark(const std::string& directory) {
  return EndsWithMark(directory) ? directory : directory + kDirectoryMark;
}

std::string CurrentDirectory() {
  std::error_code failed;
  const auto directory = std::filesystem::current_path(failed);
  return failed ? std::string() : directory.string();
}

bool IsQuoted(const std::string& name) {
  return name.size() >= 2 && name.front() == '"' && name.back() == '"';
}

// A name without a directory stands in the current one; the quotes stay around the whole.
std::string WithDirectory(const std::string& name) {
  if (name.find_first_of("/\\") != std::string::npos) return name;
  const std::string directory = WithMark(CurrentDirectory());
  return IsQuoted(name) ? '"' + directory + name.substr(1) : directory + name;
}

void OpenNamedFile(int& ErrorNumber, LoaderWindow& window) {
  FILEcOMMANDnAME = WithDirectory(FILEcOMMANDnAME);
  window.ShowNamedFile(FILEcOMMANDnAME);
  window.AppendLog("FILEcOMMANDnAME$ " + FILEcOMMANDnAME);
  if (IsQuoted(FILEcOMMANDnAME)) {
    FILEcOMMANDnAME = FILEcOMMANDnAME.substr(1, FILEcOMMANDnAME.size() - 2);
    window.AppendLog("FILEcOMMANDnAME$ cleaned " + FILEcOMMANDnAME);
  }
  OpenfileW(FILEcOMMANDnAME, 1, ErrorNumber, window);
  const std::size_t ending = FILEcOMMANDnAME.find(".txt");
  if (MaybeExtError != 1 || ending == std::string::npos) return;
  FILEcOMMANDnAME = FILEcOMMANDnAME.substr(0, ending) + ".qbv";
  window.AppendLog("MaybeExtError = 1  FILEcOMMANDnAME$ " + FILEcOMMANDnAME);
  OpenfileW(FILEcOMMANDnAME, 1, ErrorNumber, window);
}

bool IsMissing(int ErrorNumber) {
  return ErrorNumber == kFaultFileNotFound || ErrorNumber == kFaultPathNotFound;
}

void OpenLastFile(const PlotFileNames& names, int& ErrorNumber, LoaderWindow& window) {
  const std::string readingName = CurrentFileAccess().RealLocation(names.NameTempo);
  OpenfileW(readingName, 1, ErrorNumber, window);
  window.ShowReadingName(readingName);
  if (IsMissing(ErrorNumber) || FileMode == 1) {
    OpenfileW(names.NameTempoDemo, 1, ErrorNumber, window);
    window.AppendLog("NameTempoDemo$ " + names.NameTempoDemo);
    if (IsMissing(ErrorNumber) && !names.ShippedDemo.empty())
      OpenfileW(names.ShippedDemo, 1, ErrorNumber, window);
  }
}

}  // namespace

PlotFileNames BuildPlotFileNames() {
  AppDir = WithMark(AppDir);
  const bool shipsElsewhere = !ProgramDir.empty() && WithMark(ProgramDir) != AppDir;
  return {AppDir + "_QuorbExcelPro.qbv", AppDir + kDemonstration,
          shipsElsewhere ? WithMark(ProgramDir) + kDemonstration : std::string()};
}

std::vector<std::string> PlotFilesInTurn() {
  const PlotFileNames names = BuildPlotFileNames();
  std::vector<std::string> files;
  if (FileMode != 1) files.push_back(CurrentFileAccess().RealLocation(names.NameTempo));
  files.push_back(names.NameTempoDemo);
  if (!names.ShippedDemo.empty()) files.push_back(names.ShippedDemo);
  return files;
}

bool ChooseFile(const PlotFileNames& names, int& ErrorNumber, LoaderWindow& window) {
  const bool wantsNamedFile = FileMode == 2 || (CommandFileMode == 1 && FileMode != 1);
  if (wantsNamedFile) {
    OpenNamedFile(ErrorNumber, window);
  } else {
    OpenLastFile(names, ErrorNumber, window);
  }

  const bool isDemo = ErrorNumber == kFaultFileNotFound || FileMode == 1;
  if (isDemo) CurrentDialogs().MessageBox("The demo will be shown.", "Demo default", kBoxInformationIcon);
  window.AppendLog(std::string(" The demo will be shown ") + (isDemo ? "True" : "False"));
  return isDemo;
}

}  // namespace quorb
