#include "OptionPanel.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "BodyTextures.h"
#include "Desktop.h"
#include "Mth.h"
#include "NumberPicture.h"
#include "NumberText.h"
#include "OptionBar.h"
#include "PlotData.h"
#include "RunState.h"
#include "SatelliteControls.h"
#include "Settings.h"
#include "SettingsStore.h"
#include "TextHelpers.h"
#include "ToolbarCommand.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kEarthIndex = 0;
constexpr int kInteractiveIndex = 7;
constexpr int kSunRayIndex = 9;
constexpr std::size_t kAxisLengthLabel = 1;
constexpr std::size_t kSatelliteLabel = 12;

void StoreSingle(int rank, const std::string& value) {
  CurrentSettings().Write(kSectionUse, SingleSettingKey(rank), value);
}

void ClickInteractive() {
  MainWindow& window = *frmMain;
  USERFLAG.InteractiveExcel = window.Check1[kInteractiveIndex].value;
  const bool on = window.Check1[kInteractiveIndex].value == 1;
  window.mnuOinteractive.checked = on;
  if (on) {
    window.mnuOinteractive.enabled = true;
    window.mnuOptions.enabled = true;
  }
}

// The ray's length grows by 2 with each click that clears the box, and starts anew behind 3.
void ClickSunRay() {
  MainWindow& window = *frmMain;
  if (window.Check1[kSunRayIndex].value == 1) {
    USERFLAG.NoSunRay = 1;
  } else {
    window.sunRayLength += 2;
    USERFLAG.NoSunRay = window.sunRayLength;
  }
  if (USERFLAG.NoSunRay > 3) USERFLAG.NoSunRay = window.sunRayLength = 0.01;
}

void ShowSatelliteControls(bool on) {
  frmMain->Label1[kSatelliteLabel].visible = on;
  frmMain->HScroll3.visible = on;
  frmMain->Check4.visible = on;
  frmMain->Check6.visible = on;
  frmMain->HScroll10.visible = on;
  frmMain->Text18.visible = on;
}

// The slider is placed so that the satellite suits the scale of the plot.
double FittingSatelliteSize() {
  if (USERFLAG.NedInput == 1.0) return 0;
  const double size = 10 * std::pow(std::abs(1 / FactorScale / 3 / 80 * 6400 - 1), 1 / 1.5);
  return std::min<double>(size, frmMain->HScroll3.max);
}

// The text is red while it is not what the user typed; the caret keeps its place as far as the text goes.
void ShowKeywordAsTaken(TextBox& box) {
  const int caret = box.selStart;
  box.colour = kRed;
  box.text = MainKeyword;
  box.selStart = std::min(caret, static_cast<int>(CharacterCount(MainKeyword)));
}

// The button that opened the panel is released, and closes it.
void ReleaseOptionsButton() {
  ToolButton& button = frmMain->ToolBoptions.Button(kOptionsButton);
  button.SetValue(0);
  ToolBoptions_ButtonClick(button);
  frmMain->Command2.Tag.clear();
}

}  // namespace

void Check1_Click(int index) {
  OptionsRead();
  if (frmMain->Check1[kEarthIndex].value == 1) {
    USERFLAG.MoonAmplification = 1;
  } else if (index == kInteractiveIndex) {
    ClickInteractive();
  }
  if (index == kSunRayIndex) ClickSunRay();
}

void Check3_Click() {
  const int value = frmMain->Check3.value;
  USERFLAG.ShowSatellite = value;
  StoreSingle(4, std::to_string(value));
  ShowSatelliteControls(value == 1);
  Check6_Click();
  if (value == 1 && FactorScale != 0) AssignNumber(frmMain->HScroll3.value, FittingSatelliteSize());
}

void Check4_Click() {
  USERFLAG.SolarPanelToSun = frmMain->Check4.value;
  StoreSingle(5, std::to_string(frmMain->Check4.value.Get()));
}

void Check9_Click() {
  MainWindow& window = *frmMain;
  USERFLAG.CubicView = window.Check9.value;
  const bool on = window.Check9.value > 0;
  window.Text4[4].visible = on;
  window.Label1[kAxisLengthLabel].caption = on ? "Length Axis Factor/Cubic" : "Length Axis Factor";
  if (window.Check9.value == 2) return;
  window.HScroll8.visible = window.Check9.value == 1;
  window.Text16.visible = window.Check9.value == 1;
}

