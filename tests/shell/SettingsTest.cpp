#include "Settings.h"

#include <array>

#include "FixedRegion.h"
#include "NumberText.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

/// The slots of the factory values, and 0 behind them.
std::array<std::string, kOptionSlots> FactorySlots() {
  const char* const head[] = {"0",   "0",  "0",  "0",   "0",   "0",   "0",   "1",  "1",   "1",
                              "1",   "40", "80", "120", "128", "128", "128", "0",  "255", "0",
                              "255", "0",  "0",  "50",  "100", "150", "10",  "20", "70",  "10",
                              "0",   "0",  "0",  "0",   "0",   "0",   "0",   "0"};
  std::array<std::string, kOptionSlots> slots;
  slots.fill("0");
  std::copy(std::begin(head), std::end(head), slots.begin());
  return slots;
}

class SettingsTest : public WindowFixture {
 protected:
  SettingsTest() : window(Create()) {}

  /// Reads the stored slots; what comes back tells whether any was stored.
  static int LoadSlots() {
    int noneStored = 0;
    OptionsLoadSave(0, noneStored);
    return noneStored;
  }

  static void SaveSlots() {
    int noneStored = 0;
    OptionsLoadSave(1, noneStored);
  }

  MainWindow& window;
};

// ---- keys -------------------------------------------------------------------------------------------------

TEST_F(SettingsTest, TheSixSingleKeysAreTheNumber1ThroughSixPictures) {
  EXPECT_EQ(SingleSettingKey(0), "Setstr01.00");
  EXPECT_EQ(SingleSettingKey(1), "Setstr11.00");
  EXPECT_EQ(SingleSettingKey(2), "Setstr12.00");
  EXPECT_EQ(SingleSettingKey(3), "Setstr13.00");
  EXPECT_EQ(SingleSettingKey(4), "Setstr14.00");
  EXPECT_EQ(SingleSettingKey(5), "Setstr15.00");
}

TEST_F(SettingsTest, TheSlotKeysRunFrom0To100) {
  EXPECT_EQ(SlotKey(0), "Set00.00");
  EXPECT_EQ(SlotKey(1), "Set01.00");
  EXPECT_EQ(SlotKey(37), "Set37.00");
  EXPECT_EQ(SlotKey(100), "Set100.00");
}

// ---- OptionsRead ------------------------------------------------------------------------------------------

TEST_F(SettingsTest, TheDesignedPanelGivesTheFactoryValues) {
  for (const std::string_view name : FieldNames()) {
    for (double* number : FieldNumbers(USERFLAG, name))
      *number = 77;
  }
  OptionsRead();
  UserFlagRecord factory;
  int differing = 0;
  for (const std::string_view name : FieldNames()) {
    const std::vector<double*> read = FieldNumbers(USERFLAG, name);
    const std::vector<double*> wanted = FieldNumbers(factory, name);
    if (*read[0] == 77) continue;  // a field without a control of the panel
    for (std::size_t i = 0; i < read.size(); ++i) {
      if (*read[i] != *wanted[i]) ++differing;
    }
  }
  EXPECT_EQ(differing, 0);
  EXPECT_EQ(USERFLAG.MoonAmplification, 10);
  EXPECT_EQ(USERFLAG.ColourBackground.blue, 70);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
  EXPECT_EQ(USERFLAG.TimeInData, 77);
}

