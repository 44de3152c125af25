#pragma once

#include <memory>
#include <string>

#include "EglContext.h"
#include "GlHost.h"
#include "HostEvents.h"
#include "Image.h"
#include "RenderTarget.h"

namespace quorb {

/// A host control without a window: its frames are drawn by calls of Frame and read back as pictures. It
/// needs no display. Several may live side by side in one thread.
class OffscreenHost : public GlHost {
 public:
  /// A host with a view of width x height pixels. Null when OpenGL cannot be started here; `error` then says
  /// what is missing and what to install.
  static std::unique_ptr<OffscreenHost> Create(int width, int height, std::string& error);

  ~OffscreenHost() override;

  /// Runs Initialise, makes the picture buffers, then runs ContextReady and Resize. `newEvents` gets the
  /// frames from here on and outlives them. False when no picture of this size can be made, with `error` a
  /// sentence for the user.
  bool Start(HostEvents& newEvents, std::string& error);

  /// Changes the size of the view and runs Resize. False as Start; the size before stays then.
  bool Resize(int newWidth, int newHeight, std::string& error);

  /// Draws one frame, through Draw and Overlay. Does nothing before Start.
  void Frame();

  /// The picture of the last frame; the plain background before the first one of this size.
  PixelImage Pixels() const;

  /// Keeps the wish, for FrameWanted; the next frame fulfils it.
  void Redraw() override { frameWanted = true; }
  bool FrameWanted() const { return frameWanted; }

  bool MakeCurrent() override;
  void DoneCurrent() override {}

  /// The picture of the last frame, which is bound for reading between frames.
  bool BeginReading() override;
  void EndReading() override;

  int Width() const override { return width; }
  int Height() const override { return height; }

 private:
  OffscreenHost(std::unique_ptr<EglContext> newContext, int newWidth, int newHeight);
  bool MakeTarget(int newWidth, int newHeight, std::string& error);

  std::unique_ptr<EglContext> context;
  RenderTarget target;
  HostEvents* events = nullptr;
  int width = 0;
  int height = 0;
  bool frameWanted = false;
};

}  // namespace quorb
