#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "PictureCompare.h"
#include "ProgramRun.h"
#include "VirtualDisplay.h"
#include "WindowSearch.h"

namespace quorb {

inline constexpr const char* kBusName = "org.quorb.QuorbExcelPro";
inline constexpr const char* kBusPath = "/org/quorb/QuorbExcelPro";
inline constexpr const char* kBusInterface = "org.quorb.QuorbExcelPro.ClassInterface";

/// The real program on the test's display and session bus, with settings of its own and no office in sight,
/// and the desktop's own command-line client of the bus.
class ViewerOnBus : public testing::Test {
 protected:
  ViewerOnBus() {
    std::filesystem::create_directories(run.File("no-offices"));
    std::filesystem::create_directories(run.File("runtime"));
    std::filesystem::permissions(run.File("runtime"), std::filesystem::perms::owner_all);
  }

  std::unique_ptr<Background> Start(const std::string& file,
                                    const std::vector<std::string>& environment = {}) const {
    std::vector<std::string> all = {
        "XDG_CONFIG_HOME=" + run.File("config"), "XDG_DATA_HOME=" + run.File("data"),
        "XDG_RUNTIME_DIR=" + run.File("runtime"), "QUORB_OFFICE_SOCKETS=" + run.File("no-offices")};
    all.insert(all.end(), environment.begin(), environment.end());
    std::vector<std::string> command = {QUORB_VIEWER_PROGRAM};
    if (!file.empty()) command.push_back(file);
    return std::make_unique<Background>(command, all);
  }

  static bool WaitFor(const std::function<bool()>& holds, int seconds = 20) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (!holds()) {
      if (std::chrono::steady_clock::now() > limit) return false;
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return true;
  }

  /// Waits until a window with this text in its title is on the screen.
  bool WaitForWindow(const std::string& title) const {
    return WaitFor([&] { return HasWindow(title); });
  }
  bool HasWindow(const std::string& title) const { return SearchWindows(run, title).status == 0; }
  /// Waits until the plot of a file is loaded and the object of a name answers.
  bool WaitUntilFree(const std::string& name = kBusName) const {
    return WaitFor([&] { return Read("Busy", name) == "(<false>,)"; });
  }

  /// Calls a member in the words of gdbus, in which a text stands in quotes and has escapes.
  ProgramOutcome Call(const std::string& member, const std::string& arguments,
                      const std::string& name = kBusName) const {
    return run.Run("/usr/bin/gdbus", Words(kBusInterface + ("." + member), name) + arguments);
  }
  /// A property as gdbus prints it.
  std::string Read(const std::string& property, const std::string& name = kBusName) const {
    std::string out = run.Run("/usr/bin/gdbus", Words("org.freedesktop.DBus.Properties.Get", name) +
                                                    kBusInterface + (" " + property))
                          .out;
    if (!out.empty()) out.pop_back();
    return out;
  }
  /// The names on the bus that are this program's, in order.
  std::vector<std::string> OwnNames() const {
    const std::string list =
        run.Run("/usr/bin/gdbus",
                "call --session -d org.freedesktop.DBus -o / -m org.freedesktop.DBus.ListNames")
            .out;
    const std::string mark = "'org.quorb";
    std::vector<std::string> names;
    for (auto at = list.find(mark); at != std::string::npos; at = list.find(mark, at + 1))
      names.push_back(list.substr(at + 1, list.find('\'', at + 1) - at - 1));
    std::sort(names.begin(), names.end());
    return names;
  }
  static std::string Words(const std::string& method, const std::string& name) {
    return "call --session --timeout 60 -d " + name + " -o " + kBusPath + " -m " + method + " ";
  }

  /// What stands on the screen where the plot of a new window is, between the tool bars and the panel.
  PixelImage Plot() const {
    run.Run("/usr/bin/import", "-window root -crop 1280x750+0+43 +repage screen.png");
    PixelImage image;
    std::string error;
    EXPECT_TRUE(ReadPng(run.File("screen.png"), image, error)) << error;
    return image;
  }
  /// The picture of a data file of `run`, by the program without a window.
  PixelImage Rendered(const std::string& file) const {
    EXPECT_EQ(run.Run(QUORB_RENDER_PROGRAM, "'" + file + "' --size 1280x750 -o rendered.png").status, 0);
    PixelImage image;
    std::string error;
    EXPECT_TRUE(ReadPng(run.File("rendered.png"), image, error)) << error;
    return image;
  }
  /// Presses Return in the window with this text in its title.
  void PressReturnIn(const std::string& title) const {
    EXPECT_TRUE(WaitFor([&] { return SearchWindows(run, title, "windowfocus --sync").status == 0; }))
        << title;
    EXPECT_EQ(run.Run("/usr/bin/xdotool", "key Return").status, 0);
  }

  ProgramRun run;
};

}  // namespace quorb
