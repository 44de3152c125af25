#include "frmDialog.h"

#include <algorithm>
#include <memory>

#include "Directories.h"
#include "FileNames.h"
#include "NumberPicture.h"
#include "TextHelpers.h"

namespace quorb {

namespace {

constexpr const char* kBusyTag = "encours";
constexpr const char* kMemoTag = "memo";
constexpr const char* kAllFiles = "*.*";
constexpr double kPrinterViewPlace = -120;

std::unique_ptr<DialogWindow> dialogWindow;

bool CanRead(const std::string& directory) {
  DirectoryContents contents;
  return CurrentDirectories().Read(directory, contents);
}

bool OnDrive(const std::string& directory, const std::string& drive) {
  return !directory.empty() && !drive.empty() &&
         LowerText(directory.substr(0, 1)) == LowerText(drive.substr(0, 1));
}

/// The drive whose first character a directory has; the drive that is there when none has.
std::string DriveOf(const std::string& directory, const DriveBox& drives) {
  for (const std::string& drive : drives.items.Get()) {
    if (OnDrive(directory, drive)) return drive;
  }
  return drives.drive;
}

std::string LatestOn(const std::string& drive, const std::vector<std::string>& visited) {
  const auto latest =
      std::find_if(visited.rbegin(), visited.rend(), [&](const auto& one) { return OnDrive(one, drive); });
  return latest == visited.rend() ? std::string() : *latest;
}

}  // namespace

DialogWindow::DialogWindow() {
  Design();
  Tie();
  Lecteur1.Fill(CurrentDirectories().Drives());
  Répertoire1.path = CurrentDirectories().Start();
  Lecteur1.drive.Design(DriveOf(Répertoire1.path, Lecteur1));
  Fichier1.path = Répertoire1.path.Get();
}

void DialogWindow::Design() {
  form.caption = "Explorer tree";
  driveLabel.caption = "Drive";
  directoryLabel.caption = "Sub directory";
  fileLabel.caption = "File Name";
  filterLabel.caption = "File type";
  Filter.text.Design(kAllFiles);
  Commande1.caption = "OK";
  Commande2.caption = "Cancel";
  for (Control* hidden : {static_cast<Control*>(&form), static_cast<Control*>(&ListeModifiable1),
                          static_cast<Control*>(&InitDir), static_cast<Control*>(&InitJustDir),
                          static_cast<Control*>(&Action), &Cadre2})
    hidden->visible = false;
}

void DialogWindow::Tie() {
  Répertoire1.path.accepts = CanRead;
  Fichier1.path.accepts = CanRead;
  Lecteur1.drive.changed = [this] { Lecteur1_Change(); };
  Répertoire1.path.changed = [this] { Répertoire1_Change(); };
  Répertoire1.selected.changed = [this] { Répertoire1_Click(); };
  Fichier1.path.changed = [this] { ListFiles(); };
  Fichier1.pattern.changed = [this] { ListFiles(); };
  Fichier1.selected.changed = [this] { Fichier1_Click(); };
  Fichier1.doubleClicked = [this] { Fichier1_DblClick(); };
  InitDir.text.changed = [this] { InitDir_Change(); };
  Filename.text.changed = [this] {
    if (!form.visible && !selecting) givenFilename = Filename.text;
  };
  Filter.text.changed = [this] { Filter_Change(); };
  Action.value.changed = [this] { Action_Click(); };
  Commande1.clicked = [this] { Commande1_Click(); };
  Commande2.clicked = [this] { Commande2_Click(); };
  showAndWait = [this] { OpenAndWait(); };
}

void DialogWindow::ListDirectories() {
  std::vector<std::string> entries = WayDown(Répertoire1.path);
  const int itself = static_cast<int>(entries.size()) - 1;
  DirectoryContents contents;
  CurrentDirectories().Read(Répertoire1.path, contents);
  for (const std::string& name : contents.directories)
    entries.push_back(PathOf(Répertoire1.path, name));
  Répertoire1.Fill(entries);
  Répertoire1.selected.Design(itself);
  Répertoire1.Refresh();
}

void DialogWindow::ListFiles() {
  DirectoryContents contents;
  CurrentDirectories().Read(Fichier1.path, contents);
  std::erase_if(contents.files,
                [this](const std::string& name) { return !SuitsPattern(name, Fichier1.pattern.Get()); });
  Fichier1.Fill(contents.files);
}

// Files and directories may have come and gone since the window was open last.
void DialogWindow::ReadAgain() {
  const std::string selectedFile = Fichier1.Selected();
  const std::vector<std::string> way = WayDown(Répertoire1.path);
  const auto nearest = std::find_if(way.rbegin(), way.rend(), CanRead);
  if (nearest != way.rend()) Répertoire1.path = *nearest;
  ListDirectories();
  Fichier1.path = Répertoire1.path.Get();
  ListFiles();
  SelectFile(selectedFile);
}

void DialogWindow::OpenAndWait() {
  form.Tag.clear();
  ReadAgain();
  form.visible = true;
  if (runModal) runModal();
  if (form.visible) Commande2_Click();
}

void DialogWindow::SelectFirstFile() {
  if (Fichier1.selected == 0 || Fichier1.items.Get().empty()) {
    Fichier1_Click();
  } else {
    Fichier1.selected = 0;
  }
}

void DialogWindow::SelectFile(const std::string& name) {
  const std::vector<std::string>& files = Fichier1.items;
  const auto found = std::find(files.begin(), files.end(), name);
  if (found != files.end()) Fichier1.selected = static_cast<int>(found - files.begin());
}

void DialogWindow::GoToFiles(const std::string& directory) {
  Fichier1.path = directory;
  if (Fichier1.path.Get() == directory) {
    SelectFirstFile();
  } else {
    Filename.text = "";
  }
}

void DialogWindow::Lecteur1_Change() {
  const std::string visited = LatestOn(Lecteur1.drive, ListeModifiable1.items);
  if (!visited.empty()) Répertoire1.Tag = kMemoTag;
  Répertoire1.path = visited.empty() ? Lecteur1.drive.Get() : visited;
  Répertoire1.Tag.clear();
  if (!OnDrive(Répertoire1.path, Lecteur1.drive)) Répertoire1.path = Lecteur1.drive.Get();
  if (!InitDir.Tag.empty()) return;
  if (OnDrive(Répertoire1.path, Lecteur1.drive)) {
    GoToFiles(Répertoire1.path);
  } else {
    Lecteur1.drive.Design(DriveOf(Répertoire1.path, Lecteur1));
    Lecteur1.Refresh();
  }
}

void DialogWindow::Répertoire1_Change() {
  if (Répertoire1.Tag.empty()) {
    std::vector<std::string> visited = ListeModifiable1.items;
    visited.push_back(Répertoire1.path);
    ListeModifiable1.items = visited;
  }
  ListDirectories();
}

void DialogWindow::Répertoire1_Click() {
  const std::string directory = Répertoire1.Selected();
  if (directory.empty()) return;
  Répertoire1.path = directory;
  if (Répertoire1.path.Get() != directory) Filename.text = "";
  InitDir.text = directory;
  GoToFiles(directory);
}

void DialogWindow::Fichier1_Click() {
  selecting = true;
  const std::vector<std::string>& files = Fichier1.items;
  const auto index = static_cast<std::size_t>(std::max(Fichier1.selected.Get(), 0));
  FileDescription file;
  std::string path, description;
  if (index < files.size()) path = PathOf(Fichier1.path, files[index]);
  if (!path.empty() && CurrentDirectories().Describe(path, file)) {
    description =
        FormatPicture(static_cast<double>(file.bytes), "# ### ### ###") + " Bytes     " + file.changed;
  } else {
    path.clear();
  }
  Filename.text = path;
  Text1.text = description;
  selecting = false;
}

void DialogWindow::Fichier1_DblClick() {
  Fichier1_Click();
  Commande1_Click();
}

void DialogWindow::InitDir_Change() {
  if (form.visible || InitDir.Tag == kBusyTag) return;
  InitDir.Tag = kBusyTag;
  const std::string text = InitDir.text;
  std::size_t end = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsDirectoryMark(text[i])) end = i + 1;
  }
  const std::string name = text.substr(end);
  Filename.text = name;
  const std::string directory = end == 0 ? Répertoire1.path.Get() : WithoutMark(text.substr(0, end));
  Répertoire1.path = directory;
  Lecteur1.drive = DriveOf(directory, Lecteur1);
  Fichier1.path = directory;
  SelectFile(name);
  InitDir.Tag.clear();
}

