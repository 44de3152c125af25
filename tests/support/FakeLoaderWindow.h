#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "CommExcl.h"
#include "LoaderWindow.h"

namespace quorb {

/// The main window of a test: it keeps what the loader tells it, and the order of the calls that do
/// something. It is the loader's window for as long as it lives.
class FakeLoaderWindow : public LoaderWindow {
 public:
  FakeLoaderWindow() { SetLoaderWindow(this); }
  ~FakeLoaderWindow() override { SetLoaderWindow(nullptr); }
  FakeLoaderWindow(const FakeLoaderWindow&) = delete;
  FakeLoaderWindow& operator=(const FakeLoaderWindow&) = delete;

  struct Control {
    int value = 0;
    std::string tag;
    bool visible = false;
  };

  std::vector<std::string> log;
  std::string readingName;
  std::string namedFile;
  bool progressVisible = false;
  std::vector<double> progress;
  std::map<LoaderControl, Control> controls;
  std::string keyword = "MAX";
  int speed = 0;
  double satelliteSize = -1;
  std::string satelliteShape;
  int registrations = 0;
  std::string textTempo;
  std::vector<double> pauses;
  /// Runs in every pause; a pause takes no time.
  std::function<void()> onPause;

  /// "Command2_Click", "Form_Resize" and "CameraSet isonew" in the order in which they were called.
  std::vector<std::string> calls;
  /// Runs at every one of those.
  std::function<void(const std::string& call)> onCall;

  bool HasLog(const std::string& line) const { return std::find(log.begin(), log.end(), line) != log.end(); }

  void AppendLog(const std::string& line) override { log.push_back(line); }
  void ShowReadingName(const std::string& name) override { readingName = name; }
  void ShowNamedFile(const std::string& name) override { namedFile = name; }
  void ShowProgress(bool visible) override { progressVisible = visible; }
  void SetProgress(double value) override { progress.push_back(value); }

  int Value(LoaderControl control) const override { return Of(control).value; }
  void SetValue(LoaderControl control, int value) override { controls[control].value = value; }
  std::string Tag(LoaderControl control) const override { return Of(control).tag; }
  void SetTag(LoaderControl control, const std::string& tag) override { controls[control].tag = tag; }
  void Show(LoaderControl control, bool visible) override { controls[control].visible = visible; }

  std::string MainKeywordText() const override { return keyword; }
  void SetSatelliteSize(double size) override { satelliteSize = size; }
  void SetSatelliteShape(const std::string& name) override { satelliteShape = name; }
  void RegisterFileType() override { ++registrations; }
  void SetSpeedBar(int value) override { speed = value; }
  void SetTextTempo(const std::string& text) override { textTempo = text; }
  void SetFocus(LoaderControl control) override {
    Note(control == LoaderControl::Combo1 ? "focus Combo1" : "focus Command6");
  }
  void Combo1_GotFocusRoutine() override { Note("Combo1_GotFocusRoutine"); }
  void Pause(double seconds) override {
    pauses.push_back(seconds);
    const auto act = onPause;  // which may set another one
    if (act) act();
  }
  void CameraSet(const std::string& mode, double value, double flag) override {
    Note("CameraSet " + mode + " " + std::to_string(static_cast<int>(value)) + " " +
         std::to_string(static_cast<int>(flag)));
  }
  void Command2_Click() override { Note("Command2_Click"); }
  void Form_Resize() override { Note("Form_Resize"); }

 private:
  Control Of(LoaderControl control) const {
    const auto found = controls.find(control);
    return found == controls.end() ? Control() : found->second;
  }

  void Note(const std::string& call) {
    calls.push_back(call);
    if (onCall) onCall(call);
  }
};

}  // namespace quorb
