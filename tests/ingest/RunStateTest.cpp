#include "RunState.h"

#include <gtest/gtest.h>

#include "PlotData.h"
#include "UserFlag.h"

namespace quorb {
namespace {

TEST(StartRunState, PutsTheStateOfALoadBack) {
  DEJARESET = DEJADRAW = LoadBusy = FileMode = CommandFileMode = ExcelLinked = WatchStopped = 1;
  ResizeArmed = 0;
  CommandFileName = FILEcOMMANDnAME = LastFormula = MainKeyword = AppDir = ImportDirectory = "old";
  StartRunState();
  EXPECT_EQ(DEJARESET + DEJADRAW + LoadBusy + FileMode + CommandFileMode + ExcelLinked + WatchStopped, 0);
  EXPECT_EQ(ResizeArmed, 1);
  EXPECT_EQ(CommandFileName + FILEcOMMANDnAME + LastFormula + AppDir + ImportDirectory, "");
  EXPECT_EQ(MainKeyword, "MAX");
}

TEST(StartRunState, PutsTheWatchersNotesBack) {
  SeenFormula = SpecTypedText = WatchSheetName = WatchCaption = "old";
  FormulaArmed = SpecTyped = NoWorkbookTold = WatchFaultTold = MaybeExtError = LoadsStarted = 1;
  LastAnswer = BoxAnswer::ok;
  StartRunState();
  EXPECT_EQ(SeenFormula + SpecTypedText + WatchSheetName + WatchCaption, "");
  EXPECT_EQ(FormulaArmed + SpecTyped + NoWorkbookTold + WatchFaultTold + MaybeExtError + LoadsStarted, 0);
  EXPECT_EQ(LastAnswer, BoxAnswer::none);
}

TEST(StartRunState, PutsTheFlagsOfThePlotBack) {
  ISOmode = ColumnMode = PenUpMode = PenUpLabelMode = PenUpLabelShow = ValColour = ValAxis = MoonFocus = 1;
  FocusBody = EMSystem = QuaterScalarLast = FlagOptionToPlot = 1;
  EMDistance = 384e6;
  InputInKm = true;
  StartRunState();
  EXPECT_EQ(ISOmode + ColumnMode + PenUpMode + PenUpLabelMode + PenUpLabelShow, 0);
  EXPECT_EQ(ValColour + ValAxis + MoonFocus + EMSystem + QuaterScalarLast + FlagOptionToPlot, 0);
  EXPECT_EQ(FocusBody, 4);
  EXPECT_EQ(EMDistance, 0);
  EXPECT_FALSE(InputInKm);
}

TEST(StartRunState, PutsTheCountersAndTheTitleBackAndKeepsTheRows) {
  dataXYZT.Set(3, 1, 17);
  LastPoint = NbEvents = 3;
  NbQuater = NbSApY = NbSAmY = NbValZ = 3;
  ValZMax = ValZMin = TimeMax = TimeMin = 3;
  FactorScale = 0.01;
  MessageUserToPlot = "old";
  StartRunState();
  EXPECT_EQ(LastPoint + NbEvents, 0);
  EXPECT_EQ(NbQuater + NbSApY + NbSAmY + NbValZ, 0);
  EXPECT_EQ(ValZMax + ValZMin + TimeMax + TimeMin, 0);
  EXPECT_EQ(FactorScale, 1.0);
  EXPECT_EQ(MessageUserToPlot, "");
  EXPECT_EQ(dataXYZT[3][1], 17);
  dataXYZT.Set(3, 1, 0);
}

TEST(StartRunState, PutsTheProgramAndTheOptionsBack) {
  StartFlag = MoonSwitch = LocalFollow = 1;
  VersionDigits = "002008006";
  USERFLAG.CubicView = USERFLAGfactory.CubicView = USERFLAGsaved.CubicView = 2;
  USERFLAG.ThicknessLinePlot = 5;
  StartRunState();
  EXPECT_EQ(StartFlag + MoonSwitch + LocalFollow, 0);
  EXPECT_EQ(VersionDigits, "");
  EXPECT_EQ(USERFLAG.CubicView + USERFLAGfactory.CubicView + USERFLAGsaved.CubicView, 0);
  EXPECT_EQ(USERFLAG.ThicknessLinePlot, 1);
}

}  // namespace
}  // namespace quorb
