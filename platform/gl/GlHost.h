#pragma once

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "AnimationValues.h"
#include "CameraValues.h"
#include "GlMaterial.h"
#include "GlTexture.h"
#include "LightValues.h"
#include "OverlayTexts.h"
#include "TextFonts.h"
#include "glCtl.h"

namespace quorb {

/// Everything of a host control but its context, its size, the request for a frame and the swap. A frame runs
/// BeginFrame, the draw event, the overlay event, EndFrame, the swap, with the context current.
class GlHost : public glCtl {
 public:
  static constexpr int kLightCount = 8;
  static constexpr int kMaterialCount = 16;

  /// `applyAnimation` starts or stops the ticks of the host; none for a host without a clock.
  explicit GlHost(std::function<void(bool)> applyAnimation = {});

  void PrintText(int x, int y, const std::string& text) override { overlayTexts.Add(x, y, text); }

  /// Lines in the XY plane, 20 meshes along each side, as far as the size that was set.
  void DrawGrids() override;

  void SetDepthBuffer(bool wanted) override { depthBufferWanted = wanted; }
  void SetDepthTest(bool on) override { depthTest = on; }
  /// Smooths the solid letters. Lines stay as they are, so that a line of many short pieces has no gaps.
  void SetAntialiasing(bool on) override { fonts.SetAntialiasing(on); }
  void SetSize(double x, double y, double z) override { size = {x, y, z}; }

  HostCamera& Camera() override { return camera; }
  /// A number outside 1 to 8 gives a light that shines nowhere.
  HostLight& Lights(int number) override;
  /// A number outside 1 to 16 gives the nearest of these.
  HostMaterial& Materials(int number) override;
  HostMaterial& NewMaterial() override { return ownMaterials.emplace_back(); }
  HostTexture& NewTexture() override { return textures.emplace_back(); }
  HostText& Text() override { return fonts; }
  HostAnimation& Animation() override { return animation; }
  void ReturnList(unsigned list) override;

  /// Keeps the shape; a host with a pointer shows it.
  void SetMousePointer(int id, const std::string& icon) override;
  void ShowBusy(bool) override {}
  int MousePointer() const { return mousePointer; }

  void TrackballStart(int button, int x, int y) override;
  void TrackballMove(int x, int y) override;
  void TrackballEnd() override { trackball.down = false; }

  /// No device handle is needed on this platform: always 0.
  int hDC() const override { return 0; }

  bool DepthBufferWanted() const { return depthBufferWanted; }

 protected:
  /// Device pixels to a pixel at 96 to the inch; to be set before the context is ready.
  void SetPixelRatio(double ratio);

  /// Clears the view of width x height device pixels and sets projection, view, lights and switches. Lighting
  /// and textures are off, whatever the frame before left. The matrix mode is left at the model view.
  void BeginFrame(int width, int height);

  /// Draws the texts that wait. Behind it the OpenGL state is what the draw and overlay events left.
  void EndFrame(int width, int height);

  /// Deletes the display lists that came back, when enough of them wait. To be called between the swap and
  /// the next frame.
  void DeleteReturnedLists();

  /// Frees what lives in the context; to be called with it current, before it goes.
  void ReleaseContext();

 private:
  void SetProjectionMatrix(int width, int height) const;
  void SetViewMatrix() const;
  void SetLights() const;
  void SetSwitches() const;

  struct Trackball {
    bool down = false;
    int x = 0;
    int y = 0;
  };

  CameraValues camera;
  Trackball trackball;
  int mousePointer = 0;
  std::array<LightValues, kLightCount> lights;
  LightValues lightOfNoNumber;
  std::array<GlMaterial, kMaterialCount> materials;
  std::deque<GlMaterial> ownMaterials;
  std::deque<GlTexture> textures;
  AnimationValues animation;
  TextFonts fonts;
  OverlayTexts overlayTexts;
  std::vector<unsigned> returnedLists;
  std::array<double, 3> size{100.0, 100.0, 100.0};
  std::array<float, 3> clearedColour{};
  double pixelRatio = 1.0;
  bool depthBufferWanted = false;
  bool depthTest = false;
};

}  // namespace quorb
