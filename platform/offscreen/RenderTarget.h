#pragma once

#include <string>

#include "Image.h"

namespace quorb {

/// A picture buffer without a window: a multisampled framebuffer object that is drawn into, and a plain one
/// that its picture is resolved to. Every call needs the same context current.
class RenderTarget {
 public:
  RenderTarget() = default;
  RenderTarget(const RenderTarget&) = delete;
  RenderTarget& operator=(const RenderTarget&) = delete;

  /// Makes the buffers anew for width x height pixels. With four samples a pixel where the driver and the
  /// memory allow it, else one. False on failure, with `error` a sentence for the user; then there are no
  /// buffers.
  bool Make(int width, int height, bool withDepth, std::string& error);

  /// Frees the buffers.
  void Free();

  /// Makes the drawing commands go here and the reading ones take the picture that was resolved last.
  void Bind() const;

  /// Brings the drawn picture to where it can be read.
  void Resolve() const;

  /// The picture resolved last.
  PixelImage Pixels() const;

  int Samples() const { return samples; }

 private:
  struct Buffer {
    unsigned framebuffer = 0;
    unsigned colour = 0;
    unsigned depth = 0;
  };

  bool MakeBoth(int sampleCount, bool withDepth);
  bool MakeBuffer(Buffer& buffer, int sampleCount, bool withDepth) const;
  static void FreeBuffer(Buffer& buffer);

  Buffer drawn;
  Buffer resolved;
  int width = 0;
  int height = 0;
  int samples = 0;
};

}  // namespace quorb
