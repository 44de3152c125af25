#include "FileDialogFixture.h"

namespace quorb {
namespace {

class FileDialogPlacesTest : public FileDialogFixture {};

// ---- directories ----------------------------------------------------------------------------------------

TEST_F(FileDialogPlacesTest, AClickOnADirectoryGoesThere) {
  user = [] {
    DialogWindow& dialog = frmDialog();
    Click(dialog.Répertoire1, "/home/user/orbits");
    EXPECT_EQ(dialog.Répertoire1.path.Get(), "/home/user/orbits");
    EXPECT_EQ(dialog.InitDir.text.Get(), "/home/user/orbits");
    EXPECT_THAT(dialog.Fichier1.items.Get(), ElementsAre("geo.qbv", "leo.qbv"));
    EXPECT_EQ(Filename(), "/home/user/orbits/geo.qbv");
    EXPECT_EQ(dialog.Répertoire1.Selected(), "/home/user/orbits");
    Click(dialog.Répertoire1, "/home");
    EXPECT_THAT(dialog.Fichier1.items.Get(), IsEmpty());
    EXPECT_EQ(Filename(), "");
  };
  Open();
  EXPECT_THAT(frmDialog().ListeModifiable1.items.Get(),
              ElementsAre("/home/user", "/home/user/orbits", "/home"));
}

TEST_F(FileDialogPlacesTest, AStartDirectoryMovesTheWholeWindow) {
  DialogWindow& dialog = frmDialog();
  dialog.InitDir.text = "/home/user/orbits/leo.qbv";
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "/home/user/orbits");
  EXPECT_EQ(dialog.Fichier1.path.Get(), "/home/user/orbits");
  EXPECT_EQ(dialog.Fichier1.Selected(), "leo.qbv");
  EXPECT_EQ(Filename(), "/home/user/orbits/leo.qbv");
  EXPECT_EQ(dialog.InitDir.Tag, "");
}

TEST_F(FileDialogPlacesTest, AStartFileThatIsNotThereIsNotSelected) {
  DialogWindow& dialog = frmDialog();
  dialog.InitDir.text = "/home/user/orbits/gone.qbv";
  EXPECT_EQ(dialog.Fichier1.selected, -1);
  EXPECT_EQ(Filename(), "gone.qbv");
}

TEST_F(FileDialogPlacesTest, AnEmptyStartDirectoryStaysWhereTheTreeStands) {
  DialogWindow& dialog = frmDialog();
  dialog.InitDir.text = "/home/user/orbits/";
  dialog.InitDir.text = "";
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "/home/user/orbits");
  EXPECT_EQ(Filename(), "");
}

TEST_F(FileDialogPlacesTest, TheStartDirectoryIsReadOnlyWhileTheWindowIsClosed) {
  user = [] {
    frmDialog().InitDir.text = "/home/user/orbits/";
    EXPECT_EQ(frmDialog().Répertoire1.path.Get(), "/home/user");
  };
  Open();
}

