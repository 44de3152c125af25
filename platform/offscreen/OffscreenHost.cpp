#include "OffscreenHost.h"

#include <GL/gl.h>

#include <utility>

namespace quorb {

std::unique_ptr<OffscreenHost> OffscreenHost::Create(int width, int height, std::string& error) {
  std::unique_ptr<EglContext> context = EglContext::Create(error);
  if (!context) return nullptr;
  return std::unique_ptr<OffscreenHost>(new OffscreenHost(std::move(context), width, height));
}

OffscreenHost::OffscreenHost(std::unique_ptr<EglContext> newContext, int newWidth, int newHeight)
    : context(std::move(newContext)), width(newWidth), height(newHeight) {}

OffscreenHost::~OffscreenHost() {
  context->MakeCurrent();
  ReleaseContext();
  target.Free();
}

bool OffscreenHost::Start(HostEvents& newEvents, std::string& error) {
  newEvents.Initialise();
  if (!MakeTarget(width, height, error)) return false;
  events = &newEvents;
  events->ContextReady();
  events->Resize(width, height);
  return true;
}

bool OffscreenHost::MakeTarget(int newWidth, int newHeight, std::string& error) {
  context->MakeCurrent();
  if (!target.Make(newWidth, newHeight, DepthBufferWanted(), error)) return false;
  glClear(GL_COLOR_BUFFER_BIT);
  target.Resolve();
  return true;
}

bool OffscreenHost::Resize(int newWidth, int newHeight, std::string& error) {
  if (!MakeTarget(newWidth, newHeight, error)) {
    std::string ignored;
    MakeTarget(width, height, ignored);
    return false;
  }
  width = newWidth;
  height = newHeight;
  if (events != nullptr) events->Resize(width, height);
  return true;
}

void OffscreenHost::Frame() {
  if (events == nullptr) return;
  context->MakeCurrent();
  target.Bind();
  frameWanted = false;
  BeginFrame(width, height);
  events->Draw();
  events->Overlay();
  EndFrame(width, height);
  target.Resolve();
  DeleteReturnedLists();
}

bool OffscreenHost::MakeCurrent() {
  if (events == nullptr) return false;
  context->MakeCurrent();
  return true;
}

bool OffscreenHost::BeginReading() {
  if (!MakeCurrent()) return false;
  target.Bind();
  glViewport(0, 0, width, height);
  glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
  return true;
}

void OffscreenHost::EndReading() {
  glPopClientAttrib();
}

PixelImage OffscreenHost::Pixels() const {
  context->MakeCurrent();
  return target.Pixels();
}

}  // namespace quorb
