#pragma once

#include <functional>

#include "Controls.h"
#include "ListControls.h"

namespace quorb {

/// The file chooser. Its caller fills InitDir, Filename (empty), Filter and Action (1), shows it with
/// showAndWait, and reads Filename back. Behind OK, Filename holds the whole path of the file; behind Cancel,
/// the window's Tag is "Cancel", InitDir and InitJustDir are empty, and Filename is what the caller gave.
/// Each control has the value that the window is designed with.
struct DialogWindow {
  DialogWindow();

  Label form;                 ///< the window itself: its title, its Tag, whether it is open
  Control Cadre1;             ///< the view of files
  DriveBox Lecteur1;          ///< drives
  DirectoryBox Répertoire1;   ///< the way down to a directory, and the directories in it
  FileBox Fichier1;           ///< its files
  ComboBox ListeModifiable1;  ///< the directories that were visited in this run
  Label driveLabel, directoryLabel, fileLabel, filterLabel;
  TextBox InitDir, InitJustDir;  ///< the directory to start in, then the one chosen; the former
  TextBox Filename;              ///< the selected file
  TextBox Filter;                ///< pattern of the files that are listed
  TextBox Text1;                 ///< length and date of the selected file
  CheckBox Action;               ///< 1 opens the view of files, 2 the other one
  Button Commande1, Commande2;   ///< OK, Cancel

  // The view for a printer, which nothing opens.
  Control Cadre2;
  DriveBox Lecteur2;
  DirectoryBox Répertoire2;
  FileBox Fichier2;
  Button Commande3, Commande4;
  CheckBox PrinterDefault;
  TextBox Texte2, Texte3;

  /// Opens the window on what its directory holds now, or on the nearest directory above when it is gone, and
  /// waits for OK or Cancel. A window that nothing shows, or that was closed otherwise, is cancelled. A
  /// chooser of the toolkit's own takes its place by being assigned here.
  std::function<void()> showAndWait;
  /// Set by the widget that shows the window: returns when `form.visible` is false again.
  std::function<void()> runModal;

  // Event routines.

  void Lecteur1_Change();
  void Répertoire1_Change();
  void Répertoire1_Click();
  void Fichier1_Click();
  void Fichier1_DblClick();
  void InitDir_Change();
  void Filter_Change();
  void Action_Click();
  /// OK and Cancel.
  void Commande1_Click();
  void Commande2_Click();

 private:
  void Design();
  void OpenAndWait();
  void Tie();
  void ListDirectories();
  void ListFiles();
  void ReadAgain();
  void GoToFiles(const std::string& directory);
  void SelectFirstFile();
  void SelectFile(const std::string& name);

  std::string givenFilename;  // What the caller, and no selection, put into Filename.
  bool selecting = false;
};

/// The file chooser; made on its first use.
DialogWindow& frmDialog();

/// Forgets the file chooser: the next use makes a new one.
void ForgetFileDialog();

}  // namespace quorb