TEST_F(FileDialogPlacesTest, ADirectoryThatVanishesUnderTheWindowIsRefused) {
  user = [this] {
    DialogWindow& dialog = frmDialog();
    directories.contents.erase("/home/user/orbits");
    Click(dialog.Répertoire1, "/home/user/orbits");
    EXPECT_EQ(dialog.Répertoire1.path.Get(), "/home/user");
    EXPECT_EQ(dialog.InitDir.text.Get(), "/home/user/orbits");
    EXPECT_EQ(Filename(), "");
    Click(dialog.Fichier1, "b.qbv");
    EXPECT_EQ(Filename(), "/home/user/b.qbv") << "the window goes on where it stands";
  };
  Open();
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(FileDialogPlacesTest, ADirectoryThatVanishedBeforeGivesWayToTheOneAbove) {
  frmDialog().InitDir.text = "/home/user/orbits/";
  directories.contents.erase("/home/user/orbits");
  user = [] {
    EXPECT_EQ(frmDialog().Répertoire1.path.Get(), "/home/user");
    EXPECT_THAT(frmDialog().Répertoire1.items.Get(),
                ElementsAre("/", "/home", "/home/user", "/home/user/orbits"));
    EXPECT_THAT(frmDialog().Fichier1.items.Get(), ElementsAre("a.qbv", "b.qbv"));
  };
  Open();
}

TEST_F(FileDialogPlacesTest, AnyTextIsTakenForAStartDirectory) {
  for (const std::string& text : {std::string("1e300"), std::string(10000, '/'), std::string(10000, 'x'),
                                  std::string("/gone/x/"), std::string("\\"), std::string()}) {
    Open(text);
    EXPECT_EQ(frmDialog().Fichier1.path.Get(), frmDialog().Répertoire1.path.Get()) << text.substr(0, 20);
    EXPECT_EQ(Filename(), "");
  }
}

TEST_F(FileDialogPlacesTest, FilesThatCameAndWentAreSeenAtTheNextOpening) {
  Open();
  directories.contents["/home/user"].files = {"b.qbv", "c.qbv"};
  user = [] { EXPECT_THAT(frmDialog().Fichier1.items.Get(), ElementsAre("b.qbv", "c.qbv")); };
  Open();
}

TEST_F(FileDialogPlacesTest, WithoutAnyDirectoryTheWindowIsEmptyAndCancels) {
  directories.contents.clear();
  directories.drives.clear();
  ForgetFileDialog();
  user = [] { frmDialog().Commande1.clicked(); };
  Open();
  EXPECT_THAT(frmDialog().Fichier1.items.Get(), IsEmpty());
  EXPECT_EQ(Filename(), "");
}

// ---- drives ---------------------------------------------------------------------------------------------

/// A desktop with the mark of drives with letters.
class DrivesTest : public FileDialogFixture {
 protected:
  DrivesTest() {
    desktop.mark = '\\';
    directories.start = "C:\\data";
    directories.drives = {"A:\\", "C:\\", "D:\\"};
    directories.contents = {{"C:\\", {{"data"}, {"root.qbv"}}},
                            {"C:\\data", {{}, {"c.qbv"}}},
                            {"D:\\", {{"one", "two"}, {"d.qbv"}}},
                            {"D:\\one", {{}, {"d1.qbv"}}},
                            {"D:\\two", {{}, {"d2.qbv"}}}};
    directories.files = {
        {"C:\\root.qbv", 1}, {"C:\\data\\c.qbv", 2}, {"D:\\d.qbv", 3}, {"D:\\two\\d2.qbv", 4}};
  }
};

TEST_F(DrivesTest, ADriveRootHasNoDoubleMark) {
  DialogWindow& dialog = frmDialog();
  Click(dialog.Répertoire1, "C:\\");
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "C:\\");
  EXPECT_EQ(Filename(), "C:\\root.qbv");
  Click(dialog.Répertoire1, "C:\\data");
  EXPECT_EQ(Filename(), "C:\\data\\c.qbv");
}

TEST_F(DrivesTest, ANewDriveShowsItsRoot) {
  DialogWindow& dialog = frmDialog();
  dialog.Lecteur1.drive = "D:\\";
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "D:\\");
  EXPECT_EQ(Filename(), "D:\\d.qbv");
}

TEST_F(DrivesTest, ADriveComesBackToItsLastDirectoryWhichIsNotRememberedAgain) {
  DialogWindow& dialog = frmDialog();
  for (const char* visited : {"D:\\one", "D:\\two", "C:\\"})
    dialog.Répertoire1.path = visited;
  dialog.Lecteur1.drive.Design("C:\\");
  dialog.Lecteur1.drive = "D:\\";
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "D:\\two");
  EXPECT_EQ(dialog.Répertoire1.Tag, "");
  EXPECT_EQ(Filename(), "D:\\two\\d2.qbv");
  EXPECT_THAT(dialog.ListeModifiable1.items.Get(), ElementsAre("C:\\data", "D:\\one", "D:\\two", "C:\\"));
}

TEST_F(DrivesTest, ADriveWhoseLastDirectoryIsGoneShowsItsRoot) {
  DialogWindow& dialog = frmDialog();
  dialog.Répertoire1.path = "D:\\two";
  dialog.Répertoire1.path = "C:\\data";
  directories.contents.erase("D:\\two");
  dialog.Lecteur1.drive = "D:\\";
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "D:\\");
}

TEST_F(DrivesTest, ADriveThatIsNotReadyLeavesTheTreeWhereItWas) {
  DialogWindow& dialog = frmDialog();
  dialog.Lecteur1.drive = "A:\\";
  EXPECT_EQ(dialog.Répertoire1.path.Get(), "C:\\data");
  EXPECT_EQ(dialog.Lecteur1.drive.Get(), "C:\\") << "so that it can be tried again";
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(DrivesTest, AStartDirectoryChoosesItsDriveByTheFirstCharacter) {
  DialogWindow& dialog = frmDialog();
  dialog.InitDir.text = "d:\\two\\d2.qbv";
  EXPECT_EQ(dialog.Lecteur1.drive.Get(), "D:\\");
}

}  // namespace
}  // namespace quorb