TEST_F(SettingsTest, EachControlReachesItsField) {
  for (const std::size_t i : {0U, 2U, 4U, 6U, 7U})
    window.Check1[i].value.Design(1);
  window.Check1[8].value.Design(0);
  window.Check1[9].value.Design(1);
  window.Check1[10].value.Design(1);
  window.Text4[0].text.Design("2");
  window.Text4[1].text.Design("3.5");
  window.Text4[2].text.Design("4");
  window.Text4[3].text.Design("0,25");
  for (std::size_t i = 0; i < 18; ++i)
    window.Text5[i].text.Design(std::to_string(i + 1));
  window.HScroll3.value.Design(640);
  window.Check3.value.Design(1);
  window.Check4.value.Design(1);
  window.Check9.value.Design(2);
  window.Check10.value.Design(1);
  OptionsRead();
  const UserFlagRecord& u = USERFLAG;
  EXPECT_THAT((std::array{u.NoPlotEarth, u.NoColourAxisX, u.LargeCharacters, u.NoPlotAxis, u.NoLogoLabel,
                          u.NoOriginLabel, u.NoTimeMoving}),
              ElementsAre(1, 0, 1, 0, 1, 0, 1));
  EXPECT_THAT((std::array{u.ThicknessLinePlot, u.LengthAxisFactor, u.ThicknessLineAxis, u.PositionFactor}),
              ElementsAre(2, 3.5, 4, 0.25));
  EXPECT_THAT((std::array{u.ColourAxisLabels.red, u.ColourAxisLabels.blue, u.ColourAxis.red,
                          u.ColourPlotNominal.green, u.ColourPlotEvents.red, u.ColourSphere.blue,
                          u.ColourBackground.red, u.ColourBackground.blue}),
              ElementsAre(1, 3, 4, 8, 10, 15, 16, 18));
  EXPECT_EQ(u.MoonAmplification, 1);
  EXPECT_EQ(u.InteractiveExcel, 1);
  EXPECT_EQ(u.SatelliteSize, 640);
  EXPECT_EQ(u.ShowSatellite, 1);
  EXPECT_EQ(u.SolarPanelToSun, 1);
  EXPECT_EQ(u.NoSunRay, 1);
  EXPECT_EQ(u.EMView, 1);
  EXPECT_EQ(u.CubicView, 2);
  EXPECT_EQ(u.InMetres, 1);
}

TEST_F(SettingsTest, AColourOutsideItsRangeIsClampedInItsBoxToo) {
  window.Text5[0].text = "300";
  window.Text5[1].text = "-5";
  window.Text5[2].text = "255";
  OptionsRead();
  EXPECT_EQ(USERFLAG.ColourAxisLabels.red, 255);
  EXPECT_EQ(USERFLAG.ColourAxisLabels.green, 0);
  EXPECT_EQ(USERFLAG.ColourAxisLabels.blue, 255);
  EXPECT_EQ(window.Text5[0].text.Get(), "255");
  EXPECT_EQ(window.Text5[1].text.Get(), "0");
}

TEST_F(SettingsTest, ATextThatIsNoNumberReadsAs0AndStays) {
  window.Text5[0].text = "red";
  window.Text4[0].text.Design("wide");
  OptionsRead();
  EXPECT_EQ(USERFLAG.ColourAxisLabels.red, 0);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 0);
  EXPECT_EQ(window.Text5[0].text.Get(), "red");
}

TEST_F(SettingsTest, TheMenuShowsWhetherInteractiveIsChecked) {
  window.Check1[7].value.Design(1);
  OptionsRead();
  EXPECT_TRUE(window.mnuOinteractive.checked);
  window.Check1[7].value.Design(0);
  OptionsRead();
  EXPECT_FALSE(window.mnuOinteractive.checked);
}

// ---- OptionsPack ------------------------------------------------------------------------------------------

TEST_F(SettingsTest, PackingPutsTheFieldsIntoTheirSlots) {
  OptionsPack(1);
  EXPECT_EQ(OptionSlots, FactorySlots());
}

TEST_F(SettingsTest, PackingLeavesSlots38To100At0) {
  OptionSlots.fill("9");
  USERFLAG.SatelliteShape = 3;
  USERFLAG.CubicView = 2;
  OptionsPack(1);
  EXPECT_EQ(OptionSlots[36], "3");
  EXPECT_EQ(OptionSlots[37], "2");
  EXPECT_EQ(OptionSlots[38], "0");
  EXPECT_EQ(OptionSlots[100], "0");
}

