#include <algorithm>

#include "SpecificationHistory.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

constexpr const char* kTagLine = "a worksheet in three dimensions, live  ";

class FormLoadTest : public WindowFixture {
 protected:
  static std::vector<bool> MenusShown() {
    MainWindow& w = *frmMain;
    return {w.mnuFile.visible, w.mnuView.visible, w.mnuHelp.visible, w.mnuUpdateExcel.visible,
            w.mnuOptions.visible};
  }

  /// Stores slots, and the factory values in the others.
  void StoreOptions(const std::vector<std::pair<int, std::string>>& slots) {
    USERFLAG = UserFlagRecord();
    int noneStored = 0;
    OptionsLoadSave(1, noneStored);
    for (const auto& [slot, value] : slots)
      StoreUse(SlotKey(slot), value);
    ClearCalls();
  }

  /// The calls of the load sequence, with the slots that are read one behind another as one line, and the
  /// history, too.
  std::vector<std::string> Sequence() const {
    std::vector<std::string> calls;
    int slot = 0, entry = 0;
    for (const std::string& call : RecordedCalls()) {
      if (slot <= 100 && call == "Settings.Read(\"Use\", \"" + SlotKey(slot) + "\")") {
        ++slot;
        if (slot == 101) calls.push_back("the slots 0 to 100 are read");
      } else if (entry <= 20 && call == "Settings.Read(\"Use\", \"" + HistoryKey(entry) + "\")") {
        ++entry;
        if (entry == 21) calls.push_back("the history 0 to 20 is read");
      } else {
        calls.push_back(call);
      }
    }
    return calls;
  }
};

/// A desktop that notes when the year is asked for: the caption is built then.
class NotingDesktop : public FakeDesktop {
 public:
  int Year() const override {
    RecordCallOf("Desktop.Year");
    return FakeDesktop::Year();
  }
};

// ---- the sequence -----------------------------------------------------------------------------------------

TEST_F(FormLoadTest, TheStepsRunInTheirOrder) {
  const NotingDesktop notingDesktop;
  StoreUse("Set30.00", "1");
  Load();
  EXPECT_THAT(Sequence(),
              ElementsAre("Desktop.Year()",                                     //
                          "Settings.Write(\"App\", \"Path\", \"/opt/quorb\")",  //
                          "the slots 0 to 100 are read",                        //
                          "Settings.Read(\"Use\", \"SetDirBMP\")",              //
                          "Settings.Read(\"Use\", \"Setstr01.00\")",            //
                          "Settings.Write(\"Use\", \"Setstr01.00\", \"earthjpg.jpg\")",
                          "Settings.Read(\"Use\", \"Setstr11.00\")",  //
                          "Settings.Write(\"Use\", \"Setstr11.00\", \"moonjpg.jpg\")",
                          "Settings.Read(\"Use\", \"Setstr12.00\")",           //
                          "Settings.Read(\"Use\", \"Setstr13.00\")",           //
                          "Settings.Write(\"Use\", \"Setstr13.00\", \"64\")",  //
                          "Settings.Read(\"Use\", \"Setstr14.00\")",           //
                          "Settings.Read(\"Use\", \"Setstr15.00\")",           //
                          "Settings.Write(\"Use\", \"Setstr01.00\", \"earthjpg.jpg\")",
                          "Settings.Write(\"Use\", \"Setstr13.00\", \"0\")",  // the slots are shown
                          "MessageBox(\"Warning\")",                          //
                          "the history 0 to 20 is read",                      //
                          "SetMousePointer(201, \"\")",                       //
                          "Animation.SetEnabled(true)",                       //
                          "Animation.Update()",                               //
                          "Animation.SetEnabled(true)"));
}

TEST_F(FormLoadTest, TheRunStateStarts) {
  MoonSwitch = 1;
  FirstActivated = OneShotView = ShiftState = LastKeyCode = 1;
  Load();
  EXPECT_EQ(MoonSwitch, 0);
  EXPECT_EQ(StartFlag, 1);
  EXPECT_EQ(FirstActivated, 0);
  EXPECT_EQ(OneShotView, 0);
  EXPECT_EQ(ShiftState, 0);
  EXPECT_EQ(LastKeyCode, 0);
  EXPECT_EQ(LocalFollow, 0);
  EXPECT_EQ(ImportDirectory, "/home/user/quorb-data");
  EXPECT_STREQ(NL, "\r\n");
}

