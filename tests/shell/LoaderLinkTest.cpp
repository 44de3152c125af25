#include "LoaderLink.h"

#include "WindowFixture.h"

namespace quorb {
namespace {

class LoaderLinkTest : public WindowFixture {
 protected:
  LoaderLinkTest() : window(Create()) {}

  MainWindow& window;
  LoaderWindow& link = LoaderLinkOfWindow();
};

TEST_F(LoaderLinkTest, TheLogTakesALineAtATime) {
  link.AppendLog("NameTempo$ plot.qbv");
  link.AppendLog("ccdir$ /home");
  EXPECT_EQ(window.Text20.text.Get(), "NameTempo$ plot.qbv\r\nccdir$ /home");
}

TEST_F(LoaderLinkTest, TheReadingNameStandsInTheStripAtTheTop) {
  link.ShowReadingName("plot.qbv");
  EXPECT_EQ(window.Text21.text.Get(), "plot.qbv");
}

TEST_F(LoaderLinkTest, ANamedFileShowsTheStatusLine) {
  window.Text14.visible = false;
  link.ShowNamedFile("/home/plot.qbv");
  EXPECT_EQ(window.Text14.text.Get(), "/home/plot.qbv");
  EXPECT_TRUE(window.Text14.visible);
}

TEST_F(LoaderLinkTest, TheProgressBarShowsAndMoves) {
  link.ShowProgress(true);
  link.SetProgress(31);
  EXPECT_TRUE(window.ProgressBar1.visible);
  EXPECT_EQ(window.ProgressBar1.value, 31);
  link.ShowProgress(false);
  EXPECT_FALSE(window.ProgressBar1.visible);
}

TEST_F(LoaderLinkTest, EachControlIsTheWindowsOwn) {
  const std::pair<LoaderControl, CheckBox*> controls[] = {{LoaderControl::Check1_0, &window.Check1[0]},
                                                          {LoaderControl::Check3, &window.Check3},
                                                          {LoaderControl::Check5, &window.Check5},
                                                          {LoaderControl::Check9, &window.Check9},
                                                          {LoaderControl::Check11, &window.Check11}};
  for (const auto& [name, box] : controls) {
    link.SetValue(name, 1);
    link.SetTag(name, "1");
    link.Show(name, false);
    EXPECT_EQ(box->value, 1);
    EXPECT_EQ(box->Tag, "1");
    EXPECT_FALSE(box->visible);
    box->value.Design(2);
    box->Tag = "2";
    EXPECT_EQ(link.Value(name), 2);
    EXPECT_EQ(link.Tag(name), "2");
  }
}

TEST_F(LoaderLinkTest, AValueFromTheLoaderRunsTheClickRoutine) {
  link.SetValue(LoaderControl::Check9, 1);
  EXPECT_EQ(USERFLAG.CubicView, 1);
}

TEST_F(LoaderLinkTest, TheKeywordIsTheTextOfThePanel) {
  window.Text9.text = "PLOT";
  EXPECT_EQ(link.MainKeywordText(), "PLOT");
}

TEST_F(LoaderLinkTest, TheSpeedBarIsSet) {
  link.SetSpeedBar(4);
  EXPECT_EQ(window.HScroll2.value, 4);
  EXPECT_EQ(window.Text2.caption.Get(), "Redraw speed 16");
}

TEST_F(LoaderLinkTest, TheLoaderClosesThePanelAndLaysTheWindowOut) {
  window.Options.visible = true;
  window.Text4[0].text.Design("4");
  link.Command2_Click();
  EXPECT_FALSE(window.Options.visible);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 4);
  window.form.Width = 9000;
  link.Form_Resize();
  EXPECT_EQ(window.GlPlace.Width, 9000);
}

TEST_F(LoaderLinkTest, ACameraViewNeedsAScene) {
  link.CameraSet("isonew", 2, 0);
  EXPECT_THAT(RecordedCalls(), IsEmpty());
  Load();
  ClearCalls();
  link.CameraSet("isonew", 2, 0);
  EXPECT_THAT(RecordedCalls(), testing::Contains("Camera.SetUp(0, 1, 0)"));
}

TEST_F(LoaderLinkTest, TheSatellitesSizeIsAtMostTheEndOfItsBar) {
  LoaderLinkOfWindow().SetSatelliteSize(8.13);
  EXPECT_EQ(frmMain->HScroll3.value, 8);
  LoaderLinkOfWindow().SetSatelliteSize(1e9);
  EXPECT_EQ(frmMain->HScroll3.value, 32000);
  LoaderLinkOfWindow().SetSatelliteShape("GEO satcom");
  EXPECT_EQ(frmMain->Combo2.text.Get(), "GEO satcom");
}

TEST_F(LoaderLinkTest, TheFileTypeIsTiedAtEachLoadAndStoredOncePerRun) {
  LoaderLinkOfWindow().RegisterFileType();
  EXPECT_EQ(settings.MapSettingsStore::Read("App", "associateEXE", ""), "QuorbExcelPro");
  EXPECT_EQ(settings.MapSettingsStore::Read("App", "associateEXT", ""), ".qbv");
  settings.entries.clear();
  LoaderLinkOfWindow().RegisterFileType();
  EXPECT_EQ(desktop.registrations, 2);
  EXPECT_TRUE(settings.entries.empty());
}

}  // namespace
}  // namespace quorb