TEST_F(SettingsTest, PackingWritesPlainDecimalText) {
  USERFLAG.LengthAxisFactor = 0.25;
  USERFLAG.NoSunRay = 2.01;
  OptionsPack(1);
  EXPECT_EQ(OptionSlots[8], "0.25");
  EXPECT_EQ(OptionSlots[34], "2.01");
}

TEST_F(SettingsTest, UnpackingTakesEachSlotIntoItsField) {
  for (std::size_t slot = 0; slot < 38; ++slot)
    OptionSlots[slot] = std::to_string(slot + 1);
  OptionsPack(0);
  const UserFlagRecord& u = USERFLAG;
  EXPECT_THAT((std::array{u.NoPlotEarth, u.NoTimeMoving, u.ThicknessLinePlot, u.PositionFactor}),
              ElementsAre(1, 7, 8, 11));
  EXPECT_THAT(
      (std::array{u.ColourAxisLabels.red, u.ColourAxis.red, u.ColourPlotNominal.red, u.ColourPlotEvents.red,
                  u.ColourSphere.red, u.ColourBackground.red, u.ColourBackground.blue}),
      ElementsAre(12, 15, 18, 21, 24, 27, 29));
  EXPECT_THAT((std::array{u.MoonAmplification, u.InteractiveExcel, u.SatelliteSize, u.ShowSatellite,
                          u.SolarPanelToSun, u.NoSunRay, u.EMView, u.SatelliteShape}),
              ElementsAre(30, 31, 32, 33, 34, 35, 36, 37));
}

TEST_F(SettingsTest, UnpackingClampsTheColoursOnly) {
  OptionSlots = FactorySlots();
  OptionSlots[10] = "400";
  OptionSlots[11] = "300";
  OptionSlots[28] = "-1";
  OptionSlots[31] = "32001";
  OptionsPack(0);
  EXPECT_EQ(USERFLAG.PositionFactor, 400);
  EXPECT_EQ(USERFLAG.ColourAxisLabels.red, 255);
  EXPECT_EQ(USERFLAG.ColourBackground.blue, 0);
  EXPECT_EQ(USERFLAG.SatelliteSize, 32001);
  EXPECT_EQ(OptionSlots[11], "255");
  EXPECT_EQ(OptionSlots[28], "0");
}

TEST_F(SettingsTest, UnpackingWritesTheSlotOfTheCubicViewAndDoesNotReadIt) {
  OptionSlots = FactorySlots();
  OptionSlots[37] = "1";
  USERFLAG.CubicView = 2;
  OptionsPack(0);
  EXPECT_EQ(USERFLAG.CubicView, 2);
  EXPECT_EQ(OptionSlots[37], "2");
}

// ---- OptionsLoadSave --------------------------------------------------------------------------------------

TEST_F(SettingsTest, SavingWritesThe101SlotsAndNothingElse) {
  SaveSlots();
  EXPECT_EQ(settings.entries.size(), 101U);
  EXPECT_EQ(StoredUse("Set00.00"), "0");
  EXPECT_EQ(StoredUse("Set13.00"), "120");
  EXPECT_EQ(StoredUse("Set29.00"), "10");
  EXPECT_EQ(StoredUse("Set100.00"), "0");
}

TEST_F(SettingsTest, AnEmptyStoreTellsSoAndLeavesTheOptions) {
  USERFLAG.ThicknessLinePlot = 3;
  EXPECT_EQ(LoadSlots(), -1);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 3);
}

TEST_F(SettingsTest, AStoreWhoseSlotsAllHold0CountsAsEmpty) {
  for (int slot = 0; slot <= 100; ++slot)
    StoreUse(SlotKey(slot), "0");
  EXPECT_EQ(LoadSlots(), -1);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
  EXPECT_EQ(USERFLAG.ColourPlotNominal.green, 255);
}

