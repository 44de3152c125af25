#include "SlideShow.h"

#include <algorithm>
#include <memory>
#include <string_view>

#include "Desktop.h"
#include "FileAccess.h"
#include "FileChoice.h"
#include "MenuFaults.h"
#include "RunState.h"
#include "SaveImage.h"
#include "TextHelpers.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr double kPanelTop = 1200, kPanelLeft = 600;

std::string WithMark(const std::string& directory) {
  if (directory.ends_with('/') || directory.ends_with('\\')) return directory;
  return directory + CurrentDesktop().DirectoryMark();
}

/// The file that the plot came from; a null pointer when there is none.
std::unique_ptr<MappedFile> PlotFile() {
  int ErrorNumber = 0;
  for (const std::string& name : PlotFilesInTurn()) {
    if (auto file = CurrentFileAccess().Map(name, ErrorNumber)) return file;
  }
  return nullptr;
}

// A plot that cannot be copied leaves the line as it is.
void CopyPlotFile(const std::string& to) {
  const auto source = PlotFile();
  if (source == nullptr) return;
  const auto copy = CurrentFileAccess().Create(to);
  if (copy != nullptr && copy->Write(source->Bytes())) copy->Commit();
}

/// The copy's real location.
std::string MakeSlideShowCopy(const std::string& directory) {
  std::string copy = CurrentFileAccess().RealLocation(directory + "PowerPoint" + TimeStamp() + ".qbv");
  CopyPlotFile(copy);
  return copy;
}

/// The name as given, or as the loader resolved it when it was given without a directory.
std::string OpenedFile() {
  const bool hasDirectory = CommandFileName.find_first_of("/\\") != CommandFileName.npos;
  return hasDirectory ? CommandFileName : FILEcOMMANDnAME;
}

bool StandsPlainInShell(char c) {
  constexpr std::string_view kPlain = "/:._-+,=@%~";
  const auto byte = static_cast<unsigned char>(c);
  const bool isLetterOrDigit = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  return isLetterOrDigit || byte >= 0x80 || kPlain.find(c) != kPlain.npos;
}

/// In double quotes. Where directories are parted by "/" a shell reads the line, which knows more than
/// quotes.
std::string InQuotes(const std::string& name) {
  const bool escapes = CurrentDesktop().DirectoryMark() == '/';
  std::string text = "\"";
  for (const char c : name) {
    if (escapes && std::string_view("\\\"$`").find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text + '"';
}

std::string WithoutQuotes(const std::string& name) {
  const bool isQuoted = name.size() > 1 && name.front() == '"' && name.back() == '"';
  return isQuoted ? name.substr(1, name.size() - 2) : name;
}

/// The name in double quotes when a shell would take it apart.
std::string ForShell(const std::string& given) {
  const std::string name = WithoutQuotes(given);
  const bool isPlain = std::all_of(name.begin(), name.end(), StandsPlainInShell);
  return isPlain ? name : InQuotes(name);
}

}  // namespace

void mnuFRunPowerPoint_Click() {
  MainWindow& window = *frmMain;
  const std::string file = CommandFileMode == 1 ? OpenedFile() : MakeSlideShowCopy(WithMark(AppDir));
  window.Frame1.Top = kPanelTop;
  window.Frame1.Left = kPanelLeft;
  window.Frame1.visible = true;
  window.Frame1.BringToFront();
  const std::string program = WithMark(CurrentDesktop().ProgramDirectory()) + CurrentDesktop().ProgramName();
  window.Text1.text = InQuotes(program) + " " + ForShell(file);
  window.Text1.selStart = 0;
  window.Text1.selLength = static_cast<int>(CharacterCount(window.Text1.text.Get()));
  window.Text1.Refresh();
}

void Command4_Click() {
  TellMenuFault(CurrentDesktop().CopyText(frmMain->Text1.text));
}

void Command5_Click() {
  frmMain->Frame1.SendToBack();
  frmMain->Frame1.visible = false;
}

void Frame1_MouseMove() {
  frmMain->Picture1[0].visible = false;
}

}  // namespace quorb
