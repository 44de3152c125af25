#include "OpenFile.h"

#include <algorithm>

#include "CommExcl.h"
#include "NamedFile.h"
#include "NumberPicture.h"
#include "NumberText.h"
#include "RunState.h"
#include "SettingsStore.h"
#include "WholeNumber.h"
#include "frmDialog.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr const char* kSectionOpen = "OpenQBV";
constexpr const char* kCountKey = "DirMax";
constexpr int kMostDirectories = 10;

std::string StoredDirectory(int rank) {
  return CurrentSettings().Read(kSectionOpen, RecentDirectoryKey(rank), "");
}

void StoreDirectory(int rank, const std::string& directory) {
  CurrentSettings().Write(kSectionOpen, RecentDirectoryKey(rank), directory);
}

int DirectoryCount() {
  std::int32_t count = 0;
  AssignRounded(count, ValText(CurrentSettings().Read(kSectionOpen, kCountKey, "0")));
  return std::clamp<int>(count, 0, kMostDirectories);
}

void PutFirst(const std::string& directory, int countBefore) {
  const int count = std::min(countBefore + 1, kMostDirectories);
  for (int rank = count; rank >= 2; --rank)
    StoreDirectory(rank, StoredDirectory(rank - 1));
  StoreDirectory(1, directory);
  CurrentSettings().Write(kSectionOpen, kCountKey, std::to_string(count));
}

void AskForFile(const std::string& startDirectory) {
  DialogWindow& chooser = frmDialog();
  chooser.form.Tag.clear();
  chooser.InitDir.text = startDirectory;
  chooser.Filename.text = "";
  chooser.Filter.text = "*.qbv ";
  chooser.Action.value = 1;
  if (chooser.showAndWait) chooser.showAndWait();
}

void LoadChosenFile(const std::string& path) {
  NameDataFile(path);
  DEJADRAW = DEJARESET = FileMode = 0;
  LoadPlot();
}

}  // namespace

void SplitPath(const std::string& path, std::string& dirOut, std::string& fileOut,
               const std::string& defaultDir) {
  const std::size_t mark = path.find_last_of("/\\");
  const std::size_t begin = mark == path.npos ? 0 : mark + 1;
  const std::string directory = mark == path.npos ? defaultDir : path.substr(0, begin);
  fileOut = path.substr(begin);
  dirOut = directory;
}

std::string RecentDirectoryKey(int rank) {
  return "Dir" + FormatPicture(rank, "00.00");
}

void mnuFOpen_Click() {
  const std::string stored = StoredDirectory(1);
  const int count = DirectoryCount();
  std::string startDirectory, storedFile;
  SplitPath(stored, startDirectory, storedFile, "");
  AskForFile(startDirectory);
  std::string newDirectory, newFile;
  SplitPath(frmDialog().Filename.text, newDirectory, newFile, startDirectory);
  if (stored != startDirectory) PutFirst(startDirectory, count);
  if (!frmDialog().Filename.text.Get().empty()) LoadChosenFile(newDirectory + newFile);
  Form_Activate();
}

}  // namespace quorb
