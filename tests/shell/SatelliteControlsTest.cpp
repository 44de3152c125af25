#include "SatelliteControls.h"

#include <limits>

#include "BodyTextures.h"
#include "SatelliteShape.h"
#include "Thrusters.h"
#include "WindowFixture.h"

namespace quorb {
namespace {

class SatelliteControlsTest : public WindowFixture {
 protected:
  SatelliteControlsTest() { Forget(); }
  ~SatelliteControlsTest() override { Forget(); }

  static void Forget() {
    ChooseShape(0);
    ShowSatAxes = 1;
    ThrusterTable = {};
    EarthTextureName = "earthjpg.jpg";
    MoonTextureName = "moonjpg.jpg";
    NbQuater = 0;
  }

  static std::vector<double> ShapeNumbers() {
    return {ShapeZLength, ShapeArrays, ThrustAxisX, ThrustAxisY, ThrustAxisZ, USERFLAG.SatelliteShape};
  }

  static std::string Numbers(int count) {
    std::string text;
    for (int i = 1; i <= count; ++i)
      text += std::to_string(i) + " ";
    return text;
  }

  /// The box of the thrusters is opened, filled and closed by its check box.
  void TypeThrusters(const std::string& text) {
    Load();
    frmMain->Check8.value = 1;
    frmMain->Text13.text = text;
    frmMain->Check8.value = 0;
  }

  void ExpectWrongCount(const std::string& prompt) {
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].prompt, prompt);
    EXPECT_EQ(dialogs.boxes[0].title, "Error");
    EXPECT_EQ(dialogs.boxes[0].style, kBoxStopIcon);
    EXPECT_TRUE(frmMain->Text13.visible) << "the text stays open";
    EXPECT_EQ(ThrusterTable[0][0], 0) << "nothing is stored";
  }
};

// ---- the list of shapes -----------------------------------------------------------------------------------

TEST_F(SatelliteControlsTest, TheListHoldsTheSevenShapesInTheirOrder) {
  Create();
  int count = 0;
  Combo2_InitList(count);
  EXPECT_EQ(count, 7);
  EXPECT_THAT(frmMain->Combo2.items.Get(), ElementsAre("GEO satcom", "LEO Spot", "Launcher", "CubeSat",
                                                       "CubeSat3U", "Smart1", "CubeSat3U5"));
  EXPECT_EQ(frmMain->Combo2.text.Get(), "GEO satcom");
}

TEST_F(SatelliteControlsTest, TheListIsFilledAnewAndDoesNotGrow) {
  Create();
  int count = 0;
  Combo2_InitList(count);
  Combo2_InitList(count);
  EXPECT_EQ(count, 7);
  EXPECT_EQ(frmMain->Combo2.items.Get().size(), 7U);
}

TEST_F(SatelliteControlsTest, TheShapeOfTheOptionsIsSelected) {
  Create();
  USERFLAG.SatelliteShape = 2;
  int count = 0;
  Combo2_InitList(count);
  EXPECT_EQ(frmMain->Combo2.text.Get(), "Launcher");
  EXPECT_THAT(ShapeNumbers(), ElementsAre(10, 0, 0, 0, -1, 2));
}

TEST_F(SatelliteControlsTest, ANumberThatIsNoShapeSelectsNone) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const double wrong : {-1.0, 7.0, 6.6, 1e300, -1e300, nan, HUGE_VAL}) {
    Create();
    ChooseShape(1);
    frmMain->Combo2.text.Design("LEO Spot");
    USERFLAG.SatelliteShape = wrong;
    int count = 0;
    Combo2_InitList(count);
    EXPECT_EQ(count, 7);
    EXPECT_EQ(frmMain->Combo2.text.Get(), "LEO Spot");
    EXPECT_EQ(ShapeZLength, 1.5);
  }
}

