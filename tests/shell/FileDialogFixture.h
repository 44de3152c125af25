#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "FakeDesktop.h"
#include "FakeDirectories.h"
#include "ScriptedDialogs.h"
#include "frmDialog.h"

namespace quorb {

using testing::ElementsAre;
using testing::IsEmpty;

/// The chooser in a small home directory. What the user does in the open window stands in `user`.
class FileDialogFixture : public testing::Test {
 protected:
  FileDialogFixture() {
    ForgetFileDialog();
    directories.contents = {{"/", {{"home"}, {}}},
                            {"/home", {{"user"}, {}}},
                            {"/home/user", {{"orbits"}, {"a.qbv", "b.qbv", "note.txt"}}},
                            {"/home/user/orbits", {{}, {"geo.qbv", "leo.qbv"}}}};
    directories.files = {{"/home/user/a.qbv", 123},
                         {"/home/user/b.qbv", 1234567},
                         {"/home/user/note.txt", 7},
                         {"/home/user/orbits/geo.qbv", 40},
                         {"/home/user/orbits/leo.qbv", 50}};
  }
  ~FileDialogFixture() override { ForgetFileDialog(); }

  /// Fills the chooser as the command File/Open does, and shows it.
  void Open(const std::string& startDirectory = "") {
    DialogWindow& dialog = frmDialog();
    dialog.InitDir.text = startDirectory;
    dialog.Filename.text = "";
    dialog.Filter.text = "*.qbv ";
    dialog.Action.value = 1;
    dialog.runModal = [this] { user(); };
    dialog.showAndWait();
  }

  static void Click(ListBox& list, const std::string& entry) {
    const std::vector<std::string>& items = list.items;
    const auto found = std::find(items.begin(), items.end(), entry);
    ASSERT_NE(found, items.end()) << entry;
    list.selected = static_cast<int>(found - items.begin());
  }

  static std::string Filename() { return frmDialog().Filename.text; }

  FakeDirectories directories;
  FakeDesktop desktop;
  ScriptedDialogs dialogs;
  std::function<void()> user = [] {};
};

}  // namespace quorb
