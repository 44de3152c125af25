#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "HostEvents.h"
#include "OffscreenHost.h"

namespace quorb {

/// Host events as functions that a test sets; the order of the events is kept.
class ScriptedEvents : public HostEvents {
 public:
  void Initialise() override {
    log += "initialise ";
    if (onInitialise) onInitialise();
  }
  void ContextReady() override {
    log += "ready ";
    if (onReady) onReady();
  }
  void Resize(int width, int height) override {
    log += "resize:" + std::to_string(width) + "x" + std::to_string(height) + " ";
  }
  void Draw() override {
    log += "draw ";
    if (onDraw) onDraw();
  }
  void Overlay() override {
    log += "overlay ";
    if (onOverlay) onOverlay();
  }

  std::string log;
  std::function<void()> onInitialise;
  std::function<void()> onReady;
  std::function<void()> onDraw;
  std::function<void()> onOverlay;
};

/// A host of 200 x 200 pixels whose camera looks along -Z at a window of -100 to 100 both ways: a unit is a
/// pixel, and the point (x, y) of the scene is the pixel (100 + x, 100 - y) of the picture.
class FrameFixture : public testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    host = OffscreenHost::Create(200, 200, error);
    ASSERT_NE(host, nullptr) << error;
    host->Camera().Look(0, 0, 100, 0, 0, 0, 0, 1, 0);
    ASSERT_TRUE(host->Start(events, error)) << error;
  }

  /// Number of pixels in the columns and rows from first to last whose channels add up to more than a tenth
  /// of full white.
  static int LitPixels(const PixelImage& image, int firstX, int lastX, int firstY, int lastY) {
    int lit = 0;
    for (int y = firstY; y <= lastY; ++y) {
      for (int x = firstX; x <= lastX; ++x) {
        const std::size_t at = image.At(x, y);
        if (image.rgb[at] + image.rgb[at + 1] + image.rgb[at + 2] > 76) ++lit;
      }
    }
    return lit;
  }
  static int LitPixels(const PixelImage& image) {
    return LitPixels(image, 0, image.width - 1, 0, image.height - 1);
  }

  PixelImage Frame() {
    host->Frame();
    return host->Pixels();
  }

  ScriptedEvents events;
  std::unique_ptr<OffscreenHost> host;
};

}  // namespace quorb