TEST_F(SettingsTest, SlotsWhoseSumIs0CountAsEmpty) {
  StoreUse("Set07.00", "4");
  StoreUse("Set08.00", "-4");
  EXPECT_EQ(LoadSlots(), -1);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
}

TEST_F(SettingsTest, OneSlotThatIsNot0IsEnough) {
  StoreUse("Set100.00", "1");
  EXPECT_EQ(LoadSlots(), 0);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 0);
}

TEST_F(SettingsTest, WhatWasSavedComesBack) {
  USERFLAG.LengthAxisFactor = 2.5;
  USERFLAG.ColourSphere = {1, 2, 3};
  USERFLAG.SatelliteShape = 4;
  SaveSlots();
  USERFLAG = UserFlagRecord();
  EXPECT_EQ(LoadSlots(), 0);
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 2.5);
  EXPECT_EQ(USERFLAG.ColourSphere.green, 2);
  EXPECT_EQ(USERFLAG.SatelliteShape, 4);
}

TEST_F(SettingsTest, AColourOf300InTheStoreComesBackAs255) {
  SaveSlots();
  StoreUse("Set26.00", "300");
  LoadSlots();
  EXPECT_EQ(USERFLAG.ColourBackground.red, 255);
}

TEST_F(SettingsTest, AColourOfMinus5InTheStoreComesBackAs0) {
  StoreUse("Set00.00", "1");
  StoreUse("Set12.00", "-5");
  int noneStored = 0;
  OptionsLoadSave(0, noneStored);
  EXPECT_EQ(USERFLAG.ColourAxisLabels.green, 0);
  EXPECT_EQ(OptionSlots[12], "0");
}

TEST_F(SettingsTest, AStoredTextThatIsNoNumberReadsAs0) {
  SaveSlots();
  StoreUse("Set07.00", "wide");
  LoadSlots();
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 0);
  EXPECT_EQ(USERFLAG.ThicknessLineAxis, 1);
}