TEST_F(FormLoadTest, TheReleaseIsNineDigits) {
  Load();
  EXPECT_EQ(VersionDigits, "002008006");
}

TEST_F(FormLoadTest, TheHostIsTheOneHostAndRuns) {
  Load();
  EXPECT_EQ(glxCtl1, &host);
  ASSERT_NE(TheScene, nullptr);
  EXPECT_EQ(host.Tag, "Animate");
  EXPECT_TRUE(host.animation.enabled);
}

TEST_F(FormLoadTest, TheBarsHaveRunBeforeTheFirstFrame) {
  LastPoint = 1000;
  Load();
  EXPECT_EQ(TheScene->CURRINDEXI, 1000);
  EXPECT_EQ(STEPPT, 512);
  EXPECT_EQ(frmMain->Text3.caption.Get(), "Redraw  10000");
  EXPECT_EQ(frmMain->Text2.caption.Get(), "Redraw speed 512");
}

// ---- command line -----------------------------------------------------------------------------------------

TEST_F(FormLoadTest, AFirstTokenOf7CharactersIsNoFileAndTheMenusStay) {
  Load("abc.qbv");
  EXPECT_EQ(CommandFileMode, 0);
  EXPECT_EQ(FILEcOMMANDnAME, "abc.qbv");
  EXPECT_EQ(MenusShown(), std::vector<bool>(5, true));
}

TEST_F(FormLoadTest, AFirstTokenOf8CharactersIsAFileAndTheMenusAreHidden) {
  Load("abcd.qbv");
  EXPECT_EQ(CommandFileMode, 1);
  EXPECT_EQ(FILEcOMMANDnAME, "abcd.qbv");
  EXPECT_EQ(CommandFileName, "abcd.qbv");
  EXPECT_EQ(MenusShown(), std::vector<bool>(5, false));
  EXPECT_FALSE(frmMain->mnuEdit.visible);
}

TEST_F(FormLoadTest, CharactersCountAndNotBytes) {
  Load("été.qbv");
  EXPECT_EQ(CommandFileMode, 0);
  Load("étés.qbv");
  EXPECT_EQ(CommandFileMode, 1);
}

TEST_F(FormLoadTest, AnEmptyCommandLineIsNoFile) {
  Load("");
  EXPECT_EQ(CommandFileMode, 0);
  EXPECT_EQ(FILEcOMMANDnAME, "");
}

TEST_F(FormLoadTest, TokensStandBetweenCommas) {
  Load("my plot file,orbit.qbv");
  EXPECT_EQ(FILEcOMMANDnAME, "my plot file");
  EXPECT_EQ(CommandFileName, "my plot file,orbit.qbv");
  EXPECT_EQ(CommandFileMode, 1);
}

TEST_F(FormLoadTest, WithoutACommaTokensStandBetweenBlanks) {
  Load("my plot file.qbv");
  EXPECT_EQ(FILEcOMMANDnAME, "my");
  EXPECT_EQ(CommandFileName, "my plot file.qbv");
  EXPECT_EQ(CommandFileMode, 0);
}

TEST_F(FormLoadTest, ANameInQuotesIsOneTokenWithoutThem) {
  Load("\"/tmp/my images,a/p.qbv\"");
  EXPECT_EQ(FILEcOMMANDnAME, "/tmp/my images,a/p.qbv");
  EXPECT_EQ(CommandFileMode, 1);
}

TEST_F(FormLoadTest, TheQuotesDoNotCount) {
  Load("\"a b.qbv\"");
  EXPECT_EQ(FILEcOMMANDnAME, "a b.qbv");
  EXPECT_EQ(CommandFileMode, 0);
}

TEST_F(FormLoadTest, AQuoteThatIsNotClosedGoesToTheEnd) {
  Load("\"/plots/a b.qbv");
  EXPECT_EQ(FILEcOMMANDnAME, "/plots/a b.qbv");
}

TEST_F(FormLoadTest, BlanksAroundTheLineDoNotCountAndAreKept) {
  Load("  abc.qbv  ");
  EXPECT_EQ(FILEcOMMANDnAME, "abc.qbv");
  EXPECT_EQ(CommandFileName, "  abc.qbv  ");
  EXPECT_EQ(CommandFileMode, 0);
}

