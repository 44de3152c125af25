#include "SlideShow.h"

#include "Faults.h"
#include "MenuFaults.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

class SlideShowTest : public WindowFixture {
 protected:
  SlideShowTest() : window(Load()) { AppDir = "/opt/quorb"; }

  std::string Line() {
    window.mnuFRunPowerPoint.clicked();
    return window.Text1.text;
  }

  MainWindow& window;
};

TEST_F(SlideShowTest, TheCurrentPlotIsCopiedAndTheLineNamesTheCopy) {
  files.contents["/opt/quorb/_QuorbExcelPro.qbv"] = "From: plot";
  EXPECT_EQ(Line(), "\"/opt/quorb/QuorbExcelPro\" /opt/quorb/PowerPoint20260703_091502.qbv");
  EXPECT_EQ(files.contents["/opt/quorb/PowerPoint20260703_091502.qbv"], "From: plot");
  EXPECT_EQ(files.open, 0);
}

TEST_F(SlideShowTest, APlotThatStandsInTheUsersDirectoryIsCopiedThere) {
  files.realLocations = {
      {"/opt/quorb/_QuorbExcelPro.qbv", "/home/user/data/_QuorbExcelPro.qbv"},
      {"/opt/quorb/PowerPoint20260703_091502.qbv", "/home/user/data/PowerPoint20260703_091502.qbv"}};
  files.contents["/home/user/data/_QuorbExcelPro.qbv"] = "From: plot";
  EXPECT_EQ(Line(), "\"/opt/quorb/QuorbExcelPro\" /home/user/data/PowerPoint20260703_091502.qbv");
  EXPECT_EQ(files.contents["/home/user/data/PowerPoint20260703_091502.qbv"], "From: plot");
}

TEST_F(SlideShowTest, OverTheDemonstrationThatIsCopied) {
  files.contents["/opt/quorb/QuorbExcelProDemo.qbv"] = "From: demo";
  const std::string copy = "/opt/quorb/PowerPoint20260703_091502.qbv";
  EXPECT_EQ(Line(), "\"/opt/quorb/QuorbExcelPro\" " + copy);
  EXPECT_EQ(files.contents[copy], "From: demo") << "nothing was loaded from a sheet";
  files.contents.erase(copy);
  files.contents["/opt/quorb/_QuorbExcelPro.qbv"] = "From: plot";
  FileMode = 1;
  Line();
  EXPECT_EQ(files.contents[copy], "From: demo") << "the help has brought it";
}

TEST_F(SlideShowTest, AFailureToCopyPassesUnnoticed) {
  const std::string line = "\"/opt/quorb/QuorbExcelPro\" /opt/quorb/PowerPoint20260703_091502.qbv";
  EXPECT_EQ(Line(), line) << "no plot file";
  files.contents["/opt/quorb/_QuorbExcelPro.qbv"] = "From: plot";
  files.createFails = true;
  EXPECT_EQ(Line(), line);
  files.createFails = false;
  files.writeFails = true;
  EXPECT_EQ(Line(), line);
  EXPECT_FALSE(files.contents.contains("/opt/quorb/PowerPoint20260703_091502.qbv"));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SlideShowTest, AnOpenedFileIsNamedAndNotCopied) {
  files.contents["/opt/quorb/_QuorbExcelPro.qbv"] = "From: plot";
  CommandFileMode = 1;
  CommandFileName = "/data/orbit.qbv";
  EXPECT_EQ(Line(), "\"/opt/quorb/QuorbExcelPro\" /data/orbit.qbv");
  EXPECT_THAT(files.created, IsEmpty());
}

TEST_F(SlideShowTest, AFileNamedWithoutADirectoryIsNamedWhereTheLoaderFoundIt) {
  CommandFileMode = 1;
  CommandFileName = "orbit.qbv";
  FILEcOMMANDnAME = "/data/orbit.qbv";
  EXPECT_EQ(Line(), "\"/opt/quorb/QuorbExcelPro\" /data/orbit.qbv");
}

TEST_F(SlideShowTest, ANameThatAShellWouldTakeApartStandsInQuotes) {
  CommandFileMode = 1;
  const std::pair<const char*, const char*> names[] = {
      {"/my plots/a.qbv", "\"/my plots/a.qbv\""},   {"/plots(1)/a.qbv", "\"/plots(1)/a.qbv\""},
      {"/plots/été_2-a.qbv", "/plots/été_2-a.qbv"}, {"/a$b/`c`.qbv", "\"/a\\$b/\\`c\\`.qbv\""},
      {"/a\"b\\c.qbv", "\"/a\\\"b\\\\c.qbv\""},     {"\"/my plots/a.qbv\"", "\"/my plots/a.qbv\""}};
  for (const auto& [name, shown] : names) {
    CommandFileName = name;
    EXPECT_EQ(Line(), std::string("\"/opt/quorb/QuorbExcelPro\" ") + shown);
  }
}

TEST_F(SlideShowTest, ThePanelStandsInFrontWithTheWholeLineSelected) {
  CommandFileMode = 1;
  CommandFileName = "/data/été.qbv";
  Line();
  EXPECT_TRUE(window.Frame1.visible);
  EXPECT_TRUE(window.Frame1.inFront);
  EXPECT_EQ(window.Frame1.Top, 1200);
  EXPECT_EQ(window.Frame1.Left, 600);
  EXPECT_EQ(window.Text1.selStart, 0);
  EXPECT_EQ(window.Text1.selLength, 40) << "characters, not bytes";
}

TEST_F(SlideShowTest, TheLineGoesToTheClipboard) {
  window.Text1.text = "\"/opt/quorb/QuorbExcelPro\" /data/orbit.qbv";
  window.Command4.clicked();
  EXPECT_EQ(desktop.clipboard, "\"/opt/quorb/QuorbExcelPro\" /data/orbit.qbv");
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SlideShowTest, AClipboardThatIsLockedIsTold) {
  desktop.clipboard = "before";
  desktop.clipboardFault = kFaultClipboard;
  window.Command4.clicked();
  EXPECT_EQ(desktop.clipboard, "before");
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].title, "Error");
  EXPECT_EQ(dialogs.boxes[0].prompt, FaultText(kFaultClipboard));
}

TEST_F(SlideShowTest, ClosingHidesThePanelBehindTheOthers) {
  Line();
  window.Command5.clicked();
  EXPECT_FALSE(window.Frame1.visible);
  EXPECT_FALSE(window.Frame1.inFront);
}

TEST_F(SlideShowTest, ThePointerOverThePanelHidesItsFirstPicture) {
  window.Frame1.pointerMoved();
  EXPECT_FALSE(window.Picture1[0].visible);
  EXPECT_TRUE(window.Picture1[1].visible);
}

TEST_F(SlideShowTest, FaultsOfFilesAreSilentInMenusAndOthersAreTold) {
  for (const int silent : {0, 53, 52, 5})
    TellMenuFault(silent);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  TellMenuFault(kFaultPermissionDenied);
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].prompt, FaultText(kFaultPermissionDenied));
}

}  // namespace
}  // namespace quorb