void Check10_Click() {
  USERFLAG.InMetres = frmMain->Check10.value;
}

void Text4_Change(int index) {
  MainWindow& window = *frmMain;
  if (index == 4) window.Text4[1].text = window.Text4[4].text.Get();
  if (index == 1) window.Text4[4].text = window.Text4[1].text.Get();
  if (index == 1 || index == 4) {
    window.HScroll8.Tag = "busy";
    AssignNumber(window.HScroll8.value,
                 ValText(window.Text4[static_cast<std::size_t>(index)].text.Get()) * 1000);
    window.HScroll8.Tag.clear();
  }
  USERFLAG.ThicknessLinePlot = ValText(window.Text4[0].text.Get());
  USERFLAG.LengthAxisFactor = ValText(window.Text4[1].text.Get());
  USERFLAG.ThicknessLineAxis = ValText(window.Text4[2].text.Get());
  USERFLAG.PositionFactor = ValText(window.Text4[3].text.Get());
}

void Text6_Change() {
  CurrentSettings().Write(kSectionUse, "SetDirBMP", frmMain->Text6.text);
}

void Text7_Change() {
  EarthTextureName = frmMain->Text7.text;
  StoreSingle(0, frmMain->Text7.text);
}

void Text8_Change() {
  MoonTextureName = frmMain->Text8.text;
  StoreSingle(1, frmMain->Text8.text);
}

void Text9_Change() {
  TextBox& box = frmMain->Text9;
  if (box.Tag == "1") return;
  box.Tag = "1";
  MainKeyword = UpTrim(box.text.Get());
  if (MainKeyword != box.text.Get()) ShowKeywordAsTaken(box);
  StoreSingle(2, MainKeyword);
  box.colour = kBlack;
  box.Tag.clear();
}

void HScroll3_Change() {
  MainWindow& window = *frmMain;
  window.HScroll10.Tag = "OptMaster";
  USERFLAG.SatelliteSize = window.HScroll3.value;
  StoreSingle(3, std::to_string(window.HScroll3.value.Get()));
  window.Label1[kSatelliteLabel].caption = "Satellite size " + std::to_string(window.HScroll3.value + 1);
  window.HScroll10.value = window.HScroll3.value.Get();
  window.HScroll10.Tag.clear();
}

void HScroll10_Change() {
  MainWindow& window = *frmMain;
  if (!window.HScroll10.Tag.empty()) return;
  window.HScroll3.value = window.HScroll10.value.Get();
  window.Check3.value = 1;
}

void HScroll8_Change() {
  if (!frmMain->HScroll8.Tag.empty()) return;
  frmMain->Text4[4].text = WithDecimalMark(GeneralNumber(frmMain->HScroll8.value / 1000.0));
}

void Command1_Click() {
  OptionsRead();
  int noneStored = 0;
  OptionsLoadSave(1, noneStored);
  CurrentSettings().Write(kSectionUse, "SetDirBMP", frmMain->Text6.text);
  USERFLAG.SatelliteModelReady = 0;
}

void Command2_Click() {
  if (frmMain->Command2.Tag == "ToolBoptions") return ReleaseOptionsButton();
  OptionsRead();
  frmMain->Options.SendToBack();
  USERFLAG.SatelliteModelReady = 0;
  frmMain->Options.visible = false;
}

void Command3_Click() {
  USERFLAG = USERFLAGfactory;
  OptionsPack(1);
  OptionAffecteUser();
  int shapes = 0;
  Combo2_InitList(shapes);
  frmMain->Text6.text = "";
  frmMain->Text9.text = "MAX";
}

void ImageDirRefresh() {
  MainWindow& window = *frmMain;
  ProgramDir = CurrentDesktop().ProgramDirectory();
  if (window.Text6.text.Get().empty()) {
    AppDir = CurrentDesktop().ProgramDirectory() + CurrentDesktop().DirectoryMark();
    window.Text6.text = AppDir;
  } else {
    AppDir = window.Text6.text;
  }
  window.Toolbar1.Button(kImageButton).toolTip = "Save Image " + AppDir;
}

}  // namespace quorb