TEST_F(FormLoadTest, ANameThatIsAlreadyGivenIsKept) {
  CommandFileMode = 1;
  CommandFileName = "a.qbv";
  Load("/other/orbit.qbv");
  EXPECT_EQ(CommandFileMode, 1);
  EXPECT_EQ(CommandFileName, "a.qbv");
  EXPECT_EQ(MenusShown(), std::vector<bool>(5, false));
}

// ---- caption ----------------------------------------------------------------------------------------------

TEST_F(FormLoadTest, TheCaptionFollowsTheYearOfTheClock) {
  Load();
  EXPECT_EQ(frmMain->form.caption.Get(),
            std::string("Quorb  p1        ") + kTagLine + "2026   --2.8 0 6p1-- ");
  desktop.year = 1990;
  Load();
  EXPECT_EQ(frmMain->form.caption.Get(),
            std::string("Quorb  p1        ") + kTagLine + "1990   --2.8 0 6p1-- ");
}

TEST_F(FormLoadTest, AClockAt1989OrBeforeGivesTheShortCaption) {
  for (const int year : {1989, 1970, 0}) {
    desktop.year = year;
    Load();
    EXPECT_EQ(frmMain->form.caption.Get(), std::string("Quorb               ") + kTagLine) << year;
  }
}

// ---- settings ---------------------------------------------------------------------------------------------

TEST_F(FormLoadTest, TheProgramsDirectoryIsStored) {
  Load();
  const auto path = settings.entries.find({"App", "Path"});
  ASSERT_NE(path, settings.entries.end());
  EXPECT_EQ(path->second, "/opt/quorb");
}

TEST_F(FormLoadTest, WithAnEmptyStoreTheOptionsAreTheFactorys) {
  Load();
  EXPECT_EQ(USERFLAGfactory.MoonAmplification, 10);
  EXPECT_EQ(USERFLAGfactory.ColourPlotNominal.green, 255);
  EXPECT_EQ(USERFLAG.MoonAmplification, 10);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
  EXPECT_EQ(frmMain->Text6.text.Get(), "");
  EXPECT_EQ(frmMain->Text7.text.Get(), "earthjpg.jpg");
  EXPECT_EQ(frmMain->Text8.text.Get(), "moonjpg.jpg");
  EXPECT_EQ(frmMain->Text9.text.Get(), "MAX");
  EXPECT_EQ(frmMain->HScroll3.value, 64);
  EXPECT_EQ(frmMain->HScroll10.value, 64);
  EXPECT_EQ(frmMain->Check3.value, 0);
  EXPECT_EQ(frmMain->Check4.value, 0);
}

TEST_F(FormLoadTest, TheFactoryCopyIsTakenBeforeTheStoreIsRead) {
  StoreOptions({{7, "4"}, {26, "200"}});
  Load();
  EXPECT_EQ(USERFLAGfactory.ThicknessLinePlot, 1);
  EXPECT_EQ(USERFLAGfactory.ColourBackground.red, 10);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 4);
}

TEST_F(FormLoadTest, StoredOptionsAreShownOnThePanel) {
  StoreOptions({{5, "1"}, {7, "4"}, {26, "200"}, {29, "1"}, {31, "900"}});
  Load();
  EXPECT_EQ(frmMain->Check1[5].value, 1);
  EXPECT_EQ(frmMain->Text4[0].text.Get(), "4");
  EXPECT_EQ(frmMain->Text5[15].text.Get(), "200");
  EXPECT_EQ(frmMain->Check1[8].value, 0);
  EXPECT_EQ(frmMain->HScroll3.value, 900);
  Command2_Click();
  EXPECT_EQ(USERFLAG.ColourBackground.red, 200);
  EXPECT_EQ(USERFLAG.MoonAmplification, 1);
}

TEST_F(FormLoadTest, TheSingleSettingsReachTheirControls) {
  StoreUse("SetDirBMP", "/images");
  StoreUse("Setstr01.00", "blue.jpg");
  StoreUse("Setstr11.00", "grey.jpg");
  StoreUse("Setstr12.00", "plot");
  StoreUse("Setstr13.00", "640");
  StoreUse("Setstr15.00", "1");
  Load();
  EXPECT_EQ(frmMain->Text6.text.Get(), "/images");
  EXPECT_EQ(frmMain->Text7.text.Get(), "blue.jpg");
  EXPECT_EQ(frmMain->Text8.text.Get(), "grey.jpg");
  EXPECT_EQ(frmMain->Text9.text.Get(), "PLOT");
  EXPECT_EQ(MainKeyword, "PLOT");
  EXPECT_EQ(frmMain->HScroll3.value, 640);
  EXPECT_EQ(frmMain->Check4.value, 1);
  EXPECT_EQ(USERFLAG.SolarPanelToSun, 1);
}

