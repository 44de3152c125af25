#include "Settings.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "NumberPicture.h"
#include "NumberText.h"
#include "OptionBar.h"
#include "RunState.h"
#include "SettingsStore.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

std::array<std::string, kOptionSlots> OptionSlots;

namespace {

constexpr std::size_t kFirstColourSlot = 11;
constexpr std::size_t kLastColourSlot = 28;
constexpr std::size_t kMoonSlot = 29;
constexpr std::size_t kCubicViewSlot = 37;

// The fields that have a slot, in slot order.
std::vector<double*> SlotFields(UserFlagRecord& record) {
  const char* const names[] = {
      "NoPlotEarth",      "NoColourAxisX",     "LargeCharacters",  "NoPlotAxis",
      "NoLogoLabel",      "NoOriginLabel",     "NoTimeMoving",     "ThicknessLinePlot",
      "LengthAxisFactor", "ThicknessLineAxis", "PositionFactor",   "ColourAxisLabels",
      "ColourAxis",       "ColourPlotNominal", "ColourPlotEvents", "ColourSphere",
      "ColourBackground", "MoonAmplification", "InteractiveExcel", "SatelliteSize",
      "ShowSatellite",    "SolarPanelToSun",   "NoSunRay",         "EMView",
      "SatelliteShape",   "CubicView"};
  std::vector<double*> fields;
  for (const char* name : names) {
    for (double* number : FieldNumbers(record, name))
      fields.push_back(number);
  }
  return fields;
}

double ClampColour(double value) {
  return std::clamp(value, 0.0, 255.0);
}

double SlotValue(std::size_t slot) {
  return ValText(OptionSlots[slot]);
}

bool AllSlotsZero() {
  double sum = 0;
  for (std::size_t slot = 0; slot < OptionSlots.size(); ++slot)
    sum += SlotValue(slot);
  return sum == 0;
}

double ReadColour(TextBox& box) {
  const double value = ValText(box.text.Get());
  const double clamped = ClampColour(value);
  if (clamped != value) box.text = GeneralNumber(clamped);
  return clamped;
}

void ReadColours() {
  OptionColour* const colours[] = {&USERFLAG.ColourAxisLabels,  &USERFLAG.ColourAxis,
                                   &USERFLAG.ColourPlotNominal, &USERFLAG.ColourPlotEvents,
                                   &USERFLAG.ColourSphere,      &USERFLAG.ColourBackground};
  std::size_t box = 0;
  for (OptionColour* colour : colours) {
    colour->red = ReadColour(frmMain->Text5[box]);
    colour->green = ReadColour(frmMain->Text5[box + 1]);
    colour->blue = ReadColour(frmMain->Text5[box + 2]);
    box += 3;
  }
}

void TakeSlot(ControlValue<int>& value, std::size_t slot) {
  AssignNumber(value, SlotValue(slot));
}

void ShowInteractiveInMenu() {
  frmMain->mnuOinteractive.checked = frmMain->Check1[7].value == 1;
}

}  // namespace

std::string SingleSettingKey(int rank) {
  const char* const pictures[] = {"00.00", "01.00", "02.00", "03.00", "04.00", "05.00"};
  return "Setstr" + FormatPicture(1, pictures[rank]);
}

std::string SlotKey(int slot) {
  return "Set" + FormatPicture(slot, "00.00");
}

void OptionsRead() {
  MainWindow& window = *frmMain;
  USERFLAG.NoPlotEarth = window.Check1[0].value;
  USERFLAG.NoColourAxisX = window.Check1[1].value;
  USERFLAG.LargeCharacters = window.Check1[2].value;
  USERFLAG.NoPlotAxis = window.Check1[3].value;
  USERFLAG.NoLogoLabel = window.Check1[4].value;
  USERFLAG.NoOriginLabel = window.Check1[5].value;
  USERFLAG.NoTimeMoving = window.Check1[6].value;
  USERFLAG.ThicknessLinePlot = ValText(window.Text4[0].text.Get());
  USERFLAG.LengthAxisFactor = ValText(window.Text4[1].text.Get());
  USERFLAG.ThicknessLineAxis = ValText(window.Text4[2].text.Get());
  USERFLAG.PositionFactor = ValText(window.Text4[3].text.Get());
  ReadColours();
  USERFLAG.MoonAmplification = 9 * window.Check1[8].value + 1;
  USERFLAG.InteractiveExcel = window.Check1[7].value;
  USERFLAG.SatelliteSize = window.HScroll3.value;
  USERFLAG.ShowSatellite = window.Check3.value;
  USERFLAG.SolarPanelToSun = window.Check4.value;
  USERFLAG.NoSunRay = window.Check1[9].value;
  // The view of a plot in the Earth-Moon system is not the panel's to choose.
  USERFLAG.EMView = EMSystem == 1 ? 1 : window.Check1[10].value.Get();
  USERFLAG.CubicView = window.Check9.value;
  USERFLAG.InMetres = window.Check10.value;
  window.ToolBoptions.Button(kCubicButton).SetValue(window.Check9.value);
  ShowInteractiveInMenu();
}

void OptionAffecteUser() {
  if (AllSlotsZero()) return;
  MainWindow& window = *frmMain;
  for (std::size_t i = 0; i < 7; ++i)
    TakeSlot(window.Check1[i].value, i);
  for (std::size_t i = 0; i < 4; ++i)
    window.Text4[i].text = OptionSlots[7 + i];
  for (std::size_t i = 0; i < 18; ++i)
    window.Text5[i].text = OptionSlots[kFirstColourSlot + i];
  AssignNumber(window.Check1[8].value, std::floor((SlotValue(kMoonSlot) - 1) / 9 + 0.5));
  TakeSlot(window.Check1[7].value, 30);
  TakeSlot(window.HScroll3.value, 31);
  TakeSlot(window.Check3.value, 32);
  TakeSlot(window.Check4.value, 33);
  TakeSlot(window.Check1[9].value, 34);
  TakeSlot(window.Check1[10].value, 35);
  ShowInteractiveInMenu();
}

void OptionsPack(int mode) {
  const std::vector<double*> fields = SlotFields(USERFLAG);
  if (mode == 1) {
    OptionSlots.fill("0");
    for (std::size_t slot = 0; slot < fields.size(); ++slot)
      OptionSlots[slot] = WithDecimalMark(GeneralNumber(*fields[slot]));
    return;
  }
  for (std::size_t slot = kFirstColourSlot; slot <= kLastColourSlot; ++slot) {
    OptionSlots[slot] = GeneralNumber(ClampColour(SlotValue(slot)));
  }
  OptionSlots[kCubicViewSlot] = GeneralNumber(USERFLAG.CubicView);
  for (std::size_t slot = 0; slot < fields.size(); ++slot)
    *fields[slot] = SlotValue(slot);
}

void OptionsLoadSave(int mode, int& noneStored) {
  if (mode == 1) {
    OptionsPack(1);
    for (int slot = 0; slot < kOptionSlots; ++slot) {
      CurrentSettings().Write(kSectionUse, SlotKey(slot), OptionSlots[static_cast<std::size_t>(slot)]);
    }
    return;
  }
  for (int slot = 0; slot < kOptionSlots; ++slot) {
    OptionSlots[static_cast<std::size_t>(slot)] = CurrentSettings().Read(kSectionUse, SlotKey(slot), "0");
  }
  noneStored = 0;
  if (AllSlotsZero()) {
    noneStored = -1;
    return;
  }
  OptionsPack(0);
}

}  // namespace quorb