TEST_F(SettingsTest, AStoreThatCannotBeWrittenIsNotReported) {
  settings.writable = false;
  SaveSlots();
  EXPECT_THAT(settings.entries, IsEmpty());
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

// ---- OptionAffecteUser ------------------------------------------------------------------------------------

TEST_F(SettingsTest, TheViewOfTheEarthMoonSystemIsNotThePanelsToTakeAway) {
  EMSystem = 1;
  OptionsRead();
  EXPECT_EQ(USERFLAG.EMView, 1);
  EMSystem = 0;
  OptionsRead();
  EXPECT_EQ(USERFLAG.EMView, 0);
}

TEST_F(SettingsTest, SlotsThatAreAll0LeaveThePanel) {
  OptionSlots.fill("0");
  OptionAffecteUser();
  EXPECT_EQ(window.Text4[0].text.Get(), "1");
  EXPECT_EQ(window.Check1[8].value, 1);
}

TEST_F(SettingsTest, ThePanelTakesItsSlotsInTheirOrder) {
  std::vector<std::string> order;
  const auto note = [&order](const std::string& name) { return [&order, name] { order.push_back(name); }; };
  std::vector<std::string> expected;
  for (const int i : {0, 1, 2, 3, 4, 5, 6})
    expected.push_back("Check1 " + std::to_string(i));
  for (const int i : {0, 1, 2, 3})
    expected.push_back("Text4 " + std::to_string(i));
  for (int i = 0; i < 18; ++i)
    expected.push_back("Text5 " + std::to_string(i));
  for (const char* name : {"Check1 8", "Check1 7", "HScroll3", "Check3", "Check4", "Check1 9", "Check1 10"}) {
    expected.push_back(name);
  }
  for (std::size_t i = 0; i < 11; ++i)
    window.Check1[i].value.changed = note("Check1 " + std::to_string(i));
  for (std::size_t i = 0; i < 4; ++i)
    window.Text4[i].text.changed = note("Text4 " + std::to_string(i));
  for (std::size_t i = 0; i < 18; ++i)
    window.Text5[i].text.changed = note("Text5 " + std::to_string(i));
  window.HScroll3.value.changed = note("HScroll3");
  window.Check3.value.changed = note("Check3");
  window.Check4.value.changed = note("Check4");
  window.Check9.value.changed = note("Check9");
  OptionSlots.fill("1");
  for (std::size_t slot = 7; slot <= 28; ++slot)
    OptionSlots[slot] = "2";
  OptionAffecteUser();
  EXPECT_EQ(order, expected);
  EXPECT_EQ(window.Text5[17].text.Get(), "2");
  EXPECT_EQ(window.Check1[8].value, 0);
  EXPECT_EQ(window.HScroll3.value, 1);
  EXPECT_EQ(window.Check1[10].value, 1);
  EXPECT_EQ(window.Check9.value, 0);
  EXPECT_TRUE(window.mnuOinteractive.checked);
}

TEST_F(SettingsTest, TheMoonFactorIsTurnedBackIntoItsCheck) {
  OptionSlots = FactorySlots();
  // Int((5 - 1) / 9 + 0.5) is Int(0.94), Int((6 - 1) / 9 + 0.5) is Int(1.06).
  const std::pair<const char*, int> checks[] = {{"1", 0}, {"10", 1}, {"5", 0}, {"6", 1}};
  for (const auto& [factor, check] : checks) {
    OptionSlots[29] = factor;
    OptionAffecteUser();
    EXPECT_EQ(window.Check1[8].value, check) << factor;
  }
}

TEST_F(SettingsTest, ASlotThatItsControlRefusesLeavesIt) {
  OptionSlots = FactorySlots();
  OptionSlots[0] = "1e300";
  OptionSlots[31] = "32001";
  OptionAffecteUser();
  EXPECT_EQ(window.Check1[0].value, 0);
  EXPECT_EQ(window.HScroll3.value, 0);
}

// ---- over two runs ----------------------------------------------------------------------------------------

TEST_F(SettingsTest, ACubicViewThatIsSavedComesBackAtItsDesignedState) {
  window.Check9.value = 1;
  Command1_Click();
  EXPECT_EQ(StoredUse("Set37.00"), "1");
  StartRunState();
  Load();
  EXPECT_EQ(USERFLAG.CubicView, 0);
  EXPECT_EQ(frmMain->Check9.value, 0);
  EXPECT_EQ(OptionSlots[37], "0");
}

TEST_F(SettingsTest, ASavedLineWidthIsThereAtTheNextStart) {
  window.Text4[0].text = "4";
  Command1_Click();
  StartRunState();
  Load();
  EXPECT_EQ(frmMain->Text4[0].text.Get(), "4");
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 4);
  EXPECT_EQ(USERFLAGfactory.ThicknessLinePlot, 1);
}

TEST_F(SettingsTest, AFractionThatIsSavedComesBackOnAMachineThatHasThePointAsThousandsMark) {
  const FixedRegion region(",", ".");
  window.Text4[3].text = "0,5";
  EXPECT_EQ(USERFLAG.PositionFactor, 0.5);
  Command1_Click();
  StartRunState();
  Load();
  EXPECT_EQ(USERFLAG.PositionFactor, 0.5);
  EXPECT_EQ(frmMain->Text4[3].text.Get(), "0,5");
}

TEST_F(SettingsTest, TheCubicRangeOfAnActivationIsTheSameOnSuchAMachine) {
  const FixedRegion region(",", ".");
  StartRunState();
  Load();
  Form_Activate();
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 1.75);
  EXPECT_EQ(frmMain->HScroll8.value, 1750);
  frmMain->HScroll8.value = 2500;
  EXPECT_EQ(USERFLAG.LengthAxisFactor, 2.5);
}

}  // namespace
}  // namespace quorb