TEST_F(FormLoadTest, AStoredSatelliteIsShownAtTheSizeThatSuitsAPlotOfScale1) {
  StoreUse("Setstr13.00", "640");
  StoreUse("Setstr14.00", "1");
  Load();
  EXPECT_EQ(frmMain->Check3.value, 1);
  // 10 x |6400 / 240 - 1| to the power 2 / 3 is 87.01.
  EXPECT_EQ(frmMain->HScroll3.value, 87);
}

TEST_F(FormLoadTest, SettingsThatTheirControlsRefuseLeaveThem) {
  StoreUse("Setstr13.00", "40000");
  StoreUse("Setstr14.00", "7");
  StoreUse("Setstr15.00", "-1e300");
  Load();
  EXPECT_EQ(frmMain->HScroll3.value, 0);
  EXPECT_EQ(frmMain->Check3.value, 0);
  EXPECT_EQ(frmMain->Check4.value, 0);
}

TEST_F(FormLoadTest, TheTextureNameIsTakenEvenWhenTheTextDidNotChange) {
  StoreUse("Setstr01.00", "Earthgeo.jpg");
  Load();
  const std::string write = "Settings.Write(\"Use\", \"Setstr01.00\", \"Earthgeo.jpg\")";
  EXPECT_EQ(std::count(RecordedCalls().begin(), RecordedCalls().end(), write), 1);
}

TEST_F(FormLoadTest, WhatIsOffIsHidden) {
  Load();
  for (const Control* control : std::initializer_list<const Control*>{&frmMain->HScroll10, &frmMain->Text18,
                                                                      &frmMain->HScroll8, &frmMain->Text16}) {
    EXPECT_FALSE(control->visible);
  }
}

TEST_F(FormLoadTest, AStoredSatelliteShowsItsBar) {
  StoreUse("Setstr14.00", "1");
  Load();
  EXPECT_TRUE(frmMain->HScroll10.visible);
  EXPECT_TRUE(frmMain->Text18.visible);
  EXPECT_FALSE(frmMain->HScroll8.visible);
}

TEST_F(FormLoadTest, AStoreThatCannotBeWrittenIsNotReported) {
  settings.writable = false;
  Load();
  EXPECT_THAT(settings.entries, IsEmpty());
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_EQ(frmMain->Text7.text.Get(), "earthjpg.jpg");
}

// ---- the option Interactive -------------------------------------------------------------------------------

TEST_F(FormLoadTest, AStoredInteractiveIsAskedAbout) {
  StoreOptions({{30, "1"}});
  Load();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].title, "Warning");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxOkCancel);
  EXPECT_EQ(dialogs.boxes[0].prompt,
            "The current setting is Interactive with Excel. \r\n"
            "It is recommanded to save your Excel work now. \r\n"
            "Else click on Cancel to disable the Interactivity.\r\n\r\n"
            "Do you want to continue with the Interactivity with Excel ? ");
  EXPECT_EQ(frmMain->Check1[7].value, 1);
  EXPECT_EQ(USERFLAG.InteractiveExcel, 1);
  EXPECT_TRUE(frmMain->mnuOinteractive.checked);
}

TEST_F(FormLoadTest, CancelTakesInteractiveOffForThisRunAndStoresNothing) {
  StoreOptions({{30, "1"}});
  dialogs.answers = {BoxAnswer::cancel};
  Load();
  EXPECT_EQ(frmMain->Check1[7].value, 0);
  EXPECT_EQ(USERFLAG.InteractiveExcel, 0);
  EXPECT_FALSE(frmMain->mnuOinteractive.checked);
  EXPECT_EQ(StoredUse("Set30.00"), "1");
}

TEST_F(FormLoadTest, WithoutInteractiveNothingIsAsked) {
  StoreOptions({});
  Load();
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

}  // namespace
}  // namespace quorb
