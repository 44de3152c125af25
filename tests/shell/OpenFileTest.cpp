#include "OpenFile.h"

#include "WindowFixture.h"
#include "frmDialog.h"

namespace quorb {
namespace {

constexpr const char* kPlot =
    "From: \tBook\tSheet\t=0.01+LEN(\"Test km\")+MAX(A2:C5)\t0.0100000000\tTest km\tDate \tmark\t\r\n"
    "1000\t0\t0\r\n"
    "0\t2000\t0\r\n";

class OpenFileTest : public WindowFixture {
 protected:
  OpenFileTest() : window(Load()) {
    FirstActivated = 1;
    files.contents["/data/orbit.qbv"] = kPlot;
    frmDialog().Filename.text = "left over";
    frmDialog().showAndWait = [this] {
      ++shown;
      const DialogWindow& chooser = frmDialog();
      initDir = chooser.InitDir.text;
      filter = chooser.Filter.text;
      filenameBefore = chooser.Filename.text;
      actionBefore = chooser.Action.value;
      if (chosen.empty()) {
        frmDialog().form.Tag = "Cancel";
        frmDialog().InitDir.text = "";
      } else {
        frmDialog().Filename.text = chosen;
      }
    };
  }
  ~OpenFileTest() override {
    frmDialog().showAndWait = nullptr;
    frmDialog().Action.value = 0;
  }

  void Choose(const std::string& path) {
    chosen = path;
    window.mnuFOpen.clicked();
  }
  std::string& Stored(const std::string& key) { return settings.entries[{"OpenQBV", key}]; }

  MainWindow& window;
  std::string chosen, initDir = "not asked", filter, filenameBefore;
  int shown = 0, actionBefore = 0;
};

TEST_F(OpenFileTest, APathIsSplitBehindItsLastMark) {
  std::string directory, file;
  SplitPath("C:\\data\\orbit.qbv", directory, file, "D:\\");
  EXPECT_EQ(directory, "C:\\data\\");
  EXPECT_EQ(file, "orbit.qbv");
  SplitPath("/data/orbit.qbv", directory, file, "");
  EXPECT_EQ(directory, "/data/");
  EXPECT_EQ(file, "orbit.qbv");
  SplitPath("/data/", directory, file, "");
  EXPECT_EQ(directory, "/data/");
  EXPECT_EQ(file, "");
  SplitPath("orbit.qbv", directory, file, "D:\\");
  EXPECT_EQ(directory, "D:\\");
  EXPECT_EQ(file, "orbit.qbv");
  SplitPath("", directory, file, "D:\\");
  EXPECT_EQ(directory, "D:\\");
  EXPECT_EQ(file, "");
}

TEST_F(OpenFileTest, APathMayBeSplitIntoItsOwnPlace) {
  std::string path = "/data/orbit.qbv", file;
  SplitPath(path, path, file, "");
  EXPECT_EQ(path, "/data/");
  EXPECT_EQ(file, "orbit.qbv");
}

TEST_F(OpenFileTest, RecentDirectoriesHaveTheirKeys) {
  EXPECT_EQ(RecentDirectoryKey(1), "Dir01.00");
  EXPECT_EQ(RecentDirectoryKey(10), "Dir10.00");
}

TEST_F(OpenFileTest, WithoutARecentDirectoryTheChooserStartsAtItsOwn) {
  Choose("");
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(initDir, "");
  EXPECT_EQ(filter, "*.qbv ");
  EXPECT_EQ(filenameBefore, "");
  EXPECT_EQ(actionBefore, 0);
}

TEST_F(OpenFileTest, TheChooserStartsInTheLatestDirectory) {
  Stored("Dir01.00") = "/home/user/plots/";
  Choose("");
  EXPECT_EQ(initDir, "/home/user/plots/");
}

TEST_F(OpenFileTest, AChosenFileIsLoadedInPlaceOfTheSpreadsheet) {
  DEJADRAW = DEJARESET = 1;
  FileMode = 1;
  Choose("/data/orbit.qbv");
  EXPECT_EQ(CommandFileMode, 1);
  EXPECT_EQ(CommandFileName, "/data/orbit.qbv");
  EXPECT_EQ(FileMode, 0);
  EXPECT_EQ(DEJADRAW, 0);
  EXPECT_EQ(DEJARESET, 0);
  EXPECT_EQ(LastLoad().rows, 2);
  EXPECT_EQ(window.Text14.text.Get(), "/data/orbit.qbv");
  EXPECT_TRUE(window.mnuFile.visible) << "the menus stay";
}

TEST_F(OpenFileTest, AFileWithoutADirectoryStandsWhereTheChooserStarted) {
  Stored("Dir01.00") = "/data/";
  Choose("orbit.qbv");
  EXPECT_EQ(CommandFileName, "/data/orbit.qbv");
  EXPECT_EQ(LastLoad().rows, 2);
}

TEST_F(OpenFileTest, CancelLoadsNothing) {
  const int loads = LoadsStarted;
  Choose("");
  EXPECT_EQ(LoadsStarted, loads);
  EXPECT_EQ(CommandFileMode, 0);
}

TEST_F(OpenFileTest, TheReturnFromTheChooserActivatesTheWindowBehindTheLoad) {
  for (const char* path : {"", "/data/orbit.qbv"}) {
    window.Command6.Tag = "demo";
    window.Text4[4].text = "3";
    Choose(path);
    EXPECT_EQ(window.Command6.Tag, "");
    EXPECT_EQ(window.Text4[4].text.Get(), "1.75");
  }
}

TEST_F(OpenFileTest, AListOfDirectoriesIsLeftAsItIs) {
  Stored("Dir01.00") = "/data/";
  Stored("DirMax") = "1";
  const auto before = settings.entries;
  Choose("");
  EXPECT_EQ(settings.entries, before);
}

TEST_F(OpenFileTest, AnEntryWithAFileIsFollowedByItsDirectoryAndMovesDown) {
  Stored("Dir01.00") = "/data/orbit.qbv";
  Stored("Dir02.00") = "/older/";
  Stored("DirMax") = "2";
  Choose("");
  EXPECT_EQ(initDir, "/data/");
  EXPECT_EQ(Stored("Dir01.00"), "/data/");
  EXPECT_EQ(Stored("Dir02.00"), "/data/orbit.qbv");
  EXPECT_EQ(Stored("Dir03.00"), "/older/");
  EXPECT_EQ(Stored("DirMax"), "3");
}

TEST_F(OpenFileTest, TheListEndsAtTenDirectories) {
  for (int rank = 1; rank <= 10; ++rank)
    Stored(RecentDirectoryKey(rank)) = "/d/" + std::to_string(rank);
  for (const char* count : {"10", "400", "1e300", "many"}) {
    Stored("Dir01.00") = "/d/1";
    Stored("DirMax") = count;
    Choose("");
    EXPECT_FALSE(settings.entries.contains({"OpenQBV", "Dir11.00"})) << count;
  }
}

TEST_F(OpenFileTest, AMissingFileShowsTheDemonstrationOfTheLoader) {
  Choose("/data/vanished.qbv");
  EXPECT_EQ(CommandFileName, "/data/vanished.qbv");
  EXPECT_EQ(LastLoad().rows, 0);
}

TEST_F(OpenFileTest, WithoutAChooserNothingHappens) {
  frmDialog().showAndWait = nullptr;
  const int loads = LoadsStarted;
  window.mnuFOpen.clicked();
  EXPECT_EQ(LoadsStarted, loads);
}

}  // namespace
}  // namespace quorb
