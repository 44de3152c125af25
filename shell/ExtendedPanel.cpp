#include "ExtendedPanel.h"

#include <cstddef>

#include "PlotData.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr std::size_t kFirstColourLabel = 4, kLastColourLabel = 10, kKeywordLabel = 13;
constexpr std::size_t kFirstBackgroundBox = 15;

// Heights in twips.
constexpr double kExtendedPanel = 1400 + 8295;
constexpr double kExtendedWindow = 1400 + 9810;
constexpr double kScreenAbovePanel = 1450;
constexpr double kWindowThatGrows = 10215;
constexpr double kLeastWindow = 5685;
constexpr double kWindowWhenTooLow = 6060;

struct ExtendedHeights {
  double panel, window;
};

ExtendedHeights HeightsOnScreen(double screen) {
  if (screen < kExtendedWindow) {
    return {screen - kScreenAbovePanel, screen};
  }
  return {kExtendedPanel, kExtendedWindow};
}

void ShowColoursAndKeyword(bool shown) {
  MainWindow& window = *frmMain;
  for (TextBox& box : window.Text5)
    box.visible = shown;
  for (std::size_t i = kFirstColourLabel; i <= kLastColourLabel; ++i)
    window.Label1[i].visible = shown;
  window.Text9.visible = shown;
  window.Label1[kKeywordLabel].visible = shown;
}

void Extend() {
  MainWindow& window = *frmMain;
  const ExtendedHeights heights = HeightsOnScreen(window.form.screenHeight);
  window.panelMemory.windowHeight = window.form.OuterHeight();
  window.Options.Height = heights.panel;
  ShowColoursAndKeyword(true);
  if (window.panelMemory.windowHeight < kWindowThatGrows) window.form.SetOuterHeight(heights.window);
}

void Shorten() {
  MainWindow& window = *frmMain;
  const double remembered = window.panelMemory.windowHeight;
  window.Options.Height = window.panelMemory.panelHeight;
  window.form.SetOuterHeight(remembered < kLeastWindow ? kWindowWhenTooLow : remembered);
  ShowColoursAndKeyword(false);
}

}  // namespace

void Check2_Click() {
  MainWindow& window = *frmMain;
  if (window.panelMemory.panelHeight == 0) window.panelMemory.panelHeight = window.Options.Height;
  if (window.Check2.value == 1) {
    Extend();
  } else {
    Shorten();
  }
}

void Check5_Click() {
  PanelMemory& memory = frmMain->panelMemory;
  if (memory.valZKept) return;
  memory.valZKept = true;
  memory.NbValZ = NbValZ;
}

void Check7_Click() {
  MainWindow& window = *frmMain;
  const bool white = window.Check7.value == 1;
  for (std::size_t i = 0; i < window.panelMemory.background.size(); ++i) {
    ControlValue<std::string>& text = window.Text5[kFirstBackgroundBox + i].text;
    if (white) window.panelMemory.background[i] = text;
    text = white ? std::string("255") : window.panelMemory.background[i];
  }
}

}  // namespace quorb