void DialogWindow::Filter_Change() {
  Fichier1.pattern = Filter.text.Get();
  Filter.colour = Filter.text.Get() == kAllFiles ? kBlack : kRed;
  SelectFirstFile();
}

void DialogWindow::Action_Click() {
  if (Action.Tag == kBusyTag) return;
  Action.Tag = kBusyTag;
  if (Action.value == 1) {
    Cadre1.visible = true;
    Cadre2.visible = false;
  } else if (Action.value == 2) {
    Cadre1.visible = false;
    Cadre2.visible = true;
    Cadre2.Left = kPrinterViewPlace;
    Cadre2.Top = kPrinterViewPlace;
  }
  Action.value = 0;
  Action.Tag.clear();
}

void DialogWindow::Commande1_Click() {
  const std::string typed = Filename.text;
  if (!typed.empty() && !IsAbsolute(typed)) Filename.text = PathOf(Fichier1.path, typed);
  InitJustDir.text = InitDir.text.Get();
  const std::string chosen = givenFilename = Filename.text;
  InitDir.text = chosen.empty() ? Fichier1.path : chosen;
  form.visible = false;
}

void DialogWindow::Commande2_Click() {
  form.Tag = "Cancel";
  InitDir.text = "";
  InitJustDir.text = "";
  Filename.text = givenFilename;
  form.visible = false;
}

DialogWindow& frmDialog() {
  if (dialogWindow == nullptr) dialogWindow = std::make_unique<DialogWindow>();
  return *dialogWindow;
}

void ForgetFileDialog() {
  dialogWindow.reset();
}

}  // namespace quorb
