#define GL_GLEXT_PROTOTYPES
#include "RenderTarget.h"

#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quorb {

namespace {

constexpr int kSamples = 4;
/// Pixels of the largest picture that is multisampled; a gigabyte of buffers at four samples.
constexpr std::int64_t kMostSampledPixels = std::int64_t{1} << 25;

int LargestSide() {
  GLint renderbuffer = 0;
  GLint viewport[2] = {0, 0};
  glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &renderbuffer);
  glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport);
  return std::min({renderbuffer, viewport[0], viewport[1]});
}

int MostSamples() {
  GLint most = 0;
  glGetIntegerv(GL_MAX_SAMPLES, &most);
  return most;
}

void ForgetErrors() {
  const int mostFlags = 16;
  for (int i = 0; i < mostFlags && glGetError() != GL_NO_ERROR; ++i) {
  }
}

std::string SizeText(int width, int height) {
  return std::to_string(width) + " x " + std::to_string(height) + " pixels";
}

}  // namespace

bool RenderTarget::Make(int newWidth, int newHeight, bool withDepth, std::string& error) {
  Free();
  if (newWidth < 1 || newHeight < 1) {
    error = "A picture of " + SizeText(newWidth, newHeight) + " cannot be drawn: it has no pixels.";
    return false;
  }
  const int largest = LargestSide();
  if (newWidth > largest || newHeight > largest) {
    error = "A picture of " + SizeText(newWidth, newHeight) +
            " cannot be drawn: this computer's OpenGL takes at most " + SizeText(largest, largest) + ".";
    return false;
  }
  width = newWidth;
  height = newHeight;

  const bool fewPixels = std::int64_t{width} * height <= kMostSampledPixels;
  const bool sampled = fewPixels && MostSamples() >= kSamples && MakeBoth(kSamples, withDepth);
  if (sampled || MakeBoth(0, withDepth)) {
    Bind();
    return true;
  }
  Free();
  error = "A picture of " + SizeText(newWidth, newHeight) + " cannot be drawn: OpenGL has no memory for it.";
  return false;
}

bool RenderTarget::MakeBoth(int sampleCount, bool withDepth) {
  FreeBuffer(drawn);
  FreeBuffer(resolved);
  samples = sampleCount;
  ForgetErrors();
  return MakeBuffer(drawn, sampleCount, withDepth) && MakeBuffer(resolved, 0, false) &&
         glGetError() == GL_NO_ERROR;
}

bool RenderTarget::MakeBuffer(Buffer& buffer, int sampleCount, bool withDepth) const {
  glGenFramebuffers(1, &buffer.framebuffer);
  glBindFramebuffer(GL_FRAMEBUFFER, buffer.framebuffer);

  glGenRenderbuffers(1, &buffer.colour);
  glBindRenderbuffer(GL_RENDERBUFFER, buffer.colour);
  glRenderbufferStorageMultisample(GL_RENDERBUFFER, sampleCount, GL_RGBA8, width, height);
  glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, buffer.colour);

  if (withDepth) {
    glGenRenderbuffers(1, &buffer.depth);
    glBindRenderbuffer(GL_RENDERBUFFER, buffer.depth);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, sampleCount, GL_DEPTH_COMPONENT24, width, height);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, buffer.depth);
  }
  return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

void RenderTarget::Free() {
  FreeBuffer(drawn);
  FreeBuffer(resolved);
  width = 0;
  height = 0;
  samples = 0;
}

void RenderTarget::FreeBuffer(Buffer& buffer) {
  if (buffer.framebuffer != 0) glDeleteFramebuffers(1, &buffer.framebuffer);
  if (buffer.colour != 0) glDeleteRenderbuffers(1, &buffer.colour);
  if (buffer.depth != 0) glDeleteRenderbuffers(1, &buffer.depth);
  buffer = {};
}

void RenderTarget::Bind() const {
  glBindFramebuffer(GL_DRAW_FRAMEBUFFER, drawn.framebuffer);
  glBindFramebuffer(GL_READ_FRAMEBUFFER, resolved.framebuffer);
}

void RenderTarget::Resolve() const {
  glBindFramebuffer(GL_READ_FRAMEBUFFER, drawn.framebuffer);
  glBindFramebuffer(GL_DRAW_FRAMEBUFFER, resolved.framebuffer);
  glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
  Bind();
}

PixelImage RenderTarget::Pixels() const {
  PixelImage image{width, height, {}};
  std::vector<std::uint8_t> bottomUp(image.At(0, height));
  glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
  glPixelStorei(GL_PACK_ALIGNMENT, 1);
  glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, bottomUp.data());
  glPopClientAttrib();

  image.rgb.reserve(bottomUp.size());
  const auto rowBytes = static_cast<std::ptrdiff_t>(image.At(0, 1));
  for (auto end = bottomUp.cend(); end != bottomUp.cbegin(); end -= rowBytes) {
    image.rgb.insert(image.rgb.end(), end - rowBytes, end);
  }
  return image;
}

}  // namespace quorb
