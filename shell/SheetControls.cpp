#include "SheetControls.h"

#include <string>
#include <vector>

#include "LoaderLink.h"
#include "RunState.h"
#include "Settings.h"
#include "SettingsStore.h"
#include "SheetSession.h"
#include "SheetWatcher.h"
#include "SpecificationHistory.h"
#include "TextHelpers.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

/// The longest formula that a worksheet takes.
constexpr std::size_t kLongestFormula = 8192;

constexpr int kKeyEnter = 13, kKeyPageUp = 33, kKeyPageDown = 34, kKeyLeft = 37, kKeyDown = 40;

void TellWhenTooLong(const std::string& specification) {
  const std::size_t length = CharacterCount(specification);
  if (length <= kLongestFormula) return;
  const std::string message = "The specification has " + std::to_string(length) +
                              " characters: a formula of a worksheet has " + std::to_string(kLongestFormula) +
                              " at most.";
  frmMain->Text21.text = message;
  LoaderLinkOfWindow().AppendLog(message);
}

}  // namespace

void Combo1_InitList(int& count) {
  std::vector<std::string> entries;
  for (int i = 0; i < kHistoryEntries; ++i) {
    std::string entry = CurrentSettings().Read(kSectionUse, HistoryKey(i), "");
    if (!entry.empty()) entries.push_back(std::move(entry));
  }
  count = static_cast<int>(entries.size());
  frmMain->Combo1.items = entries;
}

void Combo1_GotFocusRoutine() {
  int entries = 0;
  Combo1_InitList(entries);
  frmMain->Combo1.Width = frmMain->ProgressBar1.Width.Get();
}

void Combo1_Entered() {
  SpecTypedText = frmMain->Combo1.text;
  SpecTyped = 1;
  TellWhenTooLong(SpecTypedText);
}

void Combo1_KeyDown(int KeyCode) {
  if (KeyCode == kKeyEnter) Combo1_Entered();
  const bool turnsView =
      KeyCode == kKeyPageUp || KeyCode == kKeyPageDown || (KeyCode >= kKeyLeft && KeyCode <= kKeyDown);
  if (turnsView) frmMain->GlPlace.SetFocus();
}

void Command6_Click() {
  frmMain->Command6.Tag = "demo";
}

void mnuOinteractive_Click() {
  CheckBox& interactive = frmMain->Check1[7];
  interactive.value = 1 - interactive.value;
}

void mnuUpdateExcel_Click() {
  if (SpreadsheetInUse()) {
    LoaderLinkOfWindow().AppendLog("The sheet is being read: Update was not begun a second time");
    return;
  }
  MainWindow& window = *frmMain;
  if (window.mnuOptions.enabled) {
    window.mnuOptions.enabled = false;
    window.mnuOinteractive.enabled = false;
  }
  USERFLAG.UpdateAsked = 1.0;
  if (USERFLAG.InteractiveExcel == 1.0) window.Check1[7].value = 0;
  CommandFileMode = 0;
  window.Text14.visible = false;
  WatchSheet();
  Form_Activate();
}

}  // namespace quorb
