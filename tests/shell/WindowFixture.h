#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ActiveWindow.h"
#include "ClassGl.h"
#include "Clock.h"
#include "CommExcl.h"
#include "DataFile.h"
#include "FakeDesktop.h"
#include "GlRecorder.h"
#include "Help.h"
#include "MapSettingsStore.h"
#include "MemoryFiles.h"
#include "OptionPanel.h"
#include "PlotControls.h"
#include "PlotData.h"
#include "RecordingHost.h"
#include "RunState.h"
#include "SceneWindow.h"
#include "ScriptedDialogs.h"
#include "Settings.h"
#include "UserFlag.h"
#include "frmDialog.h"
#include "frmMain.h"
#include "frmVideo.h"

namespace quorb {

using testing::ElementsAre;
using testing::IsEmpty;

/// Settings that note each access into the list of the OpenGL recorder.
class NotingSettings : public MapSettingsStore {
 public:
  std::string Read(const std::string& section, const std::string& key,
                   const std::string& defaultValue) const override {
    RecordCallOf("Settings.Read", section, key);
    return MapSettingsStore::Read(section, key, defaultValue);
  }
  void Write(const std::string& section, const std::string& key, const std::string& value) override {
    RecordCallOf("Settings.Write", section, key, value);
    MapSettingsStore::Write(section, key, value);
  }
};

/// Dialogs that note each box and pause into the same list.
class NotingDialogs : public ScriptedDialogs {
 public:
  BoxAnswer MessageBox(const std::string& prompt, const std::string& title, int style) override {
    RecordCallOf("MessageBox", title);
    return ScriptedDialogs::MessageBox(prompt, title, style);
  }
  void PumpEvents() override {
    RecordCallOf("PumpEvents");
    ScriptedDialogs::PumpEvents();
  }
};

/// A program at its start, with no files, an empty settings store, a desktop in the year 2026 and a recording
/// host. What a test leaves in the process goes at its end.
class WindowFixture : public testing::Test {
 protected:
  WindowFixture() { StartAnew(); }
  ~WindowFixture() override { StartAnew(); }

  static void StartAnew() {
    TheScene.reset();
    glxCtl1 = nullptr;
    frmMain.reset();
    ForgetVideoWindow();
    ForgetFileDialog();
    ForgetActiveWindow();
    DemoShown = 0;
    SetLoaderWindow(nullptr);
    SetSceneWindow(nullptr);
    CloseChannel(1);
    StartRunState();
    OptionSlots.fill("");
    RedrawState = 0;
    STEPPT = 0;
    PlotWidth = PlotHeight = 0;
    constexpr int kRowsInTests = 16;
    for (int row = 0; row < kRowsInTests; ++row) {
      for (int column = 0; column < 5; ++column)
        dataXYZT.Set(row, column, 0);
    }
    ClearCalls();
  }

  /// The window with its designed values, before its load sequence.
  static MainWindow& Create() {
    CreateMainWindow();
    return *frmMain;
  }

  /// The window behind its load sequence.
  MainWindow& Load(const std::string& commandLine = "") {
    Form_Load(commandLine, host);
    return *frmMain;
  }

  void StoreUse(const std::string& key, const std::string& value) { settings.entries[{"Use", key}] = value; }

  /// What the section "Use" holds under a key; "absent" when there is none.
  std::string StoredUse(const std::string& key) const {
    return settings.MapSettingsStore::Read("Use", key, "absent");
  }

  MemoryFiles files;
  NotingSettings settings;
  NotingDialogs dialogs;
  FakeDesktop desktop;
  RecordingHost host;
};

}  // namespace quorb
