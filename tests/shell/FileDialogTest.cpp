#include "FileDialogFixture.h"

namespace quorb {
namespace {

class FileDialogTest : public FileDialogFixture {};

// ---- controls -------------------------------------------------------------------------------------------

TEST_F(FileDialogTest, EachControlHasItsDesignedCaptionValueAndVisibility) {
  const DialogWindow& dialog = frmDialog();
  EXPECT_EQ(dialog.form.caption.Get(), "Explorer tree");
  EXPECT_FALSE(dialog.form.visible);
  EXPECT_EQ(dialog.driveLabel.caption.Get(), "Drive");
  EXPECT_EQ(dialog.directoryLabel.caption.Get(), "Sub directory");
  EXPECT_EQ(dialog.fileLabel.caption.Get(), "File Name");
  EXPECT_EQ(dialog.filterLabel.caption.Get(), "File type");
  EXPECT_EQ(dialog.Filter.text.Get(), "*.*");
  EXPECT_EQ(dialog.Filter.colour, kBlack);
  EXPECT_EQ(dialog.Commande1.caption.Get(), "OK");
  EXPECT_EQ(dialog.Commande2.caption.Get(), "Cancel");
  EXPECT_EQ(dialog.Action.value, 0);
  for (const Control* shown :
       {static_cast<const Control*>(&dialog.Cadre1), static_cast<const Control*>(&dialog.Lecteur1),
        static_cast<const Control*>(&dialog.Répertoire1), static_cast<const Control*>(&dialog.Fichier1),
        static_cast<const Control*>(&dialog.Filename), static_cast<const Control*>(&dialog.Filter),
        static_cast<const Control*>(&dialog.Text1), static_cast<const Control*>(&dialog.Commande1),
        static_cast<const Control*>(&dialog.Commande2)}) {
    EXPECT_TRUE(shown->visible);
  }
  for (const Control* hidden :
       {static_cast<const Control*>(&dialog.ListeModifiable1), static_cast<const Control*>(&dialog.InitDir),
        static_cast<const Control*>(&dialog.InitJustDir), static_cast<const Control*>(&dialog.Action),
        &dialog.Cadre2}) {
    EXPECT_FALSE(hidden->visible);
  }
}

TEST_F(FileDialogTest, TheViewForAPrinterHasNoCaptions) {
  const DialogWindow& dialog = frmDialog();
  EXPECT_EQ(dialog.Commande3.caption.Get(), "");
  EXPECT_EQ(dialog.Commande4.caption.Get(), "");
  EXPECT_EQ(dialog.PrinterDefault.caption, "");
}

TEST_F(FileDialogTest, TheWindowStartsInTheDesktopsOwnDirectory) {
  const DialogWindow& dialog = frmDialog();
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "/home/user");
  EXPECT_THAT(dialog.Répertoire1.items.Get(), ElementsAre("/", "/home", "/home/user", "/home/user/orbits"));
  EXPECT_EQ(dialog.Répertoire1.Selected(), "/home/user");
  EXPECT_THAT(dialog.Lecteur1.items.Get(), ElementsAre("/"));
  EXPECT_EQ(dialog.Lecteur1.drive.Get(), "/");
  EXPECT_EQ(dialog.Fichier1.path.Get(), "/home/user");
  EXPECT_THAT(dialog.Fichier1.items.Get(), ElementsAre("a.qbv", "b.qbv", "note.txt"));
  EXPECT_THAT(dialog.ListeModifiable1.items.Get(), ElementsAre("/home/user"));
}

// ---- what the caller gets -------------------------------------------------------------------------------

TEST_F(FileDialogTest, OkGivesTheWholePathOfTheSelectedFile) {
  user = [] {
    EXPECT_TRUE(frmDialog().form.visible);
    Click(frmDialog().Fichier1, "b.qbv");
    frmDialog().Commande1.clicked();
  };
  Open();
  const DialogWindow& dialog = frmDialog();
  EXPECT_FALSE(dialog.form.visible);
  EXPECT_EQ(dialog.form.Tag, "");
  EXPECT_EQ(Filename(), "/home/user/b.qbv");
  EXPECT_EQ(dialog.InitDir.text.Get(), "/home/user/b.qbv");
  EXPECT_EQ(dialog.InitJustDir.text.Get(), "");
}

TEST_F(FileDialogTest, OkKeepsTheStartDirectory) {
  user = [] { frmDialog().Commande1.clicked(); };
  Open("/home/user/orbits/");
  EXPECT_EQ(frmDialog().InitJustDir.text.Get(), "/home/user/orbits/");
  EXPECT_EQ(Filename(), "/home/user/orbits/geo.qbv") << "the first file stands selected";
}

TEST_F(FileDialogTest, ATypedPathIsTakenAsItStands) {
  user = [] {
    frmDialog().Filename.text = "/elsewhere/plot.qbv";
    frmDialog().Commande1.clicked();
  };
  Open();
  EXPECT_EQ(Filename(), "/elsewhere/plot.qbv");
  EXPECT_EQ(frmDialog().InitDir.text.Get(), "/elsewhere/plot.qbv");
}

TEST_F(FileDialogTest, ATypedNameStandsInTheDirectoryOnShow) {
  const std::string name(10000, 'x');
  user = [&] {
    frmDialog().Filename.text = name;
    frmDialog().Commande1.clicked();
  };
  Open();
  EXPECT_EQ(Filename(), "/home/user/" + name);
  EXPECT_EQ(frmDialog().InitDir.text.Get(), "/home/user/" + name);
}

TEST_F(FileDialogTest, ATypedPathThatIsRelativeBeginsInTheDirectoryOnShow) {
  user = [] {
    frmDialog().Filename.text = "orbits/geo.qbv";
    frmDialog().Commande1.clicked();
  };
  Open();
  EXPECT_EQ(Filename(), "/home/user/orbits/geo.qbv");
}

TEST_F(FileDialogTest, AnEmptiedNameStaysEmptyBehindOk) {
  user = [] {
    frmDialog().Filename.text = "";
    frmDialog().Commande1.clicked();
  };
  Open();
  EXPECT_EQ(Filename(), "");
  EXPECT_EQ(frmDialog().form.Tag, "");
}

TEST_F(FileDialogTest, CancelLeavesTheFilenameEmptyWhateverWasSelected) {
  user = [] {
    Click(frmDialog().Fichier1, "b.qbv");
    EXPECT_EQ(Filename(), "/home/user/b.qbv");
    frmDialog().Commande2.clicked();
  };
  Open("/home/user/");
  const DialogWindow& dialog = frmDialog();
  EXPECT_FALSE(dialog.form.visible);
  EXPECT_EQ(dialog.form.Tag, "Cancel");
  EXPECT_EQ(Filename(), "");
  EXPECT_EQ(dialog.InitDir.text.Get(), "");
  EXPECT_EQ(dialog.InitJustDir.text.Get(), "");
}

TEST_F(FileDialogTest, CancelBehindAnOkLeavesTheFilenameEmptyToo) {
  user = [] { frmDialog().Commande1.clicked(); };
  Open();
  ASSERT_EQ(Filename(), "/home/user/a.qbv");
  user = [] { frmDialog().Commande2.clicked(); };
  Open();
  EXPECT_EQ(Filename(), "");
  EXPECT_EQ(frmDialog().form.Tag, "Cancel");
}

TEST_F(FileDialogTest, TheTagOfACancelIsGoneAtTheNextOk) {
  user = [] { frmDialog().Commande2.clicked(); };
  Open();
  user = [] { frmDialog().Commande1.clicked(); };
  Open();
  EXPECT_EQ(frmDialog().form.Tag, "");
  EXPECT_EQ(Filename(), "/home/user/a.qbv");
}

TEST_F(FileDialogTest, ClosingTheWindowOtherwiseIsACancel) {
  Open();
  EXPECT_FALSE(frmDialog().form.visible);
  EXPECT_EQ(frmDialog().form.Tag, "Cancel");
  EXPECT_EQ(Filename(), "");
}

// ---- files ----------------------------------------------------------------------------------------------

TEST_F(FileDialogTest, ASelectedFileTellsItsLengthAndDate) {
  DialogWindow& dialog = frmDialog();
  Click(dialog.Fichier1, "a.qbv");
  EXPECT_EQ(Filename(), "/home/user/a.qbv");
  EXPECT_EQ(dialog.Text1.text.Get(), "   123 Bytes     2024/05/06 07:08:09");
  Click(dialog.Fichier1, "b.qbv");
  EXPECT_EQ(dialog.Text1.text.Get(), " 1 234 567 Bytes     2024/05/06 07:08:09");
}

TEST_F(FileDialogTest, WithoutASelectionTheFirstFileIsTaken) {
  DialogWindow& dialog = frmDialog();
  ASSERT_EQ(dialog.Fichier1.selected, -1);
  dialog.Fichier1_Click();
  EXPECT_EQ(Filename(), "/home/user/a.qbv");
}

TEST_F(FileDialogTest, ADoubleClickSelectsAndIsAnOk) {
  user = [] {
    frmDialog().Fichier1.selected.Design(1);
    frmDialog().Fichier1.doubleClicked();
  };
  Open();
  EXPECT_EQ(Filename(), "/home/user/b.qbv");
  EXPECT_EQ(frmDialog().form.Tag, "");
  EXPECT_FALSE(frmDialog().form.visible);
}

TEST_F(FileDialogTest, ALockedOrMissingFileGivesAnEmptyFilenameAndNoMessage) {
  directories.files.erase("/home/user/b.qbv");
  user = [] {
    Click(frmDialog().Fichier1, "b.qbv");
    EXPECT_EQ(Filename(), "");
    EXPECT_EQ(frmDialog().Text1.text.Get(), "");
    frmDialog().Commande1.clicked();
  };
  Open();
  EXPECT_EQ(Filename(), "");
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

// ---- pattern --------------------------------------------------------------------------------------------

TEST_F(FileDialogTest, APatternWithATrailingBlankKeepsWorking) {
  DialogWindow& dialog = frmDialog();
  dialog.Filter.text = "*.qbv ";
  EXPECT_EQ(dialog.Fichier1.pattern.Get(), "*.qbv ");
  EXPECT_THAT(dialog.Fichier1.items.Get(), ElementsAre("a.qbv", "b.qbv"));
  EXPECT_EQ(dialog.Fichier1.Selected(), "a.qbv");
  EXPECT_EQ(dialog.Filter.colour, kRed);
}

TEST_F(FileDialogTest, ThePatternOfAllFilesIsBlackAndAnyOtherRed) {
  DialogWindow& dialog = frmDialog();
  dialog.Filter.text = "*.txt";
  EXPECT_EQ(dialog.Filter.colour, kRed);
  EXPECT_EQ(Filename(), "/home/user/note.txt");
  dialog.Filter.text = "*.*";
  EXPECT_EQ(dialog.Filter.colour, kBlack);
  EXPECT_EQ(Filename(), "/home/user/a.qbv");
}

TEST_F(FileDialogTest, APatternThatSuitsNoFileEmptiesTheFilename) {
  DialogWindow& dialog = frmDialog();
  Click(dialog.Fichier1, "a.qbv");
  for (const std::string& pattern : {std::string("*.bmp"), std::string(10000, '?'), std::string()}) {
    dialog.Filter.text = pattern;
    EXPECT_THAT(dialog.Fichier1.items.Get(), IsEmpty());
    EXPECT_EQ(Filename(), "");
  }
}

// ---- the two views --------------------------------------------------------------------------------------

TEST_F(FileDialogTest, ActionOpensAViewAndGoesBackToZero) {
  DialogWindow& dialog = frmDialog();
  dialog.Action.value = 2;
  EXPECT_FALSE(dialog.Cadre1.visible);
  EXPECT_TRUE(dialog.Cadre2.visible);
  EXPECT_EQ(dialog.Cadre2.Left, -120);
  EXPECT_EQ(dialog.Cadre2.Top, -120);
  EXPECT_EQ(dialog.Action.value, 0);
  dialog.Action.value = 1;
  EXPECT_TRUE(dialog.Cadre1.visible);
  EXPECT_FALSE(dialog.Cadre2.visible);
  EXPECT_EQ(dialog.Action.value, 0);
  EXPECT_EQ(dialog.Action.Tag, "");
}

}  // namespace
}  // namespace quorb