TEST_F(SatelliteControlsTest, ANumberBetweenTwoShapesIsTheNearestOne) {
  Create();
  USERFLAG.SatelliteShape = 1.6;
  int count = 0;
  Combo2_InitList(count);
  EXPECT_EQ(frmMain->Combo2.text.Get(), "Launcher");
  EXPECT_EQ(USERFLAG.SatelliteShape, 2);
}

// ---- the choice of a shape --------------------------------------------------------------------------------

TEST_F(SatelliteControlsTest, EachNameOfTheListSetsItsNumbers) {
  Load();
  frmMain->Combo2.text = "LEO Spot";
  EXPECT_THAT(ShapeNumbers(), ElementsAre(1.5, 1, -1, 0, 0, 1));
  frmMain->Combo2.text = "Launcher";
  EXPECT_THAT(ShapeNumbers(), ElementsAre(10, 0, 0, 0, -1, 2));
  frmMain->Combo2.text = "CubeSat";
  EXPECT_THAT(ShapeNumbers(), ElementsAre(1, 0, 0, 0, 1, 3));
  frmMain->Combo2.text = "CubeSat3U";
  EXPECT_THAT(ShapeNumbers(), ElementsAre(3, 0, 0, 0, 1, 4));
  frmMain->Combo2.text = "Smart1";
  EXPECT_THAT(ShapeNumbers(), ElementsAre(1, 2, 0, 0, 1, 5));
  frmMain->Combo2.text = "CubeSat3U5";
  EXPECT_THAT(ShapeNumbers(), ElementsAre(3, 1, 0, 0, 1, 6));
  frmMain->Combo2.text = "GEO satcom";
  EXPECT_THAT(ShapeNumbers(), ElementsAre(2, 2, 0, 0, 1, 0));
}

TEST_F(SatelliteControlsTest, ATextThatIsNoShapeChangesNothing) {
  Load();
  frmMain->Combo2.text = "Smart1";
  for (const char* text : {"", "smart1", "Smart1 ", "Saucer"}) {
    frmMain->Combo2.text = text;
    EXPECT_THAT(ShapeNumbers(), ElementsAre(1, 2, 0, 0, 1, 5)) << text;
  }
}

TEST_F(SatelliteControlsTest, TheShapeThatWasSavedComesBackAtTheNextStart) {
  Load();
  frmMain->Combo2.text = "CubeSat3U5";
  Command1_Click();
  Forget();
  USERFLAG = UserFlagRecord{};
  Load();
  EXPECT_EQ(frmMain->Combo2.text.Get(), "CubeSat3U5");
  EXPECT_THAT(ShapeNumbers(), ElementsAre(3, 1, 0, 0, 1, 6));
}

TEST_F(SatelliteControlsTest, ReadingAndClosingThePanelKeepsTheShape) {
  Load();
  frmMain->Combo2.text = "Launcher";
  Command2_Click();
  EXPECT_THAT(ShapeNumbers(), ElementsAre(10, 0, 0, 0, -1, 2));
}

TEST_F(SatelliteControlsTest, FactorySettingsBringTheFirstShapeBack) {
  Load();
  frmMain->Combo2.text = "Launcher";
  Command3_Click();
  EXPECT_EQ(frmMain->Combo2.text.Get(), "GEO satcom");
  EXPECT_THAT(ShapeNumbers(), ElementsAre(2, 2, 0, 0, 1, 0));
}

// ---- the local axes ---------------------------------------------------------------------------------------

TEST_F(SatelliteControlsTest, TheAxesFollowTheirCheckBox) {
  Load();
  EXPECT_EQ(frmMain->Check6.value, 1);
  EXPECT_EQ(ShowSatAxes, 1);
  frmMain->Check6.value = 0;
  EXPECT_EQ(ShowSatAxes, 0);
  frmMain->Check6.value = 1;
  EXPECT_EQ(ShowSatAxes, 1);
}

