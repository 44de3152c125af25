#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "TemporaryDirectory.h"
#include "VirtualDisplay.h"

namespace {

struct ScreenSize {
  int width = 1280, height = 900;
};

// The size of the screen, which tests that start this program again choose: QUORB_TEST_SCREEN=1366x768.
ScreenSize SizeOfScreen() {
  ScreenSize size;
  const char* const wanted = std::getenv("QUORB_TEST_SCREEN");
  if (wanted != nullptr) std::sscanf(wanted, "%dx%d", &size.width, &size.height);
  return size;
}

}  // namespace

// Runs the tests on a display of their own, with settings of their own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();

  const quorb::TemporaryDirectory home;
  setenv("XDG_CONFIG_HOME", home.File("config").c_str(), 1);
  setenv("XDG_DATA_HOME", home.File("data").c_str(), 1);
  const std::string runtime = home.File("runtime");
  std::filesystem::create_directory(runtime);
  std::filesystem::permissions(runtime, std::filesystem::perms::owner_all);
  setenv("XDG_RUNTIME_DIR", runtime.c_str(), 1);

  const ScreenSize screen = SizeOfScreen();
  const quorb::VirtualDisplay display(screen.width, screen.height);
  if (!display.Works()) {
    std::fputs("Xvfb did not start.\n", stderr);
    return 1;
  }
  setenv("DISPLAY", display.Name().c_str(), 1);
  setenv("QT_QPA_PLATFORM", "xcb", 1);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
