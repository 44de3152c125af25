#include "LoaderLink.h"

#include <algorithm>
#include <chrono>
#include <thread>

#include "Desktop.h"
#include "Dialogs.h"
#include "OptionPanel.h"
#include "RunState.h"
#include "Settings.h"
#include "SettingsStore.h"
#include "SheetControls.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr std::chrono::duration<double> kPumpEvery(0.01);

CheckBox& CheckOf(LoaderControl control) {
  switch (control) {
    case LoaderControl::Check1_0:
      return frmMain->Check1[0];
    case LoaderControl::Check3:
      return frmMain->Check3;
    case LoaderControl::Check4:
      return frmMain->Check4;
    case LoaderControl::Check5:
      return frmMain->Check5;
    case LoaderControl::Check9:
      return frmMain->Check9;
    default:
      return frmMain->Check11;
  }
}

bool IsCheck(LoaderControl control) {
  return control <= LoaderControl::Check11;
}

Control& ControlOf(LoaderControl control) {
  switch (control) {
    case LoaderControl::Combo1:
      return frmMain->Combo1;
    case LoaderControl::Command6:
      return frmMain->Command6;
    case LoaderControl::TextTempo:
      return frmMain->TextTempo;
    default:
      return CheckOf(control);
  }
}

class LoaderLink : public LoaderWindow {
 public:
  void AppendLog(const std::string& line) override {
    const std::string& log = frmMain->Text20.text;
    frmMain->Text20.text = log.empty() ? line : log + NL + line;
  }
  void ShowReadingName(const std::string& name) override { frmMain->Text21.text = name; }
  void ShowNamedFile(const std::string& name) override {
    frmMain->Text14.text = name;
    frmMain->Text14.visible = true;
  }
  void ShowProgress(bool visible) override { frmMain->ProgressBar1.visible = visible; }
  void SetProgress(double value) override { frmMain->ProgressBar1.value = value; }
  int Value(LoaderControl control) const override {
    return IsCheck(control) ? CheckOf(control).value.Get() : 0;
  }
  void SetValue(LoaderControl control, int value) override {
    if (IsCheck(control)) CheckOf(control).value = value;
  }
  std::string Tag(LoaderControl control) const override { return ControlOf(control).Tag; }
  void SetTag(LoaderControl control, const std::string& tag) override { ControlOf(control).Tag = tag; }
  void Show(LoaderControl control, bool visible) override { ControlOf(control).visible = visible; }
  void SetTextTempo(const std::string& text) override { frmMain->TextTempo.text = text; }
  void SetFocus(LoaderControl control) override { ControlOf(control).SetFocus(); }
  void Combo1_GotFocusRoutine() override { quorb::Combo1_GotFocusRoutine(); }
  void Pause(double seconds) override {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    CurrentDialogs().PumpEvents();
    while (Clock::now() < end) {
      std::this_thread::sleep_for(std::min<std::chrono::duration<double>>(kPumpEvery, end - Clock::now()));
      CurrentDialogs().PumpEvents();
    }
  }
  std::string MainKeywordText() const override { return frmMain->Text9.text; }
  void SetSatelliteSize(double size) override {
    ScrollBar& bar = frmMain->HScroll3;
    AssignNumber(bar.value, std::min<double>(size, bar.max));
  }
  void SetSatelliteShape(const std::string& name) override { frmMain->Combo2.text = name; }
  void RegisterFileType() override {
    CurrentDesktop().RegisterFileType();
    if (frmMain->fileTypeStored) return;
    frmMain->fileTypeStored = true;
    CurrentSettings().Write(kSectionApp, "associateEXE", AppTitle);
    CurrentSettings().Write(kSectionApp, "associateEXT", ".qbv");
  }
  void SetSpeedBar(int value) override { frmMain->HScroll2.value = value; }
  void CameraSet(const std::string& mode, double value, double flag) override {
    if (TheScene != nullptr) TheScene->CameraSet(mode, value, flag);
  }
  void Command2_Click() override { quorb::Command2_Click(); }
  void Form_Resize() override { quorb::Form_Resize(); }
};

LoaderLink loaderLink;

}  // namespace

LoaderWindow& LoaderLinkOfWindow() {
  return loaderLink;
}

}  // namespace quorb