TEST_F(SatelliteControlsTest, SwitchingTheSatelliteTakesTheAxesOfTheCheckBox) {
  Load();
  frmMain->Check6.value = 0;
  ShowSatAxes = 7;
  frmMain->Check3.value = 1;
  EXPECT_EQ(ShowSatAxes, 0);
  ShowSatAxes = 7;
  frmMain->Check3.value = 0;
  EXPECT_EQ(ShowSatAxes, 0);
}

// ---- the thrusters ----------------------------------------------------------------------------------------

TEST_F(SatelliteControlsTest, TheTextOfTheThrustersOpensWithItsBox) {
  Load();
  EXPECT_FALSE(frmMain->Text13.visible);
  frmMain->Check8.value = 1;
  EXPECT_TRUE(frmMain->Text13.visible);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(SatelliteControlsTest, AGoodTextIsStoredAndCloses) {
  TypeThrusters("{1, 2, 3};\r\n{0, 0, 1}");
  EXPECT_FALSE(frmMain->Text13.visible);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_EQ(ThrusterTable[0], (std::array<double, 4>{6, 0, 0, 0}));
  EXPECT_EQ(ThrusterTable[1], (std::array<double, 4>{0, 1, 2, 3}));
  EXPECT_EQ(ThrusterTable[2], (std::array<double, 4>{0, 0, 0, 1}));
}

TEST_F(SatelliteControlsTest, SevenNumbersGiveTheMessage) {
  TypeThrusters(Numbers(7));
  ExpectWrongCount(" Wrong data count. Number of thruster =1  but number data = 7  which should be 6n=6");
}

TEST_F(SatelliteControlsTest, OfThreeHundredAndOneNumbersThreeHundredAreRead) {
  TypeThrusters(Numbers(301));
  EXPECT_FALSE(frmMain->Text13.visible);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
  EXPECT_EQ(ThrusterTable[0][0], 300);
  EXPECT_EQ(ThrusterTable[25], (std::array<double, 4>{0, 73, 74, 75}));
}

TEST_F(SatelliteControlsTest, LettersCountAsNumbersOfTheValue0) {
  TypeThrusters("a b c d e f");
  EXPECT_FALSE(frmMain->Text13.visible);
  EXPECT_EQ(ThrusterTable[0], (std::array<double, 4>{6, 0, 0, 0}));
  EXPECT_EQ(ThrusterTable[2], (std::array<double, 4>{0, 0, 0, 0}));
}

TEST_F(SatelliteControlsTest, ASentenceGivesTheMessage) {
  TypeThrusters("no thrusters here today");
  ExpectWrongCount(" Wrong data count. Number of thruster =1  but number data = 4  which should be 6n=6");
}

TEST_F(SatelliteControlsTest, AfterAWrongCountTheTextCanBePutRight) {
  TypeThrusters(Numbers(7));
  frmMain->Check8.value = 1;
  EXPECT_TRUE(frmMain->Text13.visible);
  frmMain->Text13.text = Numbers(12);
  frmMain->Check8.value = 0;
  EXPECT_FALSE(frmMain->Text13.visible);
  EXPECT_EQ(ThrusterTable[0][0], 12);
}

TEST_F(SatelliteControlsTest, AnEmptyTextStandsForNoThrusters) {
  TypeThrusters("");
  EXPECT_FALSE(frmMain->Text13.visible);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

// ---- the pictures -----------------------------------------------------------------------------------------

TEST_F(SatelliteControlsTest, TheNamesOfThePicturesFollowTheirTexts) {
  Load();
  EXPECT_EQ(EarthTextureName, "earthjpg.jpg");
  EXPECT_EQ(MoonTextureName, "moonjpg.jpg");
  frmMain->Text7.text = "blue.jpg";
  frmMain->Text8.text = "grey.jpg";
  EXPECT_EQ(EarthTextureName, "blue.jpg");
  EXPECT_EQ(MoonTextureName, "grey.jpg");
  EXPECT_EQ(StoredUse("Setstr01.00"), "blue.jpg");
  EXPECT_EQ(StoredUse("Setstr11.00"), "grey.jpg");
}

TEST_F(SatelliteControlsTest, StoredNamesOfPicturesComeBack) {
  StoreUse("Setstr01.00", "blue.jpg");
  StoreUse("Setstr11.00", "grey.jpg");
  Load();
  EXPECT_EQ(EarthTextureName, "blue.jpg");
  EXPECT_EQ(MoonTextureName, "grey.jpg");
}

TEST_F(SatelliteControlsTest, StoredNamesThatAreThoseOfTheDesignCountToo) {
  StoreUse("Setstr01.00", "Earthgeo.jpg");
  StoreUse("Setstr11.00", "Moonjpg.jpg");
  Load();
  EXPECT_EQ(EarthTextureName, "Earthgeo.jpg");
  EXPECT_EQ(MoonTextureName, "Moonjpg.jpg");
}

TEST_F(SatelliteControlsTest, PicturesAreSoughtBesideTheProgramAndTheLogTellsThoseThatDoNotLoad) {
  Load();
  EXPECT_EQ(TextureDirectory, "/opt/quorb");
  ASSERT_TRUE(TextureLog);
  TextureLog("No file /opt/quorb/earthjpg.jpg");
  EXPECT_THAT(frmMain->Text20.text.Get(), testing::HasSubstr("No file /opt/quorb/earthjpg.jpg"));
}

// ---- the unit of length -----------------------------------------------------------------------------------

// With attitudes the model's size is 6378 x 3 x (size + 1) / 32000 x 2 times the scale; the axes are Range
// long.
TEST_F(SatelliteControlsTest, TheUnitOfLengthIsShownWhileTheModelWouldFillThePlot) {
  Load();
  dataXYZT.Set(0, 1, 100);
  NbQuater = 1;
  DEJADRAW = DEJARESET = 1;
  FactorScale = 1;
  TheScene->Range = 100;
  USERFLAG.ShowSatellite = USERFLAG.LengthAxisFactor = 1;
  USERFLAG.SatelliteSize = 166;  // 199.7 against 2 x 100
  TheScene->Draw();
  EXPECT_FALSE(frmMain->Text15.visible);
  USERFLAG.SatelliteSize = 167;  // 200.9
  TheScene->Draw();
  EXPECT_TRUE(frmMain->Text15.visible);
  USERFLAG.SatelliteSize = 0;
  TheScene->Draw();
  EXPECT_FALSE(frmMain->Text15.visible);
}

// ---- design -----------------------------------------------------------------------------------------------

TEST_F(SatelliteControlsTest, TheControlsAreDesignedWithTheirTextsAndTips) {
  const MainWindow designed;
  EXPECT_EQ(designed.Check6.caption, "Sat. Axis");
  EXPECT_EQ(designed.Check6.toolTip.Get(),
            "Shows the local satellite axis Xsat Red,  Ysat  Green and  Zsat Blue");
  EXPECT_FALSE(designed.Check6.visible);
  EXPECT_EQ(designed.Check8.caption, "thrusters");
  EXPECT_EQ(designed.Check8.toolTip.Get(),
            "Thrusters location x y z (n times)  and orientation x y z  (n times)");
  EXPECT_EQ(designed.Combo2.text.Get(), "GEO satcom");
  EXPECT_EQ(designed.Combo2.toolTip.Get(),
            "Select the shape of Satellite or Launcher with the number of solar arrays, etc.");
  EXPECT_EQ(designed.Text15.text.Get(), "km");
  EXPECT_FALSE(designed.Text13.visible);
  EXPECT_EQ(designed.Text7.text.Get(), "Earthgeo.jpg");
  EXPECT_EQ(designed.Text8.text.Get(), "Moonjpg.jpg");
}

}  // namespace
}  // namespace quorb
